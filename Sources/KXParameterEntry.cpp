#include "KXParameterEntry.h"

namespace kx {

namespace {

std::optional<std::string> textOfField(const PropertyDictionary& fields, std::string_view key) {
    const auto* value = valueForKey(fields, key);
    return value != nullptr ? std::optional(value->description()) : std::nullopt;
}

template<class Value>
void storeField(PropertyDictionary& fields, std::string_view key,
                const std::optional<Value>& value) {
    if (value) {
        fields.insert_or_assign(std::string(key), *value);
    } else {
        fields.erase(std::string(key));
    }
}

bool isParameterKey(std::string_view key) {
    return key == KXParameterEntry::parameterNameKey || key == KXParameterEntry::parameterValueKey;
}

} // namespace

std::optional<std::string> KXParameterEntry::parameterName() const {
    return textOfField(*nodeDictionary(), parameterNameKey);
}

void KXParameterEntry::setParameterName(const std::optional<std::string>& name) {
    storeField(*nodeDictionary(), parameterNameKey, name);
}

std::optional<std::string> KXParameterEntry::parameterValue() const {
    return textOfField(*nodeDictionary(), parameterValueKey);
}

void KXParameterEntry::setParameterValue(const std::optional<std::string>& value) {
    storeField(*nodeDictionary(), parameterValueKey, value);
}

std::optional<PropertyListValue> KXParameterEntry::valueForKey(std::string_view key) const {
    if (!isParameterKey(key)) {
        return GXStateEntry::valueForKey(key);
    }
    const auto* value = kx::valueForKey(*nodeDictionary(), key);
    return value != nullptr ? std::optional(*value) : std::nullopt;
}

void KXParameterEntry::setValueForKey(const std::optional<PropertyListValue>& value,
                                      std::string_view key) {
    if (!isParameterKey(key)) {
        GXStateEntry::setValueForKey(value, key);
        return;
    }
    storeField(*nodeDictionary(), key, value);
}

std::shared_ptr<GXStateEntry> KXParameterEntry::newInstance() const {
    return std::make_shared<KXParameterEntry>();
}

} // namespace kx
