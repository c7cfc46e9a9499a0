#include "MainWindowFixture.h"

#include <QApplication>
#include <string_view>

namespace kx {

QWindow* MainWindowTest::windowWithKeyboard() {
    const QWidget* popUpList = QApplication::activePopupWidget();
    return popUpList != nullptr ? popUpList->windowHandle() : window.windowHandle();
}

void MainWindowTest::press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(windowWithKeyboard(), key, modifiers);
}

void MainWindowTest::type(const char* asciiText) {
    for (const char character : std::string_view(asciiText)) {
        QTest::keyPress(windowWithKeyboard(), character);
        QTest::keyRelease(windowWithKeyboard(), character);
    }
}

} // namespace kx
