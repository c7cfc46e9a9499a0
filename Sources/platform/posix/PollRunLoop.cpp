#include "platform/posix/PollRunLoop.h"

#include "support/Require.h"

#include <fcntl.h>

#include <algorithm>
#include <cerrno>
#include <limits>
#include <thread>

namespace kx {

using std::chrono::milliseconds;

namespace {

// The longest rest of a turn when poll(2) itself fails, as it does when the system is short of
// memory or the process of descriptors. It is long enough not to spin, and short enough not to be
// noticed.
constexpr milliseconds restAfterFailure{10};

} // namespace

// The object behind a handle. It removes the entry of its watch or call.
class PollRunLoop::Registration final : public Source {
public:
    explicit Registration(std::function<void()> end)
        : _end(std::move(end)) {}
    ~Registration() override { _end(); }

private:
    std::function<void()> _end;
};

// Entries are taken out before they are destroyed. The objects in a callback may end other
// registrations in turn, and must not do so while the container is being changed.

RunLoop::Handle PollRunLoop::watchForReading(int descriptor, std::function<void()> readable) {
    if (::fcntl(descriptor, F_GETFD) == -1) {
        return nullptr;
    }
    const auto order = _nextOrder++;
    _watches.push_back({order, std::make_shared<std::function<void()>>(std::move(readable))});
    _descriptors.push_back({descriptor, POLLIN, 0});
    return std::make_unique<Registration>([this, order] { endWatch(order); });
}

PollRunLoop::Watches::iterator PollRunLoop::findWatch(std::uint64_t order) {
    const auto found = std::ranges::lower_bound(_watches, order, {}, &Watch::order);
    return found != _watches.end() && found->order == order ? found : _watches.end();
}

void PollRunLoop::endWatch(std::uint64_t order) {
    const auto watch = findWatch(order);
    const auto readable = std::move(watch->readable);
    _descriptors.erase(_descriptors.begin() + (watch - _watches.begin()));
    _watches.erase(watch);
}

RunLoop::Handle PollRunLoop::callOnceAfter(milliseconds delay, std::function<void()> call) {
    const CallKey key{Clock::now() + std::clamp(delay, milliseconds(0), longestDelay),
                      _nextOrder++};
    _calls.emplace(key, std::move(call));
    return std::make_unique<Registration>([this, key] { _calls.extract(key); });
}

RunLoop::Handle PollRunLoop::holdCallbacks() {
    ++_holds;
    return std::make_unique<Registration>([this] { --_holds; });
}

void PollRunLoop::runUntil(const std::function<bool()>& isDone) {
    while (!isDone()) {
        require(!isHeld(), "the loop is not held", "Sources/support/RunLoop");
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
    std::vector<std::uint64_t> ready = std::exchange(_ready, {});
    ready.clear();
    findReady(pollDescriptors(pollTimeout(longestWait)), ready);
    const bool mayBeDue = !_calls.empty(); // calls that callbacks ask for now are not due
    const CallKey latest = mayBeDue ? CallKey{Clock::now(), _nextOrder - 1} : CallKey{};
    const bool hasRead = callReadable(ready);
    const bool hasCalled = mayBeDue && callDue(latest);
    _ready = std::move(ready);
    return hasRead || hasCalled;
}

// Rounded up, because a wait that ends just before the due time would turn the loop for nothing.
int PollRunLoop::pollTimeout(std::optional<milliseconds> longestWait) const {
    auto wait = longestWait;
    if (!_calls.empty() && !isHeld()) {
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

// Returns how many descriptors can be read. In a turn with an interrupted poll none can. The first
// poll does not wait: when something can be read already, preparing a wait would cost time for
// nothing.
int PollRunLoop::pollDescriptors(int timeout) {
    const auto size = isHeld() ? nfds_t{0} : static_cast<nfds_t>(_descriptors.size());
    int count = ::poll(_descriptors.data(), size, 0);
    if (count == 0 && timeout != 0) {
        count = ::poll(_descriptors.data(), size, timeout);
    }
    if (count < 0 && errno != EINTR) {
        const milliseconds wait(timeout);
        std::this_thread::sleep_for(timeout < 0 ? restAfterFailure
                                                : std::min(wait, restAfterFailure));
    }
    return count;
}

void PollRunLoop::findReady(int count, std::vector<std::uint64_t>& ready) {
    for (std::size_t i = 0; count > 0 && i < _descriptors.size(); ++i) {
        pollfd& polled = _descriptors[i];
        if ((polled.revents & POLLNVAL) != 0) {
            polled.fd = unwatchedDescriptor;
        } else if (polled.revents != 0) {
            ready.push_back(_watches[i].order);
        }
        count -= polled.revents != 0 ? 1 : 0;
    }
}

// A callback that runs the loop in turn ends this round, because its own run may have read the
// other descriptors. That run and the next turn look at them again. A callback that holds the loop
// leaves the rest to a later turn.
bool PollRunLoop::callReadable(const std::vector<std::uint64_t>& ready) {
    const auto turn = ++_turns;
    bool hasCalled = false;
    for (const auto order : ready) {
        if (_turns != turn || isHeld()) {
            break;
        }
        const auto watch = findWatch(order); // another callback may have ended it
        if (watch != _watches.end()) {
            const auto readable = watch->readable;
            (*readable)();
            hasCalled = true;
        }
    }
    return hasCalled;
}

bool PollRunLoop::callDue(const CallKey& latest) {
    bool hasCalled = false;
    while (!isHeld() && !_calls.empty() && _calls.begin()->first <= latest) {
        const auto due = _calls.extract(_calls.begin());
        due.mapped()();
        hasCalled = true;
    }
    return hasCalled;
}

} // namespace kx
