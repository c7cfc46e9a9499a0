// Socket address records, as they come from the operating system.

#include "FuzzInput.h"
#include "addresses/SocketAddressRecord.h"

using namespace kx;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::uint32_t address = 1;
    IPv6Octets address6{};
    std::uint16_t port = 1;
    const int family = addressForData({data, size}, address, address6, &port);

    if (family == addressFamilyIPv4) {
        std::uint32_t againAddress = 0;
        std::uint16_t againPort = 0;
        requireInvariant(addressForData(dataForAddress(address, port), againAddress, address6,
                                        &againPort) == addressFamilyIPv4,
                         "a rebuilt record has the same family");
        requireInvariant(address == againAddress && port == againPort,
                         "a rebuilt record says the same");
    } else if (family == addressFamilyIPv6) {
        requireInvariant(address == 1, "an IPv6 record leaves the IPv4 output alone");
    } else {
        requireInvariant(family == 0 && address == 0 && port == 0,
                         "anything else reads as nothing");
    }
    return 0;
}
