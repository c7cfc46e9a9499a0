// The endpoint on a host without descriptors, and as a client on a host whose name server does not
// answer. It tells why it stopped, can be stopped at any time, and runs when it is started again.

#include "PrivateNetwork.h"
#include "ReplacedFile.h"
#include "UDPEcho.h"
#include "platform/PollLoopDriver.h"
#include "platform/posix/ThreadHostResolver.h"

#include <gtest/gtest.h>
#include <netdb.h>
#include <sys/resource.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>

namespace kx {

namespace {

constexpr std::size_t port = 3520;

// While this object lives, the process gets no descriptor from this number on.
class DescriptorLimit {
public:
    explicit DescriptorLimit(rlim_t number) {
        ::getrlimit(RLIMIT_NOFILE, &_before);
        const rlimit limit{number, _before.rlim_max};
        EXPECT_EQ(::setrlimit(RLIMIT_NOFILE, &limit), 0);
    }
    ~DescriptorLimit() { ::setrlimit(RLIMIT_NOFILE, &_before); }
    DescriptorLimit(const DescriptorLimit&) = delete;
    DescriptorLimit& operator=(const DescriptorLimit&) = delete;

private:
    rlimit _before{};
};

// The limit that leaves room for one pipe and for nothing else.
rlim_t roomForOnePipe() {
    const Pipe pipe;
    return static_cast<rlim_t>(std::max(pipe.readingEnd.number(), pipe.writingEnd.number())) + 1;
}

std::ptrdiff_t threadCount() {
    const std::filesystem::directory_iterator threads("/proc/self/task");
    return std::distance(begin(threads), end(threads));
}

class Listener final : public UDPEchoDelegate {
public:
    void echoDidStartWithAddress(UDPEcho& /*echo*/, const Bytes& /*address*/) override { ++starts; }
    void echoDidStopWithError(UDPEcho& /*echo*/, const Error& error) override {
        stops.push_back(error);
    }

    int starts = 0;
    std::vector<Error> stops;
};

class EndpointFaults : public testing::Test {
protected:
    // The endpoint runs in both modes first, because the sanitizers use descriptors when they see
    // an object in use for the first time.
    void SetUp() override {
        echo->setDelegate(&listener);
        ASSERT_TRUE(startsAsServer());
        echo->stop();
        ASSERT_TRUE(startsAsClient());
        echo->stop();
        listener.starts = 0;
        // A lookup that has told its result may hold its pipe a little longer.
        runLoopUntil(loop, [] { return threadCount() == 1; });
    }

    bool startsAsServer() {
        echo->startServerOnPort(port);
        return std::exchange(listener.starts, 0) == 1;
    }
    bool startsAsClient() {
        echo->startConnectedToHostNamePort("127.0.0.1", port);
        return runLoopUntil(loop, [this] { return listener.starts == 1; });
    }

    const Error unknownHost{std::string(kCFErrorDomainCFNetwork), kCFHostErrorUnknown, {}};
    PrivateNetwork network;
    PollRunLoop loop;
    ThreadHostResolver resolver{loop};
    DatagramSystemCalls systemCalls;
    Listener listener;
    std::shared_ptr<UDPEcho> echo = UDPEcho::make(loop, resolver, systemCalls);
};

// The name server of this host has an address at which nobody answers.
class EndpointOfASilentNameServer : public EndpointFaults {
protected:
    EndpointOfASilentNameServer() {
        network.addLink("kx0", "02:00:00:00:00:01");
        network.addAddress("kx0", "192.0.2.1/24");
    }

    ReplacedFile nameServers{"/etc/resolv.conf",
                             "nameserver 192.0.2.53\noptions timeout:1 attempts:1\n", 0644};
};

} // namespace

TEST_F(EndpointFaults, WithoutADescriptorAServerStopsWithTheReasonAndRunsWhenStartedAgain) {
    {
        const DescriptorLimit none(0);
        echo->startServerOnPort(port);
    }
    EXPECT_EQ(listener.stops, std::vector<Error>{posixError(EMFILE)});
    EXPECT_EQ(echo->port(), 0U);
    EXPECT_TRUE(startsAsServer());
}

TEST_F(EndpointFaults, WithoutADescriptorAClientCannotResolveAndRunsWhenStartedAgain) {
    {
        const DescriptorLimit none(0);
        echo->startConnectedToHostNamePort("127.0.0.1", port);
    }
    EXPECT_EQ(listener.stops, std::vector<Error>{unknownHost});
    EXPECT_EQ(echo->port(), 0U);
    EXPECT_TRUE(startsAsClient());
}

TEST_F(EndpointFaults,
       AClientThatGetsNoSocketOnceResolvedStopsWithTheReasonAndRunsWhenStartedAgain) {
    {
        const DescriptorLimit onePipe(roomForOnePipe());
        echo->startConnectedToHostNamePort("127.0.0.1", port);
        EXPECT_TRUE(runLoopUntil(loop, [this] { return !listener.stops.empty(); }));
    }
    EXPECT_EQ(listener.stops, std::vector<Error>{posixError(EMFILE)});
    EXPECT_TRUE(startsAsClient());
}

TEST_F(EndpointFaults, AClientWhoseResolverGetsNoDescriptorStopsAndRunsWhenStartedAgain) {
    {
        const DescriptorLimit onePipe(roomForOnePipe());
        echo->startConnectedToHostNamePort("unit.example", port);
        EXPECT_TRUE(runLoopUntil(loop, [this] { return !listener.stops.empty(); }));
    }
    ASSERT_EQ(listener.stops.size(), 1U);
    EXPECT_EQ(listener.stops[0].code, kCFHostErrorUnknown);
    EXPECT_TRUE(startsAsClient());
}

TEST_F(EndpointOfASilentNameServer, TheLoopGoesOnUntilTheClientStopsWithTheResolversCode) {
    echo->startConnectedToHostNamePort("unit.example", port);
    bool hasGoneOn = false;
    const auto timer = loop.callOnceAfter(std::chrono::milliseconds(10), [&] { hasGoneOn = true; });
    EXPECT_TRUE(runLoopUntil(loop, [&] { return hasGoneOn; }));
    EXPECT_TRUE(listener.stops.empty());
    EXPECT_TRUE(runLoopUntil(loop, [this] { return !listener.stops.empty(); }));
    Error unanswered = unknownHost;
    unanswered.userInfo = PropertyDictionary{{std::string(kCFGetAddrInfoFailureKey), EAI_AGAIN}};
    EXPECT_EQ(listener.stops, std::vector<Error>{unanswered});
    EXPECT_TRUE(startsAsClient());
}

TEST_F(EndpointOfASilentNameServer, AClientMayBeStoppedAndStartedAgainWhileItsNameIsLookedUp) {
    echo->startConnectedToHostNamePort("unit.example", port);
    runLoopFor(loop, std::chrono::milliseconds(10));
    echo->stop();
    EXPECT_TRUE(startsAsClient());
    runLoopFor(loop, std::chrono::milliseconds(1500)); // the lookup ends meanwhile
    EXPECT_EQ(listener.starts, 1);
    EXPECT_TRUE(listener.stops.empty());
}

} // namespace kx
