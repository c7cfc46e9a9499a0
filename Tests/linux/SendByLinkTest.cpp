// Datagrams that are sent by a link, on a host with two links in one subnet. A packet socket at the
// far end of each link counts what leaves by it.

#include "DatagramSystemCalls.h"
#include "PrivateNetwork.h"
#include "addresses/IPv4Address.h"
#include "addresses/SocketAddressRecord.h"

#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <linux/if_ether.h>
#include <linux/if_packet.h>
#include <net/if.h>
#include <netinet/ip.h>
#include <netinet/udp.h>
#include <sys/socket.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <string>

namespace kx {

namespace {

constexpr std::uint16_t unitPort = 3520;

// Counts the datagrams to a unit's port that come out of a link.
class FarEnd {
public:
    explicit FarEnd(const std::string& link)
        : _socket(::socket(AF_PACKET, SOCK_DGRAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0)) {
        sockaddr_ll address{};
        address.sll_family = AF_PACKET;
        address.sll_protocol = htons(ETH_P_IP);
        address.sll_ifindex = static_cast<int>(::if_nametoindex(link.c_str()));
        EXPECT_EQ(
            ::bind(_socket.number(), reinterpret_cast<const sockaddr*>(&address), sizeof address),
            0);
    }

    // The datagrams since the last call of this.
    int count() {
        int datagrams = 0;
        std::array<std::byte, 2048> packet{};
        ssize_t length = 0;
        while ((length = ::recv(_socket.number(), packet.data(), packet.size(), 0)) > 0) {
            datagrams += isForUnit(packet.data(), static_cast<std::size_t>(length)) ? 1 : 0;
        }
        return datagrams;
    }

private:
    static bool isForUnit(const std::byte* packet, std::size_t length) {
        iphdr ip{};
        udphdr udp{};
        if (length < sizeof ip + sizeof udp) {
            return false;
        }
        std::memcpy(&ip, packet, sizeof ip);
        std::memcpy(&udp, packet + sizeof ip, sizeof udp);
        return ip.protocol == IPPROTO_UDP && ntohs(udp.dest) == unitPort;
    }

    FileDescriptor _socket;
};

// Two links in one subnet. At the far end of each a unit is known by its hardware address, in this
// subnet and in another one.
class TwoLinksInOneSubnet : public PrivateNetwork {
public:
    TwoLinksInOneSubnet() {
        add("kx0", "02:00:00:00:00:01", "02:4B:58:00:00:01", "192.0.2.1/24");
        add("kx1", "02:00:00:00:00:02", "02:4B:58:00:00:02", "192.0.2.2/24");
    }

private:
    void add(const std::string& name, const std::string& hardwareAddress,
             const std::string& unitHardwareAddress, const std::string& address) {
        addLink(name, hardwareAddress);
        addAddress(name, address);
        ip("link set p-" + name + " arp off"); // the far end is no host of its own
        for (const char* const unit : {"192.0.2.11", "198.51.100.11"}) {
            ip(std::string("neighbour add ") + unit + " lladdr " + unitHardwareAddress + " dev " +
               name);
        }
    }
};

class SendByLink : public testing::Test {
protected:
    SendByLink() {
        EXPECT_EQ(calls.enableBroadcast(sender), 0);
        // A carrier comes late, and until then nothing leaves.
        EXPECT_TRUE(eventually([this] {
            sendTo("192.0.2.255", link("kx0"));
            sendTo("192.0.2.255", link("kx1"));
            return farEnd0.count() > 0 && farEnd1.count() > 0;
        }));
        farEnd0.count();
        farEnd1.count();
    }
    ~SendByLink() override { calls.close(sender); }

    // The result of a send; the reason is in errno.
    ssize_t sendTo(const std::string& address, std::uint32_t byLink) {
        const Bytes request{'^', '^', 'I', 'd', 'X'};
        errno = 0;
        return calls.sendToByLink(sender, request, dataForAddress(ipForString(address), unitPort),
                                  byLink);
    }
    std::uint32_t link(const std::string& name) { return calls.linkForName(name); }

