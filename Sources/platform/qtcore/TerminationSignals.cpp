#include "platform/qtcore/TerminationSignals.h"

#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <utility>

namespace kx {

namespace {

constexpr std::array taken{SIGTERM, SIGINT, SIGHUP};

volatile std::sig_atomic_t writingEnd = -1;

// Only what a signal may interrupt is called here. The pipe has room for one byte of each signal.
void noteArrival(int /*signal*/) {
    const int errorBefore = errno;
    const char byte = 0;
    const ssize_t written = ::write(writingEnd, &byte, 1);
    static_cast<void>(written);
    errno = errorBefore;
}

// Leaves an ignored signal as it is.
void setHandler(int signal, void (*handler)(int)) {
    struct sigaction present {};
    ::sigaction(signal, nullptr, &present);
    if (present.sa_handler == SIG_IGN) {
        return;
    }
    struct sigaction action {};
    action.sa_handler = handler;
    action.sa_flags = static_cast<int>(SA_RESTART | SA_RESETHAND);
    ::sigaction(signal, &action, nullptr);
}

} // namespace

TerminationSignals::TerminationSignals(std::function<void()> end)
    : _notifier(_arrivals.readingEnd.number(), QSocketNotifier::Read) {
    QObject::connect(&_notifier, &QSocketNotifier::activated, &_notifier,
                     [this, end = std::move(end)] {
                         char byte = 0;
                         if (::read(_arrivals.readingEnd.number(), &byte, 1) == 1) {
                             end();
                         }
                     });
    writingEnd = _arrivals.writingEnd.number();
    for (const int signal : taken) {
        setHandler(signal, noteArrival);
    }
}

TerminationSignals::~TerminationSignals() {
    for (const int signal : taken) {
        setHandler(signal, SIG_DFL);
    }
    writingEnd = -1;
}

} // namespace kx
