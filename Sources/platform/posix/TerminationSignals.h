// SIGINT and SIGTERM as events of the run loop, so that a program can finish what is under way.
//
// The first signal is an event. A second one ends the process at once, as if nobody had asked.
//
// Threading: the main thread only. There may be one object of this kind. Ownership: the run loop
// must outlive it.

#pragma once

#include "support/Pipe.h"
#include "support/RunLoop.h"

#include <functional>

namespace kx {

class TerminationSignals {
public:
    // `received` is called from the run loop with the number of the signal.
    TerminationSignals(RunLoop& runLoop, std::function<void(int)> received);

    // The signals end the process again.
    ~TerminationSignals();
    TerminationSignals(const TerminationSignals&) = delete;
    TerminationSignals& operator=(const TerminationSignals&) = delete;

private:
    void take();

    Pipe _pipe;
    std::function<void(int)> _received;
    RunLoop::Handle _watch;
};

} // namespace kx
