// The terminal or the files that a program of the command line reads and writes.
//
// Threading: main thread only. Ownership: users of a console do not own it; it must outlive them.
// Texts are UTF-8.

#pragma once

#include "support/Error.h"
#include "support/RunLoop.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace kx {

class Console {
public:
    // Where words can be written over, this begins the line anew, with nothing on it.
    static constexpr std::string_view beginningOfLine = "\r\x1b[K";

    virtual ~Console() = default;

    // Writes data to standard output, whole and at once. After a failure nothing more is written.
    virtual void writeOutput(std::string_view text) = 0;

    // Writes words to standard error. What cannot be written is lost.
    virtual void writeNote(std::string_view text) = 0;

    // Why standard output could not be written; absent while it could be.
    virtual const std::optional<Error>& outputError() const = 0;

    virtual bool isOutputTerminal() const = 0;
    virtual bool isNoteTerminal() const = 0;
    virtual bool isInputTerminal() const = 0;

    // Standard error is a terminal on which a line can be written over now. No other program asks
    // the person there meanwhile.
    virtual bool canRewriteNotes() const = 0;

    // Whoever reads standard output has gone. It counts as a failure to write then.
    virtual bool isReaderGone() = 0;

    // Whether the person wants no colours (no-color.org), or the terminal has none.
    virtual bool isPlain() const = 0;

    // Reads one line from standard input while the loop runs, and calls `done` once with it,
    // without its line break; absent at the end of the input. Destroying the handle ends the
    // reading. Null when standard input cannot be watched. One reading at a time.
    virtual RunLoop::Handle readLine(RunLoop& runLoop,
                                     std::function<void(std::optional<std::string> line)> done) = 0;
};

} // namespace kx
