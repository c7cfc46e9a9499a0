// Ends the application in order when a signal asks for it: SIGTERM, SIGINT or SIGHUP.
//
// A signal that the process ignores from the beginning, as under nohup, stays ignored. Each of the
// others is taken once. The second of its kind does what the system does by itself, so it ends a
// program that does not come back to its event loop.
//
// Threading: the main thread, which needs a QCoreApplication. One object at a time.

#pragma once

#include "support/Pipe.h"

#include <QSocketNotifier>
#include <functional>

namespace kx {

class TerminationSignals final {
public:
    // `end` is called from Qt's event loop, also from a nested one, as below a dialog. It may be
    // called once for each of the signals.
    explicit TerminationSignals(std::function<void()> end);
    ~TerminationSignals(); // from now on the signals do what the system does by itself
    TerminationSignals(const TerminationSignals&) = delete;
    TerminationSignals& operator=(const TerminationSignals&) = delete;

private:
    Pipe _arrivals;
    QSocketNotifier _notifier;
};

} // namespace kx
