// The alert outlet as a message box above a window. The window must outlive it.
//
// While the box is open, Qt's event loop runs, so windows are painted. Callbacks of a QtRunLoop run
// too unless the caller holds them back (support/RunLoop.h).

#pragma once

#include "Outlets.h"

#include <QWidget>

namespace kx {

class QtAlert final : public Alert {
public:
    explicit QtAlert(QWidget& window)
        : _window(window) {}

    void runModal(std::string_view title, std::string_view message,
                  std::string_view button) override;

private:
    QWidget& _window;
};

} // namespace kx
