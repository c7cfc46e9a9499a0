#include "platform/qt/QtAlert.h"

#include "platform/qt/QtText.h"

#include <QMessageBox>

namespace kx {

void QtAlert::runModal(std::string_view title, std::string_view message, std::string_view button) {
    QMessageBox box(&_window);
    box.setIcon(QMessageBox::Warning);
    box.setWindowTitle(qtText(title));
    box.setTextFormat(Qt::PlainText);
    box.setText(qtText(message));
    box.addButton(qtText(button), QMessageBox::AcceptRole);
    box.exec();
}

} // namespace kx
