#include "DatagramSystemCalls.h"

#include "addresses/SocketAddressRecord.h"

#include <fcntl.h>
#include <net/if.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/uio.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <utility>

namespace kx {

namespace {

// The host's own form of an IPv4 record. Absent, with errno set, for any other record.
std::optional<sockaddr_in> hostAddress(ByteView record) {
    if (familyOfRecord(record) != addressFamilyIPv4) {
        errno = EAFNOSUPPORT;
        return std::nullopt;
    }
    if (record.size() < ipv4RecordLength) {
        errno = EINVAL;
        return std::nullopt;
    }
    std::uint32_t address = 0;
    IPv6Octets unused{};
    std::uint16_t port = 0;
    addressForData(record, address, unused, &port);
    sockaddr_in result{};
    result.sin_family = AF_INET;
    result.sin_port = htons(port);
    result.sin_addr.s_addr = htonl(address);
    return result;
}

// Makes `record` that of an address from the system; empty for an address that is not IPv4. The
// system cuts a longer address to the room that it finds, and leaves its family in front.
void setRecordOf(const sockaddr_in& address, socklen_t length, Bytes& record) {
    if (length >= sizeof address && address.sin_family == AF_INET) {
        setRecord(record, ntohl(address.sin_addr.s_addr), ntohs(address.sin_port));
    } else {
        record.clear();
    }
}

// The interface by which a message came and the address to which it was sent; zeros when the system
// did not tell them. The message has room for this part alone.
in_pktinfo informationOf(const msghdr& message) {
    in_pktinfo information{};
    const cmsghdr* const part = CMSG_FIRSTHDR(&message);
    if (part != nullptr && part->cmsg_level == IPPROTO_IP && part->cmsg_type == IP_PKTINFO) {
        std::memcpy(&information, CMSG_DATA(part), sizeof information);
    }
    return information;
}

// The result of getsockname(2) or getpeername(2).
std::optional<Bytes> nameOf(int descriptor, int (*nameCall)(int, sockaddr*, socklen_t*)) {
    sockaddr_in address{};
    socklen_t length = sizeof address;
    if (nameCall(descriptor, reinterpret_cast<sockaddr*>(&address), &length) != 0) {
        return std::nullopt;
    }
    std::optional<Bytes> record(std::in_place);
    setRecordOf(address, length, *record);
    return record;
}

} // namespace

int DatagramSystemCalls::socket() {
    return ::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
}

int DatagramSystemCalls::bind(int descriptor, ByteView addressRecord) {
    const auto address = hostAddress(addressRecord);
    return address
               ? ::bind(descriptor, reinterpret_cast<const sockaddr*>(&*address), sizeof *address)
               : -1;
}

int DatagramSystemCalls::connect(int descriptor, ByteView addressRecord) {
    const auto address = hostAddress(addressRecord);
    return address ? ::connect(descriptor, reinterpret_cast<const sockaddr*>(&*address),
                               sizeof *address)
                   : -1;
}

int DatagramSystemCalls::statusFlags(int descriptor) {
    return ::fcntl(descriptor, F_GETFL);
}

int DatagramSystemCalls::setStatusFlags(int descriptor, int flags) {
    return ::fcntl(descriptor, F_SETFL, flags);
}

int DatagramSystemCalls::enableBroadcast(int descriptor) {
    const std::int32_t on = 1;
    return ::setsockopt(descriptor, SOL_SOCKET, SO_BROADCAST, &on, sizeof on);
}

int DatagramSystemCalls::enablePacketInfo(int descriptor) {
    const std::int32_t on = 1;
    return ::setsockopt(descriptor, IPPROTO_IP, IP_PKTINFO, &on, sizeof on);
}

ssize_t DatagramSystemCalls::sendTo(int descriptor, ByteView data,
                                    std::optional<ByteView> addressRecord) {
    if (!addressRecord) {
        return ::sendto(descriptor, data.data(), data.size(), 0, nullptr, 0);
    }
    const auto address = hostAddress(*addressRecord);
    return address ? ::sendto(descriptor, data.data(), data.size(), 0,
                              reinterpret_cast<const sockaddr*>(&*address), sizeof *address)
                   : -1;
}

ssize_t DatagramSystemCalls::sendToByLink(int descriptor, ByteView data, ByteView addressRecord,
                                          std::uint32_t link) {
    auto address = hostAddress(addressRecord);
    if (!address) {
        return -1;
    }
    iovec bytes{.iov_base = const_cast<std::uint8_t*>(data.data()), .iov_len = data.size()};
    alignas(cmsghdr) std::array<std::byte, CMSG_SPACE(sizeof(in_pktinfo))> control{};
    msghdr message{};
    message.msg_name = &*address;
    message.msg_namelen = sizeof *address;
    message.msg_iov = &bytes;
    message.msg_iovlen = 1;
    message.msg_control = control.data();
    message.msg_controllen = control.size();
    cmsghdr* const part = CMSG_FIRSTHDR(&message);
    part->cmsg_level = IPPROTO_IP;
    part->cmsg_type = IP_PKTINFO;
    part->cmsg_len = CMSG_LEN(sizeof(in_pktinfo));
    in_pktinfo information{};
    information.ipi_ifindex = static_cast<int>(link);
    std::memcpy(CMSG_DATA(part), &information, sizeof information);
    return ::sendmsg(descriptor, &message, 0);
}

std::uint32_t DatagramSystemCalls::linkForName(const std::string& name) {
    return ::if_nametoindex(name.c_str());
}

std::string DatagramSystemCalls::nameForLink(std::uint32_t link) {
    std::array<char, IF_NAMESIZE> name{};
    return ::if_indextoname(link, name.data()) != nullptr ? name.data() : "";
}

ssize_t DatagramSystemCalls::receiveFrom(int descriptor, std::span<std::uint8_t> buffer,
                                         DatagramOrigin& origin) {
    sockaddr_in sender{};
    iovec bytes{.iov_base = buffer.data(), .iov_len = buffer.size()};
    alignas(cmsghdr) std::array<std::byte, CMSG_SPACE(sizeof(in_pktinfo))> control;
    msghdr message{};
    message.msg_name = &sender;
    message.msg_namelen = sizeof sender;
    message.msg_iov = &bytes;
    message.msg_iovlen = 1;
    message.msg_control = control.data();
    message.msg_controllen = control.size();
    const ssize_t received = ::recvmsg(descriptor, &message, 0);
    if (received >= 0) {
        setOrigin(message, origin);
    }
    return received;
}

void DatagramSystemCalls::allowReadingAhead(int /*descriptor*/) {}

bool DatagramSystemCalls::hasReadAhead(int /*descriptor*/) const {
    return false;
}

void DatagramSystemCalls::setOrigin(const msghdr& message, DatagramOrigin& origin) {
    // Written in place: a record that is made elsewhere and moved costs 10 ns more.
    setRecordOf(*static_cast<const sockaddr_in*>(message.msg_name), message.msg_namelen,
                origin.sender);
    const in_pktinfo information = informationOf(message);
    origin.link = static_cast<std::uint32_t>(information.ipi_ifindex);
    origin.destination = ntohl(information.ipi_addr.s_addr);
}

std::optional<Bytes> DatagramSystemCalls::localAddress(int descriptor) {
    return nameOf(descriptor, ::getsockname);
}

std::optional<Bytes> DatagramSystemCalls::peerAddress(int descriptor) {
    return nameOf(descriptor, ::getpeername);
}

int DatagramSystemCalls::close(int descriptor) {
    return ::close(descriptor);
}

} // namespace kx
