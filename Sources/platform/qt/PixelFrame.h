// Frames on screens that have no whole number of pixels to the unit, as at 150 %.
//
// There the edge of a widget may lie within a pixel. What a style draws along the edge is then cut
// off, or covered by what lies inside the frame. Drawn along the whole pixels of the widget, all
// four lines are seen.

#pragma once

#include <QFrame>

namespace kx {

// From now on a frame with something inside it, such as a scroll area, is drawn so on such screens,
// and by its style as always on others. Main thread only.
void drawFrameOnPixels(QFrame& frame);

} // namespace kx
