#include "ChildFixture.h"
#include "System Configuration/SystemCallWrappers.h"
#include "support/Error.h"
#include "support/Pipe.h"
#include "support/PlatformException.h"
#include "support/TaskSupport.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <exception>

namespace kx {

namespace {

class ShortTask : public ChildFixture {
protected:
    int run(const std::string& path, const std::vector<std::string>& arguments,
            const std::optional<std::string>& input = std::nullopt) {
        output = untouched;
        return TaskSupport::doShortTaskArgumentsInputShortOutput(path, arguments, input, &output);
    }
    int runScript(const std::string& text, const std::optional<std::string>& input = std::nullopt) {
        return run(shell, script(text), input);
    }

    std::optional<std::string> output;
};

} // namespace

TEST_F(ShortTask, TheStatusAndTheOutputAreTheTools) {
    EXPECT_EQ(runScript("echo one; echo two; exit 3"), 3);
    EXPECT_EQ(output, "one\ntwo\n");
}

TEST_F(ShortTask, AToolThatPrintsNothingLeavesTheOutputUntouched) {
    EXPECT_EQ(runScript("exit 7"), 7);
    EXPECT_EQ(output, untouched);
}

TEST_F(ShortTask, TheOutputNeedNotBeWanted) {
    EXPECT_EQ(TaskSupport::doShortTaskArgumentsInputShortOutput(shell, script("echo text; exit 2"),
                                                                std::nullopt, nullptr),
              2);
}

TEST_F(ShortTask, AToolNeedsNoArguments) {
    EXPECT_EQ(run("/bin/true", {}), 0);
    EXPECT_EQ(run("/bin/false", {}), 1);
}

TEST_F(ShortTask, AToolEndedByASignalHasItsNumberForAStatus) {
    EXPECT_EQ(runScript("echo before; kill -KILL $$"), SIGKILL);
    EXPECT_EQ(output, "before\n");
}

TEST_F(ShortTask, AToolThatIsNotThereIsAnException) {
    try {
        run("/no/such/tool", {});
        ADD_FAILURE() << "it ran";
    } catch (const PlatformException& exception) {
        EXPECT_EQ(exception.reason(), "Could not launch /no/such/tool: No such file or directory");
    }
    EXPECT_EQ(output, untouched);
    EXPECT_THROW(run("/no/such/tool", {}, "input"), PlatformException);
}

TEST_F(ShortTask, TheToolReadsItsInputAndThenTheEnd) {
    EXPECT_EQ(run("/bin/cat", {},
                  "Gr\xC3\xBC\xC3\x9F"
                  "e\n"),
              0);
    EXPECT_EQ(output, "Gr\xC3\xBC\xC3\x9F"
                      "e\n");
    EXPECT_EQ(run("/bin/cat", {}, ""), 0);
    EXPECT_EQ(output, untouched);
}

TEST_F(ShortTask, WithoutInputTheToolSharesThisProcessesOwn) {
    Pipe input;
    ASSERT_EQ(Write(input.writingEnd.number(), "shared\n", 7), 7);
    input.writingEnd.close();
    const FileDescriptor kept(::fcntl(STDIN_FILENO, F_DUPFD_CLOEXEC, 3));
    ::dup2(input.readingEnd.number(), STDIN_FILENO);
    EXPECT_EQ(run("/bin/cat", {}), 0);
    ::dup2(kept.number(), STDIN_FILENO);
    EXPECT_EQ(output, "shared\n");
}

TEST_F(ShortTask, InputThatIsNeverReadDoesNotHangOrBreakAnything) {
    EXPECT_EQ(runScript("exit 4", std::string(65536, 'x')), 4);
    EXPECT_EQ(runScript("exec <&-; echo done", std::string(65536, 'x')), 0);
    EXPECT_EQ(output, "done\n");
}

TEST_F(ShortTask, InputThatDoesNotFitAPipeIsAnExceptionAndNothingRuns) {
    const std::string witness = testing::TempDir() + "kx-short-task-ran";
    EXPECT_THROW(run("/usr/bin/touch", {witness}, std::string(65537, 'x')), PlatformException);
    EXPECT_THROW(run("/usr/bin/touch", {witness}, std::string(5000000, 'x')), PlatformException);
    EXPECT_NE(::access(witness.c_str(), F_OK), 0);
    EXPECT_EQ(output, untouched);
}

TEST_F(ShortTask, OfMegabytesOnlyWhatFitsAPipeIsKeptAndTheToolStillEnds) {
    EXPECT_EQ(runScript("head -c 5000000 /dev/zero | tr '\\0' x; exit 5"), 5);
    EXPECT_EQ(output, std::string(TaskSupport::longestShortOutput, 'x'));
}

TEST_F(ShortTask, ACharacterThatIsCutAtTheEndIsLeftOut) {
    EXPECT_EQ(runScript("printf a; yes '\xC3\xA9' | tr -d '\\n' | head -c 200000"), 0);
    ASSERT_TRUE(output.has_value());
    EXPECT_EQ(output->size(), TaskSupport::longestShortOutput - 1);
    EXPECT_EQ(output->substr(0, 5), "a\xC3\xA9\xC3\xA9");
}

TEST_F(ShortTask, OutputThatIsNotUTF8IsAbsent) {
    EXPECT_EQ(runScript("printf 'a\\377b'"), 0);
    EXPECT_EQ(output, std::nullopt);
    EXPECT_EQ(runScript("printf 'a\\303'"), 0);
    EXPECT_EQ(output, std::nullopt);
}

TEST_F(ShortTask, StandardErrorIsNotRedirected) {
    Pipe error;
    const FileDescriptor kept(::fcntl(STDERR_FILENO, F_DUPFD_CLOEXEC, 3));
    ::dup2(error.writingEnd.number(), STDERR_FILENO);
    const int status = runScript("echo complaint >&2; exit 1");
    ::dup2(kept.number(), STDERR_FILENO);
    EXPECT_EQ(status, 1);
    EXPECT_EQ(output, untouched);
    EXPECT_EQ(textIn(error.readingEnd.number()), "complaint\n");
}

TEST_F(ShortTask, AToolThatClosesItsOutputIsStillWaitedFor) {
    EXPECT_EQ(runScript("echo text; exec >&-; sleep 0.1; exit 6"), 6);
    EXPECT_EQ(output, "text\n");
}

TEST_F(ShortTask, WhatTheToolLeavesRunningIsNotWaitedFor) {
    EXPECT_EQ(runScript("sleep 1000 2>/dev/null & echo $!; exit 8"), 8);
    ASSERT_TRUE(output.has_value());
    const pid_t left = std::stoi(*output);
    EXPECT_EQ(::kill(left, SIGKILL), 0);
}

TEST_F(ShortTask, WhatTheToolLeavesWritingIsNotWaitedForEither) {
    EXPECT_EQ(runScript("yes & exit 9"), 9); // "yes" ends when nobody reads any more
}

TEST_F(ShortTask, WithoutDescriptorsThereIsAnException) {
    posixErrorText(EMFILE); // a sanitizer may need descriptors at its first call
    rlimit before{};
    ASSERT_EQ(::getrlimit(RLIMIT_NOFILE, &before), 0);
    const rlimit none{.rlim_cur = 3, .rlim_max = before.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &none), 0);
    std::exception_ptr failure;
    try {
        TaskSupport::doShortTaskArgumentsInputShortOutput("/bin/true", {}, "input", nullptr);
    } catch (...) {
        failure = std::current_exception();
    }
    ::setrlimit(RLIMIT_NOFILE, &before);
    ASSERT_NE(failure, nullptr);
    try {
        std::rethrow_exception(failure);
    } catch (const PlatformException& exception) {
        EXPECT_EQ(exception.reason(), "No pipe: Too many open files");
    }
}

TEST_F(ShortTask, AThousandRunsLeaveNothingBehind) {
    for (int round = 0; round < 1000; ++round) {
        ASSERT_EQ(run("/bin/echo", {"line"}, "input"), 0);
        ASSERT_EQ(output, "line\n");
    }
}

} // namespace kx
