// The one variant type of keyed data: the fields of table entries and the records of the host's
// network configuration.
//
// A value type: copies are deep, there is no sharing. Dictionaries are ordered by key (byte-wise),
// so nothing that a person sees depends on hashing.

#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace kx {

class PropertyListValue;

using PropertyList = std::vector<PropertyListValue>;
using PropertyDictionary = std::map<std::string, PropertyListValue, std::less<>>;

class PropertyListValue {
public:
    PropertyListValue() = default; // the empty text
    PropertyListValue(std::string text)
        : _value(std::move(text)) {} // NOLINT: implicit
    PropertyListValue(std::string_view text)
        : _value(std::string(text)) {} // NOLINT
    PropertyListValue(const char* text)
        : _value(std::string(text)) {} // NOLINT
    PropertyListValue(std::int64_t integer)
        : _value(integer) {} // NOLINT
    PropertyListValue(int integer)
        : _value(std::int64_t{integer}) {} // NOLINT
    PropertyListValue(PropertyList list)
        : _value(std::move(list)) {} // NOLINT
    PropertyListValue(PropertyDictionary dictionary)
        : _value(std::move(dictionary)) {} // NOLINT

    // Out of line: inlined into every user, the variant's own are large, and compilers warn there
    // of the kinds that it does not hold.
    ~PropertyListValue();
    PropertyListValue(const PropertyListValue& other);
    PropertyListValue(PropertyListValue&& other) noexcept;
    PropertyListValue& operator=(const PropertyListValue& other);
    PropertyListValue& operator=(PropertyListValue&& other) noexcept;

    // The value as the given kind, or null when it is of another kind. The pointer lives as long as
    // this value is neither destroyed nor assigned to.
    const std::string* text() const { return std::get_if<std::string>(&_value); }
    const std::int64_t* integer() const { return std::get_if<std::int64_t>(&_value); }
    const PropertyList* list() const { return std::get_if<PropertyList>(&_value); }
    const PropertyDictionary* dictionary() const {
        return std::get_if<PropertyDictionary>(&_value);
    }

    // A text for people and logs: texts and integers as they stand, "(a, b)" for lists,
    // "{k = v; l = w}" for dictionaries.
    std::string description() const;

    friend bool operator==(const PropertyListValue&, const PropertyListValue&) = default;

private:
    std::variant<std::string, std::int64_t, PropertyList, PropertyDictionary> _value;
};

// The value stored under `key`, or null when there is none.
const PropertyListValue* valueForKey(const PropertyDictionary& dictionary, std::string_view key);

} // namespace kx
