#include "platform/qt/QtRunLoop.h"

#include <fcntl.h>

#include <QEventLoop>
#include <QSocketNotifier>
#include <QTimer>
#include <algorithm>
#include <limits>
#include <utility>

namespace kx {

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

// Qt's timers count milliseconds in an int; longer delays are waited for in several rounds.
constexpr milliseconds longestRound{std::numeric_limits<int>::max()};

// A callback may destroy its own handle, so it is called through a share of its own.
using Callback = std::shared_ptr<const std::function<void()>>;

Callback callbackFor(std::function<void()> function) {
    return std::make_shared<const std::function<void()>>(std::move(function));
}

class ReadWatch final : public RunLoop::Source {
public:
    ReadWatch(int descriptor, std::function<void()> readable)
        : _notifier(descriptor, QSocketNotifier::Read) {
        const Callback callback = callbackFor(std::move(readable));
        QObject::connect(&_notifier, &QSocketNotifier::activated, &_notifier, [callback] {
            const Callback running = callback; // NOLINT: the only share left, if the watch ends
            (*running)();
        });
    }

private:
    QSocketNotifier _notifier;
};

class DelayedCall final : public RunLoop::Source {
public:
    DelayedCall(milliseconds delay, std::function<void()> call)
        : _callback(callbackFor(std::move(call)))
        , _due(Clock::now() + delay) {
        _timer.setSingleShot(true);
        _timer.setTimerType(Qt::PreciseTimer);
        QObject::connect(&_timer, &QTimer::timeout, &_timer, [this] { timedOut(); });
        startRound();
    }

private:
    void startRound() {
        const auto left = std::chrono::ceil<milliseconds>(_due - Clock::now());
        _timer.start(std::clamp(left, milliseconds::zero(), longestRound));
    }

    void timedOut() {
        if (Clock::now() < _due) {
            startRound();
            return;
        }
        const Callback running = std::exchange(_callback, nullptr);
        (*running)();
    }

    Callback _callback;
    Clock::time_point _due;
    QTimer _timer;
};

} // namespace

RunLoop::Handle QtRunLoop::watchForReading(int descriptor, std::function<void()> readable) {
    if (fcntl(descriptor, F_GETFD) == -1) {
        return nullptr;
    }
    return std::make_unique<ReadWatch>(descriptor, std::move(readable));
}

RunLoop::Handle QtRunLoop::callOnceAfter(milliseconds delay, std::function<void()> call) {
    const milliseconds bounded = std::clamp(delay, milliseconds::zero(), longestDelay);
    return std::make_unique<DelayedCall>(bounded, std::move(call));
}

void QtRunLoop::runUntil(const std::function<bool()>& isDone) {
    QEventLoop loop;
    while (!isDone()) {
        loop.processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::ExcludeUserInputEvents);
    }
}

} // namespace kx
