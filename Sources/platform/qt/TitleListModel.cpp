#include "platform/qt/TitleListModel.h"

#include "platform/qt/QtText.h"
#include "support/VisibleText.h"

#include <QBrush>
#include <QGuiApplication>
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

int between(int text, int background) {
    return (2 * text + background) / 3;
}

// Digits without blanks find a serial number. Most titles differ in the first digit already, so
// none is copied.
bool startsWithoutBlanks(std::string_view title, const QString& text) {
    qsizetype matched = 0;
    for (const char character : title) {
        if (matched == text.size()) {
            break;
        }
        if (character == ' ') {
            continue;
        }
        if (QChar::fromLatin1(character).toCaseFolded() != text[matched].toCaseFolded()) {
            return false;
        }
        ++matched;
    }
    return matched == text.size();
}

} // namespace

QColor dimmedColour(const QColor& text, const QColor& background) {
    return {between(text.red(), background.red()), between(text.green(), background.green()),
            between(text.blue(), background.blue())};
}

void TitleListModel::setTitles(TitleList titles) {
    beginResetModel();
    _titles = std::move(titles);
    endResetModel();
}

int TitleListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(_titles.size());
}

void TitleListModel::setDimming(std::function<bool(std::string_view title)> isDimmed,
                                QString description) {
    _isDimmed = std::move(isDimmed);
    _dimmedDescription = std::move(description);
    refreshDimming();
}

bool TitleListModel::isDimmed(int row) const {
    return _isDimmed && row >= 0 && row < rowCount() &&
           _isDimmed(_titles[static_cast<std::size_t>(row)]);
}

void TitleListModel::refreshDimming() {
    if (rowCount() > 0) {
        emit dataChanged(index(0), index(rowCount() - 1),
                         {Qt::ForegroundRole, Qt::AccessibleDescriptionRole});
    }
}

QVariant TitleListModel::data(const QModelIndex& index, int role) const {
    if (role == Qt::ForegroundRole && isDimmed(index.row())) {
        const QPalette palette = QGuiApplication::palette();
        return QBrush(dimmedColour(palette.color(QPalette::Text), palette.color(QPalette::Base)));
    }
    const bool asksForText = role == Qt::DisplayRole || role == Qt::EditRole ||
                             role == Qt::AccessibleDescriptionRole || role == detailRole;
    if (!asksForText || !checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const std::string_view title = _titles[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return qtText(visibleText(title));
    case Qt::EditRole:
        return qtText(title);
    case Qt::AccessibleDescriptionRole: {
        const QString description = descriptionOf(title);
        return description.isEmpty() ? QVariant() : QVariant(description);
    }
    default:
        return detailsOf(title);
    }
}

QString TitleListModel::descriptionOf(std::string_view title) const {
    QStringList description{detailsOf(title)};
    if (_isDimmed && _isDimmed(title)) {
        description.append(_dimmedDescription);
    }
    description.removeAll(QString());
    return description.join(". ");
}

QString TitleListModel::detailsOf(std::string_view title) const {
    QStringList details;
    for (const std::string& detail : _details ? _details(title) : std::vector<std::string>()) {
        details.append(qtText(visibleText(detail)));
    }
    return details.join("  ");
}

QModelIndexList TitleListModel::match(const QModelIndex& start, int role, const QVariant& value,
                                      int hits, Qt::MatchFlags flags) const {
    const bool isTyped =
        role == Qt::DisplayRole && hits == 1 && flags == (Qt::MatchStartsWith | Qt::MatchWrap);
    if (!isTyped || !checkIndex(start, CheckIndexOption::IndexIsValid)) {
        return QAbstractListModel::match(start, role, value, hits, flags);
    }
    const QString text = value.toString();
    const auto firstRow = [&](const auto& isWanted) -> QModelIndexList {
        const int rows = rowCount();
        for (int distance = 0; distance < rows; ++distance) {
            const int row = (start.row() + distance) % rows;
            if (isWanted(_titles[static_cast<std::size_t>(row)])) {
                return {index(row)};
            }
        }
        return {};
    };
    auto found = firstRow([&](std::string_view title) { return startsWith(title, text); });
    if (found.isEmpty()) {
        found = firstRow([&](std::string_view title) { return startsWithoutBlanks(title, text); });
    }
    if (found.isEmpty() && _details) {
        found = firstRow([&](std::string_view title) {
            return std::ranges::any_of(_details(title), [&](const std::string& detail) {
                return startsWith(detail, text);
            });
        });
    }
    return found;
}

} // namespace kx
