// Signals that ask the process to end, as bytes in a pipe that an event loop can watch.
//
// A signal that the process ignores from the beginning, as under nohup, stays ignored. Each of the
// others is taken once. The second of its kind does what the system does by itself, so it ends a
// program that does not come back to its event loop. System calls that a signal interrupts are not
// restarted.
//
// Threading: the main thread. One object at a time, because a handler reaches nothing but what has
// static storage.

#pragma once

#include "support/Pipe.h"

#include <initializer_list>
#include <optional>
#include <vector>

namespace kx {

class SignalPipe {
public:
    explicit SignalPipe(std::initializer_list<int> numbers);

    // From now on the signals do what the system does by itself.
    ~SignalPipe();
    SignalPipe(const SignalPipe&) = delete;
    SignalPipe& operator=(const SignalPipe&) = delete;

    // Readable while a signal waits.
    int descriptor() const { return _pipe.readingEnd.number(); }

    // The number of the signal that has waited longest; absent when none waits. Never blocks.
    std::optional<int> take();

private:
    std::vector<int> _signals;
    Pipe _pipe;
};

} // namespace kx
