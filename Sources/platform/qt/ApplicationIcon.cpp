#include "platform/qt/ApplicationIcon.h"

#include <QDir>

namespace kx {

QIcon applicationIcon() {
    QIcon icon;
    const QDir pictures(":/icons");
    for (const QString& name : pictures.entryList()) {
        icon.addFile(pictures.filePath(name));
    }
    return icon;
}

} // namespace kx
