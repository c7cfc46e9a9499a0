// The questions that a table view asks the object that holds its values.

#pragma once

#include "support/PropertyListValue.h"

#include <optional>
#include <string>

namespace kx {

// A column as a data source knows it: the key of the values that it shows.
struct TableColumn {
    std::string identifier;
};

// Main thread only. The view keeps a plain reference: a data source must outlive its view or be
// taken from it. The view asks again after TableView::reloadData(). It does not ask by itself when
// the values change.
class TableViewDataSource {
public:
    virtual ~TableViewDataSource() = default;

    // The number of rows, 0 or more.
    virtual int numberOfRowsInTableView() = 0;

    // The value of a cell; absent shows as an empty cell.
    virtual std::optional<PropertyListValue>
    tableViewObjectValueForTableColumnRow(const TableColumn& column, int row) = 0;

    // Takes over the text that the user typed into a cell. Without an override it does nothing, for
    // a source that cannot be edited.
    virtual void tableViewSetObjectValueForTableColumnRow(const PropertyListValue& /*value*/,
                                                          const TableColumn& /*column*/,
                                                          int /*row*/) {}
};

} // namespace kx
