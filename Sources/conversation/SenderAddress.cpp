#include "conversation/SenderAddress.h"

#include "addresses/SocketAddressRecord.h"

namespace kx {

std::uint32_t addressOfSender(const DatagramOrigin& origin) {
    std::uint32_t address = 0;
    IPv6Octets unused{};
    addressForData(origin.sender, address, unused, nullptr);
    return address;
}

} // namespace kx
