// What is logged, and what still works, when changes of the links cannot be heard.

#include "platform/linux/KernelLinks.h"

#include "PrivateNetwork.h"
#include "WithoutNetlink.h"
#include "doubles/ManualRunLoop.h"
#include "doubles/RecordedSystemLog.h"
#include "support/Error.h"

#include <gtest/gtest.h>

#include <optional>

namespace kx {

namespace {

class NoWatches final : public RunLoop {
public:
    Handle watchForReading(int /*descriptor*/, std::function<void()> /*readable*/) override {
        errno = ENOENT; // says nothing about the refusal
        return nullptr;
    }
    Handle callOnceAfter(std::chrono::milliseconds /*delay*/,
                         std::function<void()> /*call*/) override {
        return nullptr;
    }
    void runUntil(const std::function<bool()>& /*isDone*/) override {}
};

} // namespace

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

} // namespace kx
