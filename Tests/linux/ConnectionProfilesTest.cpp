// The store with connection profiles that change while it runs. The double of the profiles keeps
// their contract.

#include "PrivateNetwork.h"
#include "contracts/ConfigurationStoreContract.h"
#include "contracts/ConnectionProfilesContract.h"
#include "doubles/MemoryConnectionProfiles.h"
#include "platform/PollLoopDriver.h"
#include "platform/linux/LinuxConfigurationStore.h"

#include <gtest/gtest.h>

namespace kx {

namespace {

const ConnectionProfile office{"1234", "Office", "kx0", {{0xC0000205U, 24}}};
const ConnectionProfile productionLine{"5678", "Production line", "kx1", {}};

class MemoryProfilesTrait {
public:
    MemoryProfilesTrait() { _profiles.setProfiles(wanted()); }
    ConnectionProfiles& profiles() { return _profiles; }
    std::vector<ConnectionProfile> wanted() { return {office, productionLine}; }
    void rename(const std::string& identifier, const std::string& name) {
        auto profiles = _profiles.activeProfiles();
        find(profiles, identifier)->name = name;
        _profiles.setProfiles(profiles);
    }
    void deactivate(const std::string& identifier) {
        auto profiles = _profiles.activeProfiles();
        profiles.erase(find(profiles, identifier));
        _profiles.setProfiles(profiles);
    }
    bool runUntil(const std::function<bool()>& condition) { return condition(); }
    void runAWhile() {}

private:
    static std::vector<ConnectionProfile>::iterator find(std::vector<ConnectionProfile>& profiles,
                                                         const std::string& identifier) {
        return std::ranges::find(profiles, identifier, &ConnectionProfile::identifier);
    }

    MemoryConnectionProfiles _profiles;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Memory, ConnectionProfilesContract, MemoryProfilesTrait);

class StoreWithProfiles : public testing::Test {
protected:
    StoreWithProfiles() {
        network.addLink("kx0", "02:00:00:00:00:01");
        network.addAddress("kx0", "192.0.2.5/24");
        session = store.openSession("test", RecordedChanges::record, &changes);
        const std::vector<std::string_view> patterns = {"State:/Network/Service/[^/]+/IPv4",
                                                        "Setup:/Network/Service/[^/]+/Interface"};
        EXPECT_TRUE(session->setNotificationKeys({}, patterns));
        source = session->createRunLoopSource();
        source->addToRunLoop();
    }
    std::vector<std::string> changedKeys() {
        runLoopFor(loop, std::chrono::milliseconds(300));
        auto keys = std::exchange(changes.keys, {});
        std::ranges::sort(keys);
        return keys;
    }

    PrivateNetwork network;
    PollRunLoop loop;
    KernelLinks links{loop};
    MemoryConnectionProfiles profiles;
    LinuxConfigurationStore store{loop, links, &profiles};
    RecordedChanges changes;
    std::unique_ptr<DynamicStoreSession> session;
    std::unique_ptr<ConfigurationChangeSource> source;
};

using Keys = std::vector<std::string>;

} // namespace

TEST_F(StoreWithProfiles, AProfileThatComesTakesTheLinksPlace) {
    profiles.setProfiles({office});
    EXPECT_EQ(
        changedKeys(),
        (Keys{"Setup:/Network/Service/1234/Interface", "Setup:/Network/Service/link-kx0/Interface",
              "State:/Network/Service/1234/IPv4", "State:/Network/Service/link-kx0/IPv4"}));
    profiles.setProfiles({});
    EXPECT_EQ(changedKeys().size(), 4U);
}

TEST_F(StoreWithProfiles, ANewNameChangesTheInterfaceRecordAlone) {
    profiles.setProfiles({office});
    changedKeys();
    auto renamed = office;
    renamed.name = "Head office";
    profiles.setProfiles({renamed});
    EXPECT_EQ(changedKeys(), Keys{"Setup:/Network/Service/1234/Interface"});
}

TEST_F(StoreWithProfiles, AProfileThatComesAndGoesAtOnceIsNoChange) {
    profiles.setProfiles({office});
    profiles.setProfiles({});
    EXPECT_EQ(changedKeys(), Keys());
}

TEST_F(StoreWithProfiles, AReadSeesTheProfilesAsTheyAre) {
    profiles.setProfiles({office});
    const auto record = session->copyValue("Setup:/Network/Service/1234/Interface");
    ASSERT_TRUE(record.has_value());
    EXPECT_EQ(*valueForKey(*record, "UserDefinedName"), "Office");
}

} // namespace kx
