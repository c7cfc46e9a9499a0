// Evidence of a network on which all is well, and what each cause changes in it.

#pragma once

#include "conversation/Diagnosis.h"
#include "conversation/ListenerWitness.h"
#include "core/UnitReplies.h"

#include <cerrno>
#include <cstdint>
#include <functional>
#include <vector>

namespace kx {

inline constexpr std::uint32_t sampleLink = 3;

inline HostInterface sampleInterface() {
    HostInterface interface;
    interface.name = "kx0";
    interface.title = "Ethernet (kx0)";
    interface.link = sampleLink;
    interface.networks = {{.address = 0xC0A80101U, .mask = 0xFFFFFF00U}}; // 192.168.1.1/24
    interface.canBroadcast = true;
    interface.isRunning = true;
    interface.canAsk = true;
    return interface;
}

inline HeardUnit heardUnit(const SampleUnit& unit) {
    return unitInDatagram(unit.reply(), addressToldIn(unit.reply()), sampleLink).value();
}

inline SampleUnit sampleUnitAt(std::uint8_t number, const Bytes& address) {
    SampleUnit unit;
    unit.serial.back() = number;
    unit.internalMAC.back() = number;
    unit.internalIP = address;
    return unit;
}

// 192.168.1.1/24 with two units, and nothing named.
inline DiagnosisEvidence healthyEvidence() {
    DiagnosisEvidence evidence;
    evidence.interfaceName = "kx0";
    evidence.interface = sampleInterface();
    evidence.listener = {.port = 3520,
                         .isListening = true,
                         .hasAsked = true,
                         .hasAskedNow = true,
                         .ownBroadcast = OwnBroadcast::heard};
    evidence.hasAskedLink = true;
    for (const SampleUnit& unit : {SampleUnit(), secondSampleUnit()}) {
        evidence.listener.units.add(heardUnit(unit));
        evidence.linkUnits.add(heardUnit(unit));
    }
    evidence.subnetRoutes = {{.exists = true, .link = sampleLink}};
    evidence.reversePathFilter = 0;
    evidence.counters.requests = 3;
    return evidence;
}

inline TargetEvidence& targetOf(DiagnosisEvidence& evidence) {
    if (!evidence.target.has_value()) {
        evidence.target = TargetEvidence{.name = "192.168.1.77",
                                         .address = 0xC0A8014DU,
                                         .port = 3520,
                                         .route = HostRoute{.exists = true, .link = sampleLink}};
    }
    return *evidence.target;
}

// The listener has heard nobody.
inline void silenceListener(DiagnosisEvidence& evidence) {
    evidence.listener.units = HeardUnits{4096};
}

struct PlantedCause {
    Cause cause;
    bool isSilent; // nobody answers with it
    std::function<void(DiagnosisEvidence&)> plant;
};

inline std::vector<PlantedCause> plantedCauses() {
    using Evidence = DiagnosisEvidence;
    return {
        {Cause::noLink, false, [](Evidence& e) { e.interface->isRunning = false; }},
        {Cause::noAddress, false, [](Evidence& e) { e.interface->networks.clear(); }},
        {Cause::portTaken, false,
         [](Evidence& e) {
             silenceListener(e);
             e.listener.startError = posixError(EADDRINUSE);
             e.listener.isListening = e.listener.hasAsked = e.listener.hasAskedNow = false;
             e.listener.ownBroadcast = OwnBroadcast::untested;
         }},
        {Cause::sendRefused, false,
         [](Evidence& e) {
             silenceListener(e);
             e.listener.sendError = posixError(EPERM);
             e.listener.hasAsked = e.listener.hasAskedNow = false;
         }},
        {Cause::noRoute, false, [](Evidence& e) { targetOf(e).route = HostRoute(); }},
        {Cause::firewall, true,
         [](Evidence& e) { e.listener.ownBroadcast = OwnBroadcast::notHeard; }},
        {Cause::firewallUnicastOnly, true,
         [](Evidence& e) {
             e.listener.ownBroadcast = OwnBroadcast::notHeard;
             e.hasAskedHosts = e.hostHasAnswered = true;
         }},
        {Cause::reversePath, true,
         [](Evidence& e) {
             e.reversePathFilter = 1;
             e.counters = {.requests = 3, .requestsWithWrongReversePath = 3, .wrongReversePath = 9};
             e.subnetRoutes = {{.exists = true, .link = sampleLink + 1}};
         }},
        {Cause::otherPort, false,
         [](Evidence& e) {
             e.answersOnOtherPorts.push_back(
                 {.port = 3522, .unit = heardUnit(sampleUnitAt(60, {192, 168, 1, 60}))});
         }},
        {Cause::otherSubnet, false,
         [](Evidence& e) {
             e.linkUnits.add(heardUnit(sampleUnitAt(61, {10, 5, 0, 7})));
         }},
        {Cause::sameAddress, false,
         [](Evidence& e) {
             for (const std::uint8_t number : {std::uint8_t{62}, std::uint8_t{63}}) {
                 const HeardUnit unit = heardUnit(sampleUnitAt(number, {192, 168, 1, 62}));
                 e.linkUnits.add(unit);
                 if (e.listener.hasAsked) {
                     e.listener.units.add(unit);
                 }
             }
         }},
        {Cause::staleARP, false,
         [](Evidence& e) {
             e.wrongEntries.push_back({.address = 0xC0A8010AU,
                                       .entered = "02:00:00:00:00:99",
                                       .told = "00:1A:2B:3C:4D:5E",
                                       .isDeaf = true});
         }},
        {Cause::dropped, false, [](Evidence& e) { e.listener.dropped = 7; }},
        {Cause::nobodyOnPort, false, [](Evidence& e) { targetOf(e).failure = ECONNREFUSED; }},
        {Cause::noHost, false, [](Evidence& e) { targetOf(e).failure = EHOSTUNREACH; }},
        {Cause::notUnderstood, true, [](Evidence& e) { e.linkNotUnderstood = 3; }},
        {Cause::nothingArrived, true, [](Evidence& /*e*/) {}},
    };
}

// What is silent comes first, so that one cause does not take away what another one shows.
inline DiagnosisEvidence evidenceWith(const std::vector<const PlantedCause*>& planted) {
    DiagnosisEvidence evidence = healthyEvidence();
    for (const PlantedCause* const each : planted) {
        if (each->isSilent) {
            silenceListener(evidence);
            evidence.linkUnits = HeardUnits{4096};
        }
    }
    for (const PlantedCause* const each : planted) {
        each->plant(evidence);
    }
    return evidence;
}

} // namespace kx