    TwoLinksInOneSubnet network;
    DatagramSystemCalls calls;
    int sender = calls.socket();
    FarEnd farEnd0{"p-kx0"};
    FarEnd farEnd1{"p-kx1"};
};

} // namespace

TEST_F(SendByLink, OfTwoLinksInOneSubnetABroadcastLeavesByTheOneThatIsNamed) {
    for (int i = 0; i < 100; ++i) {
        ASSERT_EQ(sendTo("192.0.2.255", link("kx1")), 5);
    }
    EXPECT_EQ(farEnd0.count(), 0);
    EXPECT_EQ(farEnd1.count(), 100);
    for (int i = 0; i < 100; ++i) {
        ASSERT_EQ(sendTo("192.0.2.255", link("kx0")), 5);
    }
    EXPECT_EQ(farEnd0.count(), 100);
    EXPECT_EQ(farEnd1.count(), 0);
}

TEST_F(SendByLink, WhenNoneIsNamedTheRoutesDecide) {
    for (int i = 0; i < 100; ++i) {
        ASSERT_EQ(sendTo("192.0.2.255", 0), 5);
    }
    EXPECT_EQ(farEnd0.count(), 100) << "the first link's route wins";
    EXPECT_EQ(farEnd1.count(), 0);
}

TEST_F(SendByLink, EachDatagramNamesItsOwnLink) {
    ASSERT_EQ(sendTo("192.0.2.255", link("kx1")), 5);
    ASSERT_EQ(sendTo("192.0.2.255", 0), 5);
    EXPECT_EQ(farEnd0.count(), 1);
    EXPECT_EQ(farEnd1.count(), 1);
}

TEST_F(SendByLink, TheLimitedBroadcastNeedsNoRoute) {
    EXPECT_EQ(sendTo("255.255.255.255", 0), -1);
    EXPECT_EQ(errno, ENETUNREACH);
    EXPECT_EQ(sendTo("255.255.255.255", link("kx1")), 5);
    EXPECT_EQ(farEnd0.count(), 0);
    EXPECT_EQ(farEnd1.count(), 1);
}

TEST_F(SendByLink, ACommandLeavesByTheOneThatIsNamed) {
    ASSERT_EQ(sendTo("192.0.2.11", link("kx1")), 5);
    EXPECT_EQ(farEnd0.count(), 0);
    EXPECT_EQ(farEnd1.count(), 1);
}

TEST_F(SendByLink, AUnitOfAnotherSubnetIsReachedWithoutARoute) {
    EXPECT_EQ(sendTo("198.51.100.11", 0), -1);
    EXPECT_EQ(errno, ENETUNREACH);
    EXPECT_EQ(sendTo("198.51.100.11", link("kx1")), 5);
    EXPECT_EQ(farEnd1.count(), 1);
}

TEST_F(SendByLink, ALinkThatIsDownSendsNothingTowardsTheGateway) {
    network.ip("route add default via 192.0.2.254 dev kx0");
    network.ip("neighbour add 192.0.2.254 lladdr 02:4B:58:00:00:FE dev kx0");
    network.ip("link set kx1 down");
    EXPECT_EQ(sendTo("198.51.100.255", 0), 5) << "by the routes it leaves towards the gateway";
    EXPECT_EQ(farEnd0.count(), 1);
    EXPECT_EQ(sendTo("198.51.100.255", link("kx1")), -1);
    EXPECT_EQ(errno, ENETUNREACH);
    EXPECT_EQ(farEnd0.count(), 0);
}

TEST_F(SendByLink, ALinkThatIsGoneSendsNothing) {
    const std::uint32_t gone = link("kx1");
    network.ip("link delete kx1");
    EXPECT_EQ(link("kx1"), 0U);
    EXPECT_EQ(sendTo("192.0.2.255", gone), -1);
    EXPECT_EQ(errno, ENODEV);
    EXPECT_EQ(sendTo("192.0.2.255", noSuchLink), -1);
    EXPECT_EQ(errno, ENODEV);
    EXPECT_EQ(farEnd0.count(), 0);
}

} // namespace kx
