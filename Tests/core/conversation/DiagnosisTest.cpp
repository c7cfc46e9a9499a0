#include "conversation/Diagnosis.h"

#include "DiagnosisSamples.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

namespace kx {

namespace {

using Causes = std::vector<Cause>;

Causes causesOf(const DiagnosisEvidence& evidence) {
    return diagnosisOf(evidence).causes;
}

CheckState stateOf(const DiagnosisEvidence& evidence, CheckKind kind) {
    const auto checks = diagnosisOf(evidence).checks;
    return std::ranges::find(checks, kind, &Check::kind)->state;
}

// Without a link or an address nothing else can be asked; without a listener nothing that it would
// hear. A unit that is heard contradicts whatever keeps all answers away. One address cannot have
// two faults, and "nothing arrived" is what remains.
bool canStandTogether(Cause one, Cause other) {
    const auto isOneOf = [](Cause cause, const std::set<Cause>& some) {
        return some.contains(cause);
    };
    const std::set<Cause> ofNoInterface{Cause::noLink, Cause::noAddress};
    const std::set<Cause> ofListener{Cause::sendRefused, Cause::firewall,
                                     Cause::firewallUnicastOnly, Cause::dropped};
    const std::set<Cause> ofSilence{Cause::firewall, Cause::firewallUnicastOnly, Cause::reversePath,
                                    Cause::notUnderstood};
    const std::set<Cause> ofHeardUnits{Cause::sameAddress, Cause::staleARP};
    const std::set<Cause> ofTarget{Cause::noRoute, Cause::nobodyOnPort, Cause::noHost};
    const auto excludes = [&](Cause a, Cause b) {
        return a == Cause::nothingArrived ||
               (isOneOf(a, ofNoInterface) && !isOneOf(b, ofNoInterface) && b != Cause::portTaken) ||
               (a == Cause::portTaken && isOneOf(b, ofListener)) ||
               (isOneOf(a, ofHeardUnits) && isOneOf(b, ofSilence)) ||
               (a == Cause::otherSubnet && b == Cause::notUnderstood) ||
               (a == Cause::firewall && b == Cause::firewallUnicastOnly) ||
               (isOneOf(a, ofTarget) && isOneOf(b, ofTarget));
    };
    return !excludes(one, other) && !excludes(other, one);
}

std::string nameOfPair(Cause one, Cause other) {
    return std::string(idOfCause(one)) + " and " + std::string(idOfCause(other));
}

} // namespace

TEST(Diagnosis, AccusesNobodyWhereUnitsAnswer) {
    const Diagnosis diagnosis = diagnosisOf(healthyEvidence());
    EXPECT_EQ(diagnosis.causes, Causes());
    EXPECT_TRUE(diagnosis.isHealthy);
    for (const Check& check : diagnosis.checks) {
        EXPECT_EQ(check.state, CheckState::ok) << idOfCheck(check.kind);
    }
}

TEST(Diagnosis, NamesEachCauseAlone) {
    std::size_t planted = 0;
    for (const PlantedCause& each : plantedCauses()) {
        const Diagnosis diagnosis = diagnosisOf(evidenceWith({&each}));
        EXPECT_EQ(diagnosis.causes, Causes{each.cause}) << idOfCause(each.cause);
        EXPECT_FALSE(diagnosis.isHealthy);
        EXPECT_TRUE(std::ranges::any_of(diagnosis.checks,
                                        [&each](const Check& check) {
                                            return check.state == CheckState::fail &&
                                                   check.cause == each.cause;
                                        }))
            << idOfCause(each.cause) << " has a check that fails";
        ++planted;
    }
    EXPECT_EQ(planted, allCauses.size());
}

TEST(Diagnosis, NamesBothOfEachPairThatCanStandTogether) {
    const auto planted = plantedCauses();
    int pairs = 0;
    for (std::size_t i = 0; i < planted.size(); ++i) {
        for (std::size_t j = i + 1; j < planted.size(); ++j) {
            if (canStandTogether(planted[i].cause, planted[j].cause)) {
                EXPECT_EQ(causesOf(evidenceWith({&planted[i], &planted[j]})),
                          (Causes{planted[i].cause, planted[j].cause}))
                    << nameOfPair(planted[i].cause, planted[j].cause);
                ++pairs;
            }
        }
    }
    EXPECT_EQ(pairs, 77);
}

TEST(Diagnosis, StrayTrafficAccusesNobodyWhereUnitsAnswer) {
    auto evidence = healthyEvidence();
    evidence.listener.notUnderstood = 12;
    evidence.listener.foreign = 30;
    evidence.reversePathFilter = 1;
    evidence.counters = {.requests = 3,
                         .requestsWithWrongReversePath = 3,
                         .wrongReversePath = 20,
                         .takenAway = 50,
                         .withoutListener = 40};
    const Diagnosis diagnosis = diagnosisOf(evidence);
    EXPECT_EQ(diagnosis.causes, Causes());
    EXPECT_TRUE(diagnosis.isHealthy);
    EXPECT_EQ(stateOf(evidence, CheckKind::understood), CheckState::warn);
}

TEST(Diagnosis, StrangersOnTheListenersPortAreNoAnswersThatAreNotUnderstood) {
    auto evidence = healthyEvidence();
    silenceListener(evidence);
    evidence.linkUnits = HeardUnits{16};
    evidence.listener.notUnderstood = 12;
    EXPECT_EQ(causesOf(evidence), Causes{Cause::nothingArrived});
    evidence.hasAskedLink = false;
    EXPECT_EQ(causesOf(evidence), Causes{Cause::notUnderstood}) << "nothing better is known";
}

TEST(Diagnosis, CountersNeverAccuseAlone) {
    const auto silent = [] {
        auto evidence = healthyEvidence();
        silenceListener(evidence);
        evidence.linkUnits = HeardUnits{16};
        evidence.counters = {.requests = 3,
                             .requestsWithWrongReversePath = 3,
                             .wrongReversePath = 9,
                             .takenAway = 9,
                             .withoutListener = 9};
        return evidence;
    };
    EXPECT_EQ(causesOf(silent()), Causes{Cause::nothingArrived}) << "the filter is off";
    auto evidence = silent();
    evidence.reversePathFilter = 1;
    evidence.counters.wrongReversePathInQuiet = 1;
    EXPECT_EQ(causesOf(evidence), Causes{Cause::nothingArrived}) << "it takes others too";
    evidence = silent();
    evidence.reversePathFilter = 1;
    evidence.counters.requestsWithWrongReversePath = 2;
    EXPECT_EQ(causesOf(evidence), Causes{Cause::nothingArrived}) << "not behind each request";
}

TEST(Diagnosis, WhatTheFilterTakesWhereRoutesAreRightComesFromAnotherNetwork) {
    auto planted = plantedCauses();
    const auto reversePath = std::ranges::find(planted, Cause::reversePath, &PlantedCause::cause);
    auto evidence = evidenceWith({&*reversePath});
    evidence.subnetRoutes = {{.exists = true, .link = sampleLink}};
    EXPECT_EQ(causesOf(evidence), (Causes{Cause::reversePath, Cause::otherSubnet}));
    evidence.subnetRoutes = {HostRoute()};
    EXPECT_EQ(causesOf(evidence), Causes{Cause::noRoute}) << "the filter only follows the routes";
}

TEST(Diagnosis, AnOwnBroadcastThatIsNotHeardAccusesNobodyWhereUnitsAnswer) {
    auto evidence = healthyEvidence();
    evidence.listener.ownBroadcast = OwnBroadcast::notHeard;
    EXPECT_EQ(causesOf(evidence), Causes());
    EXPECT_EQ(stateOf(evidence, CheckKind::ownBroadcast), CheckState::warn);
}

TEST(Diagnosis, AnOwnBroadcastThatWasNotTriedIsNoFirewall) {
    auto evidence = healthyEvidence();
    silenceListener(evidence);
    evidence.linkUnits = HeardUnits{16};
    evidence.listener.ownBroadcast = OwnBroadcast::untested;
    EXPECT_EQ(causesOf(evidence), Causes{Cause::nothingArrived});
    EXPECT_EQ(stateOf(evidence, CheckKind::ownBroadcast), CheckState::unknown);
}

TEST(Diagnosis, UnitsThatAnswerOnlyTheLimitedBroadcastHaveAnotherNetwork) {
    auto evidence = healthyEvidence();
    silenceListener(evidence);
    EXPECT_EQ(causesOf(evidence), Causes{Cause::otherSubnet});
    evidence.listener.hasAskedNow = false;
    EXPECT_EQ(causesOf(evidence), Causes()) << "they may have come since";
    EXPECT_EQ(stateOf(evidence, CheckKind::answers), CheckState::warn);
}

TEST(Diagnosis, AUnitOfAnotherNetworkThatAnswersIsNoFault) {
    auto evidence = healthyEvidence();
    const HeardUnit unit = heardUnit(sampleUnitAt(61, {10, 5, 0, 7}));
    evidence.linkUnits.add(unit);
    evidence.listener.units.add(unit);
    EXPECT_EQ(causesOf(evidence), Causes());
}

TEST(Diagnosis, AnAnswerOnAnotherPortOfAUnitThatAnswersIsNoFault) {
    auto evidence = healthyEvidence();
    evidence.answersOnOtherPorts.push_back({.port = 3521, .unit = heardUnit(SampleUnit())});
    EXPECT_EQ(causesOf(evidence), Causes());
}

TEST(Diagnosis, AWrongEntryThatDoesNoHarmIsOdd) {
    auto evidence = healthyEvidence();
    evidence.wrongEntries.push_back({.address = 1, .entered = "a", .told = "b", .isDeaf = false});
    EXPECT_TRUE(diagnosisOf(evidence).isHealthy);
    EXPECT_EQ(stateOf(evidence, CheckKind::entries), CheckState::warn);
}

TEST(Diagnosis, AnotherHolderOfTheNamedAddressIsTold) {
    auto evidence = healthyEvidence();
    TargetEvidence& target = targetOf(evidence);
    target.answersBroadcast = true;
    target.hardwareAddress = "00:1A:2B:3C:4D:5E";
    target.neighbour =
        Neighbour{.state = NeighbourState::reachable, .hardwareAddress = "02:00:00:00:00:07"};
    EXPECT_EQ(causesOf(evidence), Causes{Cause::sameAddress});
    target.neighbour->state = NeighbourState::stale;
    EXPECT_EQ(causesOf(evidence), Causes{Cause::nothingArrived}) << "nobody has confirmed it";
    target.answersItsAddress = true;
    EXPECT_TRUE(diagnosisOf(evidence).isHealthy);
}

TEST(Diagnosis, AFixedEntryOfASilentAddressIsLookedAtFirst) {
    auto evidence = healthyEvidence();
    targetOf(evidence).neighbour =
        Neighbour{.state = NeighbourState::permanent, .hardwareAddress = "02:00:00:00:00:07"};
    EXPECT_EQ(causesOf(evidence), Causes{Cause::staleARP});
}

TEST(Diagnosis, AnAddressThatHasFailedInTheNeighbourTableHasNoHost) {
    auto evidence = healthyEvidence();
    targetOf(evidence).neighbour =
        Neighbour{.state = NeighbourState::failed, .hardwareAddress = {}};
    EXPECT_EQ(causesOf(evidence), Causes{Cause::noHost});
}

TEST(Diagnosis, ANamedUnitThatNobodyHasHeardIsMissingThoughOthersAnswer) {
    auto evidence = healthyEvidence();
    evidence.target = TargetEvidence{.name = "4B58000000FF"};
    EXPECT_EQ(causesOf(evidence), Causes{Cause::nothingArrived});
    EXPECT_EQ(stateOf(evidence, CheckKind::answers), CheckState::ok);
    EXPECT_EQ(stateOf(evidence, CheckKind::target), CheckState::fail);
}

TEST(Diagnosis, WithoutARequestNothingIsMissing) {
    auto evidence = healthyEvidence();
    silenceListener(evidence);
    evidence.linkUnits = HeardUnits{16};
    evidence.listener.hasAsked = evidence.listener.hasAskedNow = false;
    evidence.listener.startError = posixError(EMFILE);
    const Diagnosis diagnosis = diagnosisOf(evidence);
    EXPECT_EQ(diagnosis.causes, Causes());
    EXPECT_FALSE(diagnosis.isHealthy);
}

TEST(Diagnosis, EachCauseCheckAndStateHasANameOfItsOwn) {
    std::set<std::string_view> causes;
    for (const Cause cause : allCauses) {
        causes.insert(idOfCause(cause));
    }
    EXPECT_EQ(causes.size(), allCauses.size());
    auto evidence = healthyEvidence();
    targetOf(evidence);
    std::set<std::string_view> checks;
    for (const Check& check : diagnosisOf(evidence).checks) {
        checks.insert(idOfCheck(check.kind));
    }
    EXPECT_EQ(checks.size(), 15U);
    EXPECT_EQ(idOfState(CheckState::unknown), "unknown");
}

} // namespace kx
