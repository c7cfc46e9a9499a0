// The open panel as a file dialog of the desktop, above a window. The window must outlive it.

#pragma once

#include "Outlets.h"

#include <QWidget>

namespace kx {

class QtOpenPanel final : public OpenPanel {
public:
    explicit QtOpenPanel(QWidget& window)
        : _window(window) {}

    // The dialog begins in the folder from which something was chosen last, at first in the current
    // one.
    void ask(const Question& question,
             std::function<void(const std::string& path)> chosen) override;

private:
    QWidget& _window;
};

} // namespace kx
