#include "platform/qt/QtApplication.h"

#include <QCoreApplication>

namespace kx {

void QtApplication::terminate() {
    // Not quit(): that closes the windows first, and closing the window is what asks for the end.
    QCoreApplication::exit(0);
}

} // namespace kx
