#include "support/KeyedEntries.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <map>
#include <random>
#include <string>

namespace kx {

namespace {

struct Named {
    std::uint64_t key() const { return number; }

    std::uint64_t number = 0;
    std::string name;
};

} // namespace

TEST(KeyedEntries, AnEntryIsFoundByItsKeyAndCanBeChanged) {
    KeyedEntries<Named> entries;
    EXPECT_EQ(entries.find(1), nullptr);
    entries.add({.number = 1, .name = "one"}).name += '!';
    entries.add({.number = 2, .name = "two"});
    ASSERT_NE(entries.find(1), nullptr);
    EXPECT_EQ(entries.find(1)->name, "one!");
    entries.find(2)->name = "zwei";
    EXPECT_EQ(entries.find(2)->name, "zwei");
    EXPECT_EQ(entries.find(3), nullptr);
}

TEST(KeyedEntries, RemovingAnEntryThatIsNotThereDoesNothing) {
    KeyedEntries<Named> entries;
    entries.remove(1);
    entries.add({.number = 2, .name = "two"});
    entries.remove(1);
    EXPECT_EQ(entries.size(), 1U);
    EXPECT_NE(entries.find(2), nullptr);
}

TEST(KeyedEntries, AgreeWithAPlainMapOverManyRandomChanges) {
    KeyedEntries<Named> entries;
    std::map<std::uint64_t, std::string> expected;
    std::mt19937 random(1);
    for (int step = 0; step < 20'000; ++step) {
        const std::uint64_t key = random() % 300;
        if (expected.erase(key) != 0) {
            entries.remove(key);
        } else {
            const std::string name = std::to_string(step);
            entries.add({.number = key, .name = name});
            expected.emplace(key, name);
        }
        const std::uint64_t asked = random() % 300;
        const Named* const found = entries.find(asked);
        ASSERT_EQ(found != nullptr, expected.contains(asked)) << step;
        if (found != nullptr) {
            ASSERT_EQ(found->name, expected[asked]) << step;
        }
        ASSERT_EQ(entries.size(), expected.size());
    }
}

} // namespace kx
