// The commands of the edit menu. They work on the control that has the keyboard focus.

#pragma once

#include <QWidget>

namespace kx {

// Puts the control's selection on the clipboard: text, the cells of a table's row with a tab
// between them, or a pop-up's title. In a table without a selection, the row with the keyboard
// focus counts as selected. When nothing is selected, the clipboard does not change. `control` may
// be null.
void copySelection(QWidget* control);

// Selects the whole text of the control, if it holds text. `control` may be null.
void selectAll(QWidget* control);

} // namespace kx
