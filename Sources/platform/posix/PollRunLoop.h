// A run loop over poll(2), for programs and tests without a toolkit.
//
// It keeps the contract of support/RunLoop.h on the monotonic clock. A turn sleeps until a
// descriptor can be read or a call falls due. It then calls the watches of the descriptors that can
// be read and the calls that were due, each once. A descriptor with a pending error or a hang-up
// counts as one that can be read, because a read of it does not block. When a watched descriptor
// was closed too early, its watch ends without a report. A turn of a held loop only waits.
//
// Threading: the loop belongs to the one thread that runs it. Another thread can wake it only
// through a watched descriptor.

#pragma once

#include "support/RunLoop.h"

#include <poll.h>

#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace kx {

class PollRunLoop final : public RunLoop {
public:
    PollRunLoop() = default;
    PollRunLoop(const PollRunLoop&) = delete;
    PollRunLoop& operator=(const PollRunLoop&) = delete;

    Handle watchForReading(int descriptor, std::function<void()> readable) override;
    Handle callOnceAfter(std::chrono::milliseconds delay, std::function<void()> call) override;

    void runUntil(const std::function<bool()>& isDone) override;
    Handle holdCallbacks() override;

    // Runs turns until stop() is called.
    void run();

    // Ends run() when the present turn is over. Has no effect while run() is not running.
    void stop();

    // Runs one turn, which waits no longer than `longestWait`, or without a limit when it is
    // absent. False when the wait ended without anything to call.
    bool runOnce(std::optional<std::chrono::milliseconds> longestWait = std::nullopt);

private:
    using Clock = std::chrono::steady_clock;
    using CallKey = std::pair<Clock::time_point, std::uint64_t>; // due time, order of request
    class Registration;

    // poll(2) passes over descriptors below zero.
    static constexpr int unwatchedDescriptor = -1;

    struct Watch {
        std::uint64_t order;
        std::shared_ptr<std::function<void()>> readable; // shared with the running call
    };
    using Watches = std::vector<Watch>;

    Watches::iterator findWatch(std::uint64_t order);
    void endWatch(std::uint64_t order);
    int pollTimeout(std::optional<std::chrono::milliseconds> longestWait) const;
    int pollDescriptors(int timeout);
    void findReady(int count, std::vector<std::uint64_t>& ready);
    bool callReadable(const std::vector<std::uint64_t>& ready);
    bool callDue(const CallKey& latest);
    bool isHeld() const { return _holds > 0; }

    int _holds = 0;
    bool _running = false;
    std::uint64_t _turns = 0; // number of turns, by which a callback's own run is noticed
    std::uint64_t _nextOrder = 1;
    Watches _watches;                  // in the order of the requests
    std::vector<pollfd> _descriptors;  // one for each watch, in the same order
    std::vector<std::uint64_t> _ready; // kept between turns to reuse its storage
    std::map<CallKey, std::function<void()>> _calls;
};

} // namespace kx
