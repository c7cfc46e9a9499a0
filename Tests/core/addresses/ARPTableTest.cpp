#include "addresses/ARPTable.h"

#include "doubles/RecordedSystemLog.h"

#include <gtest/gtest.h>

namespace kx {

TEST(ARPTable, TheAddressBehindAtIsNormalised) {
    const RecordedSystemLog log;
    EXPECT_EQ(hwAddressStringInToolOutput("? (10.0.0.5) at 0:5:2:a:b:c on en0 [ethernet]\n"),
              "00:05:02:0A:0B:0C");
    EXPECT_EQ(hwAddressStringInToolOutput("? (10.0.0.5) at 00:05:02:0a:0b:0c [ether] PERM on kx0"),
              "00:05:02:0A:0B:0C");
    EXPECT_EQ(hwAddressStringInToolOutput("at 1-2-3-4-5-6"), "01:02:03:04:05:06");
    EXPECT_TRUE(log.lines().empty());
}

TEST(ARPTable, OutputWithoutAtHasNoAddress) {
    const RecordedSystemLog log;
    constexpr std::string_view table =
        "Address                  HWtype  HWaddress           Flags Mask            Iface\n"
        "10.0.0.5                 ether   00:05:02:0a:0b:0c   CM                    kx0\n";
    for (const std::string_view output :
         {std::string_view(), std::string_view("10.0.0.9 (10.0.0.9) -- no entry\n"),
          std::string_view("arp: in 2 entries no match found.\n"), std::string_view("at"),
          std::string_view("a t "), table}) {
        EXPECT_EQ(hwAddressStringInToolOutput(output), std::nullopt) << output;
    }
    EXPECT_TRUE(log.lines().empty());
}

TEST(ARPTable, WhatIsNoAddressBehindAtIsLogged) {
    const RecordedSystemLog log;
    EXPECT_EQ(hwAddressStringInToolOutput("? (10.0.0.5) at <incomplete> on kx0"), std::nullopt);
    EXPECT_EQ(hwAddressStringInToolOutput("? (10.0.0.5) at 0:5:2:a:b"), std::nullopt);
    EXPECT_TRUE(log.contains("<incomplete> on kx0"));
    EXPECT_TRUE(log.contains("0:5:2:a:b"));
    EXPECT_TRUE(log.contains("HardwareAddressFormatter: invalid Ethernet address"));
}

TEST(ARPTable, NothingBehindAtIsNoAddress) {
    EXPECT_EQ(hwAddressStringInToolOutput("? (10.0.0.5) at "), std::nullopt);
}

TEST(ARPTable, OnlyTheFirstAtCounts) {
    EXPECT_EQ(hwAddressStringInToolOutput("? (10.0.0.5) at 1:2:3:4:5:6 on en0\n"
                                          "? (10.0.0.5) at 7:8:9:a:b:c on en1\n"),
              "01:02:03:04:05:06");
    EXPECT_EQ(hwAddressStringInToolOutput("flat (10.0.0.5) at 1:2:3:4:5:6 on en0\n"), std::nullopt);
}

} // namespace kx
