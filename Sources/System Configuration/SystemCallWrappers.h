// System calls that are not cut short by signals, and the installation of signal handlers.
//
// Select(), Read(), Write() and Close() keep no state and may be called from any thread. Each makes
// the system call of its name again for as long as the call fails with EINTR, and returns the last
// result; errno then says why the call failed.

#pragma once

#include <sys/select.h>
#include <sys/types.h>

#include <cstddef>

namespace kx {

// After an interruption the wait begins again with the rest of `timeout` where the system tells the
// rest, and otherwise with all of it.
int Select(int descriptorCount, fd_set* readable, fd_set* writable, fd_set* exceptional,
           timeval* timeout);
ssize_t Read(int descriptor, void* buffer, std::size_t length);
ssize_t Write(int descriptor, const void* buffer, std::size_t length);
int Close(int descriptor);

using SignalHandler = void (*)(int);

// Installs a handler that blocks no other signal. Returns the earlier handler, or SIG_ERR when the
// system refuses. Interrupted system calls are restarted, except after SIGALRM, because an alarm is
// there to interrupt.
SignalHandler Signal(int signalNumber, SignalHandler handler);

} // namespace kx
