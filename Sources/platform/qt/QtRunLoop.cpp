#include "platform/qt/QtRunLoop.h"

#include "support/Require.h"

#include <fcntl.h>

#include <QEventLoop>
#include <QSocketNotifier>
#include <QTimer>
#include <algorithm>
#include <cstdint>
#include <limits>
#include <map>
#include <set>
#include <utility>

namespace kx {

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

// Qt's timers count milliseconds in an int, so a longer delay is waited for in several rounds.
constexpr milliseconds longestRound{std::numeric_limits<int>::max()};

class Registration final : public RunLoop::Source {
public:
    explicit Registration(std::function<void()> end)
        : _end(std::move(end)) {}
    ~Registration() override { _end(); }

private:
    std::function<void()> _end;
};

} // namespace

// The timer runs for the first of the calls. While the loop is held, the timer does not run and no
// notifier is enabled, because either would keep Qt's loop awake.
struct QtRunLoop::State {
    using CallKey = std::pair<Clock::time_point, std::uint64_t>; // due time, order of request

    State() {
        timer.setSingleShot(true);
        timer.setTimerType(Qt::PreciseTimer);
        QObject::connect(&timer, &QTimer::timeout, &timer, [this] { callDue(); });
    }

    bool isHeld() const { return holds > 0; }

    void beginHold() {
        ++holds;
        enableSources();
    }

    void endHold() {
        --holds;
        enableSources();
    }

    void enableSources() {
        for (QSocketNotifier* notifier : notifiers) {
            notifier->setEnabled(!isHeld());
        }
        startTimer();
    }

    void startTimer() {
        if (isHeld() || calls.empty()) {
            timer.stop();
            return;
        }
        const auto left =
            std::chrono::ceil<milliseconds>(calls.begin()->first.first - Clock::now());
        timer.start(std::clamp(left, milliseconds::zero(), longestRound));
    }

    CallKey addCall(milliseconds delay, std::function<void()> call) {
        const CallKey key{Clock::now() + delay, nextOrder++};
        const auto added = calls.emplace(key, std::move(call)).first;
        if (added == calls.begin()) {
            startTimer();
        }
        return key;
    }

    // The call is taken out before it is destroyed, because the objects in it may end further
    // calls.
    void cancelCall(const CallKey& key) {
        const bool wasFirst = !calls.empty() && calls.begin()->first == key;
        const auto cancelled = calls.extract(key);
        if (wasFirst) {
            startTimer();
        }
    }

    // A call that is requested by these calls has to wait for the next turn. The timer is started
    // before each call, because the call may run the loop in turn.
    void callDue() {
        const CallKey latest{Clock::now(), nextOrder - 1};
        while (!isHeld() && !calls.empty() && calls.begin()->first <= latest) {
            const auto due = calls.extract(calls.begin());
            startTimer();
            due.mapped()();
        }
        startTimer();
    }

    int holds = 0;
    std::set<QSocketNotifier*> notifiers;
    std::map<CallKey, std::function<void()>> calls;
    std::uint64_t nextOrder = 1;
    QTimer timer;
};

class QtRunLoop::ReadWatch final : public Source {
public:
    ReadWatch(State& state, int descriptor, std::function<void()> readable)
        : _state(state)
        , _readable(std::make_shared<std::function<void()>>(std::move(readable)))
        , _notifier(descriptor, QSocketNotifier::Read) {
        _notifier.setEnabled(!state.isHeld());
        state.notifiers.insert(&_notifier);
        // The call may end the watch, and is kept until it returns.
        QObject::connect(&_notifier, &QSocketNotifier::activated, &_notifier,
                         [this] { (*std::shared_ptr(_readable))(); });
    }
    ~ReadWatch() override { _state.notifiers.erase(&_notifier); }

private:
    State& _state;
    std::shared_ptr<std::function<void()>> _readable;
    QSocketNotifier _notifier;
};

QtRunLoop::QtRunLoop()
    : _state(std::make_unique<State>()) {}

QtRunLoop::~QtRunLoop() = default;

RunLoop::Handle QtRunLoop::watchForReading(int descriptor, std::function<void()> readable) {
    if (fcntl(descriptor, F_GETFD) == -1) {
        return nullptr;
    }
    return std::make_unique<ReadWatch>(*_state, descriptor, std::move(readable));
}

RunLoop::Handle QtRunLoop::callOnceAfter(milliseconds delay, std::function<void()> call) {
    const milliseconds bounded = std::clamp(delay, milliseconds::zero(), longestDelay);
    return std::make_unique<Registration>(
        [&state = *_state, key = _state->addCall(bounded, std::move(call))] {
            state.cancelCall(key);
        });
}

void QtRunLoop::runUntil(const std::function<bool()>& isDone) {
    QEventLoop loop;
    while (!isDone()) {
        require(!_state->isHeld(), "the loop is not held", "Sources/support/RunLoop");
        loop.processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::ExcludeUserInputEvents);
    }
    // Input that came meanwhile waits in a queue. A dispatcher that has passed over the queue once
    // does not look at it again until something wakes it.
    loop.wakeUp();
}

RunLoop::Handle QtRunLoop::holdCallbacks() {
    _state->beginHold();
    return std::make_unique<Registration>([&state = *_state] { state.endHold(); });
}

} // namespace kx
