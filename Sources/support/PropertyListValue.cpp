#include "support/PropertyListValue.h"

namespace kx {

namespace {

std::string listDescription(const PropertyList& list) {
    std::string result = "(";
    for (const auto& element : list) {
        result += result.size() > 1 ? ", " : "";
        result += element.description();
    }
    return result + ")";
}

std::string dictionaryDescription(const PropertyDictionary& dictionary) {
    std::string result = "{";
    for (const auto& [key, value] : dictionary) {
        result += result.size() > 1 ? "; " : "";
        result += key + " = " + value.description();
    }
    return result + "}";
}

} // namespace

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
