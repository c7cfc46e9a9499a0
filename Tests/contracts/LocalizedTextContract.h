// The contract of support/LocalizedText.h: tests that every source of localized texts must pass.
//
// A test program runs them against its source by
//
//     INSTANTIATE_TYPED_TEST_SUITE_P(Table, LocalizedTextContract, TextCatalogueTrait);
//
// with a trait that is made anew for each test and has
//
//     const LocalizedText& source();
//     void setTranslation(std::string key, std::string translation);

#pragma once

#include "support/LocalizedText.h"

#include <gtest/gtest.h>

#include <string_view>

namespace kx {

template<typename Trait>
class LocalizedTextContract : public testing::Test {
protected:
    Trait trait;
};

TYPED_TEST_SUITE_P(LocalizedTextContract);

TYPED_TEST_P(LocalizedTextContract, AKeyWithoutTranslationStandsForItself) {
    EXPECT_EQ(this->trait.source().textForKey("not available"), "not available");
    EXPECT_EQ(this->trait.source().textForKey(""), "");
}

TYPED_TEST_P(LocalizedTextContract, AKeyWithATranslationGivesIt) {
    this->trait.setTranslation("Unit:", "Gerät (ä, 装置):");
    EXPECT_EQ(this->trait.source().textForKey("Unit:"), "Gerät (ä, 装置):");
    EXPECT_EQ(this->trait.source().textForKey("Unit ID:"), "Unit ID:");
}

TYPED_TEST_P(LocalizedTextContract, PlaceholdersAndLineBreaksStay) {
    constexpr std::string_view key = "\nSend to: %@ command: %@ %d %1 %n 100%%";
    EXPECT_EQ(this->trait.source().textForKey(key), key);
}

TYPED_TEST_P(LocalizedTextContract, TheKeyIsReadNoFurtherThanItsEnd) {
    constexpr std::string_view longer = "not available at all";
    EXPECT_EQ(this->trait.source().textForKey(longer.substr(0, 13)), "not available");
}

REGISTER_TYPED_TEST_SUITE_P(LocalizedTextContract, AKeyWithoutTranslationStandsForItself,
                            AKeyWithATranslationGivesIt, PlaceholdersAndLineBreaksStay,
                            TheKeyIsReadNoFurtherThanItsEnd);

} // namespace kx
