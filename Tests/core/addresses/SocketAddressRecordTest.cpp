#include "addresses/SocketAddressRecord.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <numeric>

namespace kx {
namespace {

constexpr std::uint32_t untouchedAddress = 0xDEADBEEFU;
constexpr std::uint16_t untouchedPort = 0xABCD;

// The results of addressForData() for a record. The fields start with values that it would not
// write.
struct TakenApart {
    std::uint32_t address = untouchedAddress;
    IPv6Octets address6{0xEE};
    std::uint16_t port = untouchedPort;
    int family;

    explicit TakenApart(ByteView record)
        : family(addressForData(record, address, address6, &port)) {}
};

IPv6Octets countingOctets() {
    IPv6Octets octets{};
    std::iota(octets.begin(), octets.end(), std::uint8_t{0x20});
    return octets;
}

TEST(SocketAddressRecord, IPv4LayoutIsLengthFamilyPortAddressZeros) {
    const Bytes expected = {16, 2, 0x0D, 0xC0, 0xC0, 0xA8, 1, 10, 0, 0, 0, 0, 0, 0, 0, 0};
    EXPECT_EQ(dataForAddress(0xC0A8010AU, 3520), expected);
}

TEST(SocketAddressRecord, IPv6LayoutIsLengthFamilyPortFlowAddressScope) {
    Bytes expected = {28, 30, 0x0D, 0xC0, 0, 0, 0, 0};
    const IPv6Octets octets = countingOctets();
    expected.insert(expected.end(), octets.begin(), octets.end());
    expected.insert(expected.end(), 4, 0);
    EXPECT_EQ(dataForAddress6(octets, 3520), expected);
}

TEST(SocketAddressRecord, IPv4AddressAndPortComeBackUnchanged) {
    const TakenApart result(dataForAddress(0xFE0102FFU, 65535));
    EXPECT_EQ(result.family, addressFamilyIPv4);
    EXPECT_EQ(result.address, 0xFE0102FFU);
    EXPECT_EQ(result.port, 65535);
    EXPECT_EQ(result.address6, IPv6Octets{0xEE});
}

TEST(SocketAddressRecord, IPv6AddressComesBackAndLeavesTheIPv4OutputAlone) {
    const TakenApart result(dataForAddress6(countingOctets(), 3520));
    EXPECT_EQ(result.family, addressFamilyIPv6);
    EXPECT_EQ(result.address6, countingOctets());
    EXPECT_EQ(result.port, 3520);
    EXPECT_EQ(result.address, untouchedAddress);
}

TEST(SocketAddressRecord, PortOutputMayBeNull) {
    std::uint32_t address = 0;
    IPv6Octets address6{};
    EXPECT_EQ(addressForData(dataForAddress(7, 1), address, address6, nullptr), addressFamilyIPv4);
    EXPECT_EQ(address, 7U);
    EXPECT_EQ(addressForData(dataForAddress6(countingOctets(), 1), address, address6, nullptr),
              addressFamilyIPv6);
    EXPECT_EQ(addressForData({}, address, address6, nullptr), 0);
}

TEST(SocketAddressRecord, AnotherFamilyGivesZeros) {
    Bytes record = dataForAddress(0xC0A8010AU, 3520);
    record[1] = 18;
    const TakenApart result(record);
    EXPECT_EQ(result.family, 0);
    EXPECT_EQ(result.address, 0U);
    EXPECT_EQ(result.port, 0);
    EXPECT_EQ(result.address6, IPv6Octets{0xEE});
}

TEST(SocketAddressRecord, NoBytesGiveZeros) {
    const TakenApart result{ByteView{}};
    EXPECT_EQ(result.family, 0);
    EXPECT_EQ(result.address, 0U);
    EXPECT_EQ(result.port, 0);
    EXPECT_EQ(result.address6, IPv6Octets{0xEE});
}

TEST(SocketAddressRecord, LengthByteIsNotLookedAt) {
    Bytes record = dataForAddress(0xC0A8010AU, 3520);
    record[0] = 0;
    EXPECT_EQ(TakenApart(record).address, 0xC0A8010AU);
    record[0] = 255;
    EXPECT_EQ(TakenApart(record).address, 0xC0A8010AU);
}

TEST(SocketAddressRecord, RecordThatEndsBeforeItsIPv4AddressGivesZeros) {
    const Bytes record = dataForAddress(0xC0A8010AU, 3520);
    for (std::size_t length = 0; length < 8; ++length) {
        const TakenApart result(ByteView(record).first(length));
        EXPECT_EQ(result.family, 0) << length;
        EXPECT_EQ(result.address, 0U) << length;
        EXPECT_EQ(result.port, 0) << length;
    }
    EXPECT_EQ(TakenApart(ByteView(record).first(8)).address, 0xC0A8010AU);
}

TEST(SocketAddressRecord, RecordThatEndsBeforeItsIPv6AddressGivesZeros) {
    const Bytes record = dataForAddress6(countingOctets(), 3520);
    for (std::size_t length = 0; length < 24; ++length) {
        const TakenApart result(ByteView(record).first(length));
        EXPECT_EQ(result.family, 0) << length;
        EXPECT_EQ(result.address, 0U) << length;
        EXPECT_EQ(result.port, 0) << length;
        EXPECT_EQ(result.address6, IPv6Octets{0xEE}) << length;
    }
    EXPECT_EQ(TakenApart(ByteView(record).first(24)).address6, countingOctets());
}

TEST(SocketAddressRecord, FamilyIsTheSecondByte) {
    EXPECT_EQ(familyOfRecord({}), 0);
    EXPECT_EQ(familyOfRecord(Bytes{16}), 0);
    EXPECT_EQ(familyOfRecord(Bytes{16, 2}), addressFamilyIPv4);
    EXPECT_EQ(familyOfRecord(dataForAddress6({}, 0)), addressFamilyIPv6);
    EXPECT_EQ(familyOfRecord(Bytes{16, 200}), 200);
}

} // namespace
} // namespace kx
