// Datagram system calls that hand on every datagram that went out or came in, as a capture has it.
//
// Threading: that of the calls beneath. Ownership: the calls beneath, and the services, must
// outlive this object.

#pragma once

#include "ForwardingSystemCalls.h"
#include "ReceiveBufferControl.h"
#include "files/Capture.h"
#include "support/ByteRange.h"

#include <cstdint>
#include <functional>
#include <map>
#include <optional>

namespace kx {

class CapturingSystemCalls final : public ForwardingSystemCalls {
public:
    struct Services {
        // Takes one datagram, without a comment. What it is given is valid during the call.
        std::function<void(const CapturedDatagram&, ByteView data)> take;

        std::function<CaptureTime()> now;

        // The address of this host on a link; 0 when there is none. Asked for each datagram that is
        // sent. Link 0 stands for a link that the routes chose.
        std::function<std::uint32_t(std::uint32_t link)> ownAddress;

        // May be null. Nobody counts then what the system drops.
        ReceiveBufferControl* receiveBuffers = nullptr;
    };

    CapturingSystemCalls(DatagramSystemCalls& inner, Services services);

    // The datagrams that came in, and those that the system dropped from all sockets that were
    // bound.
    CaptureCounts counts() const;

    int bind(int descriptor, ByteView address) override;
    ssize_t sendTo(int descriptor, ByteView data, std::optional<ByteView> address) override;
    ssize_t sendToByLink(int descriptor, ByteView data, ByteView address,
                         std::uint32_t link) override;
    ssize_t receiveFrom(int descriptor, std::span<std::uint8_t> buffer,
                        DatagramOrigin& origin) override;
    int close(int descriptor) override;

private:
    struct Endpoint {
        std::uint32_t address = 0;
        std::uint16_t port = 0;
    };

    static Endpoint endpointOf(ByteView record);
    Endpoint localEndpoint(int descriptor) const;
    std::uint32_t droppedOf(int descriptor) const;
    void takeSent(int descriptor, ByteView data, ByteView address, std::uint32_t link);
    void takeReceived(int descriptor, ByteView data, const DatagramOrigin& origin);

    Services _services;
    // The sockets that are bound, by their descriptors. Their addresses are known without asking
    // the system, which takes a third of the time of reading a datagram.
    std::map<int, Endpoint> _bound;
    CaptureCounts _counts; // without what the system has dropped from the bound sockets
};

} // namespace kx
