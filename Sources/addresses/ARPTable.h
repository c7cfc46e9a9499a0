// The host's own ARP table: which hardware address it holds for an IPv4 address.
//
// The table is read by running the system's ARP tool. What a system's tool says in other words, or
// does not say at all, is found to be nothing: so is every entry where the tool answers with a
// table instead of a sentence, as that of net-tools does.
//
// Failures are results. Nothing is logged but what the parser of hardware addresses logs
// (addresses/HardwareAddressText.h) about a sentence that ends in something else.
//
// Threading: the main thread only. A lookup blocks it until the tool exits.

#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kx {

// The hardware address that the table holds for the address with this text, as
// "00:1A:2B:3C:4D:5E". Absent for an absent text, while the network is not ready
// (networkIsReady()), which both run nothing, when the tool cannot be run, and when it knows no
// such entry.
std::optional<std::string> hwAddressStringForIPString(const std::optional<std::string>& ipString);

// The same as six octets in wire order, for an address in host byte order. `length` says how many
// there is room for at `octets`, and how many were stored. Returns 0; or -1, with `length` as it
// was, when there is room for fewer than six, which runs nothing, and when nothing is found.
std::int32_t hwAddressForIP(std::uint32_t address, std::uint8_t* octets, std::uint8_t& length);

// The hardware address in the output of the ARP tool, "? (10.0.0.5) at 0:5:2:a:b:c on en0": what
// follows the first "at ", as far as it is an address. Absent when there is none. Pure, but for
// what is logged.
std::optional<std::string> hwAddressStringInToolOutput(std::string_view output);

} // namespace kx
