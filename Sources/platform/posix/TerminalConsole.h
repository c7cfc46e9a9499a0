// The standard input, output and error of this process.

#pragma once

#include "support/Console.h"

namespace kx {

class TerminalConsole final : public Console {
public:
    // While this object lives, another program may ask the person at the terminal. Its line is
    // clear, and nothing is written over it.
    class Loan {
    public:
        explicit Loan(TerminalConsole& console);
        ~Loan() { --_console._loans; }
        Loan(const Loan&) = delete;
        Loan& operator=(const Loan&) = delete;

    private:
        TerminalConsole& _console;
    };

    void writeOutput(std::string_view text) override;
    void writeNote(std::string_view text) override;
    const std::optional<Error>& outputError() const override { return _outputError; }
    bool isOutputTerminal() const override;
    bool isNoteTerminal() const override;
    bool isInputTerminal() const override;
    bool canRewriteNotes() const override;
    bool isReaderGone() override;
    bool isPlain() const override;
    RunLoop::Handle readLine(RunLoop& runLoop,
                             std::function<void(std::optional<std::string>)> done) override;

private:
    std::optional<Error> _outputError;
    int _loans = 0; // one inside the other
};

} // namespace kx
