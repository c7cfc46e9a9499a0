// The commands of the edit menu, for whatever control has the keyboard.

#pragma once

#include <QWidget>

namespace kx {

// Puts on the clipboard what is selected in the control: text, the cells of a table's row with a
// tab between them, or a pop-up's title. In a table without selection it is the row that has the
// keyboard. Leaves the clipboard alone when nothing is selected.
// `control` may be null.
void copySelection(QWidget* control);

// Selects the whole text of the control, if it holds text. `control` may be null.
void selectAll(QWidget* control);

} // namespace kx
