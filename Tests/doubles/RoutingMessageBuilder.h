// Builds interface lists in the BSD routing-message layout, byte by byte.
//
// It shares no code and no constant with the decoder of such lists, so that both cannot make the
// same mistake.

#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <map>
#include <string_view>
#include <vector>

namespace kx {

class RoutingMessageBuilder {
public:
    using Buffer = std::vector<std::uint8_t>;

    // An interface message with its link-level address.
    RoutingMessageBuilder& interface(std::string_view name, bool isUp,
                                     const Buffer& hardwareAddress = {0, 0x1A, 0x2B, 0x3C, 0x4D,
                                                                      0x5E}) {
        Buffer link = {0, 18, 7, 0, 6, byte(name.size()), byte(hardwareAddress.size()), 0};
        append(link, name);
        append(link, hardwareAddress);
        link[0] = byte(link.size());
        return interfaceWith(isUp ? 0x8863U : 0x8862U, padded(link));
    }

    // An interface message with these flags and these bytes behind its header.
    RoutingMessageBuilder& interfaceWith(std::uint32_t flags, const Buffer& link) {
        Buffer body(112 - 4, 0xEE);
        put(body, 4 - 4, std::uint32_t{1U << 4U}); // one address follows: the link-level one
        put(body, 8 - 4, flags);
        append(body, link);
        return message(14, body);
    }

    // An address message with a netmask and an interface address, as the kernel sends it.
    RoutingMessageBuilder& address(std::uint32_t address, std::uint32_t mask) {
        return addressWith({{2, socketAddress(2, mask)}, {5, socketAddress(2, address)}});
    }

    // An address message with these socket addresses by slot. The length byte of each is its own.
    RoutingMessageBuilder& addressWith(const std::map<unsigned, Buffer>& socketAddresses) {
        std::uint32_t mask = 0;
        Buffer body(20 - 4, 0xEE);
        for (const auto& [slot, bytes] : socketAddresses) {
            mask |= 1U << slot;
            append(body, padded(bytes));
        }
        put(body, 4 - 4, mask);
        return message(12, body);
    }

    // Any message: its type and the bytes behind the type.
    RoutingMessageBuilder& message(std::uint8_t type, const Buffer& body) {
        const std::size_t start = _bytes.size();
        append(_bytes, Buffer{0, 0, 5, type});
        append(_bytes, body);
        put(_bytes, start, static_cast<std::uint16_t>(_bytes.size() - start));
        return *this;
    }

    // Bytes without any form.
    RoutingMessageBuilder& raw(const Buffer& bytes) {
        append(_bytes, bytes);
        return *this;
    }

    // A socket address of 16 bytes.
    static Buffer socketAddress(std::uint8_t family, std::uint32_t address) {
        return {16,
                family,
                0,
                0,
                byte(address >> 24U),
                byte(address >> 16U),
                byte(address >> 8U),
                byte(address),
                0,
                0,
                0,
                0,
                0,
                0,
                0,
                0};
    }

    const Buffer& bytes() const { return _bytes; }

private:
    static std::uint8_t byte(std::size_t value) { return static_cast<std::uint8_t>(value & 0xFFU); }

    template<class Elements>
    static void append(Buffer& bytes, const Elements& elements) {
        for (const auto element : elements) {
            bytes.push_back(static_cast<std::uint8_t>(element));
        }
    }

    static Buffer padded(Buffer bytes) {
        while (bytes.empty() || bytes.size() % sizeof(long) != 0) {
            bytes.push_back(0);
        }
        return bytes;
    }

    // Writes a number in host byte order.
    template<class Number>
    static void put(Buffer& bytes, std::size_t offset, Number number) {
        const auto octets = std::bit_cast<std::array<std::uint8_t, sizeof(Number)>>(number);
        for (std::size_t i = 0; i < octets.size(); ++i) {
            bytes[offset + i] = octets[i];
        }
    }

    Buffer _bytes;
};

} // namespace kx
