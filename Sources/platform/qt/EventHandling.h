// Events of the application, handled while something is waited for.
//
// Threading: the main thread, which needs a QCoreApplication.

#pragma once

#include <QEventLoop>
#include <chrono>
#include <functional>

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

} // namespace kx
