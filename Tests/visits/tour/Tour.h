// A tour of the running program: what a person would do to see the units of a network, with a
// printed record and pictures.
//
// Main thread only; run() waits in nested event loops.
//
// Environment: KX_TOUR_UNITS, the number of units expected, 0 for a tour that picks none;
// KX_TOUR_PICTURES, the folder for pictures, none when absent; KX_TOUR_INTERFACE, the name in the
// system of the interface to choose before the discovery, none when absent. It may come up while
// the tour looks for it.

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
