#include "support/TitleList.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <ranges>
#include <string>
#include <utility>
#include <vector>

namespace kx {

namespace {

using Titles = std::vector<std::string>;

Titles titlesOf(const TitleList& list) {
    return {list.begin(), list.end()};
}

} // namespace

static_assert(std::ranges::random_access_range<TitleList>);

TEST(TitleList, IsEmptyAtFirst) {
    const TitleList list;
    EXPECT_TRUE(list.empty());
    EXPECT_EQ(list.size(), 0U);
    EXPECT_EQ(titlesOf(list), Titles{});
}

TEST(TitleList, HasEachTitleAtItsIndex) {
    const TitleList list{"one", "", "three", ""};
    ASSERT_EQ(list.size(), 4U);
    EXPECT_FALSE(list.empty());
    EXPECT_EQ(list[0], "one");
    EXPECT_EQ(list[1], "");
    EXPECT_EQ(list[2], "three");
    EXPECT_EQ(list[3], "");
}

TEST(TitleList, AnEmptyTitleIsATitle) {
    const TitleList list{""};
    ASSERT_EQ(list.size(), 1U);
    EXPECT_EQ(list[0], "");
}

TEST(TitleList, TakesTextsOfAnyKindAndLength) {
    const std::string longTitle(1000, 'x');
    const Titles titles{"Büro (eth0)", longTitle, std::string("a\0b", 3)};
    EXPECT_EQ(titlesOf(titles), titles);
}

TEST(TitleList, GrowsAtItsEnd) {
    TitleList list{"one"};
    list.reserve(4, 15);
    list.push_back("two");
    list.append(Titles{"three", "four"});
    EXPECT_EQ(titlesOf(list), (Titles{"one", "two", "three", "four"}));
}

TEST(TitleList, AppendsTextsThatARangeMakesAsItGoes) {
    const Titles titles{"a title too long for", "a text without memory"};
    TitleList list;
    list.append(titles | std::views::transform([](const std::string& title) {
                    return title + " that is made where it is asked for";
                }));
    EXPECT_EQ(titlesOf(list), (Titles{"a title too long for that is made where it is asked for",
                                      "a text without memory that is made where it is asked for"}));
}

TEST(TitleList, ACopyIsIndependentOfItsOrigin) {
    TitleList list{"one"};
    TitleList copy = list;
    copy.push_back("two");
    list.push_back("other");
    EXPECT_EQ(titlesOf(copy), (Titles{"one", "two"}));
    const TitleList moved = std::move(list);
    EXPECT_EQ(titlesOf(moved), (Titles{"one", "other"}));
}

TEST(TitleList, AlgorithmsReadAndFillIt) {
    const TitleList all{"a", "b", "c", "d"};
    const TitleList some{"b", "c"};
    TitleList rest;
    std::ranges::set_difference(all, some, std::back_inserter(rest));
    EXPECT_EQ(titlesOf(rest), (Titles{"a", "d"}));
    EXPECT_EQ(std::ranges::lower_bound(all, "c") - all.begin(), 2);
}

TEST(TitleList, IteratorsGoAnyDistanceInEitherDirection) {
    const TitleList list{"a", "b", "c", "d"};
    auto place = list.begin();
    EXPECT_EQ(*place++, "a");
    EXPECT_EQ(*++place, "c");
    EXPECT_EQ(*place--, "c");
    EXPECT_EQ(*--place, "a");
    EXPECT_EQ(place[3], "d");
    EXPECT_EQ(*(2 + place), "c");
    EXPECT_EQ(*(list.end() - 1), "d");
    place += 3;
    place -= 2;
    EXPECT_EQ(*place, "b");
    EXPECT_LT(list.begin(), place);
    EXPECT_EQ(list.end() - list.begin(), 4);
}

} // namespace kx
