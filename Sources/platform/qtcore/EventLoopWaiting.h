// Waiting in Qt's event loop.
//
// Threading: the main thread, which needs a QCoreApplication.

#pragma once

#include "support/Waiting.h"

#include <QEventLoop>
#include <chrono>

namespace kx {

enum class EventsEnd {
    done,   // the condition holds
    timeUp, // the time is up
    asked,  // the application was asked to end, as by QCoreApplication::exit()
};

// Handles events until `isDone`, for at most this time. The condition is asked at first, and then
// every 10 milliseconds.
EventsEnd handleEventsUntil(const std::function<bool()>& isDone, std::chrono::milliseconds longest,
                            QEventLoop::ProcessEventsFlags flags);

// Waits without a screen. The application can be asked to end.
class EventLoopWaiting final : public Waiting {
public:
    bool until(const std::function<bool()>& isDone, std::string_view sentence) override;

    // The person gives up what is waited for now. A later wait knows nothing of it.
    void giveUp() { ++_timesGivenUp; }

private:
    unsigned _timesGivenUp = 0;
};

} // namespace kx
