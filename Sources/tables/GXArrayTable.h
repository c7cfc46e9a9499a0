// An array of entries that can be kept sorted by key and shown in a table view.
//
// Entries stored through the keyed operations lie in ascending key order. The other operations
// place entries where the caller says; the caller then keeps the order or does not use the keyed
// operations. Storing beyond the end fills the gap with the placeholder "*NULL*".
//
// The placeholder is a null element of tableArray(). It reads back as null, describes itself as
// "*NULL*", sorts before every key, and has no part in the conversions to dictionaries. A null
// entry given to an operation that stores is stored as a placeholder.
//
// Indexes: an index that is negative or not below the count is out of range. It gives null or false
// and does no harm.
//
// Ownership: the table owns its array and shares it with its copies, so that a change through
// either is seen by both. The delegate is not owned. Main thread only.

#pragma once

#include "tables/GXStateEntry.h"
#include "tables/GXTableDelegate.h"
#include "tables/TableViewDataSource.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace kx {

class GXArrayTable : public TableViewDataSource {
public:
    static constexpr std::string_view placeholder = "*NULL*";

    GXArrayTable() = default;
    GXArrayTable(const GXArrayTable&) = delete;
    GXArrayTable& operator=(const GXArrayTable&) = delete;

    GXTableDelegate* delegate() const { return _delegate; }
    void setDelegate(GXTableDelegate* delegate) { _delegate = delegate; }

    // The array itself, never null. The setter shares the given array; null sets a new, empty
    // array.
    const std::shared_ptr<EntryArray>& tableArray() const { return _tableArray; }
    void setTableArray(std::shared_ptr<EntryArray> array);

    std::int32_t count() const;

    // The elements' descriptions: "(a, b)".
    std::string description() const;

    // --- By index ---

    // Null when out of range, and for a placeholder.
    virtual std::shared_ptr<GXStateEntry> objectAtIndex(std::int32_t index) const;

    // Appends. Returns the entry's index.
    virtual std::int32_t addObject(std::shared_ptr<GXStateEntry> entry);

    // Makes room at `index` and stores there. Beyond the end, it appends placeholders up to `index`
    // first. False, with nothing changed, when that would take more than 99 of them.
    bool insertObjectAtIndex(std::shared_ptr<GXStateEntry> entry, std::int32_t index);

    // Replaces the element at `index`. Beyond the end it does the same as insertObjectAtIndex(),
    // but appends the entry with addObject().
    bool replaceObjectAtIndexWithObject(std::int32_t index, std::shared_ptr<GXStateEntry> entry);

    // False when out of range.
    bool removeObjectAtIndex(std::int32_t index);

    // Removes every occurrence of the entry.
    void removeObject(const std::shared_ptr<GXStateEntry>& entry);

    void removeAllObjects();

    // The index of the first occurrence of the entry; absent when there is none.
    std::optional<std::int32_t> indexOfObject(const std::shared_ptr<GXStateEntry>& entry) const;

    // --- By key: binary search with the entries' compareKey() or compareKeyInt() ---

    // The entry with the key, or null.
    std::shared_ptr<GXStateEntry> objectForKey(const std::optional<std::string>& key) const;
    std::shared_ptr<GXStateEntry> objectForKeyInt(std::int32_t key) const;

    // Replaces the entry with the key, or inserts in key order. The entry's own key is not read:
    // the caller must pass the key that the entry will report. Returns the entry's index, with one
    // exception: an entry that is inserted behind the last one that the search looked at returns
    // one less than its index. So the result is no insertion index. The first entry of an empty
    // table returns 0.
    std::int32_t setObjectForKey(std::shared_ptr<GXStateEntry> entry,
                                 const std::optional<std::string>& key);
    std::int32_t setObjectForKeyInt(std::shared_ptr<GXStateEntry> entry, std::int32_t key);

    // Does nothing when there is no such entry.
    void removeObjectForKey(const std::optional<std::string>& key);
    void removeObjectForKeyInt(std::int32_t key);

    // The same as objectForKey(): a keyed look-up in a table finds entries.
    std::shared_ptr<GXStateEntry> valueForKey(const std::optional<std::string>& key) const;

    // --- To and from plain arrays and dictionaries ---
    // Entries without a key are left out of the dictionaries. The load operations replace the
    // table's contents and return false, with the table empty, when there is nothing to load.

    DictionaryArray arrayOfDictionaries() const;
    bool loadArrayOfDictionariesForEntryClass(const std::optional<DictionaryArray>& dictionaries,
                                              const EntryClass& entryClass);

    // The entries by their own keys. The setter replaces the contents by the dictionary's entries,
    // each stored under its own key.
    EntryDictionary tableDictionary() const;
    void setTableDictionary(const EntryDictionary& dictionary);

    DictionaryOfDictionaries dictionaryOfDictionaries() const;
    bool loadDictionaryOfDictionariesForEntryClass(
        const std::optional<DictionaryOfDictionaries>& dictionaries, const EntryClass& entryClass);

    // --- Coding and copying ---

    // Writes the array as one object. False, with nothing written, when the entries' values are
    // nested too deep to be read again.
    bool encodeWithCoder(PropertyListEncoder& coder) const;

    // Takes over a new array from the next object of `coder`. The bytes hold the entries' fields
    // but not their classes, so the caller gives the class. False when there is no such object, it
    // is no array of entries, or the class refuses one; the table then keeps its array.
    bool initWithCoder(PropertyListDecoder& coder, const EntryClass& entryClass);

    // A new table of the receiver's class that shares the receiver's array.
    std::shared_ptr<GXArrayTable> copy() const;

    // The object that travels to another process in place of the table: the table itself, so it
    // travels by copy.
    GXArrayTable& replacementObjectForPortCoder() { return *this; }

    // --- The values of a table view: one row for each element ---

    int numberOfRowsInTableView() override;

    // The entry's value for the column's identifier, absent for a placeholder. When the entry
    // throws a PlatformException, a line goes to the system log and the cell shows the identifier.
    std::optional<PropertyListValue>
    tableViewObjectValueForTableColumnRow(const TableColumn& column, int row) override;

    // Stores into the entry; does nothing for a placeholder. Exceptions of the entry pass through.
    void tableViewSetObjectValueForTableColumnRow(const PropertyListValue& value,
                                                  const TableColumn& column, int row) override;

protected:
    // A new, empty table of the receiver's class, for copy(). Every subclass overrides it.
    virtual std::shared_ptr<GXArrayTable> newInstance() const;

private:
    // How an entry compares with the key looked for, see GXStateEntry::compareKey().
    using Comparison = std::function<int(const GXStateEntry&)>;

    // The index at which a search ended, and how the element there compares with the key.
    struct SearchEnd {
        std::int32_t index;
        int comparison;
    };

    std::optional<SearchEnd> search(const Comparison& compare) const;
    std::shared_ptr<GXStateEntry> entryFound(const Comparison& compare) const;
    std::int32_t store(std::shared_ptr<GXStateEntry> entry, const Comparison& compare);
    void removeFound(const Comparison& compare);
    bool isBelowCount(std::int32_t index) const;
    bool fillUpTo(std::int32_t index);

    std::shared_ptr<EntryArray> _tableArray = std::make_shared<EntryArray>();
    GXTableDelegate* _delegate = nullptr;
};

} // namespace kx
