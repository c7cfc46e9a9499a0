// The test doubles keep the contracts of the seams that they stand for.

#include "contracts/AuthorizationServiceContract.h"
#include "contracts/BrokenContract.h"
#include "contracts/DatagramSystemCallsContract.h"
#include "contracts/HostResolverContract.h"
#include "contracts/LocalizedTextContract.h"
#include "contracts/ReceiveBufferControlContract.h"
#include "contracts/RunLoopCallsContract.h"
#include "contracts/RunLoopContract.h"
#include "contracts/RunLoopHoldsContract.h"
#include "contracts/RunLoopWatchesContract.h"
#include "contracts/SystemLogContract.h"
#include "contracts/WaitingContract.h"
#include "contracts/WallClockContract.h"
#include "doubles/FixedWallClock.h"
#include "doubles/ImpatientWaiting.h"
#include "doubles/ManualRunLoop.h"
#include "doubles/RecordedSystemLog.h"
#include "doubles/ScriptedAuthorizationService.h"
#include "doubles/ScriptedHostResolver.h"
#include "doubles/ScriptedLocalizedText.h"
#include "doubles/ScriptedReceiveBufferControl.h"
#include "doubles/ScriptedSystemCalls.h"

#include <netdb.h>

namespace kx {

namespace {

class ManualRunLoopTrait {
public:
    RunLoop& runLoop() { return _loop; }
    int newDescriptor() { return _nextDescriptor++; }
    // Every number from 0 on counts as open.
    std::vector<int> closedDescriptors() { return {-1}; }
    void setReadable(int descriptor, bool readable) { _loop.setReadable(descriptor, readable); }
    bool runUntil(const std::function<bool()>& condition) {
        for (int turn = 0; turn < 1000 && !condition(); ++turn) {
            _loop.runOneTurn();
            if (!condition()) {
                _loop.advanceBy(std::chrono::milliseconds(1));
            }
        }
        return condition();
    }
    void runFor(std::chrono::milliseconds time) { _loop.advanceBy(time); }
    std::chrono::nanoseconds now() { return _loop.now(); }

private:
    ManualRunLoop _loop;
    int _nextDescriptor = 1000;
};

class ImpatientWaitingTrait {
public:
    Waiting& waiting() { return _waiting; }
    void giveUpInTheNextWait() { _waiting.patience = std::chrono::milliseconds(50); }
    void run(const std::function<void()>& test) { test(); }

private:
    ImpatientWaiting _waiting;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Impatient, WaitingContract, ImpatientWaitingTrait);

class ScriptedAuthorizationTrait {
public:
    AuthorizationService& service() { return _service; }
    std::string tool() { return "/bin/tool"; }
    std::vector<std::string> arguments() { return {"-x"}; }
    int status() { return 3; }
    std::string absentTool() {
        _service.startToolsWith(errAuthorizationToolExecuteFailure);
        return "/no/such/tool";
    }
    bool runUntil(const std::function<bool()>& condition) {
        runAWhile();
        return condition();
    }
    void runAWhile() { _service.endTools(status()); }

private:
    ScriptedAuthorizationService _service;
};

class ScriptedHostResolverTrait {
public:
    ScriptedHostResolverTrait() {
        _resolver.setAddresses(knownName(),
                               {dataForAddress6({}, 0), dataForAddress(0x7F000001U, 0)});
        _resolver.setError(unknownName(), {kCFStreamErrorDomainNetDB, EAI_NONAME});
    }
    HostResolver& resolver() { return _resolver; }
    std::string knownName() { return "known"; }
    std::string unknownName() { return "unknown"; }
    bool runUntil(const std::function<bool()>& condition) {
        for (int turn = 0; turn < 10 && !condition(); ++turn) {
            _resolver.reportAnswers();
        }
        return condition();
    }
    void runAWhile() { _resolver.reportAnswers(); }

private:
    ScriptedHostResolver _resolver;
};

class ScriptedSystemCallsTrait {
public:
    DatagramSystemCalls& systemCalls() { return _calls; }
    ScriptedSystemCallsTrait() { _calls.addLink(linkName(), link()); }

