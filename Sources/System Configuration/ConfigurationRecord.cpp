#include "System Configuration/ConfigurationRecord.h"

#include "support/TextEncoding.h"

namespace kx {

std::optional<PropertyListValue> entryOf(const ConfigurationRecord& record, std::string_view key) {
    const auto* entry = record.has_value() ? valueForKey(*record, key) : nullptr;
    return entry != nullptr ? std::optional(*entry) : std::nullopt;
}

std::optional<std::string> textOf(const std::optional<PropertyListValue>& value) {
    const auto* text = value.has_value() ? value->text() : nullptr;
    return text != nullptr ? std::optional(*text) : std::nullopt;
}

PropertyList listOf(const std::optional<PropertyListValue>& value) {
    const auto* list = value.has_value() ? value->list() : nullptr;
    return list != nullptr ? *list : PropertyList();
}

std::vector<std::string> textsOf(const std::optional<PropertyListValue>& value) {
    std::vector<std::string> texts;
    for (const auto& element : listOf(value)) {
        if (const auto* text = element.text()) {
            texts.push_back(*text);
        }
    }
    return texts;
}

std::optional<std::int64_t> numberOf(const std::optional<PropertyListValue>& value) {
    if (const auto text = textOf(value)) {
        return integerValue(*text);
    }
    const auto* integer = value.has_value() ? value->integer() : nullptr;
    return integer != nullptr ? std::optional(*integer) : std::nullopt;
}

} // namespace kx
