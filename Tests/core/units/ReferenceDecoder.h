// A second decoder of datagrams, written as plainly as possible with strings and maps, to compare
// the program with it.

#pragma once

#include "support/ByteRange.h"
#include "support/TextEncoding.h"

#include <cstddef>
#include <map>
#include <optional>
#include <string>

namespace kx {

using ReferenceRecord = std::map<std::string, std::string>;

// The effects of a datagram on the program while no unit is selected.
struct ReferenceOutcome {
    bool isAbandoned = false;              // it gives one line in the system log
    std::string log;                       // event log entries after the line of the length
    std::optional<ReferenceRecord> record; // record that the registry gets
};

class ReferenceDecoder {
public:
    static ReferenceOutcome outcomeOf(const Bytes& datagram) {
        ReferenceDecoder decoder(datagram);
        if (!decoder.decode()) {
            return {true, "", std::nullopt};
        }
        return decoder._outcome;
    }

private:
    explicit ReferenceDecoder(const Bytes& datagram)
        : _datagram(datagram) {}

    std::optional<std::string> text(std::size_t from, std::size_t length) const {
        if (from + length > _datagram.size()) {
            return std::nullopt;
        }
        return textFromUTF8(ByteView(_datagram).subspan(from, length));
    }

    std::string hex(std::size_t from, const std::string& separator) const {
        static const std::string digits = "0123456789ABCDEF";
        std::string result;
        for (std::size_t i = from; i < from + 6; ++i) {
            result += i == from ? "" : separator;
            result += digits[_datagram[i] / 16U];
            result += digits[_datagram[i] % 16U];
        }
        return result;
    }

    std::optional<std::string> unitID(std::size_t from) const {
        for (std::size_t i = from; i < from + 5; ++i) {
            if (_datagram[i] != 0) {
                return text(from, 6);
            }
        }
        return std::to_string(_datagram[from + 5]);
    }

    // Returns false when the datagram is abandoned.
    bool decode() {
        if (_datagram.size() <= 4) {
            _outcome.log = "\nIgnoring short packet";
            return true;
        }
        if (_datagram[0] != '^') {
            _outcome.log = "\nIgnoring unknown packet, prefix != ^^";
            return true;
        }
        const auto tag = text(2, 3);
        std::optional<std::string> unit;
        std::optional<std::string> serial;
        if (tag == "<U>") {
            if (_datagram.size() < 11) {
                return false;
            }
            unit = unitID(5);
        }
        if (text(11, 3) == "<S>") {
            if (_datagram.size() < 20) {
                return false;
            }
            serial = hex(14, " ");
        }
        std::optional<std::string> cid = "";
        if (!decodePayload(cid)) {
            return false;
        }
        _outcome.log += "\nReceived command: ^^" + tag.value_or("(null)");
        if (unit && serial) {
            _outcome.log +=
                " unit:" + *unit + " serial:" + *serial + " cidString:" + cid.value_or("(null)");
        }
        return true;
    }

    bool decodePayload(std::optional<std::string>& cid) {
        if (text(20, 1) != "$") {
            return true;
        }
        const auto tag = text(21, 3);
        if (tag == "<M>") {
            std::string display;
            const bool isWhole = decodeList(display);
            cid = display;
            return isWhole;
        }
        if (tag && tag->substr(0, 2) == "ok") {
            _outcome.log = "\nRequest unit parameters with address: 255.255.255.255"
                           "\nUDP server did send data.";
            return true;
        }
        cid = text(20, _datagram.size() - 20);
        return true;
    }

    bool decodeList(std::string& display) {
        static const std::map<std::string, std::string> names{{"<M>", "internal MAC address"},
                                                              {"<I>", "internal IP address"},
                                                              {"<D>", "destination IP address"},
                                                              {"<T>", "destination Port number"},
                                                              {"<P>", "device Port number"},
                                                              {"<U>", "unit ID"},
                                                              {"<C>", "destination MAC address"},
                                                              {"<O>", "<O>"},
                                                              {"<S>", "serial number"}};
        ReferenceRecord record;
        for (std::size_t at = 21; at < _datagram.size();) {
            const auto tag = text(at, 3);
            if (!tag || names.count(*tag) == 0) {
                break;
            }
            const char letter = (*tag)[1];
            const bool isPort = letter == 'T' || letter == 'P';
            const bool isAddress = letter == 'I' || letter == 'D';
            const std::size_t length = isPort ? 2 : isAddress ? 4 : 6;
            at += 3;
            if (at + length > _datagram.size()) {
                return false;
            }
            std::optional<std::string> value;
            if (isPort) {
                value = std::to_string(_datagram[at] * 256 + _datagram[at + 1]);
            } else if (isAddress) {
                value = std::to_string(_datagram[at]) + "." + std::to_string(_datagram[at + 1]) +
                        "." + std::to_string(_datagram[at + 2]) + "." +
                        std::to_string(_datagram[at + 3]);
            } else if (letter == 'U') {
                value = unitID(at);
            } else {
                value = hex(at, letter == 'S' ? " " : ":");
            }
            const std::string& name = names.at(*tag);
            display += "\n\t" + name + ": " + value.value_or("(null)");
            record.erase(name);
            if (value && letter != 'O') {
                record[name] = *value;
            }
            at += length;
        }
        if (record.count("serial number") > 0) {
            _outcome.record = record;
        }
        return true;
    }

    const Bytes& _datagram;
    ReferenceOutcome _outcome;
};

} // namespace kx
