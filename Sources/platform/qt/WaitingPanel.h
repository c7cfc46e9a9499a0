// Waiting with a panel above a window: after a moment the panel says what is waited for and offers
// Cancel, which Escape presses too. The window takes no input from the beginning of the wait, and
// is painted all the time. The panel stands above the active window of the program or, when that
// is a dialog or another program's, above the given one, which must outlive the object.

#pragma once

#include "support/Waiting.h"

#include <QWidget>
#include <chrono>

namespace kx {

class WaitingPanel final : public Waiting {
public:
    // A wait that is over sooner shows no panel.
    static constexpr std::chrono::milliseconds moment{300};

    explicit WaitingPanel(QWidget& window)
        : _window(window) {}

    bool until(const std::function<bool()>& isDone, std::string_view sentence) override;

    // Gives up the waits that are under way, as Cancel does.
    void giveUp() { ++_given; }

private:
    QWidget& _window;
    int _given = 0; // how often waits were given up
};

} // namespace kx
