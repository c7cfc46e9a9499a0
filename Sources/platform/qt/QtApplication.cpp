#include "platform/qt/QtApplication.h"

#include <QCoreApplication>

namespace kx {

void QtApplication::terminate() {
    // This is not quit(), which closes the windows first: closing the window asks for the end.
    QCoreApplication::exit(0);
}

} // namespace kx
