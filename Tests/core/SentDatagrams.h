// The datagrams that were sent through scripted sockets, as text.

#pragma once

#include "addresses/IPv4Address.h"
#include "addresses/SocketAddressRecord.h"
#include "doubles/ScriptedSystemCalls.h"

#include <cstdint>
#include <string>
#include <vector>

namespace kx {

// "192.168.1.10:3520" for an IPv4 record.
inline std::string endpointText(const Bytes& record) {
    std::uint32_t address = 0;
    IPv6Octets unused{};
    std::uint16_t port = 0;
    addressForData(record, address, unused, &port);
    return stringForIP(address) + ":" + std::to_string(port);
}

// Every datagram as "192.168.1.10:3520 ^^IdX", also one whose send failed; a carriage return at the
// end shows as "\r".
inline std::vector<std::string> sentThrough(const ScriptedSystemCalls& systemCalls) {
    std::vector<std::string> lines;
    for (const auto& datagram : systemCalls.sentDatagrams()) {
        std::string text(datagram.data.begin(), datagram.data.end());
        if (text.ends_with('\r')) {
            text.replace(text.size() - 1, 1, "\\r");
        }
        lines.push_back(endpointText(datagram.address) + " " + text);
    }
    return lines;
}

} // namespace kx
