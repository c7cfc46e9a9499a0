// The place of the program's resources: share/kxconfig beside the folder of the program itself, so
// that a tree can be installed anywhere and moved. Needs a QCoreApplication.

#pragma once

#include <QString>

namespace kx {

// The path of the folder. The folder need not exist.
QString installedResourceFolder();

} // namespace kx
