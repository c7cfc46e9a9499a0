// Random datagrams of a few units: replies with parameters in any order, acknowledgements, other
// texts, and all of them cut short, damaged, and under the serial number of another unit.

#pragma once

#include "PlainText.h"
#include "RandomSteps.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace kx::model {

class RandomDatagrams {
public:
    explicit RandomDatagrams(RandomSteps& random)
        : _random(random) {}

    Octets any() {
        const auto kind = _random.below(20);
        if (kind == 0) {
            return noise(_random.below(30));
        }
        Octets datagram = octetsOf(header());
        append(datagram, kind < 11   ? parameterList()
                         : kind < 15 ? acknowledgement()
                                     : otherPayload());
        return damaged(std::move(datagram));
    }

    // An acknowledgement of one of the units, which is whole.
    Octets wholeAcknowledgement() {
        return joinedParts({"^^<U>", unitID(), "<S>", serial(), "$ok\r"});
    }

private:
    static void append(Octets& octets, const std::string& text) {
        octets.insert(octets.end(), text.begin(), text.end());
    }

    static Octets joinedParts(const std::vector<std::string>& parts) {
        return octetsOf(joinedTexts(parts, ""));
    }

    std::string octet() { return std::string(1, static_cast<char>(_random.below(256))); }

    Octets noise(std::uint32_t length) {
        std::string text = _random.oneIn(2) ? "^" : "";
        while (text.size() < length) {
            text += octet();
        }
        return octetsOf(text.substr(0, length));
    }

    // Of few units, so that serial numbers come again.
    std::string serial() {
        const auto last = static_cast<char>(1 + _random.below(4));
        return std::string("\x0A\x0B\x0C\x0D", 4) + std::string(1, '\xEF') + last;
    }

    std::string hardware() {
        return std::string("\x00\x1A\x2B\x3C\x4D", 5) +
               static_cast<char>(0xF0 + static_cast<int>(_random.below(4)));
    }

    std::string address() {
        using namespace std::string_literals;
        return _random.oneOf<std::string>({"\xC0\xA8\x01\x0A"s, "\xC0\xA8\x01\x0B"s,
                                           "\x00\x00\x00\x00"s, "\xFF\xFF\xFF\xFF"s,
                                           "\xC0\xA8\x01\xFF"s, "\x0A\x00\x00\x07"s});
    }

    std::string port() {
        using namespace std::string_literals;
        return _random.oneOf<std::string>(
            {"\x0D\xC0"s, "\x0D\xC1"s, "\x27\x10"s, "\x00\x00"s, "\xFF\xFF"s});
    }

    std::string unitID() {
        using namespace std::string_literals;
        return _random.oneOf<std::string>({"\0\0\0\0\0\x2A"s, "\0\0\0\0\0\0"s, "\0\0\0\0\0\xFF"s,
                                           "ABC\0\0\0"s, "RACK7A"s, "A\nB\0C\0"s,
                                           "\xC3\xA9\xC3\xA9\xC3\xA9"s, "\xF0\x9F\x98\x80\0\0"s,
                                           "\0\0\0\0\x01\0"s, "ABCDE\xC3"s,
                                           "\xED\xA0\x80"
                                           "ABC"s,
                                           "\xF0\x8F\xBF\xBF"
                                           "AB"s,
                                           "\xF4\x90\x80\x80"
                                           "AB"s,
                                           "\xC0\x80"
                                           "ABCD"s,
                                           "\xE2\x80\xAE"
                                           "AB\0"s,
                                           "\xFF\xFF\xFF\xFF\xFF\xFF"s});
    }

    std::string header() {
        const bool isUsual = !_random.oneIn(6);
        const std::vector<std::string> tags{"<U>", "<X>", "<u>", "\xFF<>", "<S>"};
        return joinedTexts(
            {"^", _random.oneIn(8) ? "?" : "^", isUsual ? "<U>" : _random.oneOf(tags), unitID(),
             isUsual ? "<S>" : _random.oneOf(tags), serial(), _random.oneIn(12) ? "#" : "$"},
            "");
    }

    std::string parameter() {
        switch (_random.below(9)) {
        case 0:
            return "<M>" + hardware();
        case 1:
            return "<I>" + address();
        case 2:
            return "<D>" + address();
        case 3:
            return "<T>" + port();
        case 4:
            return "<P>" + port();
        case 5:
            return "<U>" + unitID();
        case 6:
            return "<C>" + hardware();
        case 7:
            return "<O>" + hardware();
        default:
            return "<S>" + serial();
        }
    }

    std::string parameterList() {
        const bool isWhole = !_random.oneIn(4);
        std::vector<std::string> items;
        if (isWhole) {
            items = {"<I>" + address(), "<D>" + address(),  "<T>" + port(),  "<P>" + port(),
                     "<U>" + unitID(),  "<C>" + hardware(), "<S>" + serial()};
        }
        for (auto more = _random.below(isWhole ? 2 : 7); more > 0; --more) {
            items.push_back(parameter());
        }
        for (std::size_t i = items.size(); i > 1; --i) {
            std::swap(items[i - 1], items[_random.below(static_cast<std::uint32_t>(i))]);
        }
        if (_random.oneIn(12)) {
            items.insert(items.begin() +
                             _random.below(static_cast<std::uint32_t>(items.size() + 1)),
                         _random.oneOf<std::string>({"<Q>123456", "\r", "<m>", "<I", "\xFF"}));
        }
        return joinedTexts(
            {"<M>", hardware(), joinedTexts(items, ""), _random.oneIn(6) ? "\r" : ""}, "");
    }

    std::string acknowledgement() {
        return _random.oneOf<std::string>({"ok\r", "ok\r", "okay", "ok", "OK\r", "ok\xFF", "o"});
    }

    std::string otherPayload() {
        return _random.oneOf<std::string>({"hello", "", "simulated unit 1.0\r", "a\nb", "\xFF\xFE",
                                           "<N>123456", "h\xC3\xA9", "%@ %d"});
    }

    Octets damaged(Octets datagram) {
        if (_random.oneIn(8)) {
            datagram.resize(_random.below(static_cast<std::uint32_t>(datagram.size() + 1)));
        }
        if (_random.oneIn(10) && !datagram.empty()) {
            datagram[_random.below(static_cast<std::uint32_t>(datagram.size()))] =
                static_cast<std::uint8_t>(_random.below(256));
        }
        return datagram;
    }

    RandomSteps& _random;
};

} // namespace kx::model
