// A table view outlet over Qt's table widget.
//
// It makes the widget a list of rows: one row can be selected, and cells of editable columns can be
// edited. The widget must outlive it. The data source must outlive it too, or be taken away first.

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

    // Sets the action that runs when the user selects another row or none. A reload that drops the
    // selection does not run it.
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
