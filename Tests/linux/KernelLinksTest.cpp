// The log lines, and the functions that still work, when changes of the links cannot be heard, or
// when the kernel does not answer in time.

#include "platform/linux/KernelLinks.h"

#include "PrivateNetwork.h"
#include "WithoutNetlink.h"
#include "doubles/ManualRunLoop.h"
#include "doubles/RecordedSystemLog.h"
#include "platform/PollLoopDriver.h"
#include "support/Error.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <optional>
#include <string>
#include <thread>

namespace kx {

namespace {

class NoWatches final : public RunLoop {
public:
    Handle watchForReading(int /*descriptor*/, std::function<void()> /*readable*/) override {
        errno = ENOENT; // no word about the refusal
        return nullptr;
    }
    Handle callOnceAfter(std::chrono::milliseconds /*delay*/,
                         std::function<void()> /*call*/) override {
        return nullptr;
    }
    void runUntil(const std::function<bool()>& /*isDone*/) override {}
    Handle holdCallbacks() override { return nullptr; }
};

// A kernel that answers in time or not, as the test says.
struct ScriptedKernel {
    LinkSnapshot answer{std::vector<NetworkLink>(1), true};
    int error = 0;
    int questions = 0;

    KernelLinks::Reader reader() {
        return [this]() -> std::optional<LinkSnapshot> {
            ++questions;
            errno = error;
            return error == 0 ? std::optional(answer) : std::nullopt;
        };
    }
};

} // namespace

// The kernel drops changes for which the socket has no room, and says so with ENOBUFS.
TEST(KernelLinks, ChangesThatTheKernelDroppedAreNoLostChanges) {
    PrivateNetwork network;
    network.addLink("kx0", "02:00:00:00:00:01");
    PollRunLoop loop;
    int questions = 0;
    KernelLinks links(loop, [&] {
        ++questions;
        return readNetworkLinks();
    });
    int changes = 0;
    links.setChangeAction([&] { ++changes; });
    ASSERT_NE(links.links(), nullptr);
    std::string commands;
    for (int address = 0; address < 4000; ++address) {
        const std::string text = "10.7." + std::to_string(address / 250) + "." +
                                 std::to_string(address % 250 + 1) + "/16 dev kx0\n";
        commands += "address add " + text + "address del " + text;
    }
    network.batch(commands + "address add 10.9.9.9/24 dev kx0\n");
    const int before = questions;
    const auto* const read = links.links();
    ASSERT_NE(read, nullptr);
    EXPECT_EQ(questions, before + 1) << "all of the changes are one reading";
    EXPECT_GE(changes, 1);
    const auto found =
        std::ranges::find_if(*read, [](const NetworkLink& link) { return link.name == "kx0"; });
    ASSERT_NE(found, read->end());
    ASSERT_EQ(found->ipv4Addresses.size(), 1U);
    EXPECT_EQ(found->ipv4Addresses[0].address, 0x0A090909U);
    network.ip("link set kx0 down");
    EXPECT_TRUE(runLoopUntil(loop, [&, was = changes] { return changes > was; }))
        << "and later changes are heard";
}

TEST(KernelLinks, WithoutAWatchTheLinksAreStillReadFresh) {
    PrivateNetwork network;
    RecordedSystemLog log;
    NoWatches loop;
    KernelLinks links(loop);
    EXPECT_EQ(log.lines(),
              std::vector<std::string>{
                  "changes of the network links are heard only when the links are read"});
    EXPECT_EQ(links.links()->size(), 1U);
    network.addLink("kx0", "02:00:00:00:00:01");
    EXPECT_EQ(links.links()->size(), 3U);
}

TEST(KernelLinks, WithoutASocketTheReasonIsLoggedAndTheLinksAreReadEachTime) {
    PrivateNetwork network;
    RecordedSystemLog log;
    ManualRunLoop loop;
    std::optional<KernelLinks> links;
    withoutNetlink([&] {
        links.emplace(loop);
        EXPECT_EQ(links->links(), nullptr);
    });
    EXPECT_EQ(log.lines(),
              std::vector<std::string>{"changes of the network links cannot be heard: " +
                                       posixErrorText(EMFILE)});
    EXPECT_EQ(links->links()->size(), 1U);
    network.addLink("kx0", "02:00:00:00:00:01");
    EXPECT_EQ(links->links()->size(), 3U);
}

TEST(KernelLinks, AKernelThatDoesNotAnswerInTimeIsNotAskedAgainAtOnce) {
    PrivateNetwork network;
    ManualRunLoop loop;
    ScriptedKernel kernel;
    KernelLinks links(loop, kernel.reader());
    kernel.error = ETIMEDOUT;
    for (int i = 0; i < 3; ++i) {
        errno = 0;
        EXPECT_EQ(links.links(), nullptr);
        EXPECT_EQ(errno, ETIMEDOUT);
    }
    EXPECT_EQ(kernel.questions, 1);
    kernel.error = 0;
    loop.advanceBy(std::chrono::seconds(1));
    ASSERT_NE(links.links(), nullptr);
    EXPECT_EQ(kernel.questions, 2);
    EXPECT_EQ(loop.pendingCallCount(), 0U);
}

TEST(KernelLinks, WhileTheKernelDoesNotAnswerTheLinksAreTheOnesThatItToldLast) {
    PrivateNetwork network;
    ManualRunLoop loop;
    ScriptedKernel kernel;
    KernelLinks links(loop, kernel.reader());
    ASSERT_NE(links.links(), nullptr);
    network.addLink("kx0", "02:00:00:00:00:01");
    kernel.error = ETIMEDOUT;
    for (int i = 0; i < 3; ++i) {
        ASSERT_NE(links.links(), nullptr);
        EXPECT_EQ(links.links()->size(), 1U);
    }
    EXPECT_EQ(kernel.questions, 2);
    int changes = 0;
    links.setChangeAction([&changes] { ++changes; });
    kernel.error = 0;
    kernel.answer.links.resize(3);
    loop.advanceBy(std::chrono::seconds(1));
    EXPECT_EQ(changes, 1) << "there may have been one";
    EXPECT_EQ(links.links()->size(), 3U);
}

TEST(KernelLinks, AKernelThatRefusesIsAskedAgainAtOnce) {
    PrivateNetwork network;
    ManualRunLoop loop;
    ScriptedKernel kernel;
    KernelLinks links(loop, kernel.reader());
    kernel.error = EMFILE;
    EXPECT_EQ(links.links(), nullptr);
    kernel.error = 0;
    EXPECT_NE(links.links(), nullptr);
}

TEST(KernelLinks, LinksWithoutAllRoutesAreReadAgainALittleLater) {
    PrivateNetwork network;
    ManualRunLoop loop;
    ScriptedKernel kernel;
    KernelLinks links(loop, kernel.reader());
    kernel.answer.hasAllRoutes = false;
    for (int i = 0; i < 3; ++i) {
        ASSERT_NE(links.links(), nullptr) << "the order is all that is missing";
    }
    EXPECT_EQ(kernel.questions, 1);
    kernel.answer.hasAllRoutes = true;
    loop.advanceBy(std::chrono::seconds(1));
    ASSERT_NE(links.links(), nullptr);
    ASSERT_NE(links.links(), nullptr);
    EXPECT_EQ(kernel.questions, 2);
}

// While an administrator changes links, the kernel interrupts its lists all the time.
TEST(RtnetlinkSnapshot, ItComesToAnEndWhileLinksChange) {
    PrivateNetwork network;
    std::string changes;
    for (int i = 0; i < 50; ++i) {
        changes += "link add kx0 type bridge\nlink del kx0\n";
    }
    std::atomic<bool> isOver = false;
    std::thread administrator([&] {
        network.batch(changes);
        isOver = true;
    });
    while (!isOver) {
        const auto read = readNetworkLinks();
        EXPECT_TRUE(read.has_value() ? !read->links.empty() : errno == ETIMEDOUT);
    }
    administrator.join();
    const auto read = readNetworkLinks();
    ASSERT_TRUE(read.has_value());
    EXPECT_EQ(read->links.size(), 1U);
    EXPECT_TRUE(read->hasAllRoutes);
}

} // namespace kx
