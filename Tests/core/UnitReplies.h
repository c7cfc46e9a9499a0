// Datagrams as units send them, built byte by byte and without any code of the decoder.

#pragma once

#include "support/ByteRange.h"

#include <algorithm>
#include <cstdint>
#include <initializer_list>
#include <string_view>

namespace kx {

inline Bytes textBytes(std::string_view text) {
    return {text.begin(), text.end()};
}

inline Bytes joined(std::initializer_list<Bytes> parts) {
    Bytes result;
    for (const Bytes& part : parts) {
        result.insert(result.end(), part.begin(), part.end());
    }
    return result;
}

inline Bytes item(std::string_view tag, const Bytes& value) {
    return joined({textBytes(tag), value});
}

// The header of 21 bytes with the tags "<U>" and "<S>" and the marker "$".
inline Bytes replyHeader(const Bytes& unitID, const Bytes& serial) {
    return joined({textBytes("^^"), item("<U>", unitID), item("<S>", serial), textBytes("$")});
}

// A unit that answers with every parameter once.
struct SampleUnit {
    Bytes internalMAC{0x00, 0x1A, 0x2B, 0x3C, 0x4D, 0x5E};
    Bytes internalIP{192, 168, 1, 10};
    Bytes destinationIP{192, 168, 1, 1};
    Bytes destinationPort{0x0D, 0xC0};
    Bytes devicePort{0x27, 0x10};
    Bytes unitID{0, 0, 0, 0, 0, 42};
    Bytes destinationMAC{0x00, 0x0A, 0x0B, 0x0C, 0x0D, 0x0E};
    Bytes serial{1, 2, 3, 4, 5, 6};

    Bytes parameterList() const {
        return joined({item("<M>", internalMAC), item("<I>", internalIP),
                       item("<D>", destinationIP), item("<T>", destinationPort),
                       item("<P>", devicePort), item("<U>", unitID), item("<C>", destinationMAC),
                       item("<S>", serial)});
    }

    Bytes header() const { return replyHeader(unitID, serial); }
    Bytes reply() const { return joined({header(), parameterList()}); }
    Bytes acknowledgement() const { return joined({header(), textBytes("ok\r")}); }
};

// Another unit: its hardware address, its IP address and its serial number are its own.
inline SampleUnit secondSampleUnit() {
    SampleUnit unit;
    unit.internalMAC.back() = 0x5F;
    unit.internalIP.back() = 11;
    unit.serial.back() = 7;
    return unit;
}

// The internal IP address that a reply tells, from which an honest unit sends it; 192.168.1.10 when
// it tells none.
inline std::uint32_t addressToldIn(const Bytes& reply) {
    const Bytes tag = textBytes("<I>");
    const auto found = std::search(reply.begin(), reply.end(), tag.begin(), tag.end());
    if (reply.end() - found < 7) {
        return 0xC0A8010AU;
    }
    return static_cast<std::uint32_t>(found[3]) << 24U |
           static_cast<std::uint32_t>(found[4]) << 16U |
           static_cast<std::uint32_t>(found[5]) << 8U | found[6];
}

// A reply that tells the serial number and nothing else of worth.
inline Bytes sparseReplyOf(const SampleUnit& unit) {
    return joined({unit.header(), item("<M>", unit.internalMAC), item("<S>", unit.serial)});
}

} // namespace kx
