#include "addresses/SocketAddressRecord.h"

#include <algorithm>

namespace kx {

namespace {

constexpr std::size_t familyOffset = 1;
constexpr std::size_t portOffset = 2;
constexpr std::size_t ipv4AddressOffset = 4;
constexpr std::size_t ipv4AddressEnd = 8;
constexpr std::size_t ipv6AddressOffset = 8;
constexpr std::size_t ipv6AddressEnd = ipv6AddressOffset + std::tuple_size_v<IPv6Octets>;
static_assert(ipv4AddressEnd <= ipv4RecordLength && ipv6AddressEnd <= ipv6RecordLength);

// Makes `record` a zero-filled one with its length, family and port.
void setPort(Bytes& record, std::size_t length, int family, std::uint16_t port) {
    record.assign(length, 0);
    record[0] = static_cast<std::uint8_t>(length);
    record[familyOffset] = static_cast<std::uint8_t>(family);
    record[portOffset] = static_cast<std::uint8_t>(port >> 8U);
    record[portOffset + 1] = static_cast<std::uint8_t>(port & 0xFFU);
}

std::uint16_t portOfRecord(ByteView record) {
    return static_cast<std::uint16_t>((record[portOffset] << 8U) | record[portOffset + 1]);
}

} // namespace

int familyOfRecord(ByteView record) {
    return record.size() > familyOffset ? record[familyOffset] : 0;
}

Bytes dataForAddress(std::uint32_t address, std::uint16_t port) {
    Bytes record;
    setRecord(record, address, port);
    return record;
}

void setRecord(Bytes& record, std::uint32_t address, std::uint16_t port) {
    setPort(record, ipv4RecordLength, addressFamilyIPv4, port);
    for (std::size_t i = ipv4AddressEnd; i > ipv4AddressOffset; --i) {
        record[i - 1] = static_cast<std::uint8_t>(address & 0xFFU);
        address >>= 8U;
    }
}

Bytes dataForAddress6(const IPv6Octets& address, std::uint16_t port) {
    Bytes record;
    setPort(record, ipv6RecordLength, addressFamilyIPv6, port);
    std::copy(address.begin(), address.end(), record.begin() + ipv6AddressOffset);
    return record;
}

int addressForData(ByteView record, std::uint32_t& address, IPv6Octets& address6,
                   std::uint16_t* port) {
    const int family = familyOfRecord(record);
    const bool isIPv4 = family == addressFamilyIPv4 && record.size() >= ipv4AddressEnd;
    const bool isIPv6 = family == addressFamilyIPv6 && record.size() >= ipv6AddressEnd;
    if (isIPv4) {
        address = 0;
        for (std::size_t i = ipv4AddressOffset; i < ipv4AddressEnd; ++i) {
            address = (address << 8U) | record[i];
        }
    } else if (isIPv6) {
        std::copy_n(record.begin() + ipv6AddressOffset, address6.size(), address6.begin());
    } else {
        address = 0;
    }
    if (port != nullptr) {
        *port = isIPv4 || isIPv6 ? portOfRecord(record) : std::uint16_t{0};
    }
    return isIPv4 || isIPv6 ? family : 0;
}

} // namespace kx
