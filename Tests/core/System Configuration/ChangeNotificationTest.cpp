#include "ConfigurationFixture.h"

namespace kx {

namespace {

class ChangeNotification : public ConfigurationFixture {
protected:
    ChangeNotification() {
        configuration.addObserverWithSelector(this, [this](const Notification& notification) {
            notifications.push_back(notification);
        });
    }

    PropertyDictionary onlyUserInfo() const {
        EXPECT_EQ(notifications.size(), 1U);
        return notifications.at(0).userInfo;
    }

    std::vector<Notification> notifications;
};

} // namespace

TEST_F(ChangeNotification, ANewStateIsAnnouncedWithItsEntriesAndItsService) {
    store.setValue("State:/Network/Service/A/IPv4", {{"Router", "10.0.0.1"}});
    configuration.dynamicStoreCallback({"State:/Network/Service/A/IPv4"});
    EXPECT_EQ(onlyUserInfo(), (PropertyDictionary{{"Router", "10.0.0.1"}, {"ServiceID", "A"}}));
    EXPECT_EQ(notifications[0].name, "SystemConfigurationNotification");
    EXPECT_EQ(notifications[0].object, &configuration);
}

TEST_F(ChangeNotification, AStateThatIsGoneIsAnnouncedWithItsServiceAlone) {
    configuration.dynamicStoreCallback({"State:/Network/Service/A/IPv4"});
    EXPECT_EQ(onlyUserInfo(), (PropertyDictionary{{"ServiceID", "A"}}));
}

TEST_F(ChangeNotification, AValueWithoutAServiceIsAnnouncedAsItIs) {
    store.setValue("State:/Network/Global/IPv4", {{"Router", "10.0.0.1"}});
    store.setValue("State:/Network/Service/A/IPv6", {{"Router", "fe80::1"}});
    configuration.dynamicStoreCallback(
        {"State:/Network/Global/IPv4", "State:/Network/Service/A/IPv6"});
    ASSERT_EQ(notifications.size(), 2U);
    EXPECT_EQ(notifications[0].userInfo, (PropertyDictionary{{"Router", "10.0.0.1"}}));
    EXPECT_EQ(notifications[1].userInfo, (PropertyDictionary{{"Router", "fe80::1"}}));
}

TEST_F(ChangeNotification, AKeyWithNeitherIsSkipped) {
    configuration.dynamicStoreCallback({"State:/Network/Global/IPv4",
                                        "State:/Network/Service/A/IPv6", "", "/IPv4",
                                        "State:/Network/Service/A"});
    EXPECT_TRUE(notifications.empty());
}

TEST_F(ChangeNotification, WhatFollowsASkippedKeyIsStillAnnounced) {
    configuration.dynamicStoreCallback({"State:/Network/Global/IPv4",
                                        "State:/Network/Service/A/IPv4", "",
                                        "State:/Network/Service/B/IPv4"});
    ASSERT_EQ(notifications.size(), 2U);
    EXPECT_EQ(notifications[0].userInfo.at("ServiceID"), "A");
    EXPECT_EQ(notifications[1].userInfo.at("ServiceID"), "B");
}

TEST_F(ChangeNotification, TheServiceStandsBetweenThePrefixAndTheFirstEntity) {
    configuration.dynamicStoreCallback({"x State:/Network/Service/A/B/IPv4/IPv4 y",
                                        "State:/Network/Service//IPv4",
                                        "/IPv4/State:/Network/Service/A/IPv4"});
    ASSERT_EQ(notifications.size(), 2U);
    EXPECT_EQ(notifications[0].userInfo, (PropertyDictionary{{"ServiceID", "A/B"}}));
    EXPECT_EQ(notifications[1].userInfo, (PropertyDictionary{{"ServiceID", ""}}));
}

TEST_F(ChangeNotification, TheServiceReplacesAnEntryOfItsName) {
    store.setValue("State:/Network/Service/A/IPv4", {{"ServiceID", "stale"}});
    configuration.dynamicStoreCallback({"State:/Network/Service/A/IPv4"});
    EXPECT_EQ(onlyUserInfo(), (PropertyDictionary{{"ServiceID", "A"}}));
}

TEST_F(ChangeNotification, EachKeyIsAnnouncedInTheOrderGiven) {
    configuration.dynamicStoreCallback(
        {"State:/Network/Service/B/IPv4", "State:/Network/Service/A/IPv4"});
    ASSERT_EQ(notifications.size(), 2U);
    EXPECT_EQ(notifications[0].userInfo.at("ServiceID"), "B");
    EXPECT_EQ(notifications[1].userInfo.at("ServiceID"), "A");
    configuration.dynamicStoreCallback({});
    EXPECT_EQ(notifications.size(), 2U);
}

TEST_F(ChangeNotification, EachKeyIsReadWhenItsTurnComes) {
    configuration.addObserverWithSelector(&store, [this](const Notification&) {
        store.setValue("State:/Network/Service/B/IPv4", {{"Router", "late"}});
    });
    configuration.dynamicStoreCallback(
        {"State:/Network/Service/A/IPv4", "State:/Network/Service/B/IPv4"});
    ASSERT_EQ(notifications.size(), 2U);
    EXPECT_EQ(notifications[1].userInfo.at("Router"), "late");
    configuration.removeObserver(&store);
}

TEST_F(ChangeNotification, ARemovedObserverHearsNothing) {
    configuration.removeObserver(this);
    configuration.removeObserver(this);
    configuration.dynamicStoreCallback({"State:/Network/Service/A/IPv4"});
    EXPECT_TRUE(notifications.empty());
}

TEST_F(ChangeNotification, AnObserverRegisteredTwiceIsCalledTwiceUntilItIsRemoved) {
    configuration.addObserverWithSelector(
        this, [this](const Notification& notification) { notifications.push_back(notification); });
    configuration.dynamicStoreCallback({"State:/Network/Service/A/IPv4"});
    EXPECT_EQ(notifications.size(), 2U);
    configuration.removeObserver(this);
    configuration.dynamicStoreCallback({"State:/Network/Service/A/IPv4"});
    EXPECT_EQ(notifications.size(), 2U);
}

TEST_F(ChangeNotification, AnObserverMayRemoveItselfWhileBeingCalled) {
    int calls = 0;
    configuration.addObserverWithSelector(&calls, [&](const Notification&) {
        configuration.removeObserver(&calls);
        ++calls;
    });
    configuration.dynamicStoreCallback(
        {"State:/Network/Service/A/IPv4", "State:/Network/Service/B/IPv4"});
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(notifications.size(), 2U);
}

TEST_F(ChangeNotification, AnotherObjectsChangesAreNotHeard) {
    MemoryConfigurationStore otherStore;
    SystemConfiguration other(otherStore, kernelQuery);
    other.dynamicStoreCallback({"State:/Network/Service/A/IPv4"});
    EXPECT_TRUE(notifications.empty());
}

// --- Construction ---

TEST(ChangeWatchOfAnObject, AFailedWatchLeavesAWorkingObjectThatStaysSilent) {
    for (int failure = 0; failure < 3; ++failure) {
        MemoryConfigurationStore store;
        MemoryKernelQuery kernelQuery;
        store.refusesSessions = failure == 0;
        store.refusesNotificationKeys = failure == 1;
        store.refusesSources = failure == 2;
        SystemConfiguration configuration(store, kernelQuery);
        EXPECT_EQ(store.openSessionCount(), 0U);
        store.refusesSessions = false;

        kernelQuery.setInterfaceList(RoutingMessageBuilder().interface("lo0", true).bytes());
        EXPECT_EQ(configuration.currentInterfaceTitles(), Texts{"Loopback (lo0)"});

        store.setValue("State:/Network/Service/A/IPv4", {{"Router", "10.0.0.1"}});
        std::vector<PropertyDictionary> heard;
        configuration.addObserverWithSelector(&heard, [&heard](const Notification& notification) {
            heard.push_back(notification.userInfo);
        });
        store.deliverChanges();
        EXPECT_TRUE(heard.empty());
        configuration.dynamicStoreCallback({"State:/Network/Service/A/IPv4"});
        EXPECT_EQ(heard, (std::vector<PropertyDictionary>{{{"ServiceID", "A"}}}))
            << "without the watch's session no value can be read";
    }
}

TEST(ChangeWatchOfAnObject, OutlivesTheObject) {
    MemoryConfigurationStore store;
    MemoryKernelQuery kernelQuery;
    {
        const SystemConfiguration configuration(store, kernelQuery);
        EXPECT_EQ(store.openSessionCount(), 1U);
    }
    EXPECT_EQ(store.openSessionCount(), 1U);
}

} // namespace kx
