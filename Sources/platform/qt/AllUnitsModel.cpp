#include "platform/qt/AllUnitsModel.h"

#include "platform/qt/QtText.h"

#include <QDateTime>
#include <QTimerEvent>
#include <algorithm>
#include <cstdlib>
#include <utility>

namespace kx {

using namespace std::chrono_literals;

namespace {

// Short enough between two keys, and long enough that the steps between slices cost little.
constexpr auto slice = 10ms;

// The first sight of the window may take so long.
constexpr auto firstSlice = 60ms;

// Units that arrive are shown so often: at once for a person, and seldom enough for a hundred
// thousand rows.
constexpr int millisecondsBetweenLooks = 100;

std::string textOfTime(std::chrono::system_clock::time_point time) {
    const auto sinceEpoch =
        std::chrono::duration_cast<std::chrono::milliseconds>(time.time_since_epoch());
    const QDateTime local = QDateTime::fromMSecsSinceEpoch(sinceEpoch.count());
    const bool isToday = local.date() == QDate::currentDate();
    return utf8Text(local.toString(isToday ? "HH:mm:ss" : "yyyy-MM-dd HH:mm:ss"));
}

// Breaks a title at the blank that makes the longer line shortest, so columns are narrow.
QString inTwoLines(QString title) {
    qsizetype best = -1;
    const auto distance = [&title](qsizetype blank) {
        return std::abs(2 * blank - title.size() + 1);
    };
    for (qsizetype blank = title.indexOf(' '); blank >= 0; blank = title.indexOf(' ', blank + 1)) {
        best = best < 0 || distance(blank) < distance(best) ? blank : best;
    }
    return best < 0 ? title : title.replace(best, 1, '\n');
}

} // namespace

AllUnitsModel::AllUnitsModel(AllUnits& units, QObject* parent)
    : QAbstractTableModel(parent)
    , _units(units)
    , _texts(units, textOfTime)
    , _shown(units, _texts) {
    _units.setChangeAction([this] { follow(); });
}

AllUnitsModel::~AllUnitsModel() {
    _units.setChangeAction({});
}

void AllUnitsModel::setActive(bool isActive) {
    _isActive = isActive;
    if (isActive) {
        work(firstSlice);
    } else {
        _pause.stop();
    }
}

void AllUnitsModel::setFilter(const QString& text, const UnitColumns& columns) {
    _shown.setFilter(utf8Text(text), columns);
    work(slice);
}

void AllUnitsModel::sort(int column, Qt::SortOrder order) {
    _shown.setOrder(
        {.column = static_cast<UnitColumn>(column), .isDescending = order == Qt::DescendingOrder});
    work(slice);
}

void AllUnitsModel::follow() {
    if (_isActive && !_pause.isActive()) {
        _pause.start(millisecondsBetweenLooks, this);
    }
}

void AllUnitsModel::timerEvent(QTimerEvent* event) {
    if (event->timerId() != _pause.timerId()) {
        QAbstractTableModel::timerEvent(event);
        return;
    }
    work(slice);
}

void AllUnitsModel::work(std::chrono::milliseconds longest) {
    _pause.stop();
    if (!_isActive) {
        return;
    }
    const auto end = std::chrono::steady_clock::now() + longest;
    const bool wasSearch = _shown.isSearching();
    if (_shown.work([end] { return std::chrono::steady_clock::now() >= end; })) {
        show(_shown.list());
    } else if (!_shown.isSearching()) {
        repaint();
    }
    if (_shown.hasWork()) {
        const bool goesOn = wasSearch && _shown.isSearching();
        _pause.start(goesOn ? 0 : millisecondsBetweenLooks, this);
    }
}

// The rows become these. Each step is one that views understand: rows come at the end, change their
// places, and go at the end.
void AllUnitsModel::show(const std::vector<std::uint32_t>& list) {
    const auto greatest = [](const std::vector<std::uint32_t>& units) {
        return units.empty() ? 0 : *std::ranges::max_element(units);
    };
    std::vector<bool> isRow(std::max(greatest(_rows), greatest(list)) + std::size_t{1});
    std::vector<bool> isListed(isRow.size());
    for (const std::uint32_t unit : _rows) {
        isRow[unit] = true;
    }
    std::vector<std::uint32_t> added;
    for (const std::uint32_t unit : list) {
        isListed[unit] = true;
        if (!isRow[unit]) {
            added.push_back(unit);
        }
    }
    insertAtEnd(added);
    std::vector<std::uint32_t> ordered = list;
    std::ranges::copy_if(_rows, std::back_inserter(ordered),
                         [&isListed](std::uint32_t unit) { return !isListed[unit]; });
    putInOrder(std::move(ordered));
    if (list.size() < _rows.size()) {
        beginRemoveRows({}, static_cast<int>(list.size()), static_cast<int>(_rows.size()) - 1);
        _rows.resize(list.size());
        endRemoveRows();
    }
    repaint();
}

void AllUnitsModel::insertAtEnd(const std::vector<std::uint32_t>& units) {
    if (!units.empty()) {
        const auto first = static_cast<int>(_rows.size());
        beginInsertRows({}, first, first + static_cast<int>(units.size()) - 1);
        _rows.insert(_rows.end(), units.begin(), units.end());
        endInsertRows();
    }
}

void AllUnitsModel::putInOrder(std::vector<std::uint32_t> rows) {
    if (rows == _rows) {
        return;
    }
    emit layoutAboutToBeChanged({}, VerticalSortHint);
    const QModelIndexList from = persistentIndexList();
    if (!from.isEmpty()) {
        std::vector<int> rowOf(*std::ranges::max_element(rows) + std::size_t{1});
        for (std::size_t row = 0; row < rows.size(); ++row) {
            rowOf[rows[row]] = static_cast<int>(row);
        }
        QModelIndexList to;
        to.reserve(from.size());
        for (const QModelIndex& index : from) {
            const std::uint32_t unit = _rows[static_cast<std::size_t>(index.row())];
            to.append(createIndex(rowOf[unit], index.column()));
        }
        changePersistentIndexList(from, to);
    }
    _rows = std::move(rows);
    emit layoutChanged({}, VerticalSortHint);
}

// Any cell may have another text, and any unit another state.
void AllUnitsModel::repaint() {
    if (!_rows.empty()) {
        emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
    }
    emit unitsDidChange();
}

QString AllUnitsModel::title(UnitColumn column) {
    QString title = qtText(UnitTexts::title(column));
    return title.replace(0, 1, title.left(1).toUpper());
}

int AllUnitsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(_rows.size());
}

int AllUnitsModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(unitColumnCount);
}

QVariant AllUnitsModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const std::uint32_t unit = _rows[static_cast<std::size_t>(index.row())];
    if (unit >= _units.size()) {
        return {}; // they have just been cleared
    }
    const auto column = static_cast<UnitColumn>(index.column());
    switch (role) {
    case Qt::DisplayRole:
        return qtText(_texts.text(unit, column));
    case Qt::AccessibleTextRole:
        return column == UnitColumn::state ? qtText(_texts.words(_units.stateOf(unit)))
                                           : qtText(_texts.text(unit, column));
    case Qt::ToolTipRole:
    case Qt::AccessibleDescriptionRole:
        return qtText(_texts.note(unit, column));
    case isSilentRole:
        return _units.stateOf(unit) == UnitState::silent;
    default:
        return {};
    }
}

QVariant AllUnitsModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) {
        return {};
    }
    const auto column = static_cast<UnitColumn>(section);
    switch (role) {
    case Qt::DisplayRole:
        return inTwoLines(title(column));
    case Qt::AccessibleTextRole:
    case Qt::ToolTipRole:
        return title(column);
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(Qt::AlignLeft | Qt::AlignVCenter);
    default:
        return {};
    }
}

} // namespace kx
