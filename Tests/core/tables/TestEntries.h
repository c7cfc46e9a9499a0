// Entries with keys of their own, for the tests of the tables.

#pragma once

#include "tables/GXStateEntry.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace kx {

// An entry whose text key is its field "name" and whose integer key is its field "number". It knows
// both as properties.
class KeyedEntry final : public GXStateEntry {
public:
    static std::shared_ptr<KeyedEntry> named(std::string_view name) {
        auto entry = std::make_shared<KeyedEntry>();
        entry->setValueForKey(PropertyListValue(name), "name");
        return entry;
    }

    // An entry that every coder refuses, because its "number" is nested too deep.
    static std::shared_ptr<KeyedEntry> nestedTooDeep(std::string_view name) {
        PropertyListValue value = 1;
        for (int i = 0; i < deepestPropertyListNesting; ++i) {
            value = PropertyList{value};
        }
        auto entry = named(name);
        entry->setValueForKey(value, "number");
        return entry;
    }

    static std::shared_ptr<KeyedEntry> numbered(int number) {
        auto entry = std::make_shared<KeyedEntry>();
        entry->setValueForKey(PropertyListValue(number), "number");
        return entry;
    }

    std::optional<std::string> key() const override {
        const auto* name = kx::valueForKey(*nodeDictionary(), "name");
        return name != nullptr ? std::optional(*name->text()) : std::nullopt;
    }

    std::int32_t keyInt() const override {
        const auto* number = kx::valueForKey(*nodeDictionary(), "number");
        return number != nullptr ? static_cast<std::int32_t>(*number->integer()) : 0;
    }

    int compareKey(const std::optional<std::string>& other) const override {
        return key() < other ? -1 : (key() == other ? 0 : 1);
    }

    int compareKeyInt(std::int32_t other) const override {
        return keyInt() < other ? -1 : (keyInt() == other ? 0 : 1);
    }

    std::optional<PropertyListValue> valueForKey(std::string_view name) const override {
        if (name != "name" && name != "number") {
            return GXStateEntry::valueForKey(name);
        }
        const auto* value = kx::valueForKey(*nodeDictionary(), name);
        return value != nullptr ? std::optional(*value) : std::nullopt;
    }

    void setValueForKey(const std::optional<PropertyListValue>& value,
                        std::string_view name) override {
        if (name != "name" && name != "number") {
            GXStateEntry::setValueForKey(value, name);
            return;
        }
        if (value) {
            nodeDictionary()->insert_or_assign(std::string(name), *value);
        } else {
            nodeDictionary()->erase(std::string(name));
        }
    }

protected:
    std::shared_ptr<GXStateEntry> newInstance() const override {
        return std::make_shared<KeyedEntry>();
    }
};

} // namespace kx
