#include "platform/qt/DataSourceTableModel.h"

#include "platform/qt/QtText.h"
#include "support/VisibleText.h"

#include <utility>

namespace kx {

DataSourceTableModel::DataSourceTableModel(std::vector<QtTableColumn> columns)
    : _columns(std::move(columns)) {}

DataSourceTableModel::~DataSourceTableModel() = default;

void DataSourceTableModel::setDataSource(TableViewDataSource* dataSource) {
    _dataSource = dataSource;
    reload();
}

void DataSourceTableModel::reload() {
    const int count = _dataSource != nullptr ? _dataSource->numberOfRowsInTableView() : 0;
    std::vector<Row> rows;
    rows.reserve(static_cast<std::size_t>(count));
    for (int row = 0; row < count; ++row) {
        rows.push_back(rowFromDataSource(row));
    }

    const int before = rowCount();
    if (count < before) {
        beginRemoveRows({}, count, before - 1);
        _rows = std::move(rows);
        endRemoveRows();
    } else if (count > before) {
        beginInsertRows({}, before, count - 1);
        _rows = std::move(rows);
        endInsertRows();
    } else {
        _rows = std::move(rows);
    }
    if (count > 0) {
        emit dataChanged(index(0, 0), index(count - 1, columnCount() - 1));
    }
}

int DataSourceTableModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(_rows.size());
}

int DataSourceTableModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(_columns.size());
}

QVariant DataSourceTableModel::data(const QModelIndex& index, int role) const {
    const bool asksForText = role == Qt::DisplayRole || role == Qt::EditRole;
    if (!asksForText || !checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const Row& row = _rows[static_cast<std::size_t>(index.row())];
    const QString& text = row[static_cast<std::size_t>(index.column())];
    return role == Qt::DisplayRole ? qtText(visibleText(utf8Text(text))) : text;
}

QVariant DataSourceTableModel::headerData(int section, Qt::Orientation orientation,
                                          int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) {
        return {};
    }
    switch (role) {
    case Qt::DisplayRole:
        return _columns[static_cast<std::size_t>(section)].title;
    case Qt::TextAlignmentRole:
        return QVariant(Qt::AlignLeading | Qt::AlignVCenter);
    default:
        return {};
    }
}

Qt::ItemFlags DataSourceTableModel::flags(const QModelIndex& index) const {
    Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    flags.setFlag(Qt::ItemIsEditable, isEditable(index));
    return flags;
}

bool DataSourceTableModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role != Qt::EditRole || _dataSource == nullptr || !isEditable(index)) {
        return false;
    }
    const int row = index.row();
    _dataSource->tableViewSetObjectValueForTableColumnRow(
        PropertyListValue(utf8Text(value.toString())),
        _columns[static_cast<std::size_t>(index.column())].column, row);
    if (row < rowCount()) {
        _rows[static_cast<std::size_t>(row)] = rowFromDataSource(row);
        emit dataChanged(this->index(row, 0), this->index(row, columnCount() - 1));
    }
    return true;
}

bool DataSourceTableModel::isEditable(const QModelIndex& index) const {
    return checkIndex(index, CheckIndexOption::IndexIsValid) &&
           _columns[static_cast<std::size_t>(index.column())].editable;
}

DataSourceTableModel::Row DataSourceTableModel::rowFromDataSource(int row) const {
    Row texts;
    for (const QtTableColumn& column : _columns) {
        const auto value = _dataSource->tableViewObjectValueForTableColumnRow(column.column, row);
        const std::string text = value.has_value() ? value->description() : std::string();
        texts.push_back(qtText(column.showsKeys ? localizedText(text) : text));
    }
    return texts;
}

} // namespace kx
