#include "ChildFixture.h"
#include "doubles/ManualRunLoop.h"
#include "doubles/RecordedSystemLog.h"
#include "platform/posix/PollRunLoop.h"
#include "support/Pipe.h"
#include "support/PlatformException.h"
#include "support/TaskSupport.h"

#include <fcntl.h>
#include <unistd.h>

#include <csignal>
#include <stdexcept>
#include <utility>

namespace kx {

namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

class PipedTask : public ChildFixture {
protected:
    int run(const std::string& path, const std::vector<std::string>& arguments) {
        return TaskSupport::doPipedTaskArgumentsOutput(path, arguments, output.writingEnd.number(),
                                                       loop);
    }

    // The tool's whole output, read after every writing end is closed.
    std::string written() {
        output.writingEnd.close();
        std::string text;
        for (std::string part; !(part = textIn(output.readingEnd.number())).empty();) {
            text += part;
        }
        return text;
    }

    Pipe output;
    PollRunLoop loop;
    RecordedSystemLog log;
};

// A real loop in which the ten seconds are over as soon as the tool writes its first word. So no
// test has to wait for them, and no test terminates a tool that is not prepared.
class ShortTenSeconds final : public RunLoop {
public:
    explicit ShortTenSeconds(int toolOutput)
        : _toolOutput(toolOutput) {}

    Handle watchForReading(int descriptor, std::function<void()> readable) override {
        return _loop.watchForReading(descriptor, std::move(readable));
    }
    Handle callOnceAfter(milliseconds delay, std::function<void()> call) override {
        if (delay < seconds(10)) {
            return _loop.callOnceAfter(delay, std::move(call));
        }
        EXPECT_EQ(delay, seconds(10));
        return _loop.watchForReading(_toolOutput, [this, call = std::move(call)] {
            words += textIn(_toolOutput);
            call();
        });
    }
    void runUntil(const std::function<bool()>& isDone) override { _loop.runUntil(isDone); }
    Handle holdCallbacks() override { return _loop.holdCallbacks(); }

    std::string words;

private:
    int _toolOutput;
    PollRunLoop _loop;
};

} // namespace

TEST_F(PipedTask, TheStatusIsTheTools) {
    EXPECT_EQ(run(shell, script("exit 3")), 3);
    EXPECT_EQ(run("/bin/true", {}), 0);
    EXPECT_EQ(run(shell, script("kill -KILL $$")), SIGKILL);
    EXPECT_TRUE(log.lines().empty());
}

TEST_F(PipedTask, BothStreamsGoToTheOutput) {
    EXPECT_EQ(run(shell, script("echo out; echo err >&2")), 0);
    EXPECT_EQ(written(), "out\nerr\n");
}

TEST_F(PipedTask, TheOutputNeedNotBeGiven) {
    EXPECT_EQ(TaskSupport::doPipedTaskArgumentsOutput(shell, script("exit 2"), std::nullopt, loop),
              2);
}

TEST_F(PipedTask, AToolThatIsNotThereIsLogged) {
    EXPECT_EQ(run("/no/such/tool", {}), -1);
    EXPECT_EQ(log.lines(), std::vector<std::string>{
                               "Exception during AppSupport +doTask: /no/such/tool, reason: "
                               "Could not launch /no/such/tool: No such file or directory"});
}

TEST_F(PipedTask, TheLoopRunsWhileTheToolDoes) {
    Pipe toTool;
    const auto call = loop.callOnceAfter(milliseconds(1), [&] { toTool.writingEnd.close(); });
    // The tool shares this process's input, which ends only after the call.
    const FileDescriptor kept(::fcntl(STDIN_FILENO, F_DUPFD_CLOEXEC, 3));
    ::dup2(toTool.readingEnd.number(), STDIN_FILENO);
    EXPECT_EQ(run("/bin/cat", {}), 0);
    ::dup2(kept.number(), STDIN_FILENO);
}

TEST_F(PipedTask, AToolThatRunsForTenSecondsIsTerminated) {
    ManualRunLoop manual;
    EXPECT_EQ(TaskSupport::doPipedTaskArgumentsOutput("/bin/sleep", {"1000"}, std::nullopt, manual),
              SIGTERM);
    EXPECT_GE(manual.now(), seconds(10));
    EXPECT_EQ(manual.pendingCallCount(), 0U);
    EXPECT_TRUE(log.lines().empty());
}

TEST_F(PipedTask, AToolThatIsDoneInTimeIsNotTerminatedLater) {
    EXPECT_EQ(run("/bin/true", {}), 0);
    EXPECT_FALSE(loop.runOnce(milliseconds(1)));
    ManualRunLoop manual;
    TaskSupport::doPipedTaskArgumentsOutput("/bin/true", {}, std::nullopt, manual);
    EXPECT_EQ(manual.pendingCallCount(), 0U);
}

TEST_F(PipedTask, ATerminatedToolMayEndInItsOwnWay) {
    ShortTenSeconds quick(output.readingEnd.number());
    EXPECT_EQ(TaskSupport::doPipedTaskArgumentsOutput(
                  shell, script("trap 'exit 6' TERM; echo ready; while :; do sleep 0.02; done"),
                  output.writingEnd.number(), quick),
              6);
    EXPECT_EQ(quick.words, "ready\n");
}

TEST_F(PipedTask, AToolThatRefusesToBeTerminatedIsWaitedFor) {
    ShortTenSeconds quick(output.readingEnd.number());
    EXPECT_EQ(TaskSupport::doPipedTaskArgumentsOutput(
                  shell,
                  script("trap '' TERM; echo ready; sleep 0.2; kill -TERM $$; echo ended; exit 7"),
                  output.writingEnd.number(), quick),
              7);
    EXPECT_EQ(quick.words + written(), "ready\nended\n");
}

TEST_F(PipedTask, TenRealSecondsEndATool) {
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(run("/bin/sleep", {"1000"}), SIGTERM);
    EXPECT_GE(std::chrono::steady_clock::now() - start, seconds(10));
}

TEST_F(PipedTask, AnExceptionOfTheLoopsCallbacksIsLogged) {
    const auto call = loop.callOnceAfter(milliseconds(0),
                                         [] { throw PlatformException("a callback went wrong"); });
    EXPECT_EQ(run("/bin/sleep", {"0.2"}), -1);
    EXPECT_EQ(log.lines(), std::vector<std::string>{"Exception during AppSupport +doTask: "
                                                    "/bin/sleep, reason: a callback went wrong"});
    EXPECT_TRUE(waitUntil(hasNoChild));
}

TEST_F(PipedTask, OtherExceptionsPass) {
    const auto call =
        loop.callOnceAfter(milliseconds(0), [] { throw std::runtime_error("something else"); });
    EXPECT_THROW(run("/bin/sleep", {"0.2"}), std::runtime_error);
    EXPECT_TRUE(log.lines().empty());
    EXPECT_TRUE(waitUntil(hasNoChild));
}

} // namespace kx
