#include "units/ParameterList.h"

#include "addresses/IPv4Address.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>
#include <utility>

namespace kx {

namespace {

struct Item {
    char letter; // letter of its tag
    ValueForm form;
    std::size_t valueLength;
    std::optional<UnitParameter> parameter; // absent for an item that is not kept

    consteval Item(std::string_view tag, ValueForm itsForm,
                   std::optional<UnitParameter> itsParameter)
        : letter(tag[1])
        , form(itsForm)
        , valueLength(lengthOfValue(itsForm))
        , parameter(itsParameter) {}
};

constexpr std::size_t itemCount = unitParameterCount + 1;

template<std::size_t... rows>
consteval std::array<Item, itemCount> itemsOfRows(std::index_sequence<rows...> /*rows*/) {
    return {Item(parameterTable[rows].tag, parameterTable[rows].form,
                 parameterTable[rows].parameter)...,
            Item(tagOfUninterpretedItem, ValueForm::hardwareAddress, std::nullopt)};
}

constexpr auto items = itemsOfRows(std::make_index_sequence<unitParameterCount>());

// The index of the item for each letter of a tag; itemCount for every other byte.
constexpr std::array<std::uint8_t, 256> itemForLetter = [] {
    std::array<std::uint8_t, 256> indexes{};
    indexes.fill(itemCount);
    for (std::size_t i = 0; i < items.size(); ++i) {
        indexes.at(static_cast<unsigned char>(items.at(i).letter)) = static_cast<std::uint8_t>(i);
    }
    return indexes;
}();

constexpr std::size_t tagLength = 3;

const Item* itemAtFrontOf(ByteView list) {
    if (list.size() < tagLength || list[0] != '<' || list[2] != '>') {
        return nullptr;
    }
    const std::size_t index = itemForLetter[list[1]];
    return index < itemCount ? &items[index] : nullptr;
}

// Room for the text of one value.
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
    case ValueForm::hardwareAddress:
        text.setHex(value, ':');
        return true;
    case ValueForm::serialNumber:
        text.setHex(value, ' ');
        return true;
    case ValueForm::ipv4Address:
        text.setText(stringForIP(bigEndianNumber(value)));
        return true;
    case ValueForm::listeningPort:
    case ValueForm::anyPort:
        text.setNumber(bigEndianNumber(value));
        return true;
    case ValueForm::unitID:
    case ValueForm::none:
        break;
    }
    const auto identity = unitIDforData(value);
    text.setText(identity.value_or(std::string()));
    return identity.has_value();
}

void decodeItem(const Item& item, ByteView value, DecodedUnitParameters& decoded) {
    ValueText text;
    const bool hasText = takeValue(item.form, value, text);
    decoded.items.emplace_back(item.parameter, hasText ? std::optional(text.view()) : std::nullopt);
    if (!item.parameter.has_value()) {
        return;
    }
    if (item.form == ValueForm::unitID) {
        auto& bytes = decoded.unitIDBytes.emplace();
        std::copy_n(value.begin(), bytes.size(), bytes.begin());
    }
    if (hasText) {
        decoded.record.setValue(*item.parameter, text.view());
    } else {
        decoded.record.removeValue(*item.parameter);
    }
}

} // namespace

ToldParameter::ToldParameter(std::optional<UnitParameter> parameter,
                             std::optional<std::string_view> text)
    : _parameter(parameter)
    , _hasText(text.has_value()) {
    if (_hasText) {
        _length = static_cast<std::uint8_t>(text->copy(_text.data(), _text.size()));
    }
}

DecodedUnitParameters decodeUnitParameters(ByteView list) {
    DecodedUnitParameters decoded;
    decoded.items.reserve(itemCount);
    while (const Item* item = itemAtFrontOf(list)) {
        decodeItem(*item, subrange(list, tagLength, item->valueLength), decoded);
        list = list.subspan(tagLength + item->valueLength);
    }
    return decoded;
}

} // namespace kx
