#include "tables/GXStateEntry.h"

#include "support/SystemLog.h"

#include <utility>

namespace kx {

UndefinedKeyFailure::UndefinedKeyFailure(std::string_view key)
    : PlatformException("the entry has no property \"" + std::string(key) + "\"") {}

std::shared_ptr<GXStateEntry>
GXStateEntry::entryFromDictionary(const PropertyDictionary& dictionary) {
    return entryOfClass<GXStateEntry>(dictionary);
}

void GXStateEntry::setNodeDictionary(std::shared_ptr<PropertyDictionary> dictionary) {
    _nodeDictionary =
        dictionary != nullptr ? std::move(dictionary) : std::make_shared<PropertyDictionary>();
}

std::string GXStateEntry::description() const {
    return PropertyListValue(*_nodeDictionary).description();
}

std::optional<std::string> GXStateEntry::key() const {
    logToSystem("GXStateEntry: override key for subclass");
    return std::nullopt;
}

std::int32_t GXStateEntry::keyInt() const {
    logToSystem("GXStateEntry: override keyInt for subclass");
    return 0;
}

int GXStateEntry::compareKey(const std::optional<std::string>& /*key*/) const {
    logToSystem("GXStateEntry: override compareKey for subclass");
    return -1;
}

int GXStateEntry::compareKeyInt(std::int32_t /*key*/) const {
    logToSystem("GXStateEntry: override compareKey for subclass");
    return -1;
}

std::optional<PropertyListValue> GXStateEntry::valueForKey(std::string_view key) const {
    throw UndefinedKeyFailure(key);
}

void GXStateEntry::setValueForKey(const std::optional<PropertyListValue>& /*value*/,
                                  std::string_view key) {
    throw UndefinedKeyFailure(key);
}

bool GXStateEntry::encodeWithCoder(PropertyListEncoder& coder) const {
    return coder.encodeObject(*_nodeDictionary);
}

bool GXStateEntry::initWithCoder(PropertyListDecoder& coder) {
    const auto object = coder.decodeObject();
    if (!object || object->dictionary() == nullptr) {
        return false;
    }
    setNodeDictionary(std::make_shared<PropertyDictionary>(*object->dictionary()));
    return true;
}

std::shared_ptr<GXStateEntry> GXStateEntry::copy() const {
    auto result = newInstance();
    result->setNodeDictionary(_nodeDictionary);
    return result;
}

std::shared_ptr<GXStateEntry> GXStateEntry::newInstance() const {
    return std::make_shared<GXStateEntry>();
}

} // namespace kx
