#include "platform/qt/QtApplicationWindows.h"

#include "platform/qt/DelegatingWindow.h"

#include <QApplication>
#include <QWidget>

namespace kx {

std::vector<const WindowDelegate*> QtApplicationWindows::delegates() const {
    std::vector<const WindowDelegate*> delegates;
    for (const QWidget* widget : QApplication::topLevelWidgets()) {
        const auto* const window = dynamic_cast<const DelegatingWindow*>(widget);
        delegates.push_back(window != nullptr ? window->windowDelegate() : nullptr);
    }
    return delegates;
}

} // namespace kx
