// The window's system calls, of which none reaches a network.

#pragma once

#include "ForwardingSystemCalls.h"
#include "LoopbackSender.h"
#include "addresses/SocketAddressRecord.h"
#include "files/CapturingSystemCalls.h"
#include "files/SessionRecord.h"

namespace kx {

// The calls beneath, but sockets are bound to `port` of loopback, and what is sent goes nowhere.
class LoopbackCalls final : public ForwardingSystemCalls {
public:
    using ForwardingSystemCalls::ForwardingSystemCalls;

    int bind(int descriptor, ByteView) override {
        return inner().bind(descriptor, dataForAddress(loopbackAddress, port));
    }
    ssize_t receiveFrom(int descriptor, std::span<std::uint8_t> buffer,
                        DatagramOrigin& origin) override {
        const ssize_t length = inner().receiveFrom(descriptor, buffer, origin);
        received += length > 0 ? 1 : 0;
        return length;
    }
    ssize_t sendTo(int, ByteView data, std::optional<ByteView>) override {
        return static_cast<ssize_t>(data.size());
    }
    ssize_t sendToByLink(int, ByteView data, ByteView, std::uint32_t) override {
        return static_cast<ssize_t>(data.size());
    }

    int received = 0;
};

// Both over the same calls: without the record of the session, and with it, as the window has them.
struct WindowCalls {
    explicit WindowCalls(DatagramSystemCalls& inner);

    LoopbackCalls bare;
    SessionRecord record;
    CapturingSystemCalls recorded;
};

// Runs Qt's loop until so many more datagrams have been received. Returns the processor time.
double secondsToReceive(const LoopbackCalls& calls, int count);

} // namespace kx
