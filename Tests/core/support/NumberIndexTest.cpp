#include "support/NumberIndex.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <map>
#include <random>
#include <vector>

namespace kx {

namespace {

// Things with keys, of which one is found by its key and its name.
class Things {
public:
    void add(std::uint64_t key, int name) {
        index.add(key, static_cast<std::uint32_t>(keys.size()));
        keys.push_back(key);
        names.push_back(name);
    }

    std::uint32_t find(std::uint64_t key, int name) const {
        return index.find(key, [&](std::uint32_t number) {
            return keys[number] == key && names[number] == name;
        });
    }

    NumberIndex index;
    std::vector<std::uint64_t> keys;
    std::vector<int> names;
};

} // namespace

TEST(NumberIndex, AnEmptyOneFindsNothing) {
    Things things;
    EXPECT_EQ(things.find(7, 0), NumberIndex::nothing);
    EXPECT_EQ(things.index.size(), 0U);
}

TEST(NumberIndex, FindsEachThingOfTheSameKey) {
    Things things;
    for (int name = 0; name < 100; ++name) {
        things.add(7, name);
    }
    for (int name = 0; name < 100; ++name) {
        EXPECT_EQ(things.find(7, name), static_cast<std::uint32_t>(name));
    }
    EXPECT_EQ(things.find(7, 100), NumberIndex::nothing);
    EXPECT_EQ(things.find(8, 0), NumberIndex::nothing);
}

TEST(NumberIndex, AThingThatIsRemovedIsGoneAndTheOthersAreFound) {
    Things things;
    for (int name = 0; name < 13; ++name) { // as full as the smallest table gets
        things.add(7, name);
    }
    for (int removed = 0; removed < 13; removed += 2) {
        things.index.remove(7, static_cast<std::uint32_t>(removed));
    }
    EXPECT_EQ(things.index.size(), 6U);
    for (int name = 0; name < 13; ++name) {
        EXPECT_EQ(things.find(7, name),
                  name % 2 == 1 ? static_cast<std::uint32_t>(name) : NumberIndex::nothing);
    }
}

TEST(NumberIndex, AThingIsFoundByItsNewNumber) {
    NumberIndex index;
    index.add(7, 0);
    index.renumber(7, 0, 5);
    EXPECT_EQ(index.find(7, [](std::uint32_t number) { return number == 5; }), 5U);
    EXPECT_EQ(index.find(7, [](std::uint32_t number) { return number == 0; }),
              NumberIndex::nothing);
}

TEST(NumberIndex, NothingIsLeftWhenItIsCleared) {
    Things things;
    things.add(7, 0);
    things.index.clear();
    EXPECT_EQ(things.find(7, 0), NumberIndex::nothing);
    EXPECT_EQ(things.index.size(), 0U);
}

TEST(NumberIndex, AKeyOfTwoTellsTheirOrderAndEachOfThem) {
    EXPECT_EQ(NumberIndex::keyOf(1, 2), NumberIndex::keyOf(1, 2));
    EXPECT_NE(NumberIndex::keyOf(1, 2), NumberIndex::keyOf(2, 1));
    EXPECT_NE(NumberIndex::keyOf(1, 2), NumberIndex::keyOf(1, 3));
    EXPECT_NE(NumberIndex::keyOf(1, 2), NumberIndex::keyOf(3, 2));
}

// The same by a plain map, also with few keys that many things share.
TEST(NumberIndex, AgreesWithAPlainMapOverManyRandomChanges) {
    for (const std::uint64_t keys : {5U, 1000U}) {
        NumberIndex index;
        std::map<std::uint32_t, std::uint64_t> expected; // key by number
        std::mt19937 random(1);
        for (int step = 0; step < 20'000; ++step) {
            const auto number = static_cast<std::uint32_t>(random() % 400);
            const auto known = expected.find(number);
            if (known != expected.end()) {
                index.remove(known->second, number);
                expected.erase(known);
            } else {
                const std::uint64_t key = random() % keys;
                index.add(key, number);
                expected.emplace(number, key);
            }
            const auto asked = static_cast<std::uint32_t>(random() % 400);
            const auto there = expected.find(asked);
            const std::uint64_t key = there != expected.end() ? there->second : random() % keys;
            const std::uint32_t found =
                index.find(key, [asked](std::uint32_t other) { return other == asked; });
            ASSERT_EQ(found, there != expected.end() ? asked : NumberIndex::nothing) << step;
            ASSERT_EQ(index.size(), expected.size());
        }
    }
}

} // namespace kx
