#include "platform/posix/PollRunLoop.h"

#include <fcntl.h>

#include <algorithm>
#include <cerrno>
#include <limits>
#include <thread>

namespace kx {

using std::chrono::milliseconds;

namespace {

// How long a turn rests at most when poll(2) itself fails, as it does when the system is short of
// memory or the process of descriptors: long enough not to spin, short enough not to be noticed.
constexpr milliseconds restAfterFailure{10};

} // namespace

// What a handle holds: the removal of its entry.
class PollRunLoop::Registration final : public Source {
public:
    explicit Registration(std::function<void()> end)
        : _end(std::move(end)) {}
    ~Registration() override { _end(); }

private:
    std::function<void()> _end;
};

// Entries are extracted rather than erased: what a callback holds may end registrations in turn,
// and must not do so while the map is being changed.

RunLoop::Handle PollRunLoop::watchForReading(int descriptor, std::function<void()> readable) {
    if (::fcntl(descriptor, F_GETFD) == -1) {
        return nullptr;
    }
    const auto order = _nextOrder++;
    _watches.emplace(
        order, Watch{descriptor, std::make_shared<std::function<void()>>(std::move(readable))});
    return std::make_unique<Registration>([this, order] { _watches.extract(order); });
}

RunLoop::Handle PollRunLoop::callOnceAfter(milliseconds delay, std::function<void()> call) {
    const CallKey key{Clock::now() + std::clamp(delay, milliseconds(0), longestDelay),
                      _nextOrder++};
    _calls.emplace(key, std::move(call));
    return std::make_unique<Registration>([this, key] { _calls.extract(key); });
}

void PollRunLoop::runUntil(const std::function<bool()>& isDone) {
    while (!isDone()) {
        runOnce();
    }
}

void PollRunLoop::run() {
    _running = true;
    while (_running) {
        runOnce();
    }
}

void PollRunLoop::stop() {
    _running = false;
}

bool PollRunLoop::runOnce(std::optional<milliseconds> longestWait) {
    const auto ready = readyWatches(pollTimeout(longestWait));
    const CallKey latest{Clock::now(), _nextOrder - 1}; // what callbacks ask for comes after it
    const bool hasRead = callReadable(ready);
    const bool hasCalled = callDue(latest);
    return hasRead || hasCalled;
}

// Rounded up: a wait that ends just before the due time would turn the loop for nothing.
int PollRunLoop::pollTimeout(std::optional<milliseconds> longestWait) const {
    auto wait = longestWait;
    if (!_calls.empty()) {
        const auto untilDue =
            std::chrono::ceil<milliseconds>(_calls.begin()->first.first - Clock::now());
        wait = std::min(untilDue, wait.value_or(milliseconds::max()));
    }
    if (!wait.has_value()) {
        return -1;
    }
    return static_cast<int>(
        std::clamp<milliseconds::rep>(wait->count(), 0, std::numeric_limits<int>::max()));
}

// An interrupted poll is a turn in which nothing can be read.
std::vector<std::uint64_t> PollRunLoop::readyWatches(int timeout) {
    std::vector<pollfd> descriptors;
    descriptors.reserve(_watches.size());
    for (const auto& [order, watch] : _watches) {
        descriptors.push_back({watch.descriptor, POLLIN, 0});
    }
    std::vector<std::uint64_t> ready;
    const int count = ::poll(descriptors.data(), static_cast<nfds_t>(descriptors.size()), timeout);
    if (count < 0 && errno != EINTR) {
        const milliseconds wait(timeout);
        std::this_thread::sleep_for(timeout < 0 ? restAfterFailure
                                                : std::min(wait, restAfterFailure));
    }
    if (count <= 0) {
        return ready;
    }
    auto polled = descriptors.begin();
    for (auto& [order, watch] : _watches) {
        if ((polled->revents & POLLNVAL) != 0) {
            watch.descriptor = unwatchedDescriptor;
        } else if (polled->revents != 0) {
            ready.push_back(order);
        }
        ++polled;
    }
    return ready;
}

// A callback that runs the loop in turn leaves the rest to that run and the next: what could be
// read before it may have been read in it.
bool PollRunLoop::callReadable(const std::vector<std::uint64_t>& ready) {
    const auto turn = ++_turns;
    bool hasCalled = false;
    for (const auto order : ready) {
        if (_turns != turn) {
            break;
        }
        const auto watch = _watches.find(order); // another callback may have ended it
        if (watch != _watches.end()) {
            const auto readable = watch->second.readable;
            (*readable)();
            hasCalled = true;
        }
    }
    return hasCalled;
}

bool PollRunLoop::callDue(const CallKey& latest) {
    bool hasCalled = false;
    while (!_calls.empty() && _calls.begin()->first <= latest) {
        const auto due = _calls.extract(_calls.begin());
        due.mapped()();
        hasCalled = true;
    }
    return hasCalled;
}

} // namespace kx
