// The values of a table view, as its data source gave them at the last reload().
//
// The model asks the data source in reload() and for a cell that was just edited, and never from
// inside a paint event. The display role has the visible text (support/VisibleText.h), the edit
// role the text itself. So everything on the screen belongs to the same moment. Without a data
// source there are no rows.

#pragma once

#include "tables/TableViewDataSource.h"

#include <QAbstractTableModel>
#include <vector>

namespace kx {

struct QtTableColumn {
    TableColumn column;
    QString title;
    bool editable = false;
    bool showsKeys = false; // its texts are keys, shown as their localized texts
};

class DataSourceTableModel final : public QAbstractTableModel {
public:
    explicit DataSourceTableModel(std::vector<QtTableColumn> columns);
    ~DataSourceTableModel() override;

    // Null takes the data source away. Reloads.
    void setDataSource(TableViewDataSource* dataSource);

    // Asks for everything again. Rows that still exist are kept, so a view keeps their selection.
    void reload();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

private:
    using Row = std::vector<QString>; // a text for each column

    bool isEditable(const QModelIndex& index) const;
    Row rowFromDataSource(int row) const;

    std::vector<QtTableColumn> _columns;
    TableViewDataSource* _dataSource = nullptr;
    std::vector<Row> _rows;
};

} // namespace kx
