// Socket addresses as bytes in the BSD layout, on every system.
//
//   IPv4, 16 bytes: length (16), family (2), port (2 bytes), address (4 bytes), 8 zero bytes
//   IPv6, 28 bytes: length (28), family (30), port (2 bytes), flow information (4 zero bytes),
//                   address (16 bytes), scope identifier (4 zero bytes)
//
// Port and address are in network byte order inside the record, and in host byte order in the
// arguments and results here. Addresses travel through the system as records; only the boundary to
// the operating system's sockets (DatagramSystemCalls.h) knows the host's own layout.
//
// All functions are pure and may be called from any thread.

#pragma once

#include "support/ByteRange.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace kx {

inline constexpr int addressFamilyIPv4 = 2;
inline constexpr int addressFamilyIPv6 = 30;

inline constexpr std::size_t ipv4RecordLength = 16;
inline constexpr std::size_t ipv6RecordLength = 28;
inline constexpr std::size_t longestRecordLength = 128; // sizeof(struct sockaddr_storage)

using IPv6Octets = std::array<std::uint8_t, 16>;

// The family byte of a record, 0 for one of fewer than two bytes.
int familyOfRecord(ByteView record);

// The IPv4 record of an address and a port.
Bytes dataForAddress(std::uint32_t address, std::uint16_t port);

// The IPv6 record of an address and a port.
Bytes dataForAddress6(const IPv6Octets& address, std::uint16_t port);

// Takes a record apart and returns its family. Returns 0 for a record of another family, for one
// without bytes, and for one that ends before its address does. Writes `address` for an IPv4 record
// and sets it to 0 for result 0; writes `address6` for an IPv6 record only; writes `port`, unless
// it is null, in every case (0 for result 0). The length byte of the record and the bytes behind
// the address are ignored.
int addressForData(ByteView record, std::uint32_t& address, IPv6Octets& address6,
                   std::uint16_t* port);

} // namespace kx
