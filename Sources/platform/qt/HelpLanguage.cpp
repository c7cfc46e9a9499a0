#include "platform/qt/HelpLanguage.h"

#include <QFileInfo>

namespace kx {

QString fileInLanguage(const QDir& folder, const QString& name, const QString& language) {
    const QFileInfo translated(QDir(folder.filePath(language)), name);
    return translated.isFile() ? translated.absoluteFilePath() : folder.absoluteFilePath(name);
}

} // namespace kx
