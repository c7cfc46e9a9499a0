#include "platform/linux/LinuxAddressProbes.h"

#include "support/ByteRange.h"
#include "support/Pipe.h"
#include "units/IdentityText.h"

#include <arpa/inet.h>
#include <net/ethernet.h>
#include <net/if_arp.h>
#include <netpacket/packet.h>
#include <sys/socket.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <utility>

namespace kx {

namespace {

// An ARP frame for IPv4 on Ethernet (RFC 826), without its Ethernet header.
struct [[gnu::packed]] ARPFrame {
    std::uint16_t hardwareType = htons(ARPHRD_ETHER);
    std::uint16_t protocolType = htons(ETHERTYPE_IP);
    std::uint8_t hardwareLength = ETH_ALEN;
    std::uint8_t protocolLength = sizeof(std::uint32_t);
    std::uint16_t operation = htons(ARPOP_REQUEST);
    std::array<std::uint8_t, ETH_ALEN> senderHardware{};
    std::uint32_t senderAddress = 0; // a probe claims no address
    std::array<std::uint8_t, ETH_ALEN> targetHardware{};
    std::uint32_t targetAddress = 0;
};
static_assert(sizeof(ARPFrame) == 28);

sockaddr_ll addressOnLink(std::uint32_t link) {
    sockaddr_ll address{};
    address.sll_family = AF_PACKET;
    address.sll_protocol = htons(ETH_P_ARP);
    address.sll_ifindex = static_cast<int>(link);
    return address;
}

class PacketProbe final : public AddressProbe {
public:
    PacketProbe(FileDescriptor socket, std::uint32_t link, const sockaddr_ll& own,
                AddressProbes::Heard heard, RunLoop& runLoop)
        : _socket(std::move(socket))
        , _link(link)
        , _heard(std::move(heard))
        , _watch(runLoop.watchForReading(_socket.number(), [this] { receive(); })) {
        std::copy_n(std::data(own.sll_addr), _own.size(), _own.begin());
    }

    void probe(std::uint32_t address) override {
        ARPFrame frame;
        frame.senderHardware = _own;
        frame.targetAddress = htonl(address);
        sockaddr_ll everybody = addressOnLink(_link);
        everybody.sll_halen = ETH_ALEN;
        std::ranges::fill(everybody.sll_addr, std::uint8_t{0xFF});
        ::sendto(_socket.number(), &frame, sizeof frame, MSG_DONTWAIT,
                 reinterpret_cast<const sockaddr*>(&everybody), sizeof everybody);
    }

private:
    void receive() {
        ARPFrame frame;
        sockaddr_ll sender{};
        socklen_t length = sizeof sender;
        const ssize_t received = ::recvfrom(_socket.number(), &frame, sizeof frame, MSG_DONTWAIT,
                                            reinterpret_cast<sockaddr*>(&sender), &length);
        const bool isWhole = received == ssize_t{sizeof frame} &&
                             frame.hardwareLength == ETH_ALEN &&
                             frame.protocolType == htons(ETHERTYPE_IP);
        if (isWhole && sender.sll_pkttype != PACKET_OUTGOING && frame.senderAddress != 0) {
            const auto hardware = frame.senderHardware;
            _heard(ntohl(frame.senderAddress), hexStringForData(hardware, ":"));
        }
    }

    FileDescriptor _socket;
    std::uint32_t _link;
    AddressProbes::Heard _heard;
    std::array<std::uint8_t, ETH_ALEN> _own{};
    RunLoop::Handle _watch;
};

} // namespace

std::unique_ptr<AddressProbe> LinuxAddressProbes::open(std::uint32_t link, Heard heard) {
    FileDescriptor socket(
        ::socket(AF_PACKET, SOCK_DGRAM | SOCK_CLOEXEC | SOCK_NONBLOCK, htons(ETH_P_ARP)));
    sockaddr_ll own = addressOnLink(link);
    socklen_t length = sizeof own;
    auto* const address = reinterpret_cast<sockaddr*>(&own);
    if (socket.number() < 0 || ::bind(socket.number(), address, sizeof own) != 0 ||
        ::getsockname(socket.number(), address, &length) != 0 || own.sll_halen != ETH_ALEN) {
        return nullptr;
    }
    return std::make_unique<PacketProbe>(std::move(socket), link, own, std::move(heard), _runLoop);
}

} // namespace kx
