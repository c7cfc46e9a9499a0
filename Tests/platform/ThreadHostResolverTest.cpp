#include "platform/posix/ThreadHostResolver.h"

#include "DescriptorsAtRest.h"
#include "PollLoopDriver.h"
#include "contracts/BrokenContract.h"
#include "contracts/HostResolverContract.h"
#include "doubles/ManualRunLoop.h"

#include <netdb.h>
#include <sys/resource.h>

#include <atomic>
#include <cerrno>
#include <future>
#include <new>
#include <thread>

namespace kx {

namespace {

using std::chrono::milliseconds;

// Longer than any host name, so that no server is asked for it.
const std::string impossibleName(300, 'x');

class ThreadHostResolverTrait {
public:
    HostResolver& resolver() { return _resolver; }
    std::string knownName() { return "localhost"; }
    std::string unknownName() { return impossibleName; }
    bool runUntil(const std::function<bool()>& condition) { return runLoopUntil(_loop, condition); }
    void runAWhile() { runLoopFor(_loop, milliseconds(20)); }

private:
    PollRunLoop _loop;
    ThreadHostResolver _resolver{_loop};
};

INSTANTIATE_TYPED_TEST_SUITE_P(Thread, HostResolverContract, ThreadHostResolverTrait);

// A lookup that takes as long as the test wants.
struct SlowLookup {
    std::promise<void> release;
    std::shared_future<void> released = release.get_future().share();
    std::promise<void> start;

    HostResolution operator()() {
        start.set_value();
        released.wait();
        return {};
    }
};

} // namespace

TEST(ThreadHostResolver, CancellingDoesNotWaitForALookup) {
    PollRunLoop loop;
    const auto descriptorsBefore = descriptorsAtRest(loop);
    const auto lookup = std::make_shared<SlowLookup>();
    auto started = lookup->start.get_future();
    int reports = 0;
    {
        ThreadHostResolver resolver(loop, [lookup](const std::string&) { return (*lookup)(); });
        auto request = resolver.requestForHostName("slow");
        StreamError error;
        ASSERT_TRUE(request->startResolution([&](const HostResolution&) { ++reports; }, error));
        started.wait();
        request.reset(); // must not wait for the lookup that still runs
    }
    lookup->release.set_value();
    runLoopFor(loop, milliseconds(20));
    EXPECT_EQ(reports, 0);
    EXPECT_EQ(descriptorsAtRest(loop), descriptorsBefore);
    EXPECT_EQ(lookup.use_count(), 1);
}

TEST(ThreadHostResolver, TheLoopGoesOnWhileALookupIsSlow) {
    PollRunLoop loop;
    const auto lookup = std::make_shared<SlowLookup>();
    ThreadHostResolver resolver(loop, [lookup](const std::string&) { return (*lookup)(); });
    const auto request = resolver.requestForHostName("slow");
    StreamError error;
    int reports = 0;
    bool timerRan = false;
    ASSERT_TRUE(request->startResolution([&](const HostResolution&) { ++reports; }, error));
    const auto timer = loop.callOnceAfter(milliseconds(5), [&] { timerRan = true; });
    ASSERT_TRUE(runLoopUntil(loop, [&] { return timerRan; }));
    EXPECT_EQ(reports, 0);
    lookup->release.set_value();
    EXPECT_TRUE(runLoopUntil(loop, [&] { return reports == 1; }));
}

TEST(ThreadHostResolver, TheReportComesOnTheThreadOfTheLoop) {
    PollRunLoop loop;
    std::atomic<std::thread::id> lookupThread;
    ThreadHostResolver resolver(loop, [&](const std::string& hostName) {
        lookupThread = std::this_thread::get_id();
        return HostResolution{{}, std::vector<Bytes>{Bytes(hostName.begin(), hostName.end())}};
    });
    const auto request = resolver.requestForHostName("name");
    StreamError error;
    std::thread::id reportThread;
    std::vector<Bytes> addresses;
    ASSERT_TRUE(request->startResolution(
        [&](const HostResolution& resolution) {
            reportThread = std::this_thread::get_id();
            addresses = resolution.addresses.value_or(addresses);
        },
        error));
    ASSERT_TRUE(runLoopUntil(loop, [&] { return !addresses.empty(); }));
    EXPECT_EQ(reportThread, std::this_thread::get_id());
    EXPECT_NE(lookupThread.load(), reportThread);
    EXPECT_EQ(addresses, (std::vector<Bytes>{{'n', 'a', 'm', 'e'}}));
}

TEST(ThreadHostResolver, ManyRequestsLeaveNoDescriptorBehind) {
    PollRunLoop loop;
    const auto descriptorsBefore = descriptorsAtRest(loop);
    ThreadHostResolver resolver(loop);
    int reports = 0;
    {
        std::vector<std::unique_ptr<HostResolver::Request>> requests;
        for (int i = 0; i < 20; ++i) {
            StreamError error;
            requests.push_back(resolver.requestForHostName("127.0.0.1"));
            ASSERT_TRUE(
                requests.back()->startResolution([&](const HostResolution&) { ++reports; }, error));
        }
        EXPECT_TRUE(runLoopUntil(loop, [&] { return reports == 20; }));
    }
    EXPECT_EQ(descriptorsAtRest(loop), descriptorsBefore);
}

TEST(ThreadHostResolver, WithoutADescriptorItSaysWhyItCannotStart) {
    PollRunLoop loop;
    ThreadHostResolver resolver(loop);
    const auto request = resolver.requestForHostName("127.0.0.1");
    rlimit before{};
    ASSERT_EQ(::getrlimit(RLIMIT_NOFILE, &before), 0);
    rlimit none = before;
    none.rlim_cur = 0;
    ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &none), 0);
    StreamError error;
    int reports = 0;
    const bool started = request->startResolution([&](const HostResolution&) { ++reports; }, error);
    ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &before), 0);
    EXPECT_FALSE(started);
    EXPECT_EQ(error.domain, kCFStreamErrorDomainPOSIX);
    EXPECT_EQ(error.code, EMFILE);
    runLoopFor(loop, milliseconds(20));
    EXPECT_EQ(reports, 0);
}

