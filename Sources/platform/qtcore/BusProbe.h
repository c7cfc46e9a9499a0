// Asks whether a bus is there, before a connection to it is made.
//
// The system call that connects waits without an end when a bus has stopped and its queue is full
// of waiting programs. The bus library makes that call itself and has no option to limit the wait.

#pragma once

#include <chrono>
#include <string_view>

namespace kx {

// Whether the bus at this D-Bus address answers within `patience`. The probe opens a connection of
// its own and asks which kinds of authentication the bus takes. It asks only at an address of the
// form "unix:path=...", with one socket in the file system and nothing escaped in its path. For
// every other address the result is true. Any thread.
bool busAnswers(std::string_view address, std::chrono::milliseconds patience);

} // namespace kx
