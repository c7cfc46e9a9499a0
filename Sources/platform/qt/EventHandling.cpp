#include "platform/qt/EventHandling.h"

#include <QDeadlineTimer>
#include <QTimer>

namespace kx {

namespace {

constexpr std::chrono::milliseconds betweenLooks{10};

constexpr int doneCode = 1;
constexpr int timeUpCode = 2; // exit() of the application gives neither

} // namespace

EventsEnd handleEventsUntil(const std::function<bool()>& isDone, std::chrono::milliseconds longest,
                            QEventLoop::ProcessEventsFlags flags) {
    if (isDone()) {
        return EventsEnd::done;
    }
    const QDeadlineTimer end(longest);
    QEventLoop loop;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &loop, [&] {
        if (isDone()) {
            loop.exit(doneCode);
        } else if (end.hasExpired()) {
            loop.exit(timeUpCode);
        }
    });
    look.start(betweenLooks);
    const int code = loop.exec(flags);
    // Input that was passed over waits in a queue, at which a dispatcher looks again when it is
    // woken.
    loop.wakeUp();
    switch (code) {
    case doneCode:
        return EventsEnd::done;
    case timeUpCode:
        return EventsEnd::timeUp;
    default:
        return EventsEnd::asked;
    }
}

} // namespace kx
