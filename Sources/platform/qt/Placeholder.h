// The text that an empty table shows in the place of its rows.

#pragma once

#include <QWidget>

namespace kx {

// Paints the text in the middle of the viewport of a table, dimmed and in lines that fit. Call it
// while the viewport is painted.
void paintPlaceholder(QWidget& viewport, const QString& text);

} // namespace kx
