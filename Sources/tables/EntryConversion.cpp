#include "tables/EntryConversion.h"

#include <utility>

namespace kx {

void addEntryUnderItsKey(EntryDictionary& dictionary, const std::shared_ptr<GXStateEntry>& entry) {
    const auto key = entry != nullptr ? entry->key() : std::nullopt;
    if (key) {
        dictionary.insert_or_assign(*key, entry);
    }
}

DictionaryOfDictionaries dictionariesOfEntries(const EntryDictionary& entries) {
    DictionaryOfDictionaries result;
    for (const auto& [key, entry] : entries) {
        result.emplace(key, entry->nodeDictionary());
    }
    return result;
}

EntryArray entriesOfDictionaries(const DictionaryArray& dictionaries,
                                 const EntryClass& entryClass) {
    EntryArray result;
    for (const auto& dictionary : dictionaries) {
        if (auto entry = dictionary != nullptr ? entryClass(*dictionary) : nullptr) {
            result.push_back(std::move(entry));
        }
    }
    return result;
}

EntryArray entriesOfDictionaries(const DictionaryOfDictionaries& dictionaries,
                                 const EntryClass& entryClass) {
    DictionaryArray values;
    for (const auto& [key, dictionary] : dictionaries) {
        values.push_back(dictionary);
    }
    return entriesOfDictionaries(values, entryClass);
}

PropertyListValue codedEntry(const GXStateEntry& entry) {
    return *entry.nodeDictionary();
}

std::shared_ptr<GXStateEntry> decodedEntry(const PropertyListValue& value,
                                           const EntryClass& entryClass) {
    const auto* dictionary = value.dictionary();
    return dictionary != nullptr ? entryClass(*dictionary) : nullptr;
}

std::optional<PropertyListValue> cellValue(const std::shared_ptr<GXStateEntry>& entry,
                                           std::string_view identifier) {
    return entry != nullptr ? entry->valueForKey(identifier) : std::nullopt;
}

} // namespace kx
