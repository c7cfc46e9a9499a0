#include "platform/qt/AboutBox.h"

#include "platform/qt/QtText.h"

#include <QCoreApplication>
#include <QIcon>
#include <QMessageBox>

namespace kx {

namespace {

constexpr const char* boxName = "aboutBox";
constexpr int iconSize = 64;

} // namespace

void showAboutBox(QWidget& window) {
    auto* box = window.findChild<QMessageBox*>(boxName);
    if (box == nullptr) {
        box = new QMessageBox(&window);
        box->setObjectName(boxName);
        box->setAttribute(Qt::WA_DeleteOnClose);
        box->setWindowTitle(localizedQtText("About KXConfig"));
        box->setIconPixmap(
            window.windowIcon().pixmap(QSize(iconSize, iconSize), box->devicePixelRatioF()));
        box->setTextFormat(Qt::PlainText);
        box->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        box->setText(qtText(
            localizedText("KXConfig %@", {utf8Text(QCoreApplication::applicationVersion())})));
        box->setInformativeText(
            localizedQtText("Finds and configures small networked units over UDP.") + "\n\n" +
            qtText(localizedText("Qt %@", {qVersion()})));
        box->setStandardButtons(QMessageBox::Close);
    }
    box->open();
    box->raise();
    box->activateWindow();
}

} // namespace kx
