#include "ConfigurationFixture.h"
#include "doubles/SharedConfigurationDoubles.h"

namespace kx {

namespace {

class SharedInstance : public testing::Test {
protected:
    SharedInstance() {
        SystemConfiguration::sharedInstance().addObserverWithSelector(
            this,
            [this](const Notification& notification) { heard.push_back(notification.userInfo); });
    }
    void TearDown() override { SystemConfiguration::sharedInstance().removeObserver(this); }

    SharedConfigurationDoubles& doubles = sharedConfigurationDoubles();
    std::vector<PropertyDictionary> heard;
};

} // namespace

TEST_F(SharedInstance, IsOneForTheProcess) {
    EXPECT_EQ(&SystemConfiguration::sharedInstance(), &SystemConfiguration::sharedInstance());
    EXPECT_EQ(doubles.store.openSessionCount(), 1U);
}

TEST_F(SharedInstance, AChangedStateIsAnnouncedOnceFromTheRunLoop) {
    doubles.store.setValue("State:/Network/Service/A/IPv4", {{"Router", "10.0.0.1"}});
    EXPECT_TRUE(heard.empty());
    doubles.store.deliverChanges();
    EXPECT_EQ(heard,
              (std::vector<PropertyDictionary>{{{"Router", "10.0.0.1"}, {"ServiceID", "A"}}}));
    doubles.store.deliverChanges();
    EXPECT_EQ(heard.size(), 1U);

    doubles.store.removeValue("State:/Network/Service/A/IPv4");
    doubles.store.deliverChanges();
    ASSERT_EQ(heard.size(), 2U);
    EXPECT_EQ(heard[1], (PropertyDictionary{{"ServiceID", "A"}}));
}

TEST_F(SharedInstance, OtherChangesAreNotAnnounced) {
    doubles.store.setValue("State:/Network/Service/A/IPv6", {{"Router", "fe80::1"}});
    doubles.store.setValue("State:/Network/Interface/en0/IPv4", {});
    doubles.store.setValue("Setup:/Network/Service/A/IPv4", {});
    doubles.store.deliverChanges();
    EXPECT_TRUE(heard.empty());
}

TEST_F(SharedInstance, TheWatchOfAnyObjectReportsToTheSharedOne) {
    MemoryConfigurationStore store;
    MemoryKernelQuery kernelQuery;
    const SystemConfiguration other(store, kernelQuery);
    store.setValue("State:/Network/Service/B/IPv4", {});
    store.deliverChanges();
    EXPECT_EQ(heard, (std::vector<PropertyDictionary>{{{"ServiceID", "B"}}}));
}

// --- Readiness ---

TEST_F(SharedInstance, TheNetworkIsReadyWhenAnyServiceHasAnActiveLink) {
    setServiceOrder(doubles.store, {"A", "B"});
    setServiceInterface(doubles.store, "A", ethernet("Ethernet", "en0"));
    setServiceInterface(doubles.store, "B", ethernet("Wi-Fi", "en1"));
    EXPECT_FALSE(networkIsReady()) << "no link is reported";
    doubles.store.setValue("State:/Network/Interface/en0/Link", {{"Active", 0}});
    doubles.store.setValue("State:/Network/Interface/en1/Link", {{"Active", 0}});
    EXPECT_FALSE(networkIsReady());
    doubles.store.setValue("State:/Network/Interface/en1/Link", {{"Active", 1}});
    EXPECT_TRUE(networkIsReady());
}

TEST_F(SharedInstance, KernelInterfacesNeverMakeTheNetworkReady) {
    EXPECT_FALSE(networkIsReady()) << "nothing at all";
    doubles.kernelQuery.setInterfaceList(RoutingMessageBuilder()
                                             .interface("lo0", true, {})
                                             .address(0x7F000001U, 0xFF000000U)
                                             .interface("tun0", true)
                                             .bytes());
    EXPECT_FALSE(networkIsReady());
}

// --- Contracts ---

TEST(SharedInstanceDeathTest, SourcesMustBeInstalledBeforeFirstUse) {
    // Runs in a process of its own, in which no other test has installed sources.
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_DEATH(SystemConfiguration::sharedInstance(),
                 "\\(sources != NULL\\), function .*sharedInstance.*, "
                 "Sources/System Configuration/SystemConfiguration");
}

TEST(SharedInstanceDeathTest, SourcesCannotBeChangedAfterFirstUse) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    auto& doubles = sharedConfigurationDoubles();
    EXPECT_DEATH(SystemConfiguration::installSources(doubles.store, doubles.kernelQuery),
                 "\\(sharedInstance == nil\\), function .*installSources.*, "
                 "Sources/System Configuration/SystemConfiguration");
}

} // namespace kx
