// Where the program's resources are: in share/kxconfig beside the folder of the program itself, so
// that a tree can be installed anywhere and moved. Needs a QCoreApplication.

#pragma once

#include <QString>

namespace kx {

// The folder, whether it exists or not.
QString installedResourceFolder();

} // namespace kx
