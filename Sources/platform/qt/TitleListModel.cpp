#include "platform/qt/TitleListModel.h"

#include "platform/qtcore/QtText.h"
#include "support/VisibleText.h"

#include <algorithm>
#include <utility>

namespace kx {

namespace {

bool startsWith(std::string_view title, const QString& text) {
    const bool isPlain = std::ranges::all_of(
        title, [](char character) { return character >= ' ' && character <= '~'; });
    return isPlain ? QLatin1StringView(title.data(), static_cast<qsizetype>(title.size()))
                         .startsWith(text, Qt::CaseInsensitive)
                   : qtText(visibleText(title)).startsWith(text, Qt::CaseInsensitive);
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
    const std::string_view title = _titles[static_cast<std::size_t>(index.row())];
    return role == Qt::DisplayRole ? qtText(visibleText(title)) : qtText(title);
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
