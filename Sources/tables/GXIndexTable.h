// Entries by row number, with holes, shown in a table view.
//
// The count is one more than the highest row that was ever stored and not removed since, so rows
// without an entry count as well. It belongs to the table and not to the dictionary: a table that
// is given another dictionary keeps its count, and a copied or decoded table has the count 0 until
// rows are set.
//
// Row numbers are compared as unsigned 32-bit values: a negative one lies above all others. Rows
// are meant to be 0 and more. After a negative one the count is of no use, and a table view shows
// no rows.
//
// Ownership: the table owns its dictionary and shares it with its copies, so that a change through
// either is seen by both. The delegate is not owned. Main thread only.

#pragma once

#include "tables/GXStateEntry.h"
#include "tables/GXTableDelegate.h"
#include "tables/TableViewDataSource.h"

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>

namespace kx {

// Entries by row number.
using EntryRows = std::map<std::int32_t, std::shared_ptr<GXStateEntry>>;

class GXIndexTable : public TableViewDataSource {
public:
    GXIndexTable() = default;
    GXIndexTable(const GXIndexTable&) = delete;
    GXIndexTable& operator=(const GXIndexTable&) = delete;

    GXTableDelegate* delegate() const { return _delegate; }
    void setDelegate(GXTableDelegate* delegate) { _delegate = delegate; }

    // The dictionary itself, never null and without null entries. The setter shares the given one
    // and does not change the count; null sets a new, empty dictionary.
    const std::shared_ptr<EntryRows>& tableDictionary() const { return mTableDictionary; }
    void setTableDictionary(std::shared_ptr<EntryRows> dictionary);

    std::int32_t count() const { return mCount; }

    // "Table = ", then each entry's description followed by ";", in row order.
    std::string description() const;

    // Stores in the row, in place of an earlier entry. Does nothing without an entry.
    void setObjectAtIndex(std::shared_ptr<GXStateEntry> entry, std::int32_t index);

    // The entry of the row, null for a hole.
    virtual std::shared_ptr<GXStateEntry> objectAtIndex(std::int32_t index) const;

    // Empties the row. When it was the last one, the count goes down to the highest remaining row
    // plus one.
    void removeObjectAtIndex(std::int32_t index);

    void removeAllObjects();

    // A hook for subclasses that keep the view up to date. Abstract here: writes a line to the
    // system log.
    virtual void updateTable();

    // Writes the dictionary as one object. False, with nothing written, when the entries' values
    // are nested too deep to be read again.
    bool encodeWithCoder(PropertyListEncoder& coder) const;

    // Takes over a new dictionary from the next object of `coder`; the count is 0 then. The bytes
    // hold the entries' fields but not their classes, so the caller gives the class. False when
    // there is no such object, it is no dictionary of rows, or the class refuses an entry; the
    // table then keeps its dictionary.
    bool initWithCoder(PropertyListDecoder& coder, const EntryClass& entryClass);

    // A new table of the receiver's class, with count 0, that shares the receiver's dictionary.
    std::shared_ptr<GXIndexTable> copy() const;

    // The object that travels to another process in place of the table: the table itself, so it
    // travels by copy.
    GXIndexTable& replacementObjectForPortCoder() { return *this; }

    // --- The values of a table view: one row for each row number below the count ---

    // The count, but never less than 0.
    int numberOfRowsInTableView() override;

    // The value of the row's entry for the column's identifier, absent for a hole. Exceptions of
    // the entry pass through.
    std::optional<PropertyListValue>
    tableViewObjectValueForTableColumnRow(const TableColumn& column, int row) override;

protected:
    // A new, empty table of the receiver's class, for copy(). Every subclass overrides it.
    virtual std::shared_ptr<GXIndexTable> newInstance() const;

private:
    std::shared_ptr<EntryRows> mTableDictionary = std::make_shared<EntryRows>();
    std::int32_t mCount = 0;
    GXTableDelegate* _delegate = nullptr;
};

} // namespace kx
