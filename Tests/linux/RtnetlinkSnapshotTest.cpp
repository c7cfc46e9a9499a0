// The addresses and default routes of a link, and lists that change while the kernel tells them.

#include "platform/linux/RtnetlinkSnapshot.h"

#include "PrivateNetwork.h"
#include "RewrittenNetlink.h"
#include "addresses/IPv4Address.h"

#include <arpa/inet.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace kx {

namespace {

using Texts = std::vector<std::string>;

class NetworkLinks : public testing::Test {
protected:
    NetworkLinks() {
        network.addLink("kx0", "02:00:00:00:00:01");
        network.addLink("kx1", "02:00:00:00:00:02");
    }

    static NetworkLink link(const std::string& name) {
        const auto read = readNetworkLinks();
        if (!read.has_value() || !read->hasAllRoutes) {
            throw std::runtime_error("the links cannot be read");
        }
        const auto found = std::ranges::find(read->links, name, &NetworkLink::name);
        if (found == read->links.end()) {
            throw std::runtime_error("no link " + name);
        }
        return *found;
    }

    static Texts ipv4Of(const std::string& name) {
        Texts texts;
        for (const auto& [address, prefixLength, scope] : link(name).ipv4Addresses) {
            texts.push_back(stringForIP(address) + "/" + std::to_string(prefixLength));
        }
        return texts;
    }
    static Texts ipv6Of(const std::string& name) {
        Texts texts;
        for (const auto& [address, prefixLength] : link(name).ipv6Addresses) {
            char text[INET6_ADDRSTRLEN] = "";
            ::inet_ntop(AF_INET6, address.data(), text, sizeof text);
            texts.push_back(std::string(text) + "/" + std::to_string(prefixLength));
        }
        return texts;
    }

    PrivateNetwork network;
};

using Metric = std::optional<std::uint32_t>;

// Changes the facts of a message about a link or an address, so that a test would notice them.
void makeUntrue(nlmsghdr& message) {
    if (isAboutLink(message, "kx0")) {
        static_cast<ifinfomsg*>(NLMSG_DATA(&message))->ifi_index += 100;
        static_cast<char*>(RTA_DATA(attributeOf<ifinfomsg>(message, IFLA_IFNAME)))[2] = '9';
    } else if (message.nlmsg_type == RTM_NEWADDR) {
        rtattr* const local = attributeOf<ifaddrmsg>(message, IFA_LOCAL);
        if (local != nullptr) {
            static_cast<unsigned char*>(RTA_DATA(local))[3] = 99;
        }
    }
}

// The list of one kind of message. It is changed and marked as interrupted the first `times` times
// that the kernel tells it.
class InterruptedList {
public:
    InterruptedList(int type, int times)
        : _rewritten([this, type, times](nlmsghdr& message) {
            const bool isOfList = message.nlmsg_type == type;
            if (isOfList && !_isTelling) {
                ++tellings;
            }
            _isTelling = isOfList;
            if (isOfList && tellings <= times) {
                makeUntrue(message);
                message.nlmsg_flags |= NLM_F_DUMP_INTR;
            }
        }) {}

    int tellings = 0;

private:
    bool _isTelling = false;
    RewrittenNetlink _rewritten;
};

constexpr int always = 1000;

} // namespace

TEST_F(NetworkLinks, TheAddressOfALinkToOnePeerIsItsOwn) {
    network.ip("address add 192.0.2.1 peer 192.0.2.2/32 dev kx0");
    EXPECT_EQ(ipv4Of("kx0"), Texts{"192.0.2.1/32"});
    network.ip("tuntap add kxtun mode tun");
    network.ip("address add 198.51.100.1 peer 198.51.100.2/30 dev kxtun");
    EXPECT_TRUE(link("kxtun").isPointToPoint);
    EXPECT_EQ(ipv4Of("kxtun"), Texts{"198.51.100.1/30"});
    network.ip("link set kx1 addrgenmode none");
    network.ip("address flush dev kx1");
    network.ip("address add 2001:db8::1 peer 2001:db8::2/128 dev kx1 nodad");
    EXPECT_EQ(ipv6Of("kx1"), Texts{"2001:db8::1/128"});
}

