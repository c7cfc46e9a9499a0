// The host's network interfaces as the places where units may be asked, and the choice of one by a
// name that a person has typed.
//
// Values and pure functions; any thread. Addresses are in host byte order, texts in UTF-8.

#pragma once

#include "support/ByteRange.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace kx {

struct NetworkOfInterface {
    std::uint32_t address = 0; // this host's own
    std::uint32_t mask = 0;

    std::uint32_t broadcast() const { return address | ~mask; }
    bool contains(std::uint32_t other) const { return ((address ^ other) & mask) == 0; }

    // The address of the network itself, or its broadcast address. In a network of two addresses
    // each is a host's (RFC 3021).
    bool isOfNetwork(std::uint32_t other) const {
        return ~mask > 1 && (other == (address & mask) || other == broadcast());
    }
};

struct HostInterface {
    std::string name;     // name in the system
    std::string title;    // with the name in parentheses, as the window shows it
    std::string userName; // name of the profile, or of the kind of interface
    bool hasProfile = false;
    std::string kind;       // "ethernet", "wi-fi", "bridge", "vlan", "bond", "point-to-point",
                            // "loopback" or "other"
    std::uint32_t link = 0; // the kernel's index
    std::vector<NetworkOfInterface> networks; // IPv4, the one that is used first
    Bytes hardwareAddress;                    // empty when it has none

    bool canBroadcast = false;
    bool isRunning = false; // it is up and has a carrier

    // It carries datagrams, can broadcast, and has an IPv4 address.
    bool canAsk = false;

    // All hosts of its first network; 255.255.255.255 when it has none.
    std::uint32_t broadcast() const;

    // The network that contains the address; null when none does.
    const NetworkOfInterface* networkOf(std::uint32_t address) const;
};

// The interfaces for which a typed name may stand: the name in the system, the title, or the name
// of a profile. More than one means that the name is ambiguous.
std::vector<HostInterface> interfacesNamed(const std::vector<HostInterface>& interfaces,
                                           std::string_view typed);

// The interfaces that can ask.
std::vector<HostInterface> askableInterfaces(const std::vector<HostInterface>& interfaces);

// The addresses that no single host has: 0, and of every network its own and its broadcast address.
// What is sent to one of them reaches many, or nobody.
std::vector<std::uint32_t> addressesOfMany(const std::vector<HostInterface>& interfaces);

// Why another host cannot be found at an address.
enum class AddressObjection {
    none,
    isOwn,       // an interface of this host has it
    isOfNetwork, // it stands for a whole network
    isOutside,   // it lies in no network of the interfaces on which units are asked
};

// `interfaces` are all of this host, `asked` those on which units are asked.
AddressObjection objectionToAddress(std::uint32_t address,
                                    const std::vector<HostInterface>& interfaces,
                                    const std::vector<HostInterface>& asked);

// Lists the interfaces of this host.
//
// Threading: main thread only. Ownership: its users do not own it; it must outlive them.
class HostInterfaces {
public:
    virtual ~HostInterfaces() = default;

    // The interfaces in the order of the window's pop-up. Empty when the system tells none.
    virtual std::vector<HostInterface> list() = 0;
};

} // namespace kx
