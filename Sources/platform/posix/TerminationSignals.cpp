#include "platform/posix/TerminationSignals.h"

#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <utility>

namespace kx {

namespace {

// A handler reaches nothing but what has static storage.
std::atomic<int> writingEnd{-1};

extern "C" void handleTermination(int signal) {
    const int error = errno;
    const auto byte = static_cast<unsigned char>(signal);
    [[maybe_unused]] const auto count = ::write(writingEnd, &byte, 1);
    errno = error;
}

void setHandler(void (*handler)(int)) {
    struct sigaction action {};
    action.sa_handler = handler;
    // Reset: the second signal is not handled. No restart: a question to a person ends.
    action.sa_flags = static_cast<int>(SA_RESETHAND);
    ::sigemptyset(&action.sa_mask);
    ::sigaction(SIGINT, &action, nullptr);
    ::sigaction(SIGTERM, &action, nullptr);
}

} // namespace

TerminationSignals::TerminationSignals(RunLoop& runLoop, std::function<void(int)> received)
    : _received(std::move(received))
    , _watch(runLoop.watchForReading(_pipe.readingEnd.number(), [this] { take(); })) {
    writingEnd = _pipe.writingEnd.number();
    setHandler(handleTermination);
}

TerminationSignals::~TerminationSignals() {
    setHandler(SIG_DFL);
    writingEnd = -1;
}

void TerminationSignals::take() {
    unsigned char signal = 0;
    if (::read(_pipe.readingEnd.number(), &signal, 1) == 1) {
        _received(signal);
    }
}

} // namespace kx
