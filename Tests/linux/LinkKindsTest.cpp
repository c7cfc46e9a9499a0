// Links are told apart by the words of the kernel and of the drivers.

#include "PrivateNetwork.h"
#include "RewrittenNetlink.h"
#include "platform/linux/RtnetlinkSnapshot.h"

#include <gtest/gtest.h>
#include <net/if_arp.h>
#include <sys/mount.h>
#include <sys/stat.h>

#include <algorithm>
#include <string>

namespace kx {

namespace {

// Plays the drivers of the system, so that the named links are wireless. The calling thread gets a
// view of the mounted file systems of its own and keeps it.
class WirelessDrivers {
public:
    explicit WirelessDrivers(const std::string& link) {
        const bool isMounted = ::unshare(CLONE_NEWNS) == 0 &&
                               ::mount("none", "/", "none", MS_REC | MS_PRIVATE, nullptr) == 0 &&
                               ::mount("none", _path, "tmpfs", 0, nullptr) == 0;
        const std::string folder = _path + ("/" + link);
        if (!isMounted || ::mkdir(folder.c_str(), 0755) != 0 ||
            ::mkdir((folder + "/phy80211").c_str(), 0755) != 0) {
            throw std::runtime_error(std::string("no drivers: ") + std::strerror(errno));
        }
    }
    ~WirelessDrivers() { ::umount2(_path, MNT_DETACH); }
    WirelessDrivers(const WirelessDrivers&) = delete;
    WirelessDrivers& operator=(const WirelessDrivers&) = delete;

private:
    static constexpr const char* _path = "/sys/class/net";
};

class LinkKinds : public testing::Test {
protected:
    LinkKinds() { network.addLink("kx0", "02:00:00:00:00:01"); }

    static LinkKind kindOf(const std::string& name) {
        const auto read = readNetworkLinks();
        if (!read.has_value()) {
            throw std::runtime_error("the links cannot be read");
        }
        const auto found = std::ranges::find(read->links, name, &NetworkLink::name);
        if (found == read->links.end()) {
            throw std::runtime_error("no link " + name);
        }
        return found->kind;
    }

    // The kind of kx0 when the kernel calls its kind by this name, which has four letters or fewer.
    // The kernel's own name for the kind of kx0 has four.
    static LinkKind kindOfLinkThatIsCalled(std::string_view kind) {
        const RewrittenNetlink rewritten([kind](nlmsghdr& message) {
            rtattr* const information = isAboutLink(message, "kx0")
                                            ? attributeOf<ifinfomsg>(message, IFLA_LINKINFO)
                                            : nullptr;
            rtattr* const name =
                information != nullptr ? attributeIn(*information, IFLA_INFO_KIND) : nullptr;
            if (name != nullptr && std::string_view(static_cast<char*>(RTA_DATA(name))) == "veth") {
                std::memset(RTA_DATA(name), 0, RTA_PAYLOAD(name));
                kind.copy(static_cast<char*>(RTA_DATA(name)), 4);
                name->rta_len = static_cast<unsigned short>(RTA_LENGTH(kind.size() + 1));
            }
        });
        return kindOf("kx0");
    }

    // The kind of kx0 when its hardware is of this type.
    static LinkKind kindOfLinkWithHardware(unsigned short type) {
        const RewrittenNetlink rewritten([type](nlmsghdr& message) {
            if (isAboutLink(message, "kx0")) {
                static_cast<ifinfomsg*>(NLMSG_DATA(&message))->ifi_type = type;
            }
        });
        return kindOf("kx0");
    }

    PrivateNetwork network;
};

} // namespace

TEST_F(LinkKinds, AWiredLinkIsEthernet) {
    EXPECT_EQ(kindOf("kx0"), LinkKind::ethernet);
    EXPECT_EQ(kindOfLinkThatIsCalled("kx"), LinkKind::ethernet) << "whatever made it";
}

TEST_F(LinkKinds, ALinkThatTheKernelCallsByOneOfTheseNamesIsOfThatKind) {
    network.ip("link add kxbr type bridge");
    EXPECT_EQ(kindOf("kxbr"), LinkKind::bridge);
    EXPECT_EQ(kindOfLinkThatIsCalled("vlan"), LinkKind::vlan);
    EXPECT_EQ(kindOfLinkThatIsCalled("bond"), LinkKind::bond);
    EXPECT_EQ(kindOfLinkThatIsCalled("team"), LinkKind::bond);
}

TEST_F(LinkKinds, ALinkThatTheDriversShowAsWirelessIsWiFi) {
    network.addLink("kx1", "02:00:00:00:00:02");
    const WirelessDrivers drivers("kx1");
    EXPECT_EQ(kindOf("kx1"), LinkKind::wiFi);
    EXPECT_EQ(kindOf("kx0"), LinkKind::ethernet);
}

TEST_F(LinkKinds, AKindThatTheKernelNamesWinsOverWhatTheDriversShow) {
    network.ip("link add kxbr type bridge");
    const WirelessDrivers drivers("kxbr");
    EXPECT_EQ(kindOf("kxbr"), LinkKind::bridge);
}

TEST_F(LinkKinds, ALinkOverATelephoneLineIsPointToPoint) {
    EXPECT_EQ(kindOfLinkWithHardware(ARPHRD_PPP), LinkKind::pointToPoint);
}

TEST_F(LinkKinds, OtherHardwareHasNoNameOfItsOwn) {
    EXPECT_EQ(kindOf("lo"), LinkKind::other);
    EXPECT_EQ(kindOfLinkWithHardware(ARPHRD_SLIP), LinkKind::other);
    network.ip("tuntap add kxtun mode tun");
    EXPECT_EQ(kindOf("kxtun"), LinkKind::other);
}

} // namespace kx
