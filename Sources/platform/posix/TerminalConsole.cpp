#include "platform/posix/TerminalConsole.h"

#include <poll.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <utility>

namespace kx {

namespace {

// 0, or the value of errno of the write that failed.
int writeWhole(int descriptor, std::string_view text) {
    while (!text.empty()) {
        const ssize_t count = ::write(descriptor, text.data(), text.size());
        if (count < 0 && errno != EINTR) {
            return errno;
        }
        if (count > 0) {
            text.remove_prefix(static_cast<std::size_t>(count));
        }
    }
    return 0;
}

std::string_view environment(const char* name) {
    const char* const value = std::getenv(name); // no other thread of ours sets one
    return value != nullptr ? value : std::string_view();
}

// The terminal knows no escape sequences.
bool isDumb() {
    return environment("TERM").empty() || environment("TERM") == "dumb";
}

} // namespace

TerminalConsole::Loan::Loan(TerminalConsole& console)
    : _console(console) {
    if (_console.canRewriteNotes()) {
        _console.writeNote(beginningOfLine);
    }
    ++_console._loans;
}

void TerminalConsole::writeOutput(std::string_view text) {
    if (_outputError.has_value()) {
        return;
    }
    const int error = writeWhole(STDOUT_FILENO, text);
    if (error != 0) {
        _outputError = posixError(error);
    }
}

void TerminalConsole::writeNote(std::string_view text) {
    writeWhole(STDERR_FILENO, text);
}

bool TerminalConsole::isOutputTerminal() const {
    return ::isatty(STDOUT_FILENO) == 1;
}

bool TerminalConsole::isNoteTerminal() const {
    return ::isatty(STDERR_FILENO) == 1;
}

bool TerminalConsole::isInputTerminal() const {
    return ::isatty(STDIN_FILENO) == 1;
}

bool TerminalConsole::canRewriteNotes() const {
    return isNoteTerminal() && !isDumb() && _loans == 0;
}

bool TerminalConsole::isReaderGone() {
    pollfd output{.fd = STDOUT_FILENO, .events = 0, .revents = 0};
    if (!_outputError.has_value() && ::poll(&output, 1, 0) == 1 &&
        (output.revents & (POLLERR | POLLHUP)) != 0) {
        _outputError = posixError(EPIPE);
    }
    return _outputError.has_value();
}

bool TerminalConsole::isPlain() const {
    return !environment("NO_COLOR").empty() || isDumb();
}

// Reads one character in a turn, so what comes after the line stays with the system.
RunLoop::Handle TerminalConsole::readLine(RunLoop& runLoop,
                                          std::function<void(std::optional<std::string>)> done) {
    return runLoop.watchForReading(STDIN_FILENO, [line = std::string(), done]() mutable {
        char character = 0;
        const ssize_t count = ::read(STDIN_FILENO, &character, 1);
        if (count < 0 && errno == EINTR) {
            return;
        }
        if (count == 1 && character != '\n') {
            line += character;
            return;
        }
        done(count == 1 || !line.empty() ? std::optional(std::move(line)) : std::nullopt);
    });
}

} // namespace kx
