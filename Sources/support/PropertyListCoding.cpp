#include "support/PropertyListCoding.h"

#include "support/TextEncoding.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>

namespace kx {

namespace {

int nestingOf(const PropertyListValue& value) {
    int deepest = 0;
    if (const auto* list = value.list()) {
        for (const auto& element : *list) {
            deepest = std::max(deepest, nestingOf(element));
        }
        return deepest + 1;
    }
    if (const auto* dictionary = value.dictionary()) {
        for (const auto& [key, element] : *dictionary) {
            deepest = std::max(deepest, nestingOf(element));
        }
        return deepest + 1;
    }
    return deepest;
}

// Every object begins with a tag, a number and the character that ends the number.
template<class Number>
void appendHead(Bytes& bytes, char tag, Number number, char end) {
    const std::string head = tag + std::to_string(number) + end;
    bytes.insert(bytes.end(), head.begin(), head.end());
}

void appendText(Bytes& bytes, std::string_view text) {
    appendHead(bytes, 't', text.size(), ':');
    bytes.insert(bytes.end(), text.begin(), text.end());
}

void appendObject(Bytes& bytes, const PropertyListValue& value) {
    if (const auto* text = value.text()) {
        appendText(bytes, *text);
    } else if (const auto* integer = value.integer()) {
        appendHead(bytes, 'i', *integer, ';');
    } else if (const auto* list = value.list()) {
        appendHead(bytes, 'l', list->size(), ':');
        for (const auto& element : *list) {
            appendObject(bytes, element);
        }
    } else if (const auto* dictionary = value.dictionary()) {
        appendHead(bytes, 'd', dictionary->size(), ':');
        for (const auto& [key, element] : *dictionary) {
            appendText(bytes, key);
            appendObject(bytes, element);
        }
    }
}

// A walk through bytes from an untrusted source. Each operation is absent when the bytes at the
// position do not have its form; the walk is over then.
class Reader {
public:
    explicit Reader(ByteView bytes)
        : _rest(bytes) {}

    ByteView rest() const { return _rest; }

    std::optional<PropertyListValue> object(int nestingLeft) {
        switch (tag()) {
        case 't':
            return text();
        case 'i':
            return number<std::int64_t>(';');
        case 'l':
            return list(nestingLeft - 1);
        case 'd':
            return dictionary(nestingLeft - 1);
        default:
            return std::nullopt;
        }
    }

private:
    char tag() {
        if (_rest.empty()) {
            return '\0';
        }
        const char first = static_cast<char>(_rest.front());
        _rest = _rest.subspan(1);
        return first;
    }

    template<class Number>
    std::optional<Number> number(char end) {
        const auto stop = std::find(_rest.begin(), _rest.end(), static_cast<std::uint8_t>(end));
        if (stop == _rest.end()) {
            return std::nullopt;
        }
        const std::string digits(_rest.begin(), stop);
        Number value = 0;
        const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), value);
        // The comparison rules out leading zeros, "-0" and anything after the digits.
        if (read.ec != std::errc() || digits != std::to_string(value)) {
            return std::nullopt;
        }
        _rest = _rest.subspan(digits.size() + 1);
        return value;
    }

    std::optional<std::string> text() {
        const auto length = number<std::size_t>(':');
        if (!length || *length > _rest.size()) {
            return std::nullopt;
        }
        auto result = textFromUTF8(_rest.first(*length));
        _rest = _rest.subspan(*length);
        return result;
    }

    std::optional<PropertyListValue> list(int nestingLeft) {
        const auto count = number<std::size_t>(':');
        if (!count || nestingLeft < 0) {
            return std::nullopt;
        }
        PropertyList elements; // not reserved, because the count may be false
        for (std::size_t i = 0; i < *count; ++i) {
            auto element = object(nestingLeft);
            if (!element) {
                return std::nullopt;
            }
            elements.push_back(std::move(*element));
        }
        return PropertyListValue(std::move(elements));
    }

    std::optional<PropertyListValue> dictionary(int nestingLeft) {
        const auto count = number<std::size_t>(':');
        if (!count || nestingLeft < 0) {
            return std::nullopt;
        }
        PropertyDictionary elements;
        for (std::size_t i = 0; i < *count; ++i) {
            auto key = tag() == 't' ? text() : std::nullopt;
            if (!key || (!elements.empty() && *key <= elements.rbegin()->first)) {
                return std::nullopt;
            }
            auto element = object(nestingLeft);
            if (!element) {
                return std::nullopt;
            }
            elements.emplace_hint(elements.end(), std::move(*key), std::move(*element));
        }
        return PropertyListValue(std::move(elements));
    }

    ByteView _rest;
};

} // namespace

bool PropertyListEncoder::encodeObject(const PropertyListValue& object) {
    if (nestingOf(object) > deepestPropertyListNesting) {
        return false;
    }
    appendObject(_bytes, object);
    return true;
}

std::optional<PropertyListValue> PropertyListDecoder::decodeObject() {
    Reader reader(_rest);
    auto object = reader.object(deepestPropertyListNesting);
    if (object) {
        _rest = reader.rest();
    }
    return object;
}

} // namespace kx
