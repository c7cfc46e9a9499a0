// The things that a discovery found out and that are no answer of a unit: what keeps units from
// answering, and what makes their answers doubtful.
//
// Plain values; any thread. Texts are UTF-8. Addresses are in host byte order.

#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <variant>
#include <vector>

namespace kx {

// Why the chosen interface reaches no unit, or reaches it no longer.
enum class InterfaceFault {
    gone,
    withoutLink,      // it is down, or has no carrier
    withoutBroadcast, // it leads to one other host only, or its subnet has no broadcast address
    lostAddress,      // it had an address when it was chosen
    outOfDate,        // its address or its mask has changed since it was chosen
};

struct InterfaceFinding {
    InterfaceFault fault = InterfaceFault::gone;
    std::string interface; // its name in the system

    friend bool operator==(const InterfaceFinding&, const InterfaceFinding&) = default;
};

// The system dropped datagrams before they were read.
struct DroppedDatagrams {
    std::uint32_t count = 0;

    friend bool operator==(const DroppedDatagrams&, const DroppedDatagrams&) = default;
};

// More units answered than are kept, so those that were not heard for longest are not listed.
struct ForgottenUnits {
    friend bool operator==(const ForgottenUnits&, const ForgottenUnits&) = default;
};

// Two hosts answer as one serial number. The hosts are told by their IP addresses where those
// differ, and otherwise by the hardware addresses that they tell.
struct TwoHostsOfOneSerial {
    std::string serial;
    std::string firstHost;
    std::string secondHost;

    friend bool operator==(const TwoHostsOfOneSerial&, const TwoHostsOfOneSerial&) = default;
};

// One serial number is heard on two interfaces. The links are indexes of interfaces.
struct UnitOnTwoInterfaces {
    std::string serial;
    std::uint32_t firstLink = 0;
    std::uint32_t secondLink = 0;

    friend bool operator==(const UnitOnTwoInterfaces&, const UnitOnTwoInterfaces&) = default;
};

// Several serial numbers claim one address.
struct SerialsOfOneAddress {
    // Anybody can invent serial numbers. When so many are listed, there may be more.
    static constexpr std::size_t mostSerials = 100;

    std::uint32_t address = 0;
    std::vector<std::string> serials; // two or more, in the order in which they were heard

    friend bool operator==(const SerialsOfOneAddress&, const SerialsOfOneAddress&) = default;
};

// An answer came from another address than the one that it claims.
struct SenderOfAnotherAddress {
    std::string serial;
    std::uint32_t claimed = 0;
    std::uint32_t sender = 0;

    friend bool operator==(const SenderOfAnotherAddress&, const SenderOfAnotherAddress&) = default;
};

// The weightiest kind comes first.
using Finding =
    std::variant<InterfaceFinding, DroppedDatagrams, ForgottenUnits, TwoHostsOfOneSerial,
                 UnitOnTwoInterfaces, SerialsOfOneAddress, SenderOfAnotherAddress>;

} // namespace kx
