// The run loop over Qt's event loop.
//
// Threading: belongs to the thread that makes it, which needs a QCoreApplication. Callbacks run
// from that thread's event loop, nested loops (menus, dialogues) included. At rest nothing wakes
// up: a watch is a socket notifier, a delayed call one single-shot timer.

#pragma once

#include "support/RunLoop.h"

namespace kx {

class QtRunLoop final : public RunLoop {
public:
    Handle watchForReading(int descriptor, std::function<void()> readable) override;
    Handle callOnceAfter(std::chrono::milliseconds delay, std::function<void()> call) override;
    void runUntil(const std::function<bool()>& isDone) override;
};

} // namespace kx
