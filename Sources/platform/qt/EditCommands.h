// The commands of the edit menu. They work on the control that has the keyboard focus.

#pragma once

#include <QTableView>
#include <QWidget>

namespace kx {

// Puts the control's selection on the clipboard: text, the cells of a table's row with a tab
// between them, or a pop-up's title. In a table without a selection, the row with the keyboard
// focus counts as selected. When nothing is selected, the clipboard does not change. `control` may
// be null.
void copySelection(QWidget* control);

// Undo, cut and paste in the field that has the keyboard. Other controls, and a null one, take no
// notice.
void undoEdit(QWidget* control);
void cutSelection(QWidget* control);
void pasteText(QWidget* control);

// Which of them would do something now.
struct EditCommandsNow {
    bool canUndo = false;
    bool canCut = false;
    bool canPaste = false;
};
EditCommandsNow editCommandsNow(const QWidget* control);

// Put on the clipboard the last cell of the selected row, and every row with a tab between its
// cells and a line feed at its end. When there is nothing to copy, the clipboard does not change.
void copyValue(const QTableView& table);
void copyRows(const QTableView& table);

// Selects the whole text of the control, if it holds text. `control` may be null.
void selectAll(QWidget* control);

} // namespace kx
