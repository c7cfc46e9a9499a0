#include "platform/qt/FromFileModel.h"

#include "platform/qt/QtText.h"

#include <utility>

namespace kx {

FromFileModel::FromFileModel(const KXTableRun& run, QObject* parent)
    : QAbstractTableModel(parent)
    , _run(run)
    , _rows(static_cast<int>(run.lineCount()))
    , _listNumber(run.listNumber()) {}

void FromFileModel::follow() {
    const int rows = static_cast<int>(_run.lineCount());
    if (std::exchange(_listNumber, _run.listNumber()) != _run.listNumber() || rows != _rows) {
        beginResetModel();
        _rows = rows;
        endResetModel();
    } else if (_rows > 0) {
        emit dataChanged(index(0, 0), index(_rows - 1, columnCount() - 1));
    }
}

QString FromFileModel::reason(int row) const {
    return row >= 0 && row < _rows
               ? qtText(_run.cell(static_cast<std::size_t>(row), PlanColumn::reason))
               : QString();
}

int FromFileModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : _rows;
}

int FromFileModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(planColumnCount);
}

QVariant FromFileModel::data(const QModelIndex& index, int role) const {
    // The run may have other lines by now, of which this model is told in a moment.
    const auto row = static_cast<std::size_t>(index.row());
    if (!checkIndex(index, CheckIndexOption::IndexIsValid) || row >= _run.lineCount()) {
        return {};
    }
    const auto column = static_cast<PlanColumn>(index.column());
    switch (role) {
    case Qt::DisplayRole:
        return qtText(_run.cell(row, column));
    case Qt::AccessibleTextRole: {
        const std::string text = _run.cell(row, column);
        return qtText(column == PlanColumn::state ? withoutSign(text) : text);
    }
    case Qt::ToolTipRole:
        return qtText(_run.cell(row, PlanColumn::reason)).toHtmlEscaped();
    case Qt::AccessibleDescriptionRole:
        return qtText(_run.cell(row, PlanColumn::reason));
    default:
        return {};
    }
}

QVariant FromFileModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) {
        return {};
    }
    switch (role) {
    case Qt::DisplayRole:
        return qtText(titleOfPlanColumn(static_cast<PlanColumn>(section)));
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(Qt::AlignLeft | Qt::AlignVCenter);
    default:
        return {};
    }
}

} // namespace kx
