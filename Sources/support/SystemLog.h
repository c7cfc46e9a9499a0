// The system log: the place for diagnostics that are not for the user's event log.
//
// One sink serves the whole process, because the code that writes to it (contract checks, container
// base classes, parsers) has no owner who could hand it one. Until a sink is installed, lines go to
// standard error. Main thread only, except that the contract checks may write from any thread just
// before they end the process.

#pragma once

#include <string>
#include <string_view>

namespace kx {

class SystemLog {
public:
    virtual ~SystemLog() = default;

    // Writes one line; `line` has no line break at its end. Characters that would break or cut the
    // line are written as escapedLine() writes them. Never fails: a log that cannot be written is
    // no reason to stop, and there is nowhere to report it.
    virtual void write(std::string_view line) = 0;

    // Writes the last line before the process ends. A log that holds lines back writes this one
    // all the same.
    virtual void writeLast(std::string_view line) { write(line); }
};

// The text as one line that shows everywhere: each byte of a character that acts on the screen
// (support/VisibleText.h), except for the tab, as "\xHH". For example "\x00" for a zero byte,
// "\x0A" for a line break and "\xE2\x80\xAE" for a mark of direction. For sinks; any thread.
std::string escapedLine(std::string_view line);

// Makes `log` the process's sink and returns the one before it; null means standard error. The
// caller keeps ownership and must install another sink before it destroys this one.
SystemLog* installSystemLog(SystemLog* log);

// Writes one line to the installed sink.
void logToSystem(std::string_view line);

// Writes the last line before the process ends.
void logLastToSystem(std::string_view line);

} // namespace kx
