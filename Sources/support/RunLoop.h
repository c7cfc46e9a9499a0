// The event loop as its users need it: watch a descriptor, call once after a delay, and wait for
// something while both go on.
//
// Threading: an object of this kind belongs to one thread; every operation and every callback runs
// there. Callbacks may ask for new watches and calls, and may run the loop in turn.
// watchForReading() and callOnceAfter() themselves call nothing.
//
// Ownership: each operation returns a handle. Destroying the handle ends the watch or cancels the
// call, at once and for good: after that, the callback is not called, even when it was already due.
// A handle may be destroyed at any time, also from inside its own callback or from inside another
// one, and the callback object lives until the running call has returned. Handles must not outlive
// the loop.

#pragma once

#include <chrono>
#include <functional>
#include <memory>

namespace kx {

class RunLoop {
public:
    // A watch, a delayed call or a hold. A handle owns it.
    class Source {
    public:
        virtual ~Source() = default;

    protected:
        Source() = default;
        Source(const Source&) = delete;
        Source& operator=(const Source&) = delete;
    };
    using Handle = std::unique_ptr<Source>;

    // Long enough to stand for "never", and short enough for a clock to hold.
    static constexpr std::chrono::milliseconds longestDelay = std::chrono::hours{24 * 365 * 100};

    virtual ~RunLoop() = default;

    // Calls `readable` whenever `descriptor` can be read without blocking, once for each turn of
    // the loop for as long as that holds. The loop never reads itself. The descriptor stays the
    // caller's; it must be open until the handle is destroyed. At most one handle may watch a
    // descriptor. Null when the descriptor is not open, or the system cannot watch it.
    virtual Handle watchForReading(int descriptor, std::function<void()> readable) = 0;

    // Calls `call` once, not before `delay` has passed on the monotonic clock. This clock never
    // jumps, and stands still while the host is suspended: a delay is time in which the program
    // could hear an answer. Calls fall due in
    // the order of their due times, and equal ones in the order in which they were asked for. A
    // delay of zero or less falls due in the next turn. A delay of more than longestDelay counts as
    // longestDelay. After the call the handle holds nothing; it may be kept or destroyed.
    virtual Handle callOnceAfter(std::chrono::milliseconds delay, std::function<void()> call) = 0;

    // Runs the loop until `isDone` returns true. The loop asks it at first, and again after it has
    // called something. While there is nothing to call the loop rests, so the awaited event has to
    // come from a watch or a delayed call. Inside a callback this begins a run within the run: a
    // watch whose callback is running may be called again meanwhile. A person's actions on the
    // screen wait until the run is over.
    virtual void runUntil(const std::function<bool()>& isDone) = 0;

    // Holds the loop until the handle is destroyed: nothing is called, though the loop may run. An
    // alert, for example, runs the loop while a person has to dismiss it before an action can go
    // on. Afterwards the loop calls the watches that can be read then, and the delayed calls that
    // fell due meanwhile, in the order of their due times. It does so in its next turns, and never
    // from inside the end of the hold. Waiting callbacks do not keep the loop busy. Where there are
    // several holds, the loop is held until the last one ends.
    //
    // Inside a hold runUntil() must not have to wait, because nothing would be called.
    virtual Handle holdCallbacks() = 0;
};

} // namespace kx
