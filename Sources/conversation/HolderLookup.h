// Who holds the address that a person is typing, as far as this host can find out without rights.
//
// Half a second after an address was given, an empty datagram leaves for it, from a socket of its
// own and to the discard port (RFC 863), where no unit takes anything. This makes the system ask
// for the holder's hardware address (RFC 826), and its neighbour table tells the answer. Nothing
// leaves for an address that lies in no network of the link, for an address of this host, and for
// the network's own two addresses: what the system knows of them is no answer of a neighbour.
//
// Threading: everything, `found` included, on the thread of the run loop; nothing blocks.
// Ownership: the services must outlive this object. Addresses are in host byte order.

#pragma once

#include "DatagramSystemCalls.h"
#include "System Configuration/NetworkInterfaces.h"
#include "conversation/HolderState.h"
#include "conversation/NeighbourTable.h"
#include "support/RunLoop.h"

#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace kx {

class HolderLookup {
public:
    struct Services {
        RunLoop& runLoop;
        DatagramSystemCalls& systemCalls;
        NeighbourTable* neighbours = nullptr;    // when null, nobody is asked
        NetworkInterfaces* interfaces = nullptr; // when null, nobody is asked

        // The serial number of the unit with this hardware address; absent when none is known.
        std::function<std::optional<std::string>(std::string_view hardwareAddress)> unitOf;
    };

    // Gives a person who types the time to type on.
    static constexpr std::chrono::milliseconds timeBeforeAsking{500};

    // The result is unknown when nothing was found out so long after the datagram. It may still
    // change: a neighbour that was known once is asked again only after five seconds.
    static constexpr std::chrono::milliseconds patience{4000};
    static constexpr std::chrono::milliseconds lastLook{15'000};

    // `found` is called whenever there is a result or another one.
    HolderLookup(const Services& services, std::function<void()> found);

    // Looks for the holder of this address. The question that is asked already goes on; another one
    // ends it, and so does an absent one. A question without a link (0) has no result.
    void lookUp(const std::optional<AddressQuestion>& question);
    void cancel() { lookUp(std::nullopt); }

    // What is known about this question. Null while nothing can be said, for an address that nobody
    // is asked for, and for another question than the latest one.
    const AddressHolders* resultOf(const std::optional<AddressQuestion>& question) const {
        return question == _question && _result.has_value() ? &*_result : nullptr;
    }

private:
    bool isNeighbour(const AddressQuestion& question) const;
    bool isOwn(std::uint32_t address) const;
    void ask(AddressQuestion question);
    void sendTo(const AddressQuestion& question);
    void look(AddressQuestion question);
    void lookSoon(const AddressQuestion& question);
    void tell(AddressHolders result);

    Services _services;
    std::function<void()> _found;
    std::optional<AddressQuestion> _question;
    std::optional<AddressHolders> _result;
    std::chrono::milliseconds _sinceAsked{0};
    RunLoop::Handle _next;
};

} // namespace kx
