// The application's icon, for windows of desktops that do not find it by the name of the desktop
// entry: X11 wants the picture itself.

#pragma once

#include <QIcon>

namespace kx {

// In every size that is embedded, so that nothing need be installed, nor read as SVG.
QIcon applicationIcon();

} // namespace kx
