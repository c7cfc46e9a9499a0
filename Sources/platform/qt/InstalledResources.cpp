#include "platform/qt/InstalledResources.h"

#include <QCoreApplication>
#include <QDir>

namespace kx {

QString installedResourceFolder() {
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + "/../share/kxconfig");
}

} // namespace kx
