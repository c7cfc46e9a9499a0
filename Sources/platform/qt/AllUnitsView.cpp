#include "platform/qt/AllUnitsView.h"

#include "platform/qt/AllUnitsModel.h"
#include "platform/qt/QtText.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QStyledItemDelegate>
#include <string>

namespace kx {

namespace {

// Dims the rows of silent units, whose state says so in words. The colour follows the palette.
class DimmingDelegate final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        if (index.data(AllUnitsModel::isSilentRole).toBool()) {
            QColor dimmed = option->palette.color(QPalette::Text);
            dimmed.setAlphaF(0.65F);
            option->palette.setColor(QPalette::Text, dimmed);
        }
    }
};

} // namespace

AllUnitsView::AllUnitsView(AllUnitsModel& model, QWidget* parent)
    : RowTableView(model, parent)
    , _model(model)
    , _columnMenu(this) {
    setItemDelegate(new DimmingDelegate(this));
    horizontalHeader()->setSectionsMovable(true);
    horizontalHeader()->setSortIndicator(0, Qt::AscendingOrder);
    setSortingEnabled(true);
    fitToFont();

    setContextMenuPolicy(Qt::ActionsContextMenu);
    auto* const separator = new QAction(this);
    separator->setSeparator(true);
    addAction(separator);
    _columnActions.append(separator);
    addColumnAction(localizedQtText("Sort &Ascending"), Qt::ALT | Qt::Key_Up,
                    &AllUnitsView::sortAscending);
    addColumnAction(localizedQtText("Sort &Descending"), Qt::ALT | Qt::Key_Down,
                    &AllUnitsView::sortDescending);
    addColumnAction(localizedQtText("Move Column &Left"), Qt::ALT | Qt::Key_Left,
                    &AllUnitsView::moveColumnLeft);
    addColumnAction(localizedQtText("Move Column &Right"), Qt::ALT | Qt::Key_Right,
                    &AllUnitsView::moveColumnRight);
    _columnMenu.setObjectName("columnMenu");
    connect(&_columnMenu, &QMenu::aboutToShow, this, &AllUnitsView::fillColumnMenu);
    horizontalHeader()->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(horizontalHeader(), &QWidget::customContextMenuRequested, this,
            [this](const QPoint& place) {
                const int column = horizontalHeader()->logicalIndexAt(place);
                if (column >= 0 && currentIndex().isValid()) {
                    selectionModel()->setCurrentIndex(currentIndex().siblingAtColumn(column),
                                                      QItemSelectionModel::NoUpdate);
                }
                _columnMenu.popup(horizontalHeader()->mapToGlobal(place));
            });
    connect(this, &QAbstractItemView::doubleClicked, this,
            [this](const QModelIndex& cell) { chooseRow(cell.row()); });
}

void AllUnitsView::addColumnAction(const QString& text, const QKeySequence& key,
                                   void (AllUnitsView::*act)()) {
    auto* const action = new QAction(text, this);
    action->setShortcut(key);
    action->setShortcutContext(Qt::WidgetShortcut);
    connect(action, &QAction::triggered, this, act);
    addAction(action);
    _columnActions.append(action);
}

void AllUnitsView::addRowAction(QAction& action) {
    insertAction(_columnActions.front(), &action);
}

// --- Columns ---

std::vector<UnitColumn> AllUnitsView::shownColumns() const {
    std::vector<UnitColumn> columns;
    for (const int column : shownColumnNumbers()) {
        columns.push_back(static_cast<UnitColumn>(column));
    }
    return columns;
}

void AllUnitsView::setColumnShown(UnitColumn column, bool isShown) {
    const int index = static_cast<int>(column);
    const bool isLast = !isShown && shownColumns().size() == 1;
    if (isColumnHidden(index) != isShown || isLast) {
        return;
    }
    const int place = horizontalHeader()->visualIndex(index);
    setColumnHidden(index, !isShown);
    if (!isShown && currentIndex().column() == index) {
        const int left = shownPlaceFrom(place, -1);
        const int near = left >= 0 ? left : shownPlaceFrom(place, 1);
        selectionModel()->setCurrentIndex(
            currentIndex().siblingAtColumn(horizontalHeader()->logicalIndex(near)),
            QItemSelectionModel::NoUpdate);
    }
    emit shownColumnsDidChange();
}

