// Who holds an IPv4 address on a link, as far as this host can find out.
//
// Without rights: a request is sent to the address, which makes the system ask for the holder's
// hardware address (RFC 826), and its neighbour table is watched. This finds one holder. Where the
// process may send ARP frames itself, it sends probes (RFC 5227), which find every holder and are
// not deceived by entries of the table.
//
// Threading and ownership: see Operation.h. Addresses are in host byte order; hardware addresses
// are texts such as "02:4B:58:00:00:01".

#pragma once

#include "conversation/HeardUnits.h"
#include "conversation/HolderState.h"
#include "conversation/NeighbourTable.h"
#include "conversation/Operation.h"
#include "conversation/UnitExchange.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kx {

// Sends ARP probes by one link and hears the answers, until it is destroyed.
class AddressProbe {
public:
    virtual ~AddressProbe() = default;
    virtual void probe(std::uint32_t address) = 0;
};

// Threading: the thread of the run loop. Ownership: its users do not own it; it must outlive them
// and every probe that it has opened.
class AddressProbes {
public:
    using Heard = std::function<void(std::uint32_t address, const std::string& hardwareAddress)>;

    virtual ~AddressProbes() = default;

    // Null when the process has no right to send ARP frames by this link. `heard` is called from
    // the run loop for every ARP frame whose sender claims an address.
    virtual std::unique_ptr<AddressProbe> open(std::uint32_t link, Heard heard) = 0;
};

bool isHeldByAnother(const AddressHolders& holders, std::string_view hardwareAddress);

// Whether a unit with this hardware address may take the address: nobody else holds it.
bool isFreeFor(const AddressHolders& holders, std::string_view hardwareAddress);

// Asks for the holders of several addresses at once.
class HolderSearch final : public Operation, private UnitExchange::Listener {
public:
    struct Services {
        NeighbourTable& neighbours;
        AddressProbes* probes = nullptr; // may be null
    };

    // A neighbour that nobody confirms counts as unknown after this time.
    static constexpr std::chrono::milliseconds patience{4000};

    HolderSearch(UnitExchange& exchange, const Services& services,
                 const std::vector<AddressQuestion>& questions);

    // In the order of the questions.
    const std::vector<AddressHolders>& results() const { return _results; }

    // The number of addresses of which it is known whether somebody holds them.
    std::size_t decided() const;

    // Ends with what is known by now.
    void interrupt() override { finish(); }

private:
    struct Asked {
        AddressQuestion question;
        bool isProbed = false;
        bool isDecided = false;
    };

    void start() override;
    void unitDidTell(const HeardUnit& unit) override;
    void openProbes();
    void request();
    void probe();
    void look();
    void lookAt(std::size_t index);
    void finish();
    void addHolder(AddressHolders& result, const std::string& hardwareAddress);

    Services _services;
    std::vector<Asked> _asked;
    std::vector<AddressHolders> _results;
    std::map<std::uint32_t, std::unique_ptr<AddressProbe>> _probes; // by link
    std::map<std::string, std::string, std::less<>> _serialNumbers; // by hardware address
    int _probesSent = 0;
    std::chrono::milliseconds _begun{0};
    RunLoop::Handle _nextLook;
    RunLoop::Handle _nextProbe;
};

} // namespace kx
