// Conversions that the tables share: entries as plain dictionaries, and entries as property-list
// values for coding.
//
// A null entry is a hole. Main thread only, like the tables.

#pragma once

#include "tables/GXStateEntry.h"

#include <memory>
#include <optional>
#include <string>

namespace kx {

// Adds the entry under its own key. A hole and an entry without a key are left out.
void addEntryUnderItsKey(EntryDictionary& dictionary, const std::shared_ptr<GXStateEntry>& entry);

// The entries' dictionaries under the same keys as the entries.
DictionaryOfDictionaries dictionariesOfEntries(const EntryDictionary& entries);

// The entries that the class makes of the dictionaries, in order. Dictionaries that the class
// refuses are left out.
EntryArray entriesOfDictionaries(const DictionaryArray& dictionaries, const EntryClass& entryClass);
EntryArray entriesOfDictionaries(const DictionaryOfDictionaries& dictionaries,
                                 const EntryClass& entryClass);

// Replaces the contents of a table by the entries that the class makes of the dictionaries, each
// under its own key. Without dictionaries the table ends up empty, and the result is false.
template<class Table>
bool loadTable(Table& table, const std::optional<DictionaryOfDictionaries>& dictionaries,
               const EntryClass& entryClass) {
    table.removeAllObjects();
    if (!dictionaries) {
        return false;
    }
    for (auto& entry : entriesOfDictionaries(*dictionaries, entryClass)) {
        table.setObjectForKey(entry, entry->key());
    }
    return true;
}

// The fields of an entry, as a value. The entry must not be a hole.
PropertyListValue codedEntry(const GXStateEntry& entry);

// The entry that the class makes of a value from codedEntry(). Null for any other value, and when
// the class refuses it.
std::shared_ptr<GXStateEntry> decodedEntry(const PropertyListValue& value,
                                           const EntryClass& entryClass);

// The cell of a table view for an entry: its value for the column's identifier, absent for a hole.
// Exceptions of the entry pass through.
std::optional<PropertyListValue> cellValue(const std::shared_ptr<GXStateEntry>& entry,
                                           std::string_view identifier);

} // namespace kx
