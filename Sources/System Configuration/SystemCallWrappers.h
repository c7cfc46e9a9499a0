// System calls that are not cut short by signals, and the installation of signal handlers.
//
// Select(), Read(), Write() and Close() keep no state and may be called from any thread. Each makes
// the system call of its name again for as long as that fails with EINTR, and returns its last
// result; errno then says why it failed.

#pragma once

#include <sys/select.h>
#include <sys/types.h>

#include <cstddef>

namespace kx {

// After an interruption the wait begins anew with what is left in `timeout`, where the system says
// what is left, and otherwise with all of it.
int Select(int descriptorCount, fd_set* readable, fd_set* writable, fd_set* exceptional,
           timeval* timeout);
ssize_t Read(int descriptor, void* buffer, std::size_t length);
ssize_t Write(int descriptor, const void* buffer, std::size_t length);
int Close(int descriptor);

using SignalHandler = void (*)(int);

// Installs a handler that blocks no other signal, and returns the one before it, or SIG_ERR when
// the system refuses. Interrupted system calls are restarted, except after SIGALRM: an alarm is
// there to interrupt.
SignalHandler Signal(int signalNumber, SignalHandler handler);

} // namespace kx
