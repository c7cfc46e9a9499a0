#include "units/OrderedSerialNumbers.h"

#include <gtest/gtest.h>

#include <random>
#include <set>
#include <string>
#include <vector>

namespace kx {

namespace {

std::string randomKey(std::mt19937& random) {
    std::string key(UnitRecord::longestText, ' ');
    for (char& character : key) {
        character = static_cast<char>('0' + random() % 10);
    }
    return key;
}

std::vector<std::string> listed(OrderedSerialNumbers& keys) {
    const TitleList list = keys.list();
    return {list.begin(), list.end()};
}

} // namespace

TEST(OrderedSerialNumbers, AreNoneAtFirst) {
    OrderedSerialNumbers keys;
    EXPECT_TRUE(keys.list().empty());
}

TEST(OrderedSerialNumbers, ComeInOrderHoweverManyWereAddedBetweenTwoLists) {
    std::mt19937 random(1);
    OrderedSerialNumbers keys;
    std::set<std::string> expected;
    for (const int more : {1, 62, 1, 1, 63, 64, 65, 1000, 0, 4096, 7}) {
        for (int count = 0; count < more; ++count) {
            const std::string key = randomKey(random);
            if (expected.insert(key).second) {
                keys.add(key);
            }
        }
        ASSERT_EQ(listed(keys), std::vector<std::string>(expected.begin(), expected.end()));
    }
}

TEST(OrderedSerialNumbers, AKeyStandsBeforeLongerOnesThatBeginWithIt) {
    OrderedSerialNumbers keys;
    keys.add("AB");
    keys.add("A");
    keys.add("");
    keys.add("B");
    EXPECT_EQ(listed(keys), (std::vector<std::string>{"", "A", "AB", "B"}));
}

TEST(OrderedSerialNumbers, AreForgottenWhenTheyAreCleared) {
    OrderedSerialNumbers keys;
    keys.add("A");
    keys.clear();
    EXPECT_TRUE(keys.list().empty());
    keys.add("A");
    EXPECT_EQ(listed(keys), std::vector<std::string>{"A"});
}

TEST(OrderedSerialNumbers, RemovedOnesAreGoneAndMayComeBack) {
    std::mt19937 random(2);
    OrderedSerialNumbers keys;
    std::set<std::string> expected;
    for (int step = 0; step < 20'000; ++step) {
        const std::string key = std::to_string(random() % 3000);
        if (expected.insert(key).second) {
            keys.add(key);
        } else {
            expected.erase(key);
            keys.remove(key);
        }
        if (step % 501 == 0) {
            ASSERT_EQ(listed(keys), std::vector<std::string>(expected.begin(), expected.end()));
        }
    }
}

TEST(OrderedSerialNumbers, AllOfThemMayBeRemoved) {
    OrderedSerialNumbers keys;
    for (int number = 0; number < 200; ++number) {
        keys.add(std::to_string(number));
    }
    for (int number = 0; number < 200; ++number) {
        keys.remove(std::to_string(number));
    }
    EXPECT_TRUE(keys.list().empty());
    keys.add("7");
    EXPECT_EQ(listed(keys), std::vector<std::string>{"7"});
}

TEST(OrderedSerialNumbersDeathTest, ANumberThatIsTooLongBreaksTheContract) {
    OrderedSerialNumbers keys;
    EXPECT_DEATH(keys.add("18 characters long"), "number.size\\(\\) <= UnitRecord::longestText");
}

} // namespace kx
