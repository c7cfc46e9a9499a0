// A visit to the running program: what a plugin of visits gives to Qt, which asks for it by the
// names in QT_QPA_GENERIC_PLUGINS. When a visit is over it closes the window, which ends the
// program; after a failure it says on standard error what was missing, and ends the program with
// exit status 1.
//
// Main thread only.

#pragma once

#include "driver/WindowDriver.h"

#include <QObject>
#include <functional>

namespace kx {

using Visit = std::function<void(WindowDriver&)>;

// Begins the visit once the event loop runs. May be called while the application object is being
// made. The object that is returned belongs to the caller; the visit does not begin without it.
QObject* beginVisit(Visit visit);

} // namespace kx
