// Entries by key, as the base of a class that shows them in a table view.
//
// A dictionary has no rows: a subclass chooses an order, may keep it in `sortedKeys`, and overrides
// objectAtIndex(). This class only drops that cache, and never fills it: it drops it whenever a key
// comes or goes, or the dictionary is replaced.
//
// Ownership: the table owns its dictionary and shares it with its copies, so that a change through
// either is seen by both. (A change through one table does not drop the cache of another.) The
// delegate is not owned. Main thread only.

#pragma once

#include "tables/GXStateEntry.h"
#include "tables/GXTableDelegate.h"
#include "tables/TableViewDataSource.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace kx {

class TableView;

class GXDictionaryTable : public TableViewDataSource {
public:
    GXDictionaryTable() = default;
    GXDictionaryTable(const GXDictionaryTable&) = delete;
    GXDictionaryTable& operator=(const GXDictionaryTable&) = delete;

    GXTableDelegate* delegate() const { return _delegate; }
    void setDelegate(GXTableDelegate* delegate) { _delegate = delegate; }

    // The dictionary itself, never null and without null entries. The setter shares the given one;
    // null sets a new, empty dictionary.
    const std::shared_ptr<EntryDictionary>& tableDictionary() const { return _tableDictionary; }
    void setTableDictionary(std::shared_ptr<EntryDictionary> dictionary);

    std::int32_t count() const;

    // "Table = ", then each entry's description followed by ";", in key order.
    std::string description() const;

    // The entry stored under the key, or null.
    std::shared_ptr<GXStateEntry> objectForKey(const std::optional<std::string>& key) const;

    // The same as objectForKey(): a keyed look-up in a table finds entries.
    std::shared_ptr<GXStateEntry> valueForKey(const std::optional<std::string>& key) const;

    // Stores under the key, in place of an earlier entry. `sortedKeys` is kept when there was an
    // earlier entry. Does nothing without a key or an entry.
    void setObjectForKey(std::shared_ptr<GXStateEntry> entry,
                         const std::optional<std::string>& key);

    // Stores under the entry's own key. Does nothing when it has none.
    void addObject(std::shared_ptr<GXStateEntry> entry);

    // Removes the entry that is stored under the given entry's own key.
    void removeObject(const std::shared_ptr<GXStateEntry>& entry);

    void removeObjectForKey(const std::optional<std::string>& key);
    void removeAllObjects();

    // The entry of a row. Abstract here: writes a line to the system log and returns null.
    virtual std::shared_ptr<GXStateEntry> objectAtIndex(std::int32_t index) const;

    // A hook for subclasses that keep the view up to date. Does nothing here.
    virtual void updateTable(TableView* tableView);

    // The dictionaries of the entries by the entries' own keys; entries without a key are left out.
    DictionaryOfDictionaries dictionaryOfDictionaries() const;

    // Replaces the contents by entries made of the dictionaries, each stored under its own key.
    // False, with the table empty, when there is nothing to load.
    bool loadDictionaryOfDictionariesForEntryClass(
        const std::optional<DictionaryOfDictionaries>& dictionaries, const EntryClass& entryClass);

    // Writes the dictionary as one object. False, with nothing written, when the entries' values
    // are nested too deep to be read again.
    bool encodeWithCoder(PropertyListEncoder& coder) const;

    // Takes over a new dictionary from the next object of `coder`. The bytes hold the entries'
    // fields but not their classes, so the caller gives the class. False when there is no such
    // object, it is no dictionary of entries, or the class refuses one; the table then keeps its
    // dictionary.
    bool initWithCoder(PropertyListDecoder& coder, const EntryClass& entryClass);

    // A new table of the receiver's class that shares the receiver's dictionary.
    std::shared_ptr<GXDictionaryTable> copy() const;

    // The object that travels to another process in place of the table: the table itself, so it
    // travels by copy.
    GXDictionaryTable& replacementObjectForPortCoder() { return *this; }

    // --- The values of a table view: one row for each entry ---

    int numberOfRowsInTableView() override;

    // The value for the column's identifier of the entry at objectAtIndex(), absent without an
    // entry. Exceptions of the entry pass through.
    std::optional<PropertyListValue>
    tableViewObjectValueForTableColumnRow(const TableColumn& column, int row) override;

protected:
    // A new, empty table of the receiver's class, for copy(). Every subclass overrides it.
    virtual std::shared_ptr<GXDictionaryTable> newInstance() const;

    // The keys in the order of the rows; absent until a subclass builds it, and after a drop.
    std::optional<std::vector<std::string>> sortedKeys;

private:
    std::shared_ptr<EntryDictionary> _tableDictionary = std::make_shared<EntryDictionary>();
    GXTableDelegate* _delegate = nullptr;
};

} // namespace kx
