// Reads a capture as another program does, by the description of the format and with none of the
// code that writes it.

#pragma once

#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kx {

class CaptureReader {
public:
    struct Packet {
        std::uint64_t time = 0;
        std::uint32_t direction = 0; // 1 came in, 2 went out
        std::string source;          // "192.0.2.11:10000"
        std::string destination;
        std::string data;
        std::string comment;
    };

    explicit CaptureReader(std::string_view capture) {
        while (!capture.empty() && isWellFormed) {
            const std::uint32_t length = word(capture, 4);
            isWellFormed = length >= 12 && length % 4 == 0 && length <= capture.size() &&
                           word(capture, length - 4) == length;
            if (isWellFormed) {
                readBlock(word(capture, 0), capture.substr(8, length - 12));
                capture.remove_prefix(length);
            }
        }
    }

    bool isWellFormed = true;
    std::string application;
    std::string sectionComment;
    std::uint32_t linkType = 0;
    std::vector<Packet> packets;
    int statistics = 0; // how many blocks of them
    std::uint64_t statisticsTime = 0;
    std::uint64_t received = 0;
    std::uint64_t dropped = 0;

private:
    using Options = std::vector<std::pair<std::uint16_t, std::string>>;

    template<class Number>
    static Number number(std::string_view bytes, std::size_t offset) {
        Number result{};
        if (offset + sizeof result <= bytes.size()) {
            std::memcpy(&result, bytes.data() + offset, sizeof result);
        }
        return result;
    }
    static std::uint32_t word(std::string_view bytes, std::size_t offset) {
        return number<std::uint32_t>(bytes, offset);
    }
    static std::uint64_t timeAt(std::string_view bytes, std::size_t offset) {
        return std::uint64_t{word(bytes, offset)} << 32U | word(bytes, offset + 4);
    }

    static Options optionsIn(std::string_view bytes) {
        Options options;
        while (bytes.size() >= 4 && number<std::uint16_t>(bytes, 0) != 0) {
            const std::size_t length = number<std::uint16_t>(bytes, 2);
            options.emplace_back(number<std::uint16_t>(bytes, 0), bytes.substr(4, length));
            bytes.remove_prefix(4 + (length + 3) / 4 * 4);
        }
        return options;
    }

    void readBlock(std::uint32_t type, std::string_view body) {
        if (type == 0x0A0D0D0AU) {
            for (const auto& [code, value] : optionsIn(body.substr(16))) {
                (code == 1 ? sectionComment : application) = value;
            }
        } else if (type == 1) {
            linkType = number<std::uint16_t>(body, 0);
        } else if (type == 6) {
            readPacket(body);
        } else if (type == 5) {
            ++statistics;
            statisticsTime = timeAt(body, 4);
            for (const auto& [code, value] : optionsIn(body.substr(12))) {
                (code == 4 ? received : dropped) = number<std::uint64_t>(value, 0);
            }
        } else {
            isWellFormed = false;
        }
    }

    void readPacket(std::string_view body) {
        const std::size_t length = word(body, 12);
        const std::string_view ip = body.substr(20, length);
        Packet packet;
        packet.time = timeAt(body, 4);
        packet.source = endpoint(ip, 12, 20);
        packet.destination = endpoint(ip, 16, 22);
        packet.data = ip.substr(28);
        for (const auto& [code, value] : optionsIn(body.substr(20 + (length + 3) / 4 * 4))) {
            if (code == 2) {
                packet.direction = word(value, 0);
            } else {
                packet.comment = value;
            }
        }
        packets.push_back(std::move(packet));
    }

    static std::string endpoint(std::string_view ip, std::size_t address, std::size_t port) {
        const auto octet = [ip](std::size_t offset) {
            return static_cast<std::uint8_t>(ip.at(offset));
        };
        std::string text;
        for (std::size_t i = 0; i < 4; ++i) {
            text += std::to_string(octet(address + i)) + (i < 3 ? "." : ":");
        }
        return text + std::to_string(octet(port) * 256 + octet(port + 1));
    }
};

} // namespace kx
