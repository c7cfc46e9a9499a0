// The run loop over Qt's event loop.
//
// Threading: belongs to the thread that makes it, which needs a QCoreApplication. Callbacks run
// from that thread's event loop, nested loops (menus, dialogues) included; an action that shows a
// dialogue holds them back. At rest nothing wakes up: a watch is a socket notifier, and one
// single-shot timer waits for the first of the delayed calls.

#pragma once

#include "support/RunLoop.h"

#include <memory>

namespace kx {

class QtRunLoop final : public RunLoop {
public:
    QtRunLoop();
    ~QtRunLoop() override;
    QtRunLoop(const QtRunLoop&) = delete;
    QtRunLoop& operator=(const QtRunLoop&) = delete;

    Handle watchForReading(int descriptor, std::function<void()> readable) override;
    Handle callOnceAfter(std::chrono::milliseconds delay, std::function<void()> call) override;
    void runUntil(const std::function<bool()>& isDone) override;
    Handle holdCallbacks() override;

private:
    struct State;
    class ReadWatch;

    std::unique_ptr<State> _state;
};

} // namespace kx
