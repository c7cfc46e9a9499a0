// The host's own ARP table: which hardware address it holds for an IPv4 address.
//
// The table is read by running the system's ARP tool. A lookup finds nothing when the tool answers
// in other words than expected, or does not answer. It finds no entry where the tool answers with a
// table instead of a sentence, as the tool of net-tools does.
//
// Failures are results. Only the parser of hardware addresses (addresses/HardwareAddressText.h)
// logs a line, when a sentence does not end in a hardware address.
//
// Threading: the main thread only. A lookup blocks it until the tool exits. A tool that takes
// longer than longestLookup is ended, and what it has said by then counts.

#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kx {

// The tool of net-tools asks name servers about an address, for up to ten seconds on most hosts.
inline constexpr std::chrono::seconds longestLookup{10};

// The hardware address that the table holds for the address with this text, as "00:1A:2B:3C:4D:5E".
// Absent for an absent text and while the network is not ready (networkIsReady()); the tool is not
// run then. Absent also when the tool cannot be run, and when it knows no such entry.
std::optional<std::string> hwAddressStringForIPString(const std::optional<std::string>& ipString);

// The same as six octets in wire order, for an address in host byte order. `length` says how many
// octets `octets` has room for, and receives the number stored. Returns 0, or -1 with `length`
// unchanged: when there is room for fewer than six octets, in which case the tool is not run, and
// when nothing is found.
std::int32_t hwAddressForIP(std::uint32_t address, std::uint8_t* octets, std::uint8_t& length);

// The hardware address in the output of the ARP tool, "? (10.0.0.5) at 0:5:2:a:b:c on en0": the
// text behind the first "at ", as far as it is an address. Absent when there is none. Pure, except
// for the line in the log.
std::optional<std::string> hwAddressStringInToolOutput(std::string_view output);

} // namespace kx
