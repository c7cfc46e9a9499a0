#include "platform/qt/QtSavePanel.h"

#include "platform/qt/QtText.h"

#include <QFile>
#include <QFileDialog>
#include <utility>

namespace kx {

void QtSavePanel::ask(const Question& question,
                      std::function<void(const std::string& path)> chosen) {
    const QString suffix = qtText(question.suffix);
    auto* const dialog = new QFileDialog(&_window, qtText(question.title));
    dialog->setObjectName("savePanel");
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setNameFilter(qtText(question.kind) + " (*." + suffix + ")");
    dialog->setDefaultSuffix(suffix);
    dialog->selectFile(qtText(question.suggestedName));
    QObject::connect(dialog, &QFileDialog::fileSelected, dialog,
                     [chosen = std::move(chosen)](const QString& path) {
                         chosen(QFile::encodeName(path).toStdString());
                     });
    dialog->open();
}

} // namespace kx
