#include "conversation/EvidenceSearch.h"

#include "addresses/IPv4Address.h"
#include "conversation/Diagnosis.h"
#include "conversation/UnitDestination.h"
#include "units/UnitCommand.h"

#include <algorithm>
#include <cerrno>
#include <utility>

namespace kx {

using namespace std::chrono_literals;

namespace {

// Enough to see whether answers to single requests come in.
constexpr std::size_t mostNeighbours = 32;

// Enough to find a wrong entry among the units of a rack, and soon done.
constexpr std::size_t mostComparedUnits = 256;
constexpr std::size_t mostAnswersOnOtherPorts = 64;

constexpr auto timeBetweenEvidenceLooks = 50ms;

std::uint32_t addressToldBy(const UnitRecord& record) {
    const auto told = record.value(UnitParameter::internalIPAddress);
    return told.has_value() ? ipForString(*told) : 0;
}

} // namespace

EvidenceSearch::EvidenceSearch(const Services& services, DiagnosisQuestion question)
    : _services(services)
    , _question(std::move(question))
    , _interface(_question.interface.value_or(HostInterface())) {}

EvidenceSearch::~EvidenceSearch() {
    _services.witness.expectProbes({}, {});
}

void EvidenceSearch::start() {
    _begun = _services.now();
    _evidence.interfaceName = _question.interfaceName;
    _evidence.interface = _question.interface;
    readListener();
    beginTarget();
    if (!canAsk(_evidence)) {
        finish();
        return;
    }
    lookUp();
    openSockets();
    requestFromHosts();
    _nextRequest = _services.runLoop.callOnceAfter(firstRequest, [this] { request(); });
    _deadline = _services.runLoop.callOnceAfter(usualTime, [this] { finishOrWait(); });
}

void EvidenceSearch::look() {
    _evidence.interfaceName = _question.interfaceName;
    _evidence.interface = _question.interface;
    _listenerWasTold = true;
    if (canAsk(_evidence)) {
        lookUp();
    }
    conclude();
}

// The first and the last host of the network stand for its halves; another link may lead to one.
void EvidenceSearch::lookUp() {
    const NetworkOfInterface& network = _interface.networks.front();
    const std::uint32_t first = (network.address & network.mask) + 1;
    const std::uint32_t last = network.broadcast() - 1;
    for (const std::uint32_t host : {network.address == first ? first + 1 : first,
                                     network.address == last ? last - 1 : last}) {
        const bool isOther =
            network.contains(host) && !network.isOfNetwork(host) && host != network.address;
        const auto route = isOther ? _services.host.route(host) : std::nullopt;
        if (route.has_value()) {
            _evidence.subnetRoutes.push_back(*route);
        }
    }
    _evidence.reversePathFilter = _services.host.reversePathFilter(_interface.name);
}

void EvidenceSearch::beginTarget() {
    if (!_question.target.has_value()) {
        return;
    }
    TargetEvidence& target = _evidence.target.emplace();
    target.name = _question.targetName;
    target.port = defaultUnitPort;
    if (const auto* const address = std::get_if<std::uint32_t>(&*_question.target)) {
        target.address = *address;
    } else if (_question.knownRecord.has_value()) {
        const UnitRecord& record = *_question.knownRecord;
        target.address = addressToldBy(record);
        target.port = unitPortForText(record.value(UnitParameter::devicePortNumber));
        target.hardwareAddress = record.value(UnitParameter::internalMACAddress).value_or("");
    }
    if (target.address != 0) {
        target.route = _services.host.route(target.address);
        _hosts[target.address] = {.port = target.port};
    }
}

// --- Sockets ---

void EvidenceSearch::openSockets() {
    const std::string& name = _interface.name;
    const auto failed = [this](const DeliveryFailure& failure) { deliveryDidFail(failure); };
    const auto answered = [this](ByteView data, std::uint32_t sender, std::uint16_t /*port*/) {
        hostDidAnswer(data, sender);
    };
    _everybody = _services.sockets.open(
        _services.systemCalls, {.interface = name, .port = 0},
        {.received = [this](ByteView data, std::uint32_t sender,
                            std::uint16_t port) { linkDidReceive(data, sender, port); },
         .failed = {}});
    _single = _services.sockets.open(_services.systemCalls, {.interface = {}, .port = 0},
                                     {.received = answered, .failed = failed});
    openOtherPorts();
    if (_everybody != nullptr) {
        _services.witness.expectProbes({_everybody->port()}, _question.ownAddresses);
    }
}

// A port that another program has is left to it.
void EvidenceSearch::openOtherPorts() {
    for (std::uint16_t port = defaultUnitPort; port <= lastListeningPort; ++port) {
        if (port == _evidence.listener.port) {
            continue;
        }
        auto socket = _services.sockets.open(
            _services.systemCalls, {.interface = {}, .port = port},
            {.received =
                 [this, port](ByteView data, std::uint32_t sender, std::uint16_t /*port*/) {
                     auto unit = unitInDatagram(data, sender, link());
                     auto& answers = _evidence.answersOnOtherPorts;
                     if (unit.has_value() && answers.size() < mostAnswersOnOtherPorts) {
                         answers.push_back({.port = port, .unit = *unit});
                     }
                 },
             .failed = {}});
        if (socket != nullptr) {
            _otherPorts.push_back(std::move(socket));
        }
    }
}

// --- Requests ---

void EvidenceSearch::request() {
    ++_requests;
    count(false);
    if (_question.ask) {
        _question.ask();
        _listenerWasTold = true;
    }
    if (_everybody != nullptr) {
        const bool isSent =
            !_everybody
                 ->send(parameterRequestCommand,
                        {.address = limitedBroadcastAddress, .port = defaultUnitPort})
                 .has_value();
        _evidence.hasAskedLink = _evidence.hasAskedLink || isSent;
        const std::uint16_t port = _evidence.listener.port;
        const bool isHeardByListener = port == defaultUnitPort ? isSent : askListener(port);
        _probeLeft = _probeLeft || isHeardByListener;
    }
    requestFromHosts();
    _nextCount = _services.runLoop.callOnceAfter(timeForAnswers, [this] { afterRequest(); });
    if (_requests < requests) {
        _nextRequest = _services.runLoop.callOnceAfter(timeBetweenRequests, [this] { request(); });
    }
}

// Whether a request left that no unit takes, because it goes to the listener's port.
bool EvidenceSearch::askListener(std::uint16_t port) {
    return port != 0 &&
           !_everybody
                ->send(parameterRequestCommand, {.address = _interface.broadcast(), .port = port})
                .has_value();
}

void EvidenceSearch::requestFromHosts() {
    for (const auto& [address, host] : _hosts) {
        if (!host.hasAnswered) {
            askHost(address);
        }
    }
}

// Hosts in the interface's networks are asked by it, as commands are; others where the routes lead.
void EvidenceSearch::askHost(std::uint32_t address) {
    if (_single == nullptr) {
        return;
    }
    _evidence.hasAskedHosts = true;
    const bool isNear = _interface.networkOf(address) != nullptr;
    const auto error = _single->send(
        parameterRequestCommand,
        {.address = address, .port = _hosts[address].port, .link = isNear ? link() : 0});
    if (error.has_value() && _evidence.target.has_value() && _evidence.target->address == address) {
        _evidence.target->sendError = error;
    }
}

void EvidenceSearch::afterRequest() {
    count(true);
    readListener();
    findTarget();
    compareEntries();
    if (_evidence.listener.units.count() == 0) {
        chooseNeighbours();
    }
}

void EvidenceSearch::count(bool isBehindRequest) {
    const auto now = _services.host.counters();
    if (now.has_value() && _lastCounters.has_value()) {
        CounterRises& rises = _evidence.counters;
        const std::uint64_t filtered = now->wrongReversePath - _lastCounters->wrongReversePath;
        const std::uint64_t came = now->received - _lastCounters->received;
        const std::uint64_t handedOn = now->delivered - _lastCounters->delivered + filtered;
        rises.wrongReversePath += filtered;
        rises.takenAway += came > handedOn ? came - handedOn : 0;
        rises.withoutListener += now->withoutListener - _lastCounters->withoutListener;
        if (isBehindRequest) {
            ++rises.requests;
            rises.requestsWithWrongReversePath += filtered > 0 ? 1 : 0;
        } else {
            rises.wrongReversePathInQuiet += filtered;
        }
    }
    _lastCounters = now;
}

// --- Answers ---

void EvidenceSearch::linkDidReceive(ByteView data, std::uint32_t sender, std::uint16_t /*port*/) {
    if (auto unit = unitInDatagram(data, sender, link())) {
        _evidence.linkUnits.add(*unit);
    } else if (sender != 0) {
        ++_evidence.linkNotUnderstood;
    }
}

void EvidenceSearch::hostDidAnswer(ByteView data, std::uint32_t sender) {
    const auto host = _hosts.find(sender);
    if (host != _hosts.end() && unitInDatagram(data, sender, link()).has_value()) {
        host->second.hasAnswered = true;
        _evidence.hostHasAnswered = true;
    }
}

void EvidenceSearch::deliveryDidFail(const DeliveryFailure& failure) {
    auto& target = _evidence.target;
    if (target.has_value() && failure.destination == target->address) {
        target->failure = failure.error;
        target->reporter = failure.reporter;
    }
}

// The units that were heard and that a person means.
std::vector<const HeardUnit*> EvidenceSearch::meantAmong(const HeardUnits& units) const {
    if (!_question.target.has_value()) {
        return {};
    }
    if (const auto* const name = std::get_if<UnitName>(&*_question.target)) {
        return units.named(*name);
    }
    auto all = units.all();
    std::erase_if(all, [address = std::get<std::uint32_t>(*_question.target)](const auto* unit) {
        return addressToldBy(unit->record) != address;
    });
    return all;
}

// A unit that was named by its serial number or its unit ID has an address as soon as it is heard.
void EvidenceSearch::findTarget() {
    auto& target = _evidence.target;
    if (!target.has_value()) {
        return;
    }
    for (const HeardUnits* const units : {&_evidence.listener.units, &_evidence.linkUnits}) {
        for (const HeardUnit* const unit : meantAmong(*units)) {
            target->answersBroadcast =
                target->answersBroadcast || units == &_evidence.listener.units;
            target->hardwareAddress = unit->hardwareAddress();
            if (target->address == 0) {
                target->address = unit->target().address;
                target->port = unit->target().port;
                target->route = _services.host.route(target->address);
                _hosts.try_emplace(target->address, Host{.port = target->port});
            }
        }
    }
}

// A fixed entry that names another hardware address than the unit itself tells. Whether it does
// harm shows when the unit is asked at its address.
void EvidenceSearch::compareEntries() {
    std::size_t compared = 0;
    for (const HeardUnits* const units : {&_evidence.listener.units, &_evidence.linkUnits}) {
        for (const HeardUnit* const unit : units->all()) {
            const UnitTarget target = unit->target();
            const bool isKnown =
                std::ranges::find(_evidence.wrongEntries, target.address, &WrongEntry::address) !=
                _evidence.wrongEntries.end();
            if (isKnown || unit->hardwareAddress().empty() || ++compared > mostComparedUnits) {
                continue;
            }
            const auto entry = _services.neighbours.entry(target.address, link());
            if (entry.has_value() && entry->state == NeighbourState::permanent &&
                entry->hardwareAddress != unit->hardwareAddress()) {
                _evidence.wrongEntries.push_back({.address = target.address,
                                                  .entered = entry->hardwareAddress,
                                                  .told = std::string(unit->hardwareAddress())});
                _hosts.try_emplace(target.address, Host{.port = target.port});
            }
        }
    }
}

// As long as nobody answers: perhaps answers to single requests come in. They are asked with the
// next request to everybody, so that the time between stays quiet.
void EvidenceSearch::chooseNeighbours() {
    for (const std::uint32_t address : _services.neighbours.knownAddresses(link())) {
        if (_chosenNeighbours < mostNeighbours && _interface.networkOf(address) != nullptr &&
            _hosts.try_emplace(address, Host{.port = defaultUnitPort}).second) {
            ++_chosenNeighbours;
        }
    }
}

// --- The end ---

void EvidenceSearch::finishOrWait() {
    const auto& target = _evidence.target;
    const bool isOpen = target.has_value() && target->address != 0 && target->failure == 0 &&
                        !target->sendError.has_value() && !_hosts[target->address].hasAnswered;
    if (isOpen && _services.now() - _begun < longestTime) {
        const auto entry = _services.neighbours.entry(target->address, link());
        if (entry.has_value() && entry->state == NeighbourState::asking) {
            _deadline = _services.runLoop.callOnceAfter(timeBetweenEvidenceLooks,
                                                        [this] { finishOrWait(); });
            return;
        }
    }
    finish();
}

void EvidenceSearch::readListener() {
    _evidence.listener = _services.witness.evidence(_question.ownAddresses);
    _evidence.listener.hasAskedNow = _listenerWasTold && _evidence.listener.hasAsked &&
                                     !_evidence.listener.sendError.has_value();
}

void EvidenceSearch::finish() {
    _nextRequest.reset();
    _nextCount.reset();
    _deadline.reset();
    conclude();
    _services.witness.expectProbes({}, {});
    end();
}

void EvidenceSearch::conclude() {
    readListener();
    ListenerEvidence& listener = _evidence.listener;
    const bool isHeardNow = _services.witness.hasHeardProbe() ||
                            (listener.hasAskedNow && listener.ownBroadcast == OwnBroadcast::heard);
    if (listener.isListening && _probeLeft) {
        listener.ownBroadcast = isHeardNow ? OwnBroadcast::heard : OwnBroadcast::notHeard;
    }
    if (listener.startError.has_value() && listener.startError->code == EADDRINUSE) {
        _evidence.portOwner = _services.host.ownerOfPort(listener.port);
    }
    if (!canAsk(_evidence)) {
        return;
    }
    findTarget();
    if (auto& target = _evidence.target; target.has_value() && target->address != 0) {
        target->answersItsAddress = _hosts[target->address].hasAnswered;
        target->neighbour = _services.neighbours.entry(target->address, link());
    }
    for (WrongEntry& entry : _evidence.wrongEntries) {
        entry.isDeaf = !_hosts[entry.address].hasAnswered;
    }
    if (listener.ownBroadcast == OwnBroadcast::notHeard && listener.units.count() == 0) {
        _evidence.firewallServices = _services.host.firewallServices();
    }
}

} // namespace kx
