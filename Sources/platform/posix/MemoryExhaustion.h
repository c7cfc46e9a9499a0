// The end of the process when there is no memory left.
//
// Some parts catch std::bad_alloc, give their operation up and say so. Nothing can be done where
// nobody catches it. Without this handler the process would end with a message of the language's
// runtime and a core file. With it, the process writes one sentence as its last line to the system
// log, which has a copy on standard error, and ends with EXIT_FAILURE.
//
// The system may also end a process that takes too much, by a signal that nobody can handle.

#pragma once

namespace kx {

// Call this once, after the system log is installed. Other exceptions that nobody catches end the
// process as before. Main thread; a failure of any thread is handled.
void installMemoryExhaustionHandler();

} // namespace kx
