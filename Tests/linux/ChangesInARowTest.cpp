// The times at which the store tells changes that come one after the other, with a clock that the
// test moves.

#include "PrivateNetwork.h"
#include "contracts/ConfigurationStoreContract.h"
#include "doubles/ManualRunLoop.h"
#include "doubles/MemoryConnectionProfiles.h"
#include "platform/linux/LinuxConfigurationStore.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace kx {

namespace {

using namespace std::chrono_literals;

class ChangesInARow : public testing::Test {
protected:
    ChangesInARow() {
        const std::vector<std::string_view> patterns = {"State:/Network/Service/[^/]+/IPv4"};
        EXPECT_TRUE(session->setNotificationKeys({}, patterns));
        source->addToRunLoop();
    }

    // The host changes: its one link belongs to another profile.
    void change() { profiles.setProfiles({{std::to_string(++changes), "Office", "eth0", {}}}); }

    static NetworkLink link() {
        NetworkLink result;
        result.index = 2;
        result.name = "eth0";
        result.canBroadcast = true;
        result.ipv4Addresses = {{0xC0000201U, 24}};
        return result;
    }

    PrivateNetwork network; // its kernel tells no changes
    ManualRunLoop loop;
    MemoryConnectionProfiles profiles;
    KernelLinks links{loop, [] { return LinkSnapshot{{link()}, true}; }};
    LinuxConfigurationStore store{loop, links, &profiles};
    RecordedChanges told;
    std::unique_ptr<DynamicStoreSession> session =
        store.openSession("test", RecordedChanges::record, &told);
    std::unique_ptr<ConfigurationChangeSource> source = session->createRunLoopSource();
    int changes = 0;
};

} // namespace

TEST_F(ChangesInARow, AreToldTogetherAMomentAfterTheFirst) {
    change();
    loop.advanceBy(60ms);
    change();
    loop.advanceBy(39ms);
    EXPECT_EQ(told.counts, std::vector<std::size_t>{});
    loop.advanceBy(1ms);
    EXPECT_TRUE(told.contains("State:/Network/Service/2/IPv4"));
    EXPECT_EQ(told.counts.size(), 1U);
    loop.advanceBy(10s);
    EXPECT_EQ(told.counts.size(), 1U);
}

TEST_F(ChangesInARow, OfAHostThatChangesAllTheTimeAreToldMeanwhile) {
    for (int i = 0; i < 20; ++i) {
        change();
        loop.advanceBy(60ms);
    }
    EXPECT_GE(told.counts.size(), 9U);
    loop.advanceBy(100ms);
    EXPECT_EQ(told.keys.back(), "State:/Network/Service/" + std::to_string(changes) + "/IPv4");
}

} // namespace kx
