// Datagram system calls that pass every call on to others. A class that looks at some of the calls
// derives from this one and overrides those.
//
// Threading: that of the calls beneath. Ownership: the calls beneath must outlive this object.

#pragma once

#include "DatagramSystemCalls.h"

namespace kx {

class ForwardingSystemCalls : public DatagramSystemCalls {
public:
    explicit ForwardingSystemCalls(DatagramSystemCalls& inner)
        : _inner(inner) {}

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
    ssize_t sendTo(int descriptor, ByteView data, std::optional<ByteView> address) override {
        return _inner.sendTo(descriptor, data, address);
    }
    ssize_t sendToByLink(int descriptor, ByteView data, ByteView address,
                         std::uint32_t link) override {
        return _inner.sendToByLink(descriptor, data, address, link);
    }
    std::uint32_t linkForName(const std::string& name) override { return _inner.linkForName(name); }
    std::string nameForLink(std::uint32_t link) override { return _inner.nameForLink(link); }
    ssize_t receiveFrom(int descriptor, std::span<std::uint8_t> buffer,
                        DatagramOrigin& origin) override {
        return _inner.receiveFrom(descriptor, buffer, origin);
    }
    void allowReadingAhead(int descriptor) override { _inner.allowReadingAhead(descriptor); }
    bool hasReadAhead(int descriptor) const override { return _inner.hasReadAhead(descriptor); }
    std::optional<Bytes> localAddress(int descriptor) override {
        return _inner.localAddress(descriptor);
    }
    std::optional<Bytes> peerAddress(int descriptor) override {
        return _inner.peerAddress(descriptor);
    }
    int close(int descriptor) override { return _inner.close(descriptor); }
    std::uint32_t socketFlags() override { return _inner.socketFlags(); }

protected:
    DatagramSystemCalls& inner() const { return _inner; }

private:
    DatagramSystemCalls& _inner;
};

} // namespace kx
