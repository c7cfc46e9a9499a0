#include "MainWindowFixture.h"

#include <QApplication>
#include <string_view>

namespace kx {

QWindow* MainWindowTest::windowWithKeyboard() {
    const QWidget* popUpList = QApplication::activePopupWidget();
    return popUpList != nullptr ? popUpList->windowHandle() : window.windowHandle();
}

void MainWindowTest::press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyPress(windowWithKeyboard(), key, modifiers);
    QTest::keyRelease(windowWithKeyboard(), key, modifiers); // the press may have closed a list
}

void MainWindowTest::type(const char* asciiText) {
    for (const char character : std::string_view(asciiText)) {
        QTest::keyPress(windowWithKeyboard(), character);
        QTest::keyRelease(windowWithKeyboard(), character);
    }
}

} // namespace kx
