// The sockets of the diagnosis on real links, and what the host tells about itself.

#include "PrivateNetwork.h"
#include "platform/linux/LinuxDiagnosticSockets.h"
#include "platform/linux/LinuxHostDiagnostics.h"
#include "platform/linux/LinuxNeighbourTable.h"
#include "platform/posix/PollRunLoop.h"

#include <gtest/gtest.h>
#include <net/if.h>

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <string>
#include <vector>

namespace kx {

namespace {

constexpr std::uint32_t ownAddress = 0xC0000201U;  // 192.0.2.1
constexpr std::uint32_t unitAddress = 0xC000020BU; // 192.0.2.11
constexpr std::uint32_t everybody = 0xFFFFFFFFU;

struct Heard {
    std::string text;
    std::uint32_t sender = 0;
    std::uint16_t port = 0;
};

class DiagnosticSocketsTest : public testing::Test {
protected:
    DiagnosticSocketsTest() {
        network.addLink("kx0", "02:00:00:00:00:01");
        network.addAddress("kx0", "192.0.2.1/24");
    }

    std::unique_ptr<DiagnosticSocket> open(const std::string& interface, std::uint16_t port = 0) {
        return sockets.open(
            calls, {.interface = interface, .port = port},
            {.received =
                 [this](ByteView data, std::uint32_t sender, std::uint16_t from) {
                     heard.push_back({{data.begin(), data.end()}, sender, from});
                 },
             .failed = [this](const DeliveryFailure& failure) { failures.push_back(failure); }});
    }

    bool runUntil(const std::function<bool()>& isDone) {
        return eventually([&] {
            runLoop.runOnce(std::chrono::milliseconds(20));
            return isDone();
        });
    }