TEST(ThreadHostResolver, WithoutAWatchItCannotStartAndReportsNothing) {
    ManualRunLoop loop;
    loop.refuseToWatch();
    const auto lookups = std::make_shared<std::atomic<int>>(0);
    ThreadHostResolver resolver(loop, [lookups](const std::string&) {
        ++*lookups;
        return HostResolution();
    });
    const auto request = resolver.requestForHostName("name");
    StreamError error;
    int reports = 0;
    EXPECT_FALSE(request->startResolution([&](const HostResolution&) { ++reports; }, error));
    EXPECT_EQ(error.domain, kCFStreamErrorDomainPOSIX);
    EXPECT_EQ(error.code, ENOMEM);
    loop.advanceBy(milliseconds(1000));
    std::this_thread::sleep_for(milliseconds(5)); // time for a thread that should not exist
    EXPECT_EQ(reports, 0);
    EXPECT_EQ(*lookups, 0);
}

TEST(ThreadHostResolver, ARequestThatIsNotStartedLooksNothingUp) {
    PollRunLoop loop;
    const auto lookups = std::make_shared<std::atomic<int>>(0);
    ThreadHostResolver resolver(loop, [lookups](const std::string&) {
        ++*lookups;
        return HostResolution();
    });
    const auto request = resolver.requestForHostName("name");
    runLoopFor(loop, milliseconds(20));
    EXPECT_EQ(*lookups, 0);
}

TEST(ThreadHostResolver, ALookupThatThrowsIsReportedAsWantOfMemory) {
    PollRunLoop loop;
    ThreadHostResolver resolver(
        loop, [](const std::string&) -> HostResolution { throw std::bad_alloc(); });
    const auto request = resolver.requestForHostName("name");
    std::optional<HostResolution> reported;
    StreamError error;
    ASSERT_TRUE(request->startResolution(
        [&](const HostResolution& resolution) { reported = resolution; }, error));
    ASSERT_TRUE(runLoopUntil(loop, [&] { return reported.has_value(); }));
    EXPECT_EQ(reported->error.domain, kCFStreamErrorDomainPOSIX);
    EXPECT_EQ(reported->error.code, ENOMEM);
    EXPECT_FALSE(reported->addresses.has_value());
}

// The statement of a death test runs in a separate process with its own threads. It must not be a
// fork of a process with threads.
TEST(ThreadHostResolverDeathTest, ARequestIsStartedOnce) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto startTwice = [] {
        PollRunLoop loop;
        ThreadHostResolver resolver(loop, [](const std::string&) { return HostResolution(); });
        const auto request = resolver.requestForHostName("name");
        StreamError error;
        request->startResolution([](const HostResolution&) {}, error);
        request->startResolution([](const HostResolution&) {}, error);
    };
    EXPECT_BROKEN_CONTRACT(startTwice(), "!_isStarted",
                           "Sources/platform/posix/ThreadHostResolver");
}

TEST(ThreadHostResolver, AddressesAreRecordsOfBothFamilies) {
    const auto ipv4 = addressesOfHostName("10.1.2.3");
    EXPECT_EQ(ipv4.addresses, std::vector<Bytes>{dataForAddress(0x0A010203U, 0)});
    const auto ipv6 = addressesOfHostName("::1");
    EXPECT_EQ(ipv6.addresses, std::vector<Bytes>{dataForAddress6(
                                  {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1}, 0)});
}

TEST(ThreadHostResolver, ResolverCodesAndSystemErrorsHaveTheirOwnDomains) {
    const auto unknown = failedResolution(EAI_NONAME, EIO);
    EXPECT_EQ(unknown.error.domain, kCFStreamErrorDomainNetDB);
    EXPECT_EQ(unknown.error.code, EAI_NONAME);
    EXPECT_FALSE(unknown.addresses.has_value());
    const auto system = failedResolution(EAI_SYSTEM, EIO);
    EXPECT_EQ(system.error.domain, kCFStreamErrorDomainPOSIX);
    EXPECT_EQ(system.error.code, EIO);
    EXPECT_FALSE(system.addresses.has_value());
}

} // namespace kx
