#include "System Configuration/InterfaceTitles.h"

#include <gtest/gtest.h>

namespace kx {

TEST(InterfaceTitles, ATitleIsTheNameAndTheIdentifierInParentheses) {
    EXPECT_EQ(titleForNameAndID("Ethernet", "en0"), "Ethernet (en0)");
    EXPECT_EQ(titleForNameAndID("", "en0"), " (en0)");
    EXPECT_EQ(titleForNameAndID("Ethernet", ""), "Ethernet ()");
}

TEST(InterfaceTitles, ANameThatEndsWithItsIdentifierStaysAsItIs) {
    EXPECT_EQ(titleForNameAndID("Ethernet (en0)", "en0"), "Ethernet (en0)");
    EXPECT_EQ(titleForNameAndID("Ethernet (en0)", "en0:1"), "Ethernet (en0) (en0:1)");
    EXPECT_EQ(titleForNameAndID("Ethernet(en0)", "en0"), "Ethernet(en0) (en0)");
}

TEST(InterfaceTitles, AnIdentifierWithinTheNameIsNoEnd) {
    EXPECT_EQ(titleForNameAndID("Ethernet (en0) left", "en0"), "Ethernet (en0) left (en0)");
    EXPECT_EQ(titleForNameAndID(" (en0)(en1)", "en0"), " (en0)(en1) (en0)");
    EXPECT_EQ(titleForNameAndID("Left (en0) (en0)", "en0"), "Left (en0) (en0)");
}

TEST(InterfaceTitles, PercentSignsInNamesAreNoFormat) {
    EXPECT_EQ(titleForNameAndID("%@ 100%", "%d"), "%@ 100% (%d)");
}

TEST(InterfaceTitles, TheUserNameStandsBeforeTheLastParenthesis) {
    EXPECT_EQ(userNameForTitle("Ethernet 2 (en0:1)"), "Ethernet 2");
    EXPECT_EQ(userNameForTitle("Ethernet (left) (en0)"), "Ethernet (left)");
    EXPECT_EQ(userNameForTitle("Ethernet(en0)"), "Ethernet(en0)") << "the blank belongs to it";
    EXPECT_EQ(userNameForTitle(" (en0)"), "");
}

TEST(InterfaceTitles, TheInterfaceIdentifierStandsBehindTheLastParenthesis) {
    EXPECT_EQ(interfaceIDForTitle("Ethernet 2 (en0:1)"), "en0:1");
    EXPECT_EQ(interfaceIDForTitle("Ethernet (left) (en0)"), "en0");
    EXPECT_EQ(interfaceIDForTitle("Ethernet(en0)"), "en0");
}

TEST(InterfaceTitles, ATitlesFinalCharacterIsTakenToBeTheParenthesis) {
    EXPECT_EQ(interfaceIDForTitle("Ethernet (en0"), "en");
    EXPECT_EQ(interfaceIDForTitle("Ethernet (en\xC3\xA9"), "en");
    EXPECT_EQ(interfaceIDForTitle("Ethernet (en\xF0\x9F\x98\x80"), "en");
    EXPECT_EQ(interfaceIDForTitle("Ethernet ()"), "");
    EXPECT_EQ(interfaceIDForTitle("Ethernet ("), "");
}

TEST(InterfaceTitles, ATitleWithoutParenthesesMapsToItself) {
    EXPECT_EQ(userNameForTitle("Ethernet"), "Ethernet");
    EXPECT_EQ(interfaceIDForTitle("Ethernet"), "Ethernet");
    EXPECT_EQ(userNameForTitle(""), "");
    EXPECT_EQ(interfaceIDForTitle(""), "");
}

TEST(InterfaceTitles, TheSystemsNameStandsBeforeTheLastColon) {
    EXPECT_EQ(bsdNameForInterfaceID("en0:1"), "en0");
    EXPECT_EQ(bsdNameForInterfaceID("en0"), "en0");
    EXPECT_EQ(bsdNameForInterfaceID("a:b:1"), "a:b");
    EXPECT_EQ(bsdNameForInterfaceID(""), "");
}

TEST(InterfaceTitles, TheSystemsNameOfATitleIsThatOfItsIdentifier) {
    EXPECT_EQ(bsdNameForTitle("Ethernet 2 (en0:1)"), "en0");
    EXPECT_EQ(bsdNameForTitle("Ethernet (en0)"), "en0");
    EXPECT_EQ(bsdNameForTitle("en0:1"), "en0");
    EXPECT_EQ(bsdNameForTitle("12:00 (en0)"), "en0");
    EXPECT_EQ(bsdNameForTitle("Home (office) (wlan0)"), "wlan0");
    EXPECT_EQ(bsdNameForTitle("Ethernet ("), "");
    EXPECT_EQ(bsdNameForTitle("Ethernet ()"), "");
    EXPECT_EQ(bsdNameForTitle(""), "");
}

} // namespace kx
