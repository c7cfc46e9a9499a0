// Help pages of a test's own, and the viewer that shows them.

#pragma once

#include "platform/qt/HelpViewer.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QString>
#include <QTemporaryDir>
#include <QTextBrowser>
#include <QUrl>
#include <string>

namespace kx {

inline void writeFile(const QString& path, const QByteArray& content,
                      QFile::Permissions permissions) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
    file.write(content);
    file.close();
    ASSERT_TRUE(file.setPermissions(permissions)) << path.toStdString();
}

// A folder of resources with help pages.
class HelpFolder {
public:
    HelpFolder() { QDir(_folder.path()).mkdir("homepage"); }

    // `name` may begin with the folder of a language, as in "de/index".
    void addPage(const std::string& name, const QByteArray& body = {}) {
        const QByteArray page = "<!DOCTYPE html><html><head><title>Page " +
                                QByteArray::fromStdString(name) + "</title></head><body>" + body +
                                "</body></html>";
        const QString path = pages() + '/' + QString::fromStdString(name) + ".html";
        QDir().mkpath(QFileInfo(path).path());
        writeFile(path, page, QFile::ReadOwner);
    }

    QString path() const { return _folder.path(); }
    QString pages() const { return _folder.filePath("homepage"); }

private:
    QTemporaryDir _folder;
};

inline HelpViewer* openViewer() {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        auto* const viewer = qobject_cast<HelpViewer*>(widget);
        if (viewer != nullptr && viewer->isVisible()) {
            return viewer;
        }
    }
    return nullptr;
}

inline std::string pageInViewer() {
    const HelpViewer* viewer = openViewer();
    return viewer == nullptr ? ""
                             : viewer->findChild<QTextBrowser*>()
                                   ->source()
                                   .fileName()
                                   .chopped(static_cast<int>(sizeof ".html") - 1)
                                   .toStdString();
}

} // namespace kx
