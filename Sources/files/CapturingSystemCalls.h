// Datagram system calls that write a capture of every datagram that goes out or comes in.
//
// Threading: that of the calls beneath. Ownership: the calls beneath must outlive this object.

#pragma once

#include "DatagramSystemCalls.h"
#include "support/ByteRange.h"

#include <chrono>
#include <functional>
#include <string>
#include <utility>

namespace kx {

class CapturingSystemCalls final : public DatagramSystemCalls {
public:
    struct Services {
        // Who sends, as the capture names it.
        std::string application;

        // Writes bytes of the capture. Its header comes with the first datagram.
        std::function<void(ByteView)> write;

        // The time since the beginning of 1970, UTC.
        std::function<std::chrono::microseconds()> now;

        // The address of this host on a link; 0 when there is none.
        std::function<std::uint32_t(std::uint32_t link)> ownAddress;
    };

    CapturingSystemCalls(DatagramSystemCalls& inner, Services services);

    int socket() override { return _inner.socket(); }
    int bind(int descriptor, ByteView address) override { return _inner.bind(descriptor, address); }
    int connect(int descriptor, ByteView address) override {
        return _inner.connect(descriptor, address);
    }
    int statusFlags(int descriptor) override { return _inner.statusFlags(descriptor); }
    int setStatusFlags(int descriptor, int flags) override {
        return _inner.setStatusFlags(descriptor, flags);
    }
    int enableBroadcast(int descriptor) override { return _inner.enableBroadcast(descriptor); }
    int enablePacketInfo(int descriptor) override { return _inner.enablePacketInfo(descriptor); }
    ssize_t sendTo(int descriptor, ByteView data, std::optional<ByteView> address) override;
    ssize_t sendToByLink(int descriptor, ByteView data, ByteView address,
                         std::uint32_t link) override;
    std::uint32_t linkForName(const std::string& name) override { return _inner.linkForName(name); }
    std::string nameForLink(std::uint32_t link) override { return _inner.nameForLink(link); }
    ssize_t receiveFrom(int descriptor, std::span<std::uint8_t> buffer,
                        DatagramOrigin& origin) override;
    std::optional<Bytes> localAddress(int descriptor) override {
        return _inner.localAddress(descriptor);
    }
    std::optional<Bytes> peerAddress(int descriptor) override {
        return _inner.peerAddress(descriptor);
    }
    int close(int descriptor) override { return _inner.close(descriptor); }
    std::uint32_t socketFlags() override { return _inner.socketFlags(); }

private:
    void capture(int descriptor, bool isOwn, ByteView other, std::uint32_t link, ByteView data);

    DatagramSystemCalls& _inner;
    Services _services;
    bool _hasHeader = false;
};

} // namespace kx
