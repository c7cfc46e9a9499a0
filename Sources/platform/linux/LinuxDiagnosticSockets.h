// UDP sockets for the diagnosis, with two options of Linux: SO_BINDTODEVICE, free for everybody
// since Linux 5.7, and IP_RECVERR (ip(7)).
//
// Threading: the main thread only. Ownership: the run loop must outlive this object and its
// sockets.

#pragma once

#include "conversation/DiagnosticSockets.h"
#include "support/RunLoop.h"

#include <memory>

namespace kx {

class LinuxDiagnosticSockets final : public DiagnosticSockets {
public:
    explicit LinuxDiagnosticSockets(RunLoop& runLoop)
        : _runLoop(runLoop) {}

    std::unique_ptr<DiagnosticSocket> open(DatagramSystemCalls& calls, const Wish& wish,
                                           Events events) override;

private:
    RunLoop& _runLoop;
};

} // namespace kx
