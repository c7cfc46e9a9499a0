#include "conversation/RequestTarget.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>

namespace kx {

namespace {

using enum UnitParameter;
using enum RequestReach;

// 192.168.1.255 and 10.255.255.255.
constexpr std::array<std::uint32_t, 2> broadcastAddresses{0xC0A801FFU, 0x0AFFFFFFU};

RequestReach reachOfUnitAt(std::string_view address) {
    UnitRecord record;
    record.setValue(internalIPAddress, address);
    return targetOfRequest(true, &record, broadcastAddresses).reach;
}

} // namespace

TEST(RequestTarget, IsTheUnitAtTheAddressThatItTells) {
    UnitRecord record;
    record.setValue(internalIPAddress, "192.168.1.10");
    EXPECT_EQ(targetOfRequest(true, &record, broadcastAddresses),
              (RequestTarget{.reach = oneUnit, .address = 0xC0A8010AU}));
}

TEST(RequestTarget, IsEverybodyWithoutAUnitOrWithoutItsAddress) {
    EXPECT_EQ(targetOfRequest(false, nullptr, broadcastAddresses),
              (RequestTarget{.reach = everybodyWithoutUnit}));
    const UnitRecord record;
    EXPECT_EQ(targetOfRequest(true, &record, broadcastAddresses),
              (RequestTarget{.reach = everybodyWithoutAddress}));
}

TEST(RequestTarget, IsEverybodyWhenNothingIsKnownOfTheSelectedUnitAnyMore) {
    EXPECT_EQ(targetOfRequest(true, nullptr, broadcastAddresses),
              (RequestTarget{.reach = everybodyWithoutAddress}));
}

TEST(RequestTarget, IsEverybodyAtAnAddressOfMany) {
    for (const auto* const address : {"192.168.1.255", "10.255.255.255", "255.255.255.255",
                                      "224.0.0.1", "239.255.255.255", "0.0.0.0", "no address"}) {
        EXPECT_EQ(reachOfUnitAt(address), everybodyAtItsAddress) << address;
    }
    for (const auto* const address :
         {"223.255.255.255", "240.0.0.0", "192.168.2.255", "192.168.1.254", "0.0.0.1"}) {
        EXPECT_EQ(reachOfUnitAt(address), oneUnit) << address;
    }
}

} // namespace kx
