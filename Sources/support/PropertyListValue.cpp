#include "support/PropertyListValue.h"

namespace kx {

namespace {

std::string listDescription(const PropertyList& list) {
    std::string result = "(";
    std::string_view separator;
    for (const auto& element : list) {
        result.append(separator).append(element.description());
        separator = ", ";
    }
    return result + ")";
}

std::string dictionaryDescription(const PropertyDictionary& dictionary) {
    std::string result = "{";
    std::string_view separator;
    for (const auto& [key, value] : dictionary) {
        result.append(separator).append(key).append(" = ").append(value.description());
        separator = "; ";
    }
    return result + "}";
}

// Whether both are absent, or both are present and equal.
template<class Value>
bool sameContents(const Value* left, const Value* right) {
    return left == nullptr || right == nullptr ? left == right : *left == *right;
}

} // namespace

PropertyListValue::PropertyListValue(PropertyList list)
    : _value(std::make_shared<const PropertyList>(std::move(list))) {}
PropertyListValue::PropertyListValue(PropertyDictionary dictionary)
    : _value(std::make_shared<const PropertyDictionary>(std::move(dictionary))) {}

PropertyListValue::~PropertyListValue() = default;
PropertyListValue::PropertyListValue(const PropertyListValue& other) = default;
PropertyListValue::PropertyListValue(PropertyListValue&& other) noexcept
    : _value(std::exchange(other._value, std::string())) {}
PropertyListValue& PropertyListValue::operator=(const PropertyListValue& other) = default;
PropertyListValue& PropertyListValue::operator=(PropertyListValue&& other) noexcept {
    _value = std::exchange(other._value, std::string());
    return *this;
}

const PropertyList* PropertyListValue::list() const {
    const auto* shared = std::get_if<SharedList>(&_value);
    return shared != nullptr ? shared->get() : nullptr;
}

const PropertyDictionary* PropertyListValue::dictionary() const {
    const auto* shared = std::get_if<SharedDictionary>(&_value);
    return shared != nullptr ? shared->get() : nullptr;
}

bool operator==(const PropertyListValue& left, const PropertyListValue& right) {
    return sameContents(left.text(), right.text()) &&
           sameContents(left.integer(), right.integer()) &&
           sameContents(left.list(), right.list()) &&
           sameContents(left.dictionary(), right.dictionary());
}

std::string PropertyListValue::description() const {
    if (const auto* asText = text()) {
        return *asText;
    }
    if (const auto* asInteger = integer()) {
        return std::to_string(*asInteger);
    }
    if (const auto* asList = list()) {
        return listDescription(*asList);
    }
    return dictionaryDescription(*dictionary());
}

const PropertyListValue* valueForKey(const PropertyDictionary& dictionary, std::string_view key) {
    const auto found = dictionary.find(key);
    return found == dictionary.end() ? nullptr : &found->second;
}

} // namespace kx
