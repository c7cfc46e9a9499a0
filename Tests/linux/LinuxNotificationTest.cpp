// The shared instance's notifications about real links.

#include "SharedHost.h"
#include "platform/PollLoopDriver.h"

#include <gtest/gtest.h>

namespace kx {

namespace {

std::string described(const PropertyDictionary& userInfo) {
    return PropertyListValue(userInfo).description();
}

} // namespace

TEST(LinuxNotification, AChangeIsPostedWithTheStateAndAnEndWithTheServiceAlone) {
    auto& host = sharedHost();
    runLoopFor(host.loop, std::chrono::milliseconds(300)); // pending changes of other tests
    auto& configuration = SystemConfiguration::sharedInstance();
    std::vector<std::string> posted;
    configuration.addObserverWithSelector(&posted, [&posted](const Notification& notification) {
        posted.push_back(described(notification.userInfo));
    });
    host.network.addLink("kx0", "02:00:00:00:00:01");
    host.network.addAddress("kx0", "192.0.2.1/24");
    runLoopFor(host.loop, std::chrono::milliseconds(300));
    host.network.ip("address flush dev kx0");
    runLoopFor(host.loop, std::chrono::milliseconds(300));
    configuration.removeObserver(&posted);
    host.network.ip("link del kx0");
    EXPECT_EQ(posted, (std::vector<std::string>{
                          "{Addresses = (192.0.2.1); ServiceID = link-kx0; "
                          "SubnetMasks = (255.255.255.0)}",
                          "{ServiceID = link-kx0}",
                      }));
}

TEST(LinuxNotification, TheNetworkIsReadyWhileAServicesLinkHasACarrier) {
    auto& host = sharedHost();
    host.network.addLink("kx1", "02:00:00:00:00:02");
    EXPECT_FALSE(networkIsReady());
    host.network.addAddress("kx1", "192.0.2.1/24");
    EXPECT_TRUE(networkIsReady());
    host.network.ip("link set p-kx1 down");
    EXPECT_TRUE(eventually([] { return !networkIsReady(); }));
    host.network.ip("link del kx1");
}

} // namespace kx
