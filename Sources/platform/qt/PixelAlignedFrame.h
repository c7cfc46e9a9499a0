// Frames on screens that have no whole number of pixels to the unit, as at 150 %.
//
// On such a screen the edge of a widget may lie within a pixel. A line that a style draws along the
// edge is then cut off, or covered by the content of the frame. This frame is drawn along the whole
// pixels of the widget, so all four lines are seen.

#pragma once

#include <QFrame>

namespace kx {

// Changes how a frame with content, such as a scroll area, is drawn: on the whole pixels on such
// screens, and by its style as always on others. Main thread only.
void drawFrameOnPixels(QFrame& frame);

} // namespace kx
