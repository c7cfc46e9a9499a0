#include "support/SignalPipe.h"

#include <poll.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>

namespace kx {

namespace {

volatile std::sig_atomic_t writingEnd = -1;

// Calls only what a signal may interrupt. The pipe has room for one byte of each signal.
extern "C" void handleSignal(int signal) {
    const int errorBefore = errno;
    const auto byte = static_cast<unsigned char>(signal);
    [[maybe_unused]] const ssize_t written = ::write(writingEnd, &byte, 1);
    errno = errorBefore;
}

void setHandler(int signal, void (*handler)(int)) {
    struct sigaction present {};
    ::sigaction(signal, nullptr, &present);
    if (present.sa_handler == SIG_IGN) {
        return;
    }
    struct sigaction action {};
    action.sa_handler = handler;
    action.sa_flags = static_cast<int>(SA_RESETHAND);
    ::sigaction(signal, &action, nullptr);
}

} // namespace

SignalPipe::SignalPipe(std::initializer_list<int> numbers)
    : _signals(numbers) {
    writingEnd = _pipe.writingEnd.number();
    for (const int signal : _signals) {
        setHandler(signal, handleSignal);
    }
}

SignalPipe::~SignalPipe() {
    for (const int signal : _signals) {
        setHandler(signal, SIG_DFL);
    }
    writingEnd = -1;
}

std::optional<int> SignalPipe::take() {
    pollfd polled{.fd = descriptor(), .events = POLLIN, .revents = 0};
    if (::poll(&polled, 1, 0) != 1) {
        return std::nullopt;
    }
    unsigned char signal = 0;
    return ::read(descriptor(), &signal, 1) == 1 ? std::optional<int>(signal) : std::nullopt;
}

} // namespace kx
