// A plain model of units and their replies (see PlainText.h): what a datagram tells.

#pragma once

#include "PlainText.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace kx::model {

// The parameters of a unit: the text of each by its name.
using PlainRecord = std::map<std::string, std::string>;

// Thrown for a field that a datagram begins and does not end.
struct CutShort {};

inline Octets wholePart(const Octets& octets, std::size_t from, std::size_t count) {
    const auto found = part(octets, from, count);
    return found.has_value() ? *found : throw CutShort();
}

// Absent beyond the end, and for bytes that are no text.
inline std::optional<std::string> textAt(const Octets& octets, std::size_t from,
                                         std::size_t count) {
    const auto found = part(octets, from, count);
    return found.has_value() ? textOf(*found) : std::nullopt;
}

inline std::optional<std::string> plainUnitID(const Octets& six) {
    const bool isNumber = *part(six, 0, 5) == Octets{0, 0, 0, 0, 0};
    return isNumber ? std::to_string(six[5]) : textOf(six);
}

struct PlainItem {
    enum class Form { hardware, address, number, unitID, serial };

    std::string tag;
    std::string name;
    std::size_t length;
    Form form;

    std::optional<std::string> text(const Octets& value) const {
        std::uint32_t number = 0;
        for (const std::uint8_t octet : value) {
            number = number * 256 + octet;
        }
        switch (form) {
        case Form::hardware:
            return hexPairs(value, ":");
        case Form::serial:
            return hexPairs(value, " ");
        case Form::address:
            return dotted(number);
        case Form::number:
            return std::to_string(number);
        case Form::unitID:
            break;
        }
        return plainUnitID(value);
    }
};

inline const std::vector<PlainItem>& plainItems() {
    using Form = PlainItem::Form;
    static const std::vector<PlainItem> items{
        {"<M>", "internal MAC address", 6, Form::hardware},
        {"<I>", "internal IP address", 4, Form::address},
        {"<D>", "destination IP address", 4, Form::address},
        {"<T>", "destination Port number", 2, Form::number},
        {"<P>", "device Port number", 2, Form::number},
        {"<U>", "unit ID", 6, Form::unitID},
        {"<C>", "destination MAC address", 6, Form::hardware},
        {"<O>", "<O>", 6, Form::hardware},
        {"<S>", "serial number", 6, Form::serial},
    };
    return items;
}

struct PlainList {
    PlainRecord record;
    std::string lines; // of the event log
};

inline PlainList plainList(Octets rest) {
    PlainList list;
    while (!rest.empty()) {
        const auto tag = textAt(rest, 0, 3);
        const auto item = std::find_if(plainItems().begin(), plainItems().end(),
                                       [&](const PlainItem& each) { return each.tag == tag; });
        if (item == plainItems().end()) {
            break;
        }
        const auto text = item->text(wholePart(rest, 3, item->length));
        list.lines += "\n\t" + item->name + ": " + text.value_or("(null)");
        list.record.erase(item->name);
        if (text.has_value() && item->tag != "<O>") {
            list.record[item->name] = *text;
        }
        rest = *part(rest, 3 + item->length, rest.size() - 3 - item->length);
    }
    return list;
}

// The header of a reply, as far as it is there.
struct PlainHeader {
    std::optional<std::string> tag;
    std::optional<std::string> unitID;
    std::optional<std::string> serial;
};

inline PlainHeader plainHeader(const Octets& datagram) {
    PlainHeader header;
    header.tag = textAt(datagram, 2, 3);
    if (header.tag == "<U>") {
        header.unitID = plainUnitID(wholePart(datagram, 5, 6));
    }
    if (textAt(datagram, 11, 3) == "<S>") {
        header.serial = hexPairs(wholePart(datagram, 14, 6), " ");
    }
    return header;
}

} // namespace kx::model
