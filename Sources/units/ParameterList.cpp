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

constexpr std::size_t itemTagLength = 3;

const Item* itemAtFrontOf(ByteView list) {
    if (list.size() < itemTagLength || list[0] != '<' || list[2] != '>') {
        return nullptr;
    }
    const std::size_t index = itemForLetter[list[1]];
    return index < itemCount ? &items[index] : nullptr;
}

char* writeHex(char* end, ByteView octets, char separator) {
    end = writeHexDigits(end, octets.front());
    for (const std::uint8_t octet : octets.subspan(1)) {
        *end++ = separator;
        end = writeHexDigits(end, octet);
    }
    return end;
}

std::uint32_t bigEndianNumber(ByteView bytes) {
    std::uint32_t number = 0;
    for (const std::uint8_t byte : bytes) {
        number = number << 8U | byte;
    }
    return number;
}

void takeUnitID(ByteView value, DecodedUnitParameters& decoded) {
    auto& bytes = decoded.unitIDBytes.emplace();
    std::copy_n(value.begin(), bytes.size(), bytes.begin());
}

// Written in its place, because the processor waits when it copies bytes that it has just written.
void writeValue(ValueForm form, ByteView value, ValueText& text) {
    switch (form) {
    case ValueForm::hardwareAddress:
        text.write([value](char* room) { return writeHex(room, value, ':'); });
        return;
    case ValueForm::serialNumber:
        text.write([value](char* room) { return writeHex(room, value, ' '); });
        return;
    case ValueForm::ipv4Address:
        text.write([value](char* room) { return writeIP(room, bigEndianNumber(value)); });
        return;
    case ValueForm::listeningPort:
    case ValueForm::anyPort:
        text.write([value](char* room) {
            return std::to_chars(room, room + ValueText::longestText, bigEndianNumber(value)).ptr;
        });
        return;
    case ValueForm::unitID:
    case ValueForm::none:
        break;
    }
    if (const auto identity = unitIDforData(value)) {
        text = ValueText(*identity);
    }
}

} // namespace

DecodedUnitParameters decodeUnitParameters(ByteView list) {
    DecodedUnitParameters decoded;
    decoded.items.reserve(itemCount);
    while (const Item* item = itemAtFrontOf(list)) {
        const ByteView value = subrange(list, itemTagLength, item->valueLength);
        writeValue(item->form, value, decoded.items.emplace_back(item->parameter).text);
        if (item->form == ValueForm::unitID) {
            takeUnitID(value, decoded);
        }
        list = list.subspan(itemTagLength + item->valueLength);
    }
    for (const ToldParameter& told : decoded.items) {
        if (told.parameter.has_value()) {
            decoded.record.setValue(*told.parameter, told.text);
        }
    }
    return decoded;
}

} // namespace kx
