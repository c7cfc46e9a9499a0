// The boundary between the endpoint and the operating system's datagram sockets.
//
// Beyond this boundary a socket address is the host's own sockaddr; on this side it is a record in
// the BSD layout (addresses/SocketAddressRecord.h). Every operation is one system call, keeps its
// result convention (-1 and errno for a failure), and does not retry.
//
// The class is the real adapter and the seam in one: tests derive from it to play a system that
// fails. Threading: keeps no state; any thread.

#pragma once

#include "support/ByteRange.h"

#include <sys/types.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>

struct msghdr;

namespace kx {

// Flags of a socket wrapper (EndpointSocket.h).
inline constexpr std::uint32_t kCFSocketCloseOnInvalidate = 128;

// The index of no interface: a send by it fails. Indexes of interfaces are positive 32-bit
// integers, and Linux counts them up from 1.
inline constexpr std::uint32_t noSuchLink = 0x7FFFFFFFU;

// Bytes of a buffer that any datagram over IPv4 fits in (RFC 791, Total Length).
inline constexpr std::size_t receiveBufferLength = 65536;

// Where a datagram came from.
struct DatagramOrigin {
    Bytes sender;           // socket address record of the sender
    std::uint32_t link = 0; // index of the interface; 0 when the system did not tell it

    // Address that it was sent to, in host byte order; 0 when the system did not tell it.
    std::uint32_t destination = 0;
};

class DatagramSystemCalls {
public:
    virtual ~DatagramSystemCalls() = default;

    // socket(2): AF_INET, SOCK_DGRAM, protocol 0. The descriptor, or -1. Tools that the process
    // starts do not inherit it.
    virtual int socket();

    // bind(2) and connect(2) with an IPv4 record. 0, or -1. A record of another family or without
    // bytes fails with EAFNOSUPPORT, and one that is too short for its family fails with EINVAL; no
    // system call is made then. sendTo() checks its record in the same way. Bytes behind the first
    // 16 of a longer record are ignored.
    virtual int bind(int descriptor, ByteView addressRecord);
    virtual int connect(int descriptor, ByteView addressRecord);

    // fcntl(2) with F_GETFL and F_SETFL. The flags or 0, or -1.
    virtual int statusFlags(int descriptor);
    virtual int setStatusFlags(int descriptor, int flags);

    // setsockopt(2): SO_BROADCAST at level SOL_SOCKET, the 4-byte integer 1. 0, or -1.
    virtual int enableBroadcast(int descriptor);

    // setsockopt(2): IP_PKTINFO at level IPPROTO_IP, the 4-byte integer 1 (ip(7)). 0, or -1. After
    // that receiveFrom() tells the link and the destination.
    virtual int enablePacketInfo(int descriptor);

    // sendto(2) of the whole of `data`, flags 0, to an IPv4 record. When `addressRecord` is absent,
    // the datagram goes to the peer of a connected socket. The bytes sent, or -1.
    virtual ssize_t sendTo(int descriptor, ByteView data, std::optional<ByteView> addressRecord);

    // sendmsg(2) of the whole of `data`, flags 0, to an IPv4 record, by the interface with this
    // index (IP_PKTINFO, ip(7)). No route to another interface counts, for a broadcast neither; a
    // destination that no route of the interface covers is taken for a neighbour on it. The bytes
    // sent, or -1: ENODEV when there is no such interface, and ENETUNREACH when it is down. Index 0
    // leaves the choice to the routes, as sendTo() does.
    virtual ssize_t sendToByLink(int descriptor, ByteView data, ByteView addressRecord,
                                 std::uint32_t link);

    // if_nametoindex(3): the index of the interface that has this name now. 0 and errno when there
    // is none (ENODEV), or when the system cannot be asked.
    virtual std::uint32_t linkForName(const std::string& name);

    // if_indextoname(3): the name that the interface with this index has now. Empty when there is
    // none, or when the system cannot be asked.
    virtual std::string nameForLink(std::uint32_t link);

    // recvmsg(2), flags 0, of one datagram into `buffer`; bytes that do not fit are lost. The bytes
    // received, or -1. On success `origin` holds the link, the destination and the sender's record,
    // which is empty for a sender of another family than IPv4. On failure `origin` does not change.
    virtual ssize_t receiveFrom(int descriptor, std::span<std::uint8_t> buffer,
                                DatagramOrigin& origin);

    // From now on receiveFrom() may read ahead of this descriptor, until the descriptor is closed.
    // The caller has to read all that is ahead by itself: the descriptor need not be readable then.
    virtual void allowReadingAhead(int descriptor);

    // Whether receiveFrom() has the next datagram of this descriptor without a system call.
    virtual bool hasReadAhead(int descriptor) const;

    // getsockname(2) and getpeername(2) as records; absent when the call fails, and empty for
    // another family than IPv4.
    virtual std::optional<Bytes> localAddress(int descriptor);
    virtual std::optional<Bytes> peerAddress(int descriptor);

    // close(2). 0, or -1.
    virtual int close(int descriptor);

    // The flags that a new socket wrapper starts with.
    virtual std::uint32_t socketFlags() { return kCFSocketCloseOnInvalidate; }

protected:
    // Fills `origin` with what the system told of a received message. Its name is a sockaddr_in,
    // and it has room for the control message IP_PKTINFO alone.
    static void setOrigin(const msghdr& message, DatagramOrigin& origin);
};

} // namespace kx
