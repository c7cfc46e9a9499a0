#include "System Configuration/SystemCallWrappers.h"

#include <unistd.h>

#include <cerrno>
#include <csignal>

namespace kx {

namespace {

template<class SystemCall>
auto uninterrupted(SystemCall systemCall) {
    auto result = systemCall();
    while (result < 0 && errno == EINTR) {
        result = systemCall();
    }
    return result;
}

} // namespace

int Select(int descriptorCount, fd_set* readable, fd_set* writable, fd_set* exceptional,
           timeval* timeout) {
    return uninterrupted(
        [=] { return ::select(descriptorCount, readable, writable, exceptional, timeout); });
}

ssize_t Read(int descriptor, void* buffer, std::size_t length) {
    return uninterrupted([=] { return ::read(descriptor, buffer, length); });
}

ssize_t Write(int descriptor, const void* buffer, std::size_t length) {
    return uninterrupted([=] { return ::write(descriptor, buffer, length); });
}

int Close(int descriptor) {
    return uninterrupted([=] { return ::close(descriptor); });
}

SignalHandler Signal(int signalNumber, SignalHandler handler) {
    struct sigaction action = {};
    struct sigaction previous = {};
    action.sa_handler = handler;
    sigemptyset(&action.sa_mask);
    action.sa_flags = signalNumber == SIGALRM ? 0 : SA_RESTART;
    if (sigaction(signalNumber, &action, &previous) < 0) {
        return SIG_ERR;
    }
    return previous.sa_handler;
}

} // namespace kx
