// Whether a bus is there, asked before a connection to it is made.
//
// The system call that connects waits without an end where a bus has stopped and so many programs
// wait for it that no place is left in its queue. The bus library makes that call itself and cannot
// be told not to wait.

#pragma once

#include <chrono>
#include <string_view>

namespace kx {

// Whether the bus at this D-Bus address answers in time. It is asked which kinds of greeting it
// takes, on a connection of its own. True for an address of another form than one socket in the
// file system with nothing escaped in its path ("unix:path=..."), which is not asked. Any thread.
bool busAnswers(std::string_view address, std::chrono::milliseconds patience);

} // namespace kx
