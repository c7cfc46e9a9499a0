#include "words/ParameterLines.h"

#include "core/UnitReplies.h"
#include "doubles/MarkedLocalizedText.h"

#include <gtest/gtest.h>

namespace kx {

namespace {

std::string linesOf(const Bytes& list) {
    return linesOfParameters(decodeUnitParameters(list).items, parameterLineStarts());
}

} // namespace

TEST(ParameterLines, HaveEveryItemInTheOrderOfTheList) {
    EXPECT_EQ(linesOf(SampleUnit().parameterList()),
              "\n\tinternal MAC address: 00:1A:2B:3C:4D:5E"
              "\n\tinternal IP address: 192.168.1.10"
              "\n\tdestination IP address: 192.168.1.1"
              "\n\tdestination Port number: 3520"
              "\n\tdevice Port number: 10000"
              "\n\tunit ID: 42"
              "\n\tdestination MAC address: 00:0A:0B:0C:0D:0E"
              "\n\tserial number: 01 02 03 04 05 06");
}

TEST(ParameterLines, OfNoItemAreNone) {
    EXPECT_EQ(linesOf({}), "");
}

TEST(ParameterLines, OfAnItemThatComesTwiceAreTwo) {
    EXPECT_EQ(linesOf(joined({item("<I>", {10, 0, 0, 1}), item("<I>", {10, 0, 0, 2})})),
              "\n\tinternal IP address: 10.0.0.1\n\tinternal IP address: 10.0.0.2");
}

TEST(ParameterLines, OfAUnitIDThatIsNoTextSayNull) {
    EXPECT_EQ(linesOf(item("<U>", {0xFF, 1, 2, 3, 4, 5})), "\n\tunit ID: (null)");
}

TEST(ParameterLines, OfAUnitIDWithALineFeedAreStillOne) {
    EXPECT_EQ(linesOf(item("<U>", {'a', '\n', 'b', 'c', 'd', 'e'})), "\n\tunit ID: a\xC1"
                                                                     "bcde");
}

TEST(ParameterLines, OfTheUninterpretedItemHaveItsTag) {
    EXPECT_EQ(linesOf(item("<O>", {1, 2, 3, 4, 5, 6})), "\n\t<O>: 01:02:03:04:05:06");
}

TEST(ParameterLines, HaveTheNamesOfTheLanguage) {
    const MarkedLocalizedText marked;
    EXPECT_EQ(linesOf(joined({item("<T>", {0x0D, 0xC0}), item("<O>", {1, 2, 3, 4, 5, 6})})),
              "\n\t<destination Port number>: 3520\n\t<O>: 01:02:03:04:05:06");
}

} // namespace kx
