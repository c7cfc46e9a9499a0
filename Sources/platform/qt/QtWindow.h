// The window outlet over a top-level widget. The widget must outlive it.

#pragma once

#include "Outlets.h"

#include <QWidget>

namespace kx {

class QtWindow final : public Window {
public:
    explicit QtWindow(QWidget& window)
        : _window(window) {}

    // Ends the edit in progress, which Qt's editors never refuse. The keyboard focus stays with the
    // table that was edited, so that a person on the keyboard keeps their place.
    bool makeFirstResponder() override;

    void endEditing() override;

private:
    QWidget& _window;
};

} // namespace kx
