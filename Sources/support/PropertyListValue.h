// The one variant type of keyed data: the fields of table entries and the records of the host's
// network configuration.
//
// A value type: a list or a dictionary never changes once a value holds it, so copies can share it.
// Dictionaries are ordered by key (byte-wise), so nothing that a person sees depends on hashing.
// Any thread, one at a time; copies may be used by several.

#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
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

    // Implicit, so that values are written as they are: {"a", 1, PropertyList{}}.
    PropertyListValue(std::string text)
        : _value(std::move(text)) {}
    PropertyListValue(std::string_view text)
        : _value(std::string(text)) {}
    PropertyListValue(const char* text)
        : _value(std::string(text)) {}
    PropertyListValue(std::int64_t integer)
        : _value(integer) {}
    PropertyListValue(int integer)
        : _value(std::int64_t{integer}) {}
    PropertyListValue(PropertyList list);
    PropertyListValue(PropertyDictionary dictionary);

    // A value that was moved from is the empty text. These are not inline: the variant's own
    // functions are large, and when they are inlined, compilers warn about kinds that the value
    // does not hold.
    ~PropertyListValue();
    PropertyListValue(const PropertyListValue& other);
    PropertyListValue(PropertyListValue&& other) noexcept;
    PropertyListValue& operator=(const PropertyListValue& other);
    PropertyListValue& operator=(PropertyListValue&& other) noexcept;

    // The value as the given kind, or null when it is of another kind. The pointer lives as long as
    // this value is neither destroyed, assigned to nor moved from.
    const std::string* text() const { return std::get_if<std::string>(&_value); }
    const std::int64_t* integer() const { return std::get_if<std::int64_t>(&_value); }
    const PropertyList* list() const;
    const PropertyDictionary* dictionary() const;

    // A text for people and logs: texts and integers as they stand, "(a, b)" for lists,
    // "{k = v; l = w}" for dictionaries.
    std::string description() const;

    // Values are equal when they are of one kind and their contents are.
    friend bool operator==(const PropertyListValue& left, const PropertyListValue& right);

private:
    // Held by pointer because their elements are of this type, which is not complete here. Never
    // null.
    using SharedList = std::shared_ptr<const PropertyList>;
    using SharedDictionary = std::shared_ptr<const PropertyDictionary>;

    std::variant<std::string, std::int64_t, SharedList, SharedDictionary> _value;
};

// The value stored under `key`, or null when there is none.
const PropertyListValue* valueForKey(const PropertyDictionary& dictionary, std::string_view key);

} // namespace kx
