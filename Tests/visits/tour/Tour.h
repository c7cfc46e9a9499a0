// A tour of the running program. It acts as a person who looks at the units of a network, prints a
// record and saves pictures.
//
// Main thread only; run() waits in nested event loops.
//
// Environment: KX_TOUR_UNITS, the number of expected units, 0 for a tour that picks none;
// KX_TOUR_PICTURES, the folder for pictures, none when absent; KX_TOUR_INTERFACE, the name in the
// system of the interface to choose before the discovery, none when absent. The interface may come
// up while the tour waits for it.

#pragma once

#include "driver/WindowDriver.h"

namespace kx {

class Tour final {
public:
    explicit Tour(WindowDriver& driver)
        : _driver(driver) {}

    // Takes the whole tour.
    void run();

private:
    void showOtherLooks();
    void showMenus();

    WindowDriver& _driver;
};

} // namespace kx
