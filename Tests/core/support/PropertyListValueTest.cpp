#include "support/PropertyListValue.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <utility>

namespace kx {
namespace {

TEST(PropertyListValue, IsTheEmptyTextAtFirst) {
    const PropertyListValue value;
    ASSERT_NE(value.text(), nullptr);
    EXPECT_EQ(*value.text(), "");
}

TEST(PropertyListValue, IsOfOneKindOnly) {
    const PropertyListValue text("t");
    EXPECT_EQ(*text.text(), "t");
    EXPECT_EQ(text.integer(), nullptr);
    EXPECT_EQ(text.list(), nullptr);
    EXPECT_EQ(text.dictionary(), nullptr);

    const PropertyListValue integer(7);
    EXPECT_EQ(integer.text(), nullptr);
    EXPECT_EQ(*integer.integer(), 7);

    const PropertyListValue list(PropertyList{1});
    EXPECT_EQ(list.integer(), nullptr);
    EXPECT_EQ(list.list()->size(), 1U);

    const PropertyListValue dictionary(PropertyDictionary{{"k", 1}});
    EXPECT_EQ(dictionary.list(), nullptr);
    EXPECT_EQ(dictionary.dictionary()->size(), 1U);
}

TEST(PropertyListValue, IsMadeOfEveryKindOfTextAndInteger) {
    EXPECT_EQ(PropertyListValue("t"), PropertyListValue(std::string("t")));
    EXPECT_EQ(PropertyListValue("t"), PropertyListValue(std::string_view("t")));
    EXPECT_EQ(PropertyListValue(-1), PropertyListValue(std::int64_t{-1}));
}

TEST(PropertyListValue, TextAndIntegerAreNeverEqual) {
    EXPECT_NE(PropertyListValue("1"), PropertyListValue(1));
    EXPECT_NE(PropertyListValue(PropertyList{}), PropertyListValue(PropertyDictionary{}));
    EXPECT_NE(PropertyListValue(PropertyList{1, 2}), PropertyListValue(PropertyList{2, 1}));
}

TEST(PropertyListValue, CopiesAreDeep) {
    PropertyDictionary original = {{"list", PropertyList{1}}};
    const PropertyListValue copy(original);
    original["list"] = 2;
    EXPECT_EQ(copy.description(), "{list = (1)}");
}

TEST(PropertyListValue, ContentsDecideAboutEqualityAndNotWhoHoldsThem) {
    const auto nested = [] {
        return PropertyListValue(PropertyDictionary{{"a", PropertyList{1, PropertyList{"b"}}}});
    };
    EXPECT_EQ(nested(), nested());
    EXPECT_NE(nested(), PropertyListValue(PropertyDictionary{{"a", PropertyList{1, "b"}}}));
}

TEST(PropertyListValue, ACopyOutlivesItsOriginal) {
    PropertyListValue original(PropertyList{1, PropertyDictionary{{"k", "v"}}});
    const PropertyListValue copy = original;
    original = 2;
    EXPECT_EQ(copy.description(), "(1, {k = v})");
    EXPECT_EQ(original, PropertyListValue(2));
}

TEST(PropertyListValue, WhatWasMovedFromIsTheEmptyText) {
    const auto list = [] { return PropertyListValue(PropertyList{1}); };
    PropertyListValue source = list();
    PropertyListValue target = std::move(source);
    EXPECT_EQ(target, list());
    EXPECT_EQ(source, PropertyListValue()); // NOLINT(bugprone-use-after-move): tested here
    PropertyListValue other;
    other = std::move(target);
    EXPECT_EQ(other, list());
    EXPECT_EQ(target, PropertyListValue()); // NOLINT(bugprone-use-after-move): tested here
}

TEST(PropertyListValue, MayBeAssignedAnElementOfItself) {
    PropertyListValue value(PropertyList(1, PropertyList{"inner"}));
    value = PropertyListValue(value.list()->front());
    EXPECT_EQ(value.description(), "(inner)");
}

TEST(PropertyListValue, DescribesTextsAndIntegersAsTheyStand) {
    EXPECT_EQ(PropertyListValue("a \"b\"").description(), "a \"b\"");
    EXPECT_EQ(PropertyListValue(std::numeric_limits<std::int64_t>::min()).description(),
              "-9223372036854775808");
}

TEST(PropertyListValue, DescribesListsInOrder) {
    EXPECT_EQ(PropertyListValue(PropertyList{}).description(), "()");
    EXPECT_EQ(PropertyListValue(PropertyList{"a", 1, PropertyList{"b"}}).description(),
              "(a, 1, (b))");
}

TEST(PropertyListValue, DescribesEmptyTextsInListsToo) {
    EXPECT_EQ(PropertyListValue(PropertyList{"", "a", ""}).description(), "(, a, )");
    EXPECT_EQ(PropertyListValue(PropertyList{"", ""}).description(), "(, )");
}

TEST(PropertyListValue, DescribesDictionariesInOrderOfTheirKeys) {
    EXPECT_EQ(PropertyListValue(PropertyDictionary{}).description(), "{}");
    EXPECT_EQ(PropertyListValue(PropertyDictionary{{"b", 1}, {"a", "x"}, {"B", PropertyList{}}})
                  .description(),
              "{B = (); a = x; b = 1}");
    EXPECT_EQ(PropertyListValue(PropertyDictionary{{"", ""}, {"a", ""}}).description(),
              "{ = ; a = }");
}

TEST(PropertyListValue, IsFoundByKey) {
    const PropertyDictionary dictionary = {{"a", 1}};
    ASSERT_NE(valueForKey(dictionary, "a"), nullptr);
    EXPECT_EQ(*valueForKey(dictionary, "a"), PropertyListValue(1));
    EXPECT_EQ(valueForKey(dictionary, "b"), nullptr);
}

} // namespace
} // namespace kx
