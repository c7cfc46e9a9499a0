#include "Simulator/FactorySettings.h"

namespace kx::simulator {

namespace {

constexpr unsigned kAddressesBeforeUnits = 10;
constexpr std::uint16_t kDevicePort = 10'000;

SixBytes factoryUnitID(unsigned number) {
    if (number % 2 != 0 && number <= 0xFF)
        return sixBytesOf(number);
    SixBytes text{'U', '0', '0', '0', '0', '0'};
    for (auto digit = text.rbegin(); number != 0; ++digit, number /= 10)
        *digit = static_cast<std::uint8_t>('0' + number % 10);
    return text;
}

} // namespace

UnitSettings factorySettings(unsigned number, const Network& network) {
    UnitSettings settings;
    settings.hardwareAddress = sixBytesOf(0x024B'5800'0000 + std::uint64_t{number});
    settings.address = network.base + kAddressesBeforeUnits + number;
    settings.destinationAddress = network.base + 1;
    settings.destinationPort = kCommonPort;
    settings.devicePort = number % 3 == 0 ? kCommonPort : kDevicePort;
    settings.unitID = factoryUnitID(number);
    settings.destinationHardwareAddress = sixBytesOf(0x0200'0000'0001);
    settings.serial = sixBytesOf(0x4B58'0000'0000 + std::uint64_t{number});
    return settings;
}

bool networkHoldsUnits(const Network& network, unsigned highestNumber) {
    const std::uint64_t addresses = std::uint64_t{1} << (32 - network.prefixLength);
    return std::uint64_t{highestNumber} + kAddressesBeforeUnits + 1 < addresses;
}

} // namespace kx::simulator
