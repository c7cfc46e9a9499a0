// A table view outlet over Qt's table widget.
//
// Makes the widget a list of rows: one row can be selected, cells of editable columns can be typed
// into. The widget must outlive it; so must the data source, or be taken away first.

#pragma once

#include "Outlets.h"
#include "platform/qt/DataSourceTableModel.h"

#include <QTableView>
#include <functional>

namespace kx {

class QtTableView final : public TableView {
public:
    QtTableView(QTableView& view, std::vector<QtTableColumn> columns);

    // Null takes the data source away. The table then has no rows.
    void setDataSource(TableViewDataSource* dataSource);

    // Runs when the user selects another row or none, not when a reload drops the selection.
    void setSelectionAction(std::function<void()> action);

    void reloadData() override;
    int selectedRow() const override;

private:
    QTableView& _view;
    DataSourceTableModel _model;
    std::function<void()> _selectionAction;
    bool _reloading = false;
};

} // namespace kx
