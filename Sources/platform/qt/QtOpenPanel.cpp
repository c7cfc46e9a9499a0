#include "platform/qt/QtOpenPanel.h"

#include "platform/qt/QtText.h"

#include <QFile>
#include <QFileDialog>
#include <utility>

namespace kx {

void QtOpenPanel::ask(const Question& question,
                      std::function<void(const std::string& path)> chosen) {
    QStringList patterns;
    for (const std::string& suffix : question.suffixes) {
        patterns.append("*." + qtText(suffix));
    }
    auto* const dialog = new QFileDialog(&_window, qtText(question.title));
    dialog->setObjectName("openPanel");
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->setNameFilters({qtText(question.kind) + " (" + patterns.join(' ') + ")",
                            localizedQtText("All files") + " (*)"});
    QObject::connect(dialog, &QFileDialog::fileSelected, dialog,
                     [chosen = std::move(chosen)](const QString& path) {
                         chosen(QFile::encodeName(path).toStdString());
                     });
    dialog->open();
}

} // namespace kx