    Bytes freeAddress() { return dataForAddress(0x7F000001U, _nextPort++); }
    Bytes deliver(int /*descriptor*/, const Bytes& data) {
        Bytes sender = dataForAddress(0x0A000002U, 3520);
        _calls.queueDatagram(data, sender, link(), 0x7F000001U);
        return sender;
    }
    std::uint32_t link() { return 3; }
    std::string linkName() { return "kx0"; }

private:
    ScriptedSystemCalls _calls;
    std::uint16_t _nextPort = 49152;
};

class ScriptedReceiveBufferControlTrait {
public:
    ReceiveBufferControl& buffers() { return _buffers; }
    int newSocket() { return _nextDescriptor++; }
    int closedDescriptor() { return -2; }
    std::uint32_t overflow(int descriptor) {
        constexpr std::uint32_t lost = 17;
        _buffers.drop(descriptor, lost);
        return lost;
    }

private:
    ScriptedReceiveBufferControl _buffers;
    int _nextDescriptor = 1000;
};

class RecordedSystemLogTrait {
public:
    SystemLog& log() { return _log; }
    std::vector<std::string> lines() { return _log.lines(); }

private:
    RecordedSystemLog _log;
};

class FixedWallClockTrait {
public:
    const WallClock& clock() { return _clock; }

private:
    FixedWallClock _clock{2024, 2, 29, 23, 59, 58};
};

class ScriptedLocalizedTextTrait {
public:
    const LocalizedText& source() { return _source; }
    void setTranslation(std::string key, std::string translation) {
        _source.setTranslation(std::move(key), std::move(translation));
    }

private:
    ScriptedLocalizedText _source;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Scripted, AuthorizationServiceContract, ScriptedAuthorizationTrait);
INSTANTIATE_TYPED_TEST_SUITE_P(Manual, RunLoopContract, ManualRunLoopTrait);
INSTANTIATE_TYPED_TEST_SUITE_P(Manual, RunLoopCallsContract, ManualRunLoopTrait);
INSTANTIATE_TYPED_TEST_SUITE_P(Manual, RunLoopWatchesContract, ManualRunLoopTrait);
INSTANTIATE_TYPED_TEST_SUITE_P(Manual, RunLoopHoldsContract, ManualRunLoopTrait);
INSTANTIATE_TYPED_TEST_SUITE_P(Scripted, HostResolverContract, ScriptedHostResolverTrait);
INSTANTIATE_TYPED_TEST_SUITE_P(Scripted, DatagramSystemCallsContract, ScriptedSystemCallsTrait);
INSTANTIATE_TYPED_TEST_SUITE_P(Scripted, ReceiveBufferControlContract,
                               ScriptedReceiveBufferControlTrait);
INSTANTIATE_TYPED_TEST_SUITE_P(Recorded, SystemLogContract, RecordedSystemLogTrait);
INSTANTIATE_TYPED_TEST_SUITE_P(Fixed, WallClockContract, FixedWallClockTrait);
INSTANTIATE_TYPED_TEST_SUITE_P(Scripted, LocalizedTextContract, ScriptedLocalizedTextTrait);

} // namespace

// --- Behaviour that only the doubles have ---

TEST(ManualRunLoop, TheClockStopsAtEachDueTimeOnTheWay) {
    ManualRunLoop loop;
    std::vector<long> times;
    const auto note = [&] { times.push_back(loop.now().count()); };
    RunLoop::Handle inner;
    const auto late = loop.callOnceAfter(std::chrono::seconds(2), note);
    const auto early = loop.callOnceAfter(std::chrono::seconds(1), [&] {
        note();
        inner = loop.callOnceAfter(std::chrono::milliseconds(500), note);
    });
    loop.advanceBy(std::chrono::milliseconds(1999));
    EXPECT_EQ(times, (std::vector<long>{1000, 1500}));
    EXPECT_EQ(loop.pendingCallCount(), 1U);
    loop.advanceBy(std::chrono::milliseconds(1));
    EXPECT_EQ(times, (std::vector<long>{1000, 1500, 2000}));
    EXPECT_EQ(loop.pendingCallCount(), 0U);
}

TEST(ManualRunLoop, MakingADescriptorReadableIsOneTurn) {
    ManualRunLoop loop;
    int calls = 0;
    auto watch = loop.watchForReading(1000, [&] { ++calls; });
    EXPECT_TRUE(loop.isWatching(1000));
    EXPECT_EQ(loop.watchCount(), 1U);
    loop.makeReadable(1001);
    EXPECT_EQ(calls, 0);
    loop.makeReadable(1000);
    loop.advanceBy(std::chrono::seconds(1));
    EXPECT_EQ(calls, 1);
    watch.reset();
    EXPECT_EQ(loop.watchCount(), 0U);
}

TEST(ManualRunLoop, CanRefuseToWatch) {
    ManualRunLoop loop;
    loop.refuseToWatch();
    EXPECT_EQ(loop.watchForReading(1000, [] {}), nullptr);
}

TEST(ScriptedHostResolver, RemembersWhatWasStartedAndWhatWasCancelled) {
    ScriptedHostResolver resolver;
    resolver.setAddresses("answered", {});
    StreamError error;
    auto answered = resolver.requestForHostName("answered");
    auto cancelled = resolver.requestForHostName("cancelled");
    ASSERT_TRUE(answered->startResolution([](const HostResolution&) {}, error));
    ASSERT_TRUE(cancelled->startResolution([](const HostResolution&) {}, error));
    EXPECT_EQ(resolver.startedNames(), (std::vector<std::string>{"answered", "cancelled"}));
    resolver.reportAnswers();
    EXPECT_EQ(resolver.pendingCount(), 1U);
    EXPECT_EQ(resolver.requestCount(), 2U);
    answered.reset();
    cancelled.reset();
    EXPECT_EQ(resolver.requestCount(), 0U);
    EXPECT_EQ(resolver.cancelledNames(), std::vector<std::string>{"cancelled"});
}

TEST(ScriptedHostResolverDeathTest, ARequestIsStartedOnce) {
    ScriptedHostResolver resolver;
    StreamError error;
    const auto request = resolver.requestForHostName("name");
    ASSERT_TRUE(request->startResolution([](const HostResolution&) {}, error));
    EXPECT_BROKEN_CONTRACT(request->startResolution([](const HostResolution&) {}, error),
                           "!_isStarted", "Tests/doubles/ScriptedHostResolver");
}

TEST(ScriptedHostResolver, CanRefuseToStart) {
    ScriptedHostResolver resolver;
    resolver.refuseToStart({kCFStreamErrorDomainPOSIX, EAGAIN});
    StreamError error;
    EXPECT_FALSE(
        resolver.requestForHostName("name")->startResolution([](const HostResolution&) {}, error));
    EXPECT_EQ(error.code, EAGAIN);
    EXPECT_EQ(resolver.pendingCount(), 0U);
}

TEST(RecordedSystemLog, IsTheProcessLogWhileItLives) {
    RecordedSystemLog outer;
    {
        RecordedSystemLog inner;
        logToSystem("inside");
        EXPECT_TRUE(inner.contains("insid"));
    }
    logToSystem("outside");
    EXPECT_EQ(outer.lines(), std::vector<std::string>{"outside"});
    EXPECT_FALSE(outer.contains("inside"));
}

} // namespace kx
