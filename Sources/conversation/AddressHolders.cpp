#include "conversation/AddressHolders.h"

#include "units/UnitCommand.h"

#include <algorithm>
#include <utility>

namespace kx {

using namespace std::chrono_literals;

namespace {

// The table is looked at so often: a holder on the same link answers within milliseconds.
constexpr auto timeBetweenHolderLooks = 20ms;

// PROBE_NUM and PROBE_MIN of RFC 5227.
constexpr int probeCount = 3;
constexpr auto timeBetweenProbes = 1000ms;

// The serial number comes with an answer, which a unit sends a moment after its ARP answer.
constexpr auto timeForSerialNumber = 200ms;

} // namespace

bool isHeldByAnother(const AddressHolders& holders, std::string_view hardwareAddress) {
    return std::ranges::any_of(holders.holders, [hardwareAddress](const auto& holder) {
        return holder.hardwareAddress != hardwareAddress;
    });
}

bool isFreeFor(const AddressHolders& holders, std::string_view hardwareAddress) {
    return holders.state != HolderState::unknown && !isHeldByAnother(holders, hardwareAddress);
}

HolderSearch::HolderSearch(UnitExchange& exchange, const Services& services,
                           const std::vector<AddressQuestion>& questions)
    : Listener(exchange)
    , _services(services) {
    for (const AddressQuestion& question : questions) {
        _asked.push_back({.question = question});
        _results.push_back({.address = question.address, .holders = {}});
    }
}

void HolderSearch::start() {
    _begun = exchange().now();
    openProbes();
    request();
    probe();
    look();
}

void HolderSearch::openProbes() {
    for (Asked& asked : _asked) {
        const std::uint32_t link = asked.question.link;
        if (_services.probes != nullptr && !_probes.contains(link)) {
            _probes[link] = _services.probes->open(
                link, [this, link](std::uint32_t address, const std::string& hardwareAddress) {
                    for (std::size_t i = 0; i < _asked.size(); ++i) {
                        if (_asked[i].isProbed && _asked[i].question.address == address &&
                            _asked[i].question.link == link) {
                            addHolder(_results[i], hardwareAddress);
                        }
                    }
                });
        }
        asked.isProbed = _services.probes != nullptr && _probes[link] != nullptr;
    }
}

// Makes the system look for the holder, and a unit that holds the address say who it is.
void HolderSearch::request() {
    for (const Asked& asked : _asked) {
        exchange().send(parameterRequestCommand, {.address = asked.question.address,
                                                  .port = defaultUnitPort,
                                                  .link = asked.question.link});
    }
}

void HolderSearch::probe() {
    ++_probesSent;
    for (const Asked& asked : _asked) {
        if (asked.isProbed) {
            _probes[asked.question.link]->probe(asked.question.address);
        }
    }
    if (_probesSent < probeCount) {
        _nextProbe = exchange().runLoop().callOnceAfter(timeBetweenProbes, [this] { probe(); });
    }
}

void HolderSearch::look() {
    for (std::size_t i = 0; i < _asked.size(); ++i) {
        if (!_asked[i].isDecided) {
            lookAt(i);
        }
    }
    const bool areDecided = std::ranges::all_of(_asked, &Asked::isDecided);
    if (exchange().now() - _begun >= patience) {
        finish();
    } else if (areDecided) {
        _nextLook = exchange().runLoop().callOnceAfter(timeForSerialNumber, [this] { finish(); });
    } else {
        _nextLook = exchange().runLoop().callOnceAfter(timeBetweenHolderLooks, [this] { look(); });
    }
}

// An address that is probed is decided when all probes had their time. The table decides the
// others.
void HolderSearch::lookAt(std::size_t index) {
    Asked& asked = _asked[index];
    AddressHolders& result = _results[index];
    const auto sinceBegin = exchange().now() - _begun;
    if (asked.isProbed) {
        if (sinceBegin >= probeCount * timeBetweenProbes) {
            result.state = result.holders.empty() ? HolderState::free : HolderState::held;
            asked.isDecided = true;
        }
        return;
    }
    const auto entry = _services.neighbours.entry(asked.question.address, asked.question.link);
    result.state = holderStateOf(entry, sinceBegin);
    asked.isDecided = result.state != HolderState::unknown;
    if (entry.has_value() && result.state == HolderState::held) {
        addHolder(result, entry->hardwareAddress);
    }
}

std::size_t HolderSearch::decided() const {
    return static_cast<std::size_t>(std::ranges::count_if(_asked, &Asked::isDecided));
}

void HolderSearch::addHolder(AddressHolders& result, const std::string& hardwareAddress) {
    const bool isKnown = std::ranges::any_of(result.holders, [&](const auto& holder) {
        return holder.hardwareAddress == hardwareAddress;
    });
    if (!isKnown) {
        result.holders.push_back({.hardwareAddress = hardwareAddress, .serialNumber = {}});
    }
}

void HolderSearch::unitDidTell(const HeardUnit& unit) {
    _serialNumbers.insert_or_assign(std::string(unit.hardwareAddress()),
                                    std::string(unit.serialNumber()));
    // A unit that answers from the address holds it, whatever the table says.
    const auto told = unit.target().address;
    for (std::size_t i = 0; i < _asked.size(); ++i) {
        const AddressQuestion& question = _asked[i].question;
        if (!hasEnded() && !_asked[i].isProbed && unit.sender == question.address &&
            told == question.address && unit.link == question.link) {
            addHolder(_results[i], std::string(unit.hardwareAddress()));
            _results[i].state = HolderState::held;
            _asked[i].isDecided = true;
        }
    }
}

void HolderSearch::finish() {
    for (AddressHolders& result : _results) {
        for (auto& holder : result.holders) {
            const auto known = _serialNumbers.find(holder.hardwareAddress);
            if (known != _serialNumbers.end()) {
                holder.serialNumber = known->second;
            }
        }
    }
    _nextProbe.reset();
    _nextLook.reset();
    end();
}

} // namespace kx
