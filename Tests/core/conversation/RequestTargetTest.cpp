#include "conversation/RequestTarget.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>

namespace kx {

namespace {

using enum UnitParameter;
using enum RequestReach;

// 192.168.1.255 and 10.255.255.255.
constexpr std::array<std::uint32_t, 2> addressesOfMany{0xC0A801FFU, 0x0AFFFFFFU};

RequestReach reachOfUnitAt(std::string_view address) {
    UnitRecord record;
    record.setValue(internalIPAddress, address);
    return targetOfRequest(&record, addressesOfMany).reach;
}

} // namespace

TEST(RequestTarget, IsTheUnitAtTheAddressThatItTells) {
    UnitRecord record;
    record.setValue(internalIPAddress, "192.168.1.10");
    EXPECT_EQ(targetOfRequest(&record, addressesOfMany),
              (RequestTarget{.reach = oneUnit, .address = 0xC0A8010AU}));
}

TEST(RequestTarget, IsEverybodyWithoutAUnitOrWithoutItsAddress) {
    EXPECT_EQ(targetOfRequest(nullptr, addressesOfMany),
              (RequestTarget{.reach = everybodyWithoutUnit}));
    const UnitRecord record;
    EXPECT_EQ(targetOfRequest(&record, addressesOfMany),
              (RequestTarget{.reach = everybodyWithoutAddress}));
}

TEST(RequestTarget, IsEverybodyAtAnAddressOfMany) {
    EXPECT_EQ(reachOfUnitAt("192.168.1.255"), everybodyAtItsAddress);
    EXPECT_EQ(reachOfUnitAt("10.255.255.255"), everybodyAtItsAddress);
    EXPECT_EQ(reachOfUnitAt("255.255.255.255"), everybodyAtItsAddress);
    EXPECT_EQ(reachOfUnitAt("224.0.0.1"), everybodyAtItsAddress);
    EXPECT_EQ(reachOfUnitAt("239.255.255.255"), everybodyAtItsAddress);
    EXPECT_EQ(reachOfUnitAt("223.255.255.255"), oneUnit);
    EXPECT_EQ(reachOfUnitAt("240.0.0.0"), oneUnit);
    EXPECT_EQ(reachOfUnitAt("192.168.2.255"), oneUnit) << "which subnets there are is not known";
}

} // namespace kx