    PrivateNetwork network;
    PollRunLoop runLoop;
    DatagramSystemCalls calls;
    LinuxDiagnosticSockets sockets{runLoop};
    LinuxHostDiagnostics host;
    std::vector<Heard> heard;
    std::vector<DeliveryFailure> failures;
};

} // namespace

TEST_F(DiagnosticSocketsTest, APortThatIsTakenIsRefused) {
    const auto first = open("", 3521);
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(first->port(), 3521);
    EXPECT_EQ(open("", 3521), nullptr);
    EXPECT_EQ(open("no such link"), nullptr);
}

TEST_F(DiagnosticSocketsTest, TheLimitedBroadcastLeavesByTheInterfaceWithoutAnyRoute) {
    const auto unbound = open("");
    const auto bound = open("kx0");
    ASSERT_NE(bound, nullptr);
    EXPECT_NE(bound->port(), 0);
    EXPECT_EQ(unbound->send("x", {.address = everybody, .port = 3520}), posixError(ENETUNREACH));
    EXPECT_EQ(bound->send("x", {.address = everybody, .port = 3520}), std::nullopt);
}

TEST_F(DiagnosticSocketsTest, TheSendersOwnBroadcastComesBackToAListener) {
    const auto listener = open("", 3520);
    const auto sender = open("kx0");
    EXPECT_TRUE(runUntil([&] {
        sender->send("^^IdX", {.address = everybody, .port = 3520});
        return !heard.empty();
    }));
    EXPECT_EQ(heard.front().text, "^^IdX");
    EXPECT_EQ(heard.front().sender, ownAddress);
    EXPECT_EQ(heard.front().port, sender->port());
}

TEST_F(DiagnosticSocketsTest, APortThatNobodyReadsIsReportedAndTheNextRequestLeaves) {
    const auto socket = open("");
    ASSERT_EQ(socket->send("x", {.address = ownAddress, .port = 9}), std::nullopt);
    ASSERT_TRUE(runUntil([&] { return !failures.empty(); }));
    EXPECT_EQ(failures.front().error, ECONNREFUSED);
    EXPECT_EQ(failures.front().destination, ownAddress);
    EXPECT_EQ(failures.front().reporter, ownAddress);
    ASSERT_EQ(socket->send("x", {.address = ownAddress, .port = 9}), std::nullopt);
    EXPECT_EQ(socket->send("x", {.address = ownAddress, .port = 9}), std::nullopt)
        << "an error that waits does not fail the send";
}

TEST_F(DiagnosticSocketsTest, AnAddressThatNobodyHoldsIsReported) {
    const auto socket = open("");
    network.ip("link set p-kx0 arp off");
    ASSERT_EQ(
        socket->send("x", {.address = unitAddress, .port = 3520, .link = ::if_nametoindex("kx0")}),
        std::nullopt);
    ASSERT_TRUE(runUntil([&] { return !failures.empty(); }));
    EXPECT_EQ(failures.front().error, EHOSTUNREACH);
    EXPECT_EQ(failures.front().destination, unitAddress);
}

TEST_F(DiagnosticSocketsTest, ASocketMayBeDestroyedInsideItsEvent) {
    std::unique_ptr<DiagnosticSocket> socket;
    int events = 0;
    socket = sockets.open(calls, {.interface = {}, .port = 3520},
                          {.received =
                               [&](ByteView, std::uint32_t, std::uint16_t) {
                                   ++events;
                                   socket.reset();
                               },
                           .failed = {}});
    const auto sender = open("");
    sender->send("x", {.address = ownAddress, .port = 3520});
    sender->send("y", {.address = ownAddress, .port = 3520});
    EXPECT_TRUE(runUntil([&] { return socket == nullptr; }));
    EXPECT_EQ(events, 1);
}

TEST_F(DiagnosticSocketsTest, TheHostTellsItsRoutes) {
    const std::uint32_t link = ::if_nametoindex("kx0");
    EXPECT_EQ(host.route(unitAddress), (HostRoute{.exists = true, .link = link}));
    EXPECT_EQ(host.route(0x0A000001U), HostRoute());
    network.ip("route add default via 192.0.2.254");
    EXPECT_EQ(host.route(0x0A000001U),
              (HostRoute{.exists = true, .link = link, .gateway = 0xC00002FEU}));
    network.ip("route add unreachable 10.1.0.0/16");
    network.ip("route add blackhole 10.2.0.0/16");
    network.ip("route add prohibit 10.3.0.0/16");
    for (const std::uint32_t address : {0x0A010001U, 0x0A020001U, 0x0A030001U}) {
        EXPECT_EQ(host.route(address), HostRoute()) << address;
    }
}

TEST_F(DiagnosticSocketsTest, TheHostTellsItsCounters) {
    const auto socket = open("");
    const auto before = host.counters();
    ASSERT_TRUE(before.has_value());
    socket->send("x", {.address = ownAddress, .port = 9});
    ASSERT_TRUE(runUntil([&] { return !failures.empty(); }));
    const auto after = host.counters();
    EXPECT_GT(after->received, before->received);
    EXPECT_EQ(after->withoutListener, before->withoutListener + 1);
}

TEST_F(DiagnosticSocketsTest, TheStricterReversePathFilterIsInForce) {
    const auto set = [](const std::string& name, int value) {
        std::ofstream("/proc/sys/net/ipv4/conf/" + name + "/rp_filter") << value;
    };
    set("all", 0);
    set("kx0", 1);
    EXPECT_EQ(host.reversePathFilter("kx0"), 1);
    set("all", 2);
    EXPECT_EQ(host.reversePathFilter("kx0"), 2);
}

TEST_F(DiagnosticSocketsTest, TheHostTellsWhoHasAPort) {
    EXPECT_EQ(host.ownerOfPort(3520), std::nullopt);
    const auto socket = open("", 3520);
    const auto owner = host.ownerOfPort(3520);
    ASSERT_TRUE(owner.has_value());
    EXPECT_EQ(owner->process, ::getpid());
    EXPECT_FALSE(owner->program.empty());
    EXPECT_FALSE(owner->user.empty());
}

TEST_F(DiagnosticSocketsTest, TheNeighbourTableListsWhoseHardwareAddressIsKnown) {
    LinuxNeighbourTable table;
    const std::uint32_t link = ::if_nametoindex("kx0");
    EXPECT_TRUE(table.knownAddresses(link).empty());
    network.ip("neigh add 192.0.2.12 lladdr 02:4b:58:00:00:02 dev kx0 nud stale");
    network.ip("neigh add 192.0.2.11 lladdr 02:4b:58:00:00:01 dev kx0 nud reachable");
    network.addLink("kx1", "02:00:00:00:00:02");
    network.ip("neigh add 192.0.2.13 lladdr 02:4b:58:00:00:03 dev kx1 nud reachable");
    EXPECT_EQ(table.knownAddresses(link),
              (std::vector<std::uint32_t>{unitAddress, unitAddress + 1}));
    EXPECT_TRUE(table.entry(unitAddress, link).has_value()) << "the list disturbs no question";
}

} // namespace kx
