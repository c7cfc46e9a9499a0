// Sees what the listener of a program does and hears, for the diagnosis, without being part of it:
// it stands between the endpoint and the system calls.
//
// It forgets everything when a listener is bound. Of the datagrams that look like answers it
// decodes the first few thousand only, so that a flood costs nothing.
//
// The diagnosis sends broadcasts from sockets of its own to see whether one comes back to the
// listener. The witness takes such a datagram out: the listener's owner never sees it. It does the
// same with the requests of a second listener of the program, which come back to the first one.
//
// Threading: that of the calls beneath. Ownership: the calls and the buffers must outlive the
// witness.

#pragma once

#include "ForwardingSystemCalls.h"
#include "ReceiveBufferControl.h"
#include "conversation/DiagnosisEvidence.h"

#include <cstdint>
#include <set>
#include <span>
#include <utility>
#include <vector>

namespace kx {

class ListenerWitness final : public ForwardingSystemCalls {
public:
    // So many datagrams are decoded after a listener was bound.
    static constexpr std::uint32_t mostDecoded = 4096;

    // `buffers` tells the datagrams that the system dropped; it may be null.
    explicit ListenerWitness(DatagramSystemCalls& inner, ReceiveBufferControl* buffers = nullptr)
        : ForwardingSystemCalls(inner)
        , _buffers(buffers) {}

    // The evidence about the latest listener. `ownAddresses` are those of this host: a request from
    // one of them that came from the listener's own port is its own.
    ListenerEvidence evidence(std::span<const std::uint32_t> ownAddresses);

    // Takes out requests from these ports of this host, until the next call, and notes that one
    // came. No ports end it.
    void expectProbes(std::vector<std::uint16_t> ports, std::vector<std::uint32_t> ownAddresses);
    bool hasHeardProbe() const { return _hasHeardProbe; }

    // Takes out requests that another listener of this program sends from this port of this host,
    // until the next call. Port 0 ends it.
    void passOverRequestsFrom(std::uint16_t port, std::vector<std::uint32_t> ownAddresses);

    int bind(int descriptor, ByteView address) override;
    int close(int descriptor) override;
    ssize_t sendTo(int descriptor, ByteView data, std::optional<ByteView> address) override;
    ssize_t sendToByLink(int descriptor, ByteView data, ByteView address,
                         std::uint32_t link) override;
    ssize_t receiveFrom(int descriptor, std::span<std::uint8_t> buffer,
                        DatagramOrigin& origin) override;

private:
    struct Sender {
        std::uint32_t address = 0;
        std::uint16_t port = 0;
        friend auto operator<=>(const Sender&, const Sender&) = default;
    };

    static Sender senderOf(ByteView record);
    bool isProbe(ByteView datagram, const Sender& sender) const;
    bool isOfOtherListener(ByteView datagram, const Sender& sender) const;
    void noteSend(ByteView data, ByteView address, ssize_t sent);
    void noteDatagram(ByteView datagram, const DatagramOrigin& origin);
    void decode(ByteView datagram, const Sender& sender, std::uint32_t link);

    ReceiveBufferControl* _buffers;
    ListenerEvidence _evidence;
    int _descriptor = -1; // the listener's
    std::uint32_t _decoded = 0;
    std::set<Sender> _requests; // who sent a parameter request to the listener
    std::vector<std::uint16_t> _probePorts;
    std::vector<std::uint32_t> _probeAddresses;
    bool _hasHeardProbe = false;
    std::uint16_t _otherPort = 0; // of another listener of this program
    std::vector<std::uint32_t> _otherAddresses;
};

// The unit that tells its parameters in this datagram; absent when it is no such answer or cannot
// be decoded.
std::optional<HeardUnit> unitInDatagram(ByteView datagram, std::uint32_t sender,
                                        std::uint32_t link);

// Whether the datagram begins as an answer of a unit does. A request of another program begins so
// too, and is none.
bool looksLikeAnswer(ByteView datagram);

} // namespace kx
