#include "UnitParameters.h"

#include "CommandProtocol.h"
#include "addresses/IPv4Address.h"
#include "support/Require.h"

#include <algorithm>
#include <charconv>

namespace kx {

namespace {

enum class ValueForm : std::uint8_t { colonHex, blankHex, address, port, unitID };

struct Item {
    std::string_view tag;
    std::size_t valueLength;
    ValueForm form;
    std::optional<UnitParameter> parameter; // absent: shown under its tag and not kept
    std::string_view lineStart;             // what the line of the display text begins with
};

using enum UnitParameter;

constexpr std::array<Item, 9> items{{
    {"<M>", 6, ValueForm::colonHex, internalMACAddress, "\n\tinternal MAC address: "},
    {"<I>", 4, ValueForm::address, internalIPAddress, "\n\tinternal IP address: "},
    {"<D>", 4, ValueForm::address, destinationIPAddress, "\n\tdestination IP address: "},
    {"<T>", 2, ValueForm::port, destinationPortNumber, "\n\tdestination Port number: "},
    {"<P>", 2, ValueForm::port, devicePortNumber, "\n\tdevice Port number: "},
    {"<U>", 6, ValueForm::unitID, unitID, "\n\tunit ID: "},
    {"<C>", 6, ValueForm::colonHex, destinationMACAddress, "\n\tdestination MAC address: "},
    {"<O>", 6, ValueForm::colonHex, std::nullopt, "\n\t<O>: "},
    {"<S>", 6, ValueForm::blankHex, serialNumber, "\n\tserial number: "},
}};

constexpr std::size_t tagLength = 3;
constexpr std::string_view missingText = "(null)";

constexpr std::string_view nameOfItem(const Item& item) {
    return item.parameter.has_value() ? nameOfUnitParameter(*item.parameter) : item.tag;
}

constexpr bool tagsAreOneLetterInAngles() {
    return std::all_of(items.begin(), items.end(), [](const Item& item) {
        return item.tag.size() == tagLength && item.tag.front() == '<' && item.tag.back() == '>';
    });
}

constexpr bool linesBeginWithTheirNames() {
    return std::all_of(items.begin(), items.end(), [](const Item& item) {
        std::string_view line = item.lineStart;
        if (!line.starts_with("\n\t") || !line.ends_with(": ")) {
            return false;
        }
        line.remove_prefix(2);
        line.remove_suffix(2);
        return line == nameOfItem(item);
    });
}

constexpr std::size_t valueLengthOfForm(ValueForm form) {
    return form == ValueForm::address ? 4 : form == ValueForm::port ? 2 : 6;
}

constexpr bool lengthsFitTheirForms() {
    return std::all_of(items.begin(), items.end(), [](const Item& item) {
        return item.valueLength == valueLengthOfForm(item.form);
    });
}

constexpr char lowerCase(char character) {
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a')
                                                : character;
}

constexpr bool namesAscendWithoutRegardToCase() {
    return std::is_sorted(
        allUnitParameters.begin(), allUnitParameters.end(),
        [](UnitParameter left, UnitParameter right) {
            const auto leftName = nameOfUnitParameter(left);
            const auto rightName = nameOfUnitParameter(right);
            return std::lexicographical_compare(
                leftName.begin(), leftName.end(), rightName.begin(), rightName.end(),
                [](char one, char other) { return lowerCase(one) < lowerCase(other); });
        });
}

constexpr std::size_t longestDisplayOfEveryItem() {
    std::size_t length = 0;
    for (const Item& item : items) {
        length += item.lineStart.size() + UnitRecord::longestText;
    }
    return length;
}

static_assert(tagsAreOneLetterInAngles());
static_assert(linesBeginWithTheirNames());
static_assert(lengthsFitTheirForms());
static_assert(namesAscendWithoutRegardToCase());

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

void decodeItem(const Item& item, ByteView value, DecodedUnitParameters& decoded) {
    ValueText text;
    const bool hasText = takeValue(item.form, value, text);
    decoded.displayText += item.lineStart;
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
    const auto* const found =
        std::find_if(allUnitParameters.begin(), allUnitParameters.end(),
                     [&](UnitParameter each) { return nameOfUnitParameter(each) == name; });
    return found == allUnitParameters.end() ? std::nullopt : std::optional(*found);
}

std::optional<std::string> UnitRecord::valueForName(std::string_view name) const {
    const auto parameter = unitParameterForName(name);
    if (!parameter.has_value()) {
        return std::nullopt;
    }
    const auto text = value(*parameter);
    return text.has_value() ? std::optional<std::string>(*text) : std::nullopt;
}

void UnitRecord::setValue(UnitParameter parameter, std::string_view text) {
    require(text.size() <= longestText, "text.size() <= longestText", "Sources/UnitParameters");
    Slot& slot = _slots[static_cast<std::size_t>(parameter)];
    slot.length = static_cast<std::uint8_t>(text.copy(slot.text.data(), longestText));
    slot.isPresent = true;
}

std::vector<std::string_view> UnitRecord::names() const {
    std::vector<std::string_view> result;
    for (const UnitParameter parameter : allUnitParameters) {
        if (value(parameter).has_value()) {
            result.push_back(nameOfUnitParameter(parameter));
        }
    }
    return result;
}

bool operator==(const UnitRecord& left, const UnitRecord& right) {
    return std::all_of(allUnitParameters.begin(), allUnitParameters.end(),
                       [&](UnitParameter each) { return left.value(each) == right.value(each); });
}

DecodedUnitParameters decodeUnitParameters(ByteView list) {
    DecodedUnitParameters decoded;
    decoded.displayText.reserve(longestDisplayOfEveryItem());
    while (const Item* item = itemAtFrontOf(list)) {
        decodeItem(*item, subrange(list, tagLength, item->valueLength), decoded);
        list = list.subspan(tagLength + item->valueLength);
    }
    return decoded;
}

} // namespace kx
