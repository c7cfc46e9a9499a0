#include "platform/qt/TitleListModel.h"

#include "platform/qtcore/QtText.h"

#include <algorithm>
#include <utility>

namespace kx {

namespace {

bool startsWith(std::string_view title, const QString& text) {
    const bool isASCII = std::ranges::none_of(
        title, [](char character) { return (static_cast<unsigned char>(character) & 0x80) != 0; });
    return isASCII ? QLatin1StringView(title.data(), static_cast<qsizetype>(title.size()))
                         .startsWith(text, Qt::CaseInsensitive)
                   : qtText(title).startsWith(text, Qt::CaseInsensitive);
}

} // namespace

void TitleListModel::setTitles(TitleList titles) {
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

QModelIndexList TitleListModel::match(const QModelIndex& start, int role, const QVariant& value,
                                      int hits, Qt::MatchFlags flags) const {
    const bool isTyped =
        role == Qt::DisplayRole && hits == 1 && flags == (Qt::MatchStartsWith | Qt::MatchWrap);
    if (!isTyped || !checkIndex(start, CheckIndexOption::IndexIsValid)) {
        return QAbstractListModel::match(start, role, value, hits, flags);
    }
    const QString text = value.toString();
    const int rows = rowCount();
    for (int distance = 0; distance < rows; ++distance) {
        const int row = (start.row() + distance) % rows;
        if (startsWith(_titles[static_cast<std::size_t>(row)], text)) {
            return {index(row)};
        }
    }
    return {};
}

} // namespace kx
