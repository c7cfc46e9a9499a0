// One unit: its settings, and its answers to commands.
//
// Pure: command bytes in, reply bytes out. A unit knows no link and no time. Any thread, one at a
// time.
//
// A command is ASCII: "^^Id", one letter, an argument. The hexadecimal digits of an argument may be
// of either case.
//
//   X                no argument    answers with the settings, 81 bytes
//   U                2 to 12 digits, in pairs: the unit ID; the bytes that are missing become zero
//   M  C  S          12 digits: hardware address, destination hardware address, serial number
//   I  D             8 digits: IP address, destination IP address
//   T  P             4 digits: destination port, device port
//   Z                no argument: every setting as it left the factory; the clock goes on
//   V    and a carriage return      answers with a version text
//   -Z   and eight decimal digits (month, day, hour, minute) and a carriage return: sets the clock
//
// Commands of the first seven lines may end with a carriage return too. Everything else is
// malformed and is ignored. A command that was applied is acknowledged with "ok" and a carriage
// return, already with the new settings in its header.

#pragma once

#include "Simulator/Wire.h"

#include <optional>
#include <string>
#include <string_view>

namespace kx::simulator {

// Every unit listens on this port besides its own device port.
inline constexpr std::uint16_t commonPort = 3520;

struct UnitSettings {
    HardwareAddress hardwareAddress{};
    IPv4 address = 0;
    IPv4 destinationAddress = 0;
    std::uint16_t destinationPort = commonPort;
    std::uint16_t devicePort = commonPort;
    SixBytes unitID{};
    HardwareAddress destinationHardwareAddress{};
    SixBytes serial{};

    bool operator==(const UnitSettings&) const = default;
};

class SimulatedUnit {
public:
    explicit SimulatedUnit(const UnitSettings& factory);

    const UnitSettings& settings() const { return _settings; }

    // The eight digits of the last clock command; empty before the first one.
    const std::string& clock() const { return _clock; }

    bool listensOnPort(std::uint16_t port) const {
        return port == commonPort || port == _settings.devicePort;
    }

    // The reply to `command`; absent when the command is malformed.
    std::optional<Bytes> answer(ByteView command);

    // The reply to X with the present settings.
    Bytes parameterReply() const;

private:
    Bytes replyHeader() const;
    Bytes textReply(std::string_view text) const;
    bool apply(char letter, std::string_view argument);
    bool setClock(std::string_view option);

    UnitSettings _factory;
    UnitSettings _settings;
    std::string _clock;
};

} // namespace kx::simulator
