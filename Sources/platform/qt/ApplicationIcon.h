// The application's icon, for windows on desktops that do not find it by the name of the desktop
// entry: X11 needs the picture itself.

#pragma once

#include <QIcon>

namespace kx {

// The icon in every size that is embedded in the program. No installed file is needed, and no SVG
// is read.
QIcon applicationIcon();

} // namespace kx
