#include "ChildFixture.h"
#include "support/PlatformException.h"
#include "support/TaskSupport.h"

#include <unistd.h>

#include <csignal>

namespace kx {

namespace {

class Task : public ChildFixture {
protected:
    int run(const std::string& path, const std::vector<std::string>& arguments,
            const std::optional<std::string>& input = std::nullopt) {
        output = untouched;
        error = untouched;
        return TaskSupport::doTaskArgumentsInputOutputError(path, arguments, input, &output,
                                                            &error);
    }
    int runScript(const std::string& text, const std::optional<std::string>& input = std::nullopt) {
        return run(shell, script(text), input);
    }

    std::optional<std::string> output;
    std::optional<std::string> error;
};

std::string repeated(const std::string& text, int times) {
    std::string result;
    for (int i = 0; i < times; ++i) {
        result += text;
    }
    return result;
}

} // namespace

TEST_F(Task, TheStatusAndBothOutputsAreTheTools) {
    EXPECT_EQ(runScript("echo out; echo err >&2; exit 3"), 3);
    EXPECT_EQ(output, "out\n");
    EXPECT_EQ(error, "err\n");
}

TEST_F(Task, AToolThatPrintsNothingGivesAnEmptyOutputAndLeavesTheErrorUntouched) {
    EXPECT_EQ(runScript("exit 7"), 7);
    EXPECT_EQ(output, "");
    EXPECT_EQ(error, untouched);
}

TEST_F(Task, EitherOutputNeedNotBeWanted) {
    EXPECT_EQ(TaskSupport::doTaskArgumentsInputOutputError(shell, script("echo out; exit 1"), {},
                                                           &output, nullptr),
              1);
    EXPECT_EQ(output, "out\n");
    EXPECT_EQ(TaskSupport::doTaskArgumentsInputOutputError(shell, script("echo err >&2; exit 2"),
                                                           {}, nullptr, &error),
              2);
    EXPECT_EQ(error, "err\n");
    EXPECT_EQ(
        TaskSupport::doTaskArgumentsInputOutputError(shell, script("exit 3"), {}, nullptr, nullptr),
        3);
}

TEST_F(Task, AToolEndedByASignalHasItsNumberForAStatus) {
    EXPECT_EQ(runScript("echo before; kill -KILL $$"), SIGKILL);
    EXPECT_EQ(output, "before\n");
}

TEST_F(Task, AToolThatIsNotThereIsAnException) {
    EXPECT_THROW(run("/no/such/tool", {}), PlatformException);
    EXPECT_THROW(run("/no/such/tool", {}, "input"), PlatformException);
    EXPECT_EQ(output, untouched);
    EXPECT_EQ(error, untouched);
}

TEST_F(Task, TheToolReadsItsInputAndThenTheEnd) {
    EXPECT_EQ(runScript("cat; echo end", "line\n"), 0);
    EXPECT_EQ(output, "line\nend\n");
}

TEST_F(Task, InputThatIsNeverReadDoesNotHangOrBreakAnything) {
    EXPECT_EQ(runScript("exec <&-; exit 4", std::string(65536, 'x')), 4);
}

TEST_F(Task, InputThatDoesNotFitAPipeIsAnExceptionAndNothingRuns) {
    const std::string witness = testing::TempDir() + "kx-task-ran";
    EXPECT_THROW(run("/usr/bin/touch", {witness}, std::string(65537, 'x')), PlatformException);
    EXPECT_NE(::access(witness.c_str(), F_OK), 0);
}

TEST_F(Task, MegabytesOfOutputArriveWhole) {
    EXPECT_EQ(runScript("yes 'a line' | head -n 700000; exit 5"), 5);
    EXPECT_EQ(output, repeated("a line\n", 700000));
    EXPECT_EQ(error, untouched);
}

TEST_F(Task, MegabytesOfErrorsArriveWhole) {
    EXPECT_EQ(runScript("yes 'a line' | head -n 700000 >&2; exit 5"), 5);
    EXPECT_EQ(output, "");
    EXPECT_EQ(error, repeated("a line\n", 700000));
    EXPECT_EQ(TaskSupport::doTaskArgumentsInputOutputError(
                  shell, script("yes 'a line' | head -n 700000 >&2; exit 6"), {}, nullptr, &error),
              6);
    EXPECT_EQ(error, repeated("a line\n", 700000));
}

TEST_F(Task, MegabytesOfBothArriveWhole) {
    EXPECT_EQ(runScript("yes err | head -n 500000 >&2; yes out | head -n 500000;"
                        "yes err | head -n 500000 >&2; exit 5"),
              5);
    EXPECT_EQ(output, repeated("out\n", 500000));
    EXPECT_EQ(error, repeated("err\n", 1000000));
}

TEST_F(Task, CharactersThatTwoChunksShareArePutTogether) {
    EXPECT_EQ(runScript("printf a; yes '\xE2\x82\xAC\xC3\xA9\xF0\x9F\x99\x82' | tr -d '\\n' | "
                        "head -c 900000"),
              0);
    EXPECT_EQ(output, "a" + repeated("\xE2\x82\xAC\xC3\xA9\xF0\x9F\x99\x82", 100000));
    EXPECT_EQ(runScript("printf 'a\\303'; sleep 0.1; printf '\\251b'"), 0);
    EXPECT_EQ(output, "a\xC3\xA9"
                      "b");
}

TEST_F(Task, AChunkThatIsNotUTF8AddsNothing) {
    // The system never splits so few bytes, so chunks of 512 bytes arrive.
    EXPECT_EQ(run("/bin/cat", {}, std::string(512, 'x') + '\xFF' + std::string(511, 'y') + "end"),
              0);
    EXPECT_EQ(output, std::string(512, 'x') + "end");
}

TEST_F(Task, ACharacterWithoutItsEndIsLeftOut) {
    EXPECT_EQ(runScript("printf 'text\\342\\202'"), 0);
    EXPECT_EQ(output, "text");
}

TEST_F(Task, ErrorsThatAreNotUTF8AreAbsent) {
    EXPECT_EQ(runScript("printf 'a\\377b' >&2"), 0);
    EXPECT_EQ(error, std::nullopt);
}

TEST_F(Task, AToolThatClosesItsOutputsIsStillWaitedFor) {
    EXPECT_EQ(runScript("echo out; exec >&- 2>&-; sleep 0.1; exit 6"), 6);
    EXPECT_EQ(output, "out\n");
}

TEST_F(Task, WhatTheToolLeavesWritingIsReadToItsEnd) {
    EXPECT_EQ(runScript("(sleep 0.1; echo late; echo later >&2) & exit 8"), 8);
    EXPECT_EQ(output, "late\n");
    EXPECT_EQ(error, "later\n");
}

TEST_F(Task, AHundredRunsLeaveNothingBehind) {
    for (int round = 0; round < 100; ++round) {
        ASSERT_EQ(runScript("echo out; echo err >&2", "input"), 0);
        ASSERT_EQ(output, "out\n");
        ASSERT_EQ(error, "err\n");
    }
}

} // namespace kx
