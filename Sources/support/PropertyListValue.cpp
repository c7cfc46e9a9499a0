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

} // namespace

PropertyListValue::~PropertyListValue() = default;
PropertyListValue::PropertyListValue(const PropertyListValue& other) = default;
PropertyListValue::PropertyListValue(PropertyListValue&& other) noexcept = default;
PropertyListValue& PropertyListValue::operator=(const PropertyListValue& other) = default;
PropertyListValue& PropertyListValue::operator=(PropertyListValue&& other) noexcept = default;

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