void AllUnitsView::fillColumnMenu() {
    _columnMenu.clear();
    const std::size_t shown = shownColumns().size();
    for (int place = 0; place < horizontalHeader()->count(); ++place) {
        const auto column = static_cast<UnitColumn>(horizontalHeader()->logicalIndex(place));
        QAction* const item = _columnMenu.addAction(AllUnitsModel::title(column));
        item->setCheckable(true);
        item->setChecked(!isColumnHidden(static_cast<int>(column)));
        item->setEnabled(!item->isChecked() || shown > 1);
        connect(item, &QAction::triggered, this,
                [this, column](bool isChecked) { setColumnShown(column, isChecked); });
    }
    _columnMenu.addActions(_columnActions);
}

int AllUnitsView::currentColumn() const {
    return currentIndex().isValid() ? currentIndex().column()
                                    : static_cast<int>(shownColumns().front());
}

void AllUnitsView::sortByCurrentColumn(Qt::SortOrder order) {
    sortByColumn(currentColumn(), order);
}

int AllUnitsView::shownPlaceFrom(int place, int step) const {
    do {
        place += step;
    } while (place >= 0 && place < horizontalHeader()->count() &&
             isColumnHidden(horizontalHeader()->logicalIndex(place)));
    return place < horizontalHeader()->count() ? place : -1;
}

void AllUnitsView::moveCurrentColumn(int step) {
    const int from = horizontalHeader()->visualIndex(currentColumn());
    const int to = shownPlaceFrom(from, step);
    if (to >= 0) {
        horizontalHeader()->moveSection(from, to);
        scrollTo(currentIndex());
    }
}

QStringList AllUnitsView::widestTextsOf(int column) const {
    switch (static_cast<UnitColumn>(column)) {
    case UnitColumn::serialNumber:
        return {"4B 58 00 00 00 00"};
    case UnitColumn::unitID:
        return {"RACK00"};
    case UnitColumn::internalMACAddress:
    case UnitColumn::destinationMACAddress:
        return {"02:4B:58:00:00:00"};
    case UnitColumn::internalIPAddress:
    case UnitColumn::destinationIPAddress:
    case UnitColumn::sender:
        return {"255.255.255.255"};
    case UnitColumn::interface:
        return {"enp0s31f6"};
    case UnitColumn::state: {
        QStringList states;
        for (const std::string& words : UnitTexts::wordsOfStates()) {
            states.append("⚠ " + qtText(words));
        }
        return states;
    }
    default:
        return {"00:00:00"};
    }
}

int AllUnitsView::wholeWidth() const {
    return horizontalHeader()->length() + 2 * frameWidth() +
           style()->pixelMetric(QStyle::PM_ScrollBarExtent);
}

// --- Rows ---

QString AllUnitsView::currentText() const {
    return currentIndex().data().toString();
}

void AllUnitsView::enterRows() {
    setFocus();
    if (_model.rowCount() == 0) {
        return;
    }
    const QModelIndex cell = currentIndex().isValid()
                                 ? currentIndex()
                                 : _model.index(0, static_cast<int>(shownColumns().front()));
    // A screen reader hears of a cell that becomes the current one.
    selectionModel()->clearCurrentIndex();
    selectionModel()->setCurrentIndex(cell, QItemSelectionModel::ClearAndSelect |
                                                QItemSelectionModel::Rows);
}

void AllUnitsView::chooseRow(int row) {
    if (row >= 0) {
        emit unitChosen(_model.rows()[static_cast<std::size_t>(row)]);
    }
}

void AllUnitsView::keyPressEvent(QKeyEvent* event) {
    const bool isPlain =
        (event->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == Qt::NoModifier;
    const QString text = event->text();
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReturn && isPlain) {
        chooseRow(currentIndex().row());
    } else if (isPlain && !text.isEmpty() && text.front().isPrint() && text.front() != ' ') {
        emit textTyped(text);
    } else {
        RowTableView::keyPressEvent(event);
    }
}

} // namespace kx
