#include "System Configuration/InterfaceTitles.h"

#include <gtest/gtest.h>

namespace kx {

TEST(InterfaceTitles, NameOfAnIdentifierStandsBeforeItsLastColon) {
    EXPECT_EQ(bsdNameForInterfaceID("en0"), "en0");
    EXPECT_EQ(bsdNameForInterfaceID("en0:1"), "en0");
    EXPECT_EQ(bsdNameForInterfaceID("eth0:2:1"), "eth0:2");
    EXPECT_EQ(bsdNameForInterfaceID(""), "");
}

TEST(InterfaceTitles, NameOfATitleStandsInItsLastParentheses) {
    EXPECT_EQ(bsdNameForTitle("Ethernet 2 (en0:1)"), "en0");
    EXPECT_EQ(bsdNameForTitle("Home (office) (wlan0)"), "wlan0");
}

TEST(InterfaceTitles, TitleWithoutParenthesisIsAnIdentifier) {
    EXPECT_EQ(bsdNameForTitle("en0:1"), "en0");
}

TEST(InterfaceTitles, TitleThatEndsAtItsParenthesisHasNoName) {
    EXPECT_EQ(bsdNameForTitle("Ethernet ("), "");
    EXPECT_EQ(bsdNameForTitle("Ethernet ()"), "");
    EXPECT_EQ(bsdNameForTitle(""), "");
}

} // namespace kx