TEST_F(NetworkLinks, OnlyDefaultRoutesOfTheMainTableCount) {
    network.addAddress("kx0", "192.0.2.1/24");
    network.addAddress("kx1", "198.51.100.1/24");
    network.ip("route add default via 192.0.2.254 dev kx0 metric 600");
    network.ip("route add default via 198.51.100.254 dev kx1 metric 1 table 100");
    network.ip("route add 203.0.113.0/24 via 198.51.100.254 dev kx1 metric 2");
    network.ip("route add 0.0.0.0/1 via 198.51.100.254 dev kx1 metric 3");
    EXPECT_EQ(link("kx0").defaultRouteMetric, Metric(600));
    EXPECT_EQ(link("kx1").defaultRouteMetric, std::nullopt);
    network.ip("route add default via 192.0.2.254 dev kx0 metric 5 table 100");
    EXPECT_EQ(link("kx0").defaultRouteMetric, Metric(600));
}

TEST_F(NetworkLinks, DefaultRoutesOfIPv6DoNotCount) {
    network.addAddress("kx0", "192.0.2.1/24");
    network.ip("route add default via 192.0.2.254 dev kx0 metric 600");
    network.ip("-6 route add default dev kx0 metric 1");
    network.ip("-6 route add default dev kx1 metric 2");
    EXPECT_EQ(link("kx0").defaultRouteMetric, Metric(600));
    EXPECT_EQ(link("kx1").defaultRouteMetric, std::nullopt);
}

TEST_F(NetworkLinks, AListOfLinksThatWasInterruptedIsAskedForAgain) {
    const InterruptedList list(RTM_NEWLINK, 1);
    const auto read = readNetworkLinks();
    ASSERT_TRUE(read.has_value());
    EXPECT_EQ(list.tellings, 2);
    Texts names;
    for (const NetworkLink& told : read->links) {
        names.push_back(told.name);
    }
    std::ranges::sort(names);
    EXPECT_EQ(names, (Texts{"kx0", "kx1", "lo", "p-kx0", "p-kx1"}));
}

TEST_F(NetworkLinks, AListOfAddressesThatWasInterruptedIsAskedForAgain) {
    network.addAddress("kx0", "192.0.2.1/24");
    const InterruptedList list(RTM_NEWADDR, 2);
    EXPECT_EQ(ipv4Of("kx0"), Texts{"192.0.2.1/24"}) << "and nothing is in it twice";
    EXPECT_EQ(list.tellings, 3);
}

TEST_F(NetworkLinks, AListThatIsInterruptedEachTimeIsNeverTakenAsWhole) {
    for (const int type : {RTM_NEWLINK, RTM_NEWADDR}) {
        const InterruptedList list(type, always);
        errno = 0;
        EXPECT_FALSE(readNetworkLinks().has_value());
        EXPECT_EQ(errno, ETIMEDOUT);
        EXPECT_GT(list.tellings, 1);
    }
}

TEST_F(NetworkLinks, ARefusalOfTheKernelIsToldByItsNumber) {
    for (const int refusal : {EPERM, EACCES, ENOMEM, EAFNOSUPPORT, EIO}) {
        const RewrittenNetlink rewritten([refusal](nlmsghdr& message) {
            if (message.nlmsg_type == RTM_NEWLINK) {
                message.nlmsg_type = NLMSG_ERROR;
                static_cast<nlmsgerr*>(NLMSG_DATA(&message))->error = -refusal;
            }
        });
        errno = 0;
        EXPECT_FALSE(readNetworkLinks().has_value());
        EXPECT_EQ(errno, refusal);
    }
}

TEST_F(NetworkLinks, RoutesThatWereInterruptedAreNotAllRoutes) {
    network.addAddress("kx0", "192.0.2.1/24");
    network.ip("route add default via 192.0.2.254 dev kx0");
    ASSERT_TRUE(readNetworkLinks()->hasAllRoutes);
    const InterruptedList list(RTM_NEWROUTE, always);
    const auto read = readNetworkLinks();
    ASSERT_TRUE(read.has_value());
    EXPECT_FALSE(read->hasAllRoutes);
}

} // namespace kx
