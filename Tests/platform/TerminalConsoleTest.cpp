#include "platform/posix/TerminalConsole.h"

#include "platform/posix/PollRunLoop.h"
#include "support/Pipe.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <pty.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace kx {

namespace {

// While this object lives, one of the standard descriptors is another one.
class Replaced {
public:
    Replaced(int standard, int other)
        : _standard(standard)
        , _before(::dup(standard)) {
        ::dup2(other, standard);
    }
    ~Replaced() {
        ::dup2(_before, _standard);
        ::close(_before);
    }
    Replaced(const Replaced&) = delete;
    Replaced& operator=(const Replaced&) = delete;

private:
    int _standard;
    int _before;
};

std::string contentsOf(Pipe& pipe) {
    pipe.writingEnd.close();
    std::string text;
    std::array<char, 256> buffer{};
    ssize_t count = 0;
    while ((count = ::read(pipe.readingEnd.number(), buffer.data(), buffer.size())) > 0) {
        text.append(buffer.data(), static_cast<std::size_t>(count));
    }
    return text;
}

std::optional<std::string> lineOf(TerminalConsole& console) {
    PollRunLoop loop;
    std::optional<std::string> result;
    bool isRead = false;
    const auto reading = console.readLine(loop, [&](std::optional<std::string> line) {
        result = std::move(line);
        isRead = true;
    });
    loop.runUntil([&] { return isRead; });
    return result;
}

} // namespace

TEST(TerminalConsole, DataAndWordsGoTheirOwnWays) {
    Pipe output;
    Pipe notes;
    {
        const Replaced out(STDOUT_FILENO, output.writingEnd.number());
        const Replaced err(STDERR_FILENO, notes.writingEnd.number());
        TerminalConsole console;
        console.writeOutput("data\n");
        console.writeNote("words\n");
        EXPECT_FALSE(console.isOutputTerminal());
        EXPECT_FALSE(console.isNoteTerminal());
        EXPECT_FALSE(console.outputError().has_value());
    }
    EXPECT_EQ(contentsOf(output), "data\n");
    EXPECT_EQ(contentsOf(notes), "words\n");
}

TEST(TerminalConsole, AnOutputThatCannotBeWrittenIsKeptInMind) {
    TerminalConsole console;
    {
        const FileDescriptor full(::open("/dev/full", O_WRONLY | O_CLOEXEC));
        const Replaced out(STDOUT_FILENO, full.number());
        console.writeOutput("data");
    }
    ASSERT_TRUE(console.outputError().has_value());
    EXPECT_EQ(console.outputError()->code, ENOSPC);
}

TEST(TerminalConsole, AReaderThatIsGoneIsAnErrorOfItsOwn) {
    const auto before = std::signal(SIGPIPE, SIG_IGN);
    TerminalConsole console;
    {
        Pipe pipe;
        pipe.readingEnd.close();
        const Replaced out(STDOUT_FILENO, pipe.writingEnd.number());
        console.writeOutput("data");
    }
    std::signal(SIGPIPE, before);
    EXPECT_EQ(console.outputError()->code, EPIPE);
}

TEST(TerminalConsole, LinesAreReadOneByOneUntilTheEnd) {
    Pipe input;
    ASSERT_EQ(::write(input.writingEnd.number(), "yes\n\nlast", 9), 9);
    input.writingEnd.close();
    const Replaced in(STDIN_FILENO, input.readingEnd.number());
    TerminalConsole console;
    EXPECT_FALSE(console.isInputTerminal());
    EXPECT_EQ(lineOf(console), "yes");
    EXPECT_EQ(lineOf(console), "");
    EXPECT_EQ(lineOf(console), "last");
    EXPECT_EQ(lineOf(console), std::nullopt);
}

TEST(TerminalConsole, ALineThatNobodyTypesKeepsNothingElseWaiting) {
    const Pipe input;
    const Replaced in(STDIN_FILENO, input.readingEnd.number());
    TerminalConsole console;
    PollRunLoop loop;
    bool isRead = false;
    bool isOver = false;
    const auto reading = console.readLine(loop, [&](const auto&) { isRead = true; });
    const auto moment = loop.callOnceAfter(std::chrono::milliseconds(20), [&] { isOver = true; });
    loop.runUntil([&] { return isOver; });
    EXPECT_FALSE(isRead);
}

TEST(TerminalConsole, ColoursAreForTerminalsThatHaveThemAndPeopleWhoWantThem) {
    const TerminalConsole console;
    ::setenv("TERM", "xterm", 1);
    ::unsetenv("NO_COLOR");
    EXPECT_FALSE(console.isPlain());
    ::setenv("NO_COLOR", "1", 1);
    EXPECT_TRUE(console.isPlain());
    ::unsetenv("NO_COLOR");
    ::setenv("TERM", "dumb", 1);
    EXPECT_TRUE(console.isPlain());
    ::unsetenv("TERM");
    EXPECT_TRUE(console.isPlain());
}

TEST(TerminalConsole, AReaderThatGoesIsSeenWithoutWriting) {
    TerminalConsole console;
    Pipe pipe;
    const Replaced out(STDOUT_FILENO, pipe.writingEnd.number());
    EXPECT_FALSE(console.isReaderGone());
    EXPECT_FALSE(console.outputError().has_value());
    pipe.readingEnd.close();
    EXPECT_TRUE(console.isReaderGone());
    EXPECT_EQ(console.outputError()->code, EPIPE);
}

TEST(TerminalConsole, AFileHasNoReaderWhoCouldGo) {
    const FileDescriptor file(::open("/dev/null", O_WRONLY | O_CLOEXEC));
    const Replaced out(STDOUT_FILENO, file.number());
    TerminalConsole console;
    EXPECT_FALSE(console.isReaderGone());
}

TEST(TerminalConsole, WordsInAPipeCannotBeWrittenOver) {
    Pipe notes;
    const Replaced err(STDERR_FILENO, notes.writingEnd.number());
    EXPECT_FALSE(TerminalConsole().canRewriteNotes());
}

TEST(TerminalConsole, ALentTerminalIsClearedAndNotWrittenOver) {
    int master = -1;
    int terminal = -1;
    ASSERT_EQ(::openpty(&master, &terminal, nullptr, nullptr, nullptr), 0);
    const FileDescriptor person(master);
    const FileDescriptor program(terminal);
    const Replaced err(STDERR_FILENO, program.number());
    ::setenv("TERM", "xterm", 1);
    TerminalConsole console;
    EXPECT_TRUE(console.canRewriteNotes());
    {
        const TerminalConsole::Loan loan(console);
        EXPECT_FALSE(console.canRewriteNotes());
        { const TerminalConsole::Loan again(console); }
        EXPECT_FALSE(console.canRewriteNotes());
    }
    EXPECT_TRUE(console.canRewriteNotes());
    ::unsetenv("TERM");
    std::array<char, 16> seen{};
    const ssize_t count = ::read(person.number(), seen.data(), seen.size());
    EXPECT_EQ(std::string_view(seen.data(), static_cast<std::size_t>(std::max<ssize_t>(count, 0))),
              Console::beginningOfLine);
}

} // namespace kx
