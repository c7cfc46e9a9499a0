#include "MainWindowFixture.h"

namespace kx {

// Through the window, so that shortcuts and the keyboard focus take part as for a person.
void MainWindowTest::press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(window.windowHandle(), key, modifiers);
}

} // namespace kx
