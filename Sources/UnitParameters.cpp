#include "UnitParameters.h"

#include "IdentityText.h"
#include "addresses/IPv4Address.h"
#include "support/Require.h"

#include <algorithm>
#include <charconv>

namespace kx {

namespace {

enum class ValueForm : std::uint8_t { colonHex, blankHex, address, port, unitID };

constexpr std::size_t valueLengthOfForm(ValueForm form) {
    return form == ValueForm::address ? 4 : form == ValueForm::port ? 2 : identityLength;
}

// What a line of the display text begins with, joined when the program is compiled.
class LineStart {
public:
    consteval explicit LineStart(std::string_view name) {
        append("\n\t");
        append(name);
        append(": ");
    }

    constexpr std::string_view view() const { return {_text.data(), _length}; }

private:
    constexpr void append(std::string_view part) {
        for (const char character : part) {
            _text.at(_length++) = character;
        }
    }

    std::array<char, 32> _text{};
    std::size_t _length = 0;
};

struct Item {
    std::string_view tag; // one letter between "<" and ">"
    ValueForm form;
    std::size_t valueLength;
    std::optional<UnitParameter> parameter; // absent: shown under its tag and not kept
    LineStart lineStart;

    consteval Item(std::string_view itsTag, ValueForm itsForm,
                   std::optional<UnitParameter> itsParameter)
        : tag(itsTag)
        , form(itsForm)
        , valueLength(valueLengthOfForm(itsForm))
        , parameter(itsParameter)
        , lineStart(itsParameter.has_value() ? nameOfUnitParameter(*itsParameter) : itsTag) {}
};

using enum UnitParameter;

constexpr std::array<Item, 9> items{{
    {"<M>", ValueForm::colonHex, internalMACAddress},
    {"<I>", ValueForm::address, internalIPAddress},
    {"<D>", ValueForm::address, destinationIPAddress},
    {"<T>", ValueForm::port, destinationPortNumber},
    {"<P>", ValueForm::port, devicePortNumber},
    {"<U>", ValueForm::unitID, unitID},
    {"<C>", ValueForm::colonHex, destinationMACAddress},
    {"<O>", ValueForm::colonHex, std::nullopt},
    {"<S>", ValueForm::blankHex, serialNumber},
}};

constexpr std::size_t tagLength = 3;
constexpr std::string_view missingText = "(null)";

// What a list with one of each item shows at most.
constexpr std::size_t usualDisplayLength = [] {
    std::size_t length = 0;
    for (const Item& item : items) {
        length += item.lineStart.view().size() + UnitRecord::longestText;
    }
    return length;
}();

const Item* itemAtFrontOf(ByteView list) {
    if (list.size() < tagLength || list[0] != '<' || list[2] != '>') {
        return nullptr;
    }
    for (const Item& item : items) {
        if (list[1] == static_cast<std::uint8_t>(item.tag[1])) {
            return &item;
        }
    }
    return nullptr;
}

// Room for one value's text, so that decoding a list needs no storage but its display text.
class ValueText {
public:
    void setHex(ByteView octets, char separator) {
        char* end = _text.data();
        for (const std::uint8_t octet : octets) {
            if (end != _text.data()) {
                *end++ = separator;
            }
            end = writeHexDigits(end, octet);
        }
        _length = static_cast<std::size_t>(end - _text.data());
    }

    void setNumber(std::uint32_t number) {
        const auto result = std::to_chars(_text.data(), _text.data() + _text.size(), number);
        _length = static_cast<std::size_t>(result.ptr - _text.data());
    }

    void setText(std::string_view text) { _length = text.copy(_text.data(), _text.size()); }

    std::string_view view() const { return {_text.data(), _length}; }

private:
    std::array<char, UnitRecord::longestText> _text;
    std::size_t _length = 0;
};

std::uint32_t bigEndianNumber(ByteView bytes) {
    std::uint32_t number = 0;
    for (const std::uint8_t byte : bytes) {
        number = number << 8U | byte;
    }
    return number;
}

// False when the value has no text.
bool takeValue(ValueForm form, ByteView value, ValueText& text) {
    switch (form) {
    case ValueForm::colonHex:
        text.setHex(value, ':');
        return true;
    case ValueForm::blankHex:
        text.setHex(value, ' ');
        return true;
    case ValueForm::address:
        text.setText(stringForIP(bigEndianNumber(value)));
        return true;
    case ValueForm::port:
        text.setNumber(bigEndianNumber(value));
        return true;
    case ValueForm::unitID:
        break;
    }
    const auto identity = unitIDforData(value);
    text.setText(identity.value_or(std::string()));
    return identity.has_value();
}

void appendLineStart(std::string& displayText, const Item& item, const ShownParameterNames* names) {
    if (names == nullptr || !item.parameter.has_value()) {
        displayText += item.lineStart.view();
    } else {
        displayText += "\n\t";
        displayText += (*names)[static_cast<std::size_t>(*item.parameter)];
        displayText += ": ";
    }
}

void decodeItem(const Item& item, ByteView value, const ShownParameterNames* names,
                DecodedUnitParameters& decoded) {
    ValueText text;
    const bool hasText = takeValue(item.form, value, text);
    appendLineStart(decoded.displayText, item, names);
    decoded.displayText += hasText ? text.view() : missingText;
    if (!item.parameter.has_value()) {
        return;
    }
    if (hasText) {
        decoded.record.setValue(*item.parameter, text.view());
    } else {
        decoded.record.removeValue(*item.parameter);
    }
}

} // namespace

std::optional<UnitParameter> unitParameterForName(std::string_view name) {
    const auto found =
        std::find_if(allUnitParameters.begin(), allUnitParameters.end(),
                     [&](UnitParameter each) { return nameOfUnitParameter(each) == name; });
    return found == allUnitParameters.end() ? std::nullopt : std::optional(*found);
}

void UnitRecord::setValue(UnitParameter parameter, std::string_view text) {
    require(text.size() <= longestText, "text.size() <= longestText", "Sources/UnitParameters");
    Slot& slot = _slots[static_cast<std::size_t>(parameter)];
    slot.length = static_cast<std::uint8_t>(text.copy(slot.text.data(), longestText));
    slot.isPresent = true;
}

bool operator==(const UnitRecord& left, const UnitRecord& right) {
    return std::all_of(allUnitParameters.begin(), allUnitParameters.end(),
                       [&](UnitParameter each) { return left.value(each) == right.value(each); });
}

DecodedUnitParameters decodeUnitParameters(ByteView list, const ShownParameterNames* names) {
    DecodedUnitParameters decoded;
    decoded.displayText.reserve(usualDisplayLength);
    while (const Item* item = itemAtFrontOf(list)) {
        decodeItem(*item, subrange(list, tagLength, item->valueLength), names, decoded);
        list = list.subspan(tagLength + item->valueLength);
    }
    return decoded;
}

} // namespace kx
