#include "platform/qt/QtRunLoop.h"

#include <fcntl.h>
#include <poll.h>

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

// How many turns of ours one turn of Qt's loop may hold for one watch. Qt spends several times as
// long on an event as the system on a datagram, so a burst is taken in small batches; a batch is
// over long before a person notices it.
constexpr int mostTurnsInOne = 32;

bool canBeRead(int descriptor) {
    pollfd polled{descriptor, POLLIN, 0};
    return ::poll(&polled, 1, 0) > 0 && (polled.revents & POLLNVAL) == 0;
}

class ReadWatch final : public RunLoop::Source {
public:
    ReadWatch(int descriptor, std::function<void()> readable)
        : _watched(std::make_shared<Watched>(Watched{descriptor, std::move(readable)}))
        , _notifier(descriptor, QSocketNotifier::Read) {
        QObject::connect(&_notifier, &QSocketNotifier::activated, &_notifier,
                         [watched = _watched] { takeTurns(watched); });
    }
    ~ReadWatch() override { _watched->hasEnded = true; }

private:
    struct Watched {
        int descriptor;
        std::function<void()> readable;
        bool hasEnded = false;
    };

    // By value: a call may end the watch, and with it every other share.
    static void takeTurns(std::shared_ptr<Watched> watched) { // NOLINT(*-unnecessary-value-param)
        int turns = 0;
        do {
            watched->readable();
            ++turns;
        } while (turns < mostTurnsInOne && !watched->hasEnded && canBeRead(watched->descriptor));
    }

    std::shared_ptr<Watched> _watched;
    QSocketNotifier _notifier;
};

class DelayedCall final : public RunLoop::Source {
public:
    DelayedCall(milliseconds delay, std::function<void()> call)
        : _call(std::make_shared<const std::function<void()>>(std::move(call)))
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
        const auto running = std::exchange(_call, nullptr); // it may destroy this object
        (*running)();
    }

    std::shared_ptr<const std::function<void()>> _call;
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
    // Input that came meanwhile waits in a queue. A dispatcher that has passed over it once does
    // not look at it again before something wakes it.
    loop.wakeUp();
}

} // namespace kx
