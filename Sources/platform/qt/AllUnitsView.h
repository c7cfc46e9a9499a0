// The table of the window *All Units*: rows of units, with columns that a person sorts, moves and
// hides.
//
// Everything goes without a mouse, too: the column with the keyboard is sorted by, moved and hidden
// by the actions of columnActions(), which have keys. Return and a double click choose a unit.
// Letters and digits that are typed here belong to the filter.
//
// Main thread only.

#pragma once

#include "platform/qt/RowTableView.h"
#include "words/UnitColumns.h"

#include <QAction>
#include <QMenu>

namespace kx {

class AllUnitsModel;

class AllUnitsView final : public RowTableView {
    Q_OBJECT

public:
    // The model must outlive it.
    explicit AllUnitsView(AllUnitsModel& model, QWidget* parent = nullptr);

    // The columns from left to right, without the hidden ones.
    std::vector<UnitColumn> shownColumns() const;

    // Shows or hides a column. The last column that is shown stays.
    void setColumnShown(UnitColumn column, bool isShown);

    // Puts an action for rows into the context menu of the table, above those for columns.
    void addRowAction(QAction& action);

    // The menu of the columns: one item for each, and what can be done with the one that has the
    // keyboard. It belongs to the view.
    QMenu& columnMenu() { return _columnMenu; }

    // The text of the cell with the keyboard.
    QString currentText() const;

    // Gives the keyboard to the row that had it last, or to the first one, and selects the row.
    void enterRows();

    // The width at which every shown column is seen whole.
    int wholeWidth() const;

signals:
    void unitChosen(std::uint32_t unit);
    void textTyped(const QString& text);
    void shownColumnsDidChange();

protected:
    QStringList widestTextsOf(int column) const override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void addColumnAction(const QString& text, const QKeySequence& key, void (AllUnitsView::*act)());
    void fillColumnMenu();
    void chooseRow(int row);

    void sortAscending() { sortByCurrentColumn(Qt::AscendingOrder); }
    void sortDescending() { sortByCurrentColumn(Qt::DescendingOrder); }
    void sortByCurrentColumn(Qt::SortOrder order);
    void moveColumnLeft() { moveCurrentColumn(-1); }
    void moveColumnRight() { moveCurrentColumn(1); }
    void moveCurrentColumn(int step);

    // The place in the header of the next shown column in this direction; -1 without one.
    int shownPlaceFrom(int place, int step) const;
    int currentColumn() const;

    AllUnitsModel& _model;
    QMenu _columnMenu;
    QList<QAction*> _columnActions; // of the column with the keyboard, a separator first
};

} // namespace kx
