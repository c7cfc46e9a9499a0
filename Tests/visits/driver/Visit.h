// A visit to the running program. A plugin of visits gives it to Qt, which asks for it by the names
// in QT_QPA_GENERIC_PLUGINS. When a visit is over it closes the window, which ends the program.
// After a failure it says on standard error what was missing, and ends the program with exit status
// 1.
//
// Main thread only.

#pragma once

#include "driver/WindowDriver.h"

#include <QObject>
#include <functional>

namespace kx {

using Visit = std::function<void(WindowDriver&)>;

// Begins the visit once the event loop runs. May be called while the application object is being
// made. The caller owns the returned object; without it the visit does not begin.
QObject* beginVisit(Visit visit);

} // namespace kx
