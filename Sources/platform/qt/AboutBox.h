// The box that says what the program is and which version of it runs.

#pragma once

#include <QWidget>

namespace kx {

// Shows the box above a window, or brings the open box to the front, and returns at once. The
// version is the application's, as set in QCoreApplication. The box deletes itself when it is
// closed. Main thread only.
void showAboutBox(QWidget& window);

} // namespace kx
