#include "platform/qt/TitleListModel.h"

#include "platform/qt/QtText.h"

#include <utility>

namespace kx {

void TitleListModel::setTitles(std::vector<std::string> titles) {
    beginResetModel();
    _titles = std::move(titles);
    endResetModel();
}

int TitleListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(_titles.size());
}

QVariant TitleListModel::data(const QModelIndex& index, int role) const {
    const bool asksForText = role == Qt::DisplayRole || role == Qt::EditRole;
    if (!asksForText || !checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    return qtText(_titles[static_cast<std::size_t>(index.row())]);
}

} // namespace kx
