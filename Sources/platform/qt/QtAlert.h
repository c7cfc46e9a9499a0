// The alert outlet as a message box above a window. The window must outlive it.

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
