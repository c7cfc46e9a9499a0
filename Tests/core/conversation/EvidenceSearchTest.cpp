#include "conversation/EvidenceSearch.h"

#include "DiagnosisSamples.h"
#include "addresses/SocketAddressRecord.h"
#include "doubles/ManualRunLoop.h"
#include "doubles/ScriptedDiagnosticSockets.h"
#include "doubles/ScriptedHostDiagnostics.h"
#include "doubles/ScriptedNeighbours.h"
#include "doubles/ScriptedSystemCalls.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace kx {

namespace {

using namespace std::chrono_literals;

constexpr std::uint32_t ownAddress = 0xC0A80101U;
constexpr std::uint32_t everybody = 0xC0A801FFU;
constexpr std::uint32_t nearAddress = 0xC0A8014DU; // 192.168.1.77
constexpr std::uint32_t farAddress = 0x0A050007U;  // 10.5.0.7

class EvidenceSearchTest : public testing::Test {
protected:
    using Socket = ScriptedDiagnosticSockets::Socket;
    using Sent = ScriptedDiagnosticSockets::Sent;

    EvidenceSearchTest() {
        calls.addLink("kx0", sampleLink);
        listen(3520);
        host.routeTo = [](std::uint32_t) { return HostRoute{.exists = true, .link = sampleLink}; };
        sockets.onSend = [this](Socket& socket, const Sent& sent) { return deliver(socket, sent); };
        question.interfaceName = "kx0";
        question.interface = sampleInterface();
        question.ownAddresses = {ownAddress};
        question.ask = [this] { ask(); };
    }

    void listen(std::uint16_t port) {
        witness.close(listener);
        listener = witness.socket();
        witness.bind(listener, dataForAddress(0, port));
        listenerPort = port;
    }

    void read(const Bytes& datagram, std::uint32_t sender, std::uint16_t port) {
        calls.queueDatagram(datagram, dataForAddress(sender, port), sampleLink);
        std::array<std::uint8_t, 2048> buffer{};
        DatagramOrigin origin;
        if (witness.receiveFrom(listener, buffer, origin) >= 0) {
            ++readByOwner;
        }
    }

    // The listener's request to everybody, and what comes back of it.
    void ask() {
        const Bytes request = textBytes("^^IdX");
        if (witness.sendToByLink(listener, request, dataForAddress(everybody, 3520), sampleLink) <
            0) {
            return;
        }
        for (const SampleUnit& unit : units) {
            read(unit.reply(), addressToldIn(unit.reply()), 3520);
        }
    }

    std::optional<Error> deliver(Socket& socket, const Sent& sent) {
        const bool isBroadcast = sent.address == 0xFFFFFFFFU || sent.address == everybody;
        if (isBroadcast && sent.port == listenerPort && hearsItself) {
            read(textBytes(sent.text), ownAddress, socket.port());
        }
        if (sent.address == 0xFFFFFFFFU) {
            for (const SampleUnit& unit : linkUnits) {
                answer(socket, unit.reply(), addressToldIn(unit.reply()));
            }
        }
        if (const auto hostAnswer = hosts.find(sent.address); hostAnswer != hosts.end()) {
            answer(socket, hostAnswer->second, sent.address);
        }
        return std::nullopt;
    }

    void answer(Socket& socket, const Bytes& reply, std::uint32_t sender) {
        later.push_back(runLoop.callOnceAfter(
            3ms, [&socket, reply, sender] { socket.events.received(reply, sender, 3520); }));
    }

    void begin() {
        search = std::make_unique<EvidenceSearch>(
            EvidenceSearch::Services{.runLoop = runLoop,
                                     .now = [this] { return runLoop.now(); },
                                     .witness = witness,
                                     .systemCalls = calls,
                                     .sockets = sockets,
                                     .host = host,
                                     .neighbours = neighbours},
            question);
        search->begin([this] { endedAfter = runLoop.now(); });
    }

    const DiagnosisEvidence& found() {
        begin();
        runLoop.advanceBy(5s);
        EXPECT_TRUE(search->hasEnded());
        return search->evidence();
    }

    std::vector<Cause> causes() { return diagnosisOf(found()).causes; }

    std::size_t sentTo(std::uint32_t address, std::uint16_t port = 3520) const {
        return static_cast<std::size_t>(std::ranges::count_if(sockets.sent, [=](const Sent& each) {
            return each.address == address && each.port == port;
        }));
    }

    ManualRunLoop runLoop;
    ScriptedSystemCalls calls;
    ListenerWitness witness{calls};
    ScriptedDiagnosticSockets sockets;
    ScriptedHostDiagnostics host;
    ScriptedNeighbours neighbours;
    DiagnosisQuestion question;
    std::vector<SampleUnit> units{SampleUnit(), secondSampleUnit()}; // those that answer requests
    std::vector<SampleUnit> linkUnits = units; // those that answer 255.255.255.255
    std::map<std::uint32_t, Bytes> hosts;      // what they answer when they are asked alone
    bool hearsItself = true;
    int listener = -1;
    std::uint16_t listenerPort = 0;
    int readByOwner = 0;
    std::vector<RunLoop::Handle> later;
    std::unique_ptr<EvidenceSearch> search;
    std::optional<std::chrono::milliseconds> endedAfter;
};

} // namespace

TEST_F(EvidenceSearchTest, TakesEightTenthsOfASecondAndAsksThreeTimes) {
    EXPECT_EQ(causes(), std::vector<Cause>());
    EXPECT_EQ(endedAfter, 800ms);
    EXPECT_EQ(sentTo(0xFFFFFFFFU), 3U);
    EXPECT_EQ(calls.sentDatagrams().size(), 3U);
    EXPECT_EQ(search->evidence().linkUnits.count(), 2U);
    EXPECT_EQ(search->evidence().counters.requests, 3);
}

TEST_F(EvidenceSearchTest, WhatTheListenersOwnerReadsIsOnlyWhatAnsweredTheListener) {
    found();
    EXPECT_EQ(readByOwner, 3 * 2);
}

TEST_F(EvidenceSearchTest, AListenerThatMustNotSendSendsNothing) {
    question.ask = {};
    EXPECT_EQ(causes(), std::vector<Cause>());
    EXPECT_EQ(calls.sentDatagrams().size(), 0U);
    EXPECT_EQ(readByOwner, 0);
    EXPECT_EQ(search->evidence().listener.ownBroadcast, OwnBroadcast::heard);
}

TEST_F(EvidenceSearchTest, AListenerThatAskedMeanwhileIsToldFromOneWhoseRequestWasRefused) {
    EXPECT_TRUE(found().listener.hasAskedNow);
    question.ask = [this] {
        calls.failNext(ScriptedSystemCalls::Operation::sendTo, EPERM);
        ask();
    };
    EXPECT_FALSE(found().listener.hasAskedNow);
    EXPECT_TRUE(search->evidence().listener.hasAsked);
    question.ask = {};
    EXPECT_FALSE(found().listener.hasAskedNow) << "it has asked, but before";
}

TEST_F(EvidenceSearchTest, OnAnotherPortTheOwnBroadcastIsSentThere) {
    listen(3522);
    EXPECT_EQ(found().listener.ownBroadcast, OwnBroadcast::heard);
    EXPECT_EQ(sentTo(everybody, 3522), 3U);
}

TEST_F(EvidenceSearchTest, AFirewallIsNamedWithTheServiceThatRuns) {
    hearsItself = false;
    units.clear();
    linkUnits.clear();
    host.services = {FirewallService::ufw};
    EXPECT_EQ(causes(), std::vector<Cause>{Cause::firewall});
    EXPECT_EQ(search->evidence().firewallServices, host.services);
}

TEST_F(EvidenceSearchTest, NeighboursAreAskedWhenNobodyAnswers) {
    hearsItself = false;
    units.clear();
    linkUnits.clear();
    neighbours.entries[nearAddress] = {.state = NeighbourState::stale,
                                       .hardwareAddress = "00:1A:2B:3C:4D:5E"};
    neighbours.entries[farAddress] = neighbours.entries[nearAddress];
    hosts[nearAddress] = SampleUnit().reply();
    EXPECT_EQ(causes(), std::vector<Cause>{Cause::firewallUnicastOnly});
    EXPECT_EQ(sentTo(nearAddress), 1U) << "it has answered the first one";
    EXPECT_EQ(sentTo(farAddress), 0U) << "it is not in the interface's network";
}

TEST_F(EvidenceSearchTest, OfManyNeighboursThirtyTwoAreAskedTwiceEach) {
    units.clear();
    linkUnits.clear();
    for (std::uint32_t number = 0; number < 40; ++number) {
        neighbours.entries[nearAddress + number] = {.state = NeighbourState::stale,
                                                    .hardwareAddress = "00:1A:2B:3C:4D:5E"};
    }
    found();
    for (std::uint32_t number = 0; number < 40; ++number) {
        EXPECT_EQ(sentTo(nearAddress + number), number < 32 ? 2U : 0U) << number;
    }
}

TEST_F(EvidenceSearchTest, NeighboursAreLeftAloneWhenUnitsAnswer) {
    neighbours.entries[nearAddress] = {.state = NeighbourState::reachable,
                                       .hardwareAddress = "00:1A:2B:3C:4D:5E"};
    found();
    EXPECT_EQ(sentTo(nearAddress), 0U);
}

TEST_F(EvidenceSearchTest, ANamedAddressIsAskedAtOnceAndByTheInterface) {
    question.target = nearAddress;
    hosts[nearAddress] = SampleUnit().reply();
    begin();
    ASSERT_EQ(sockets.sent.size(), 1U);
    EXPECT_EQ(sockets.sent.front().link, sampleLink);
    runLoop.advanceBy(800ms);
    EXPECT_TRUE(search->evidence().target->answersItsAddress);
}

TEST_F(EvidenceSearchTest, AnAddressOutsideIsAskedWhereTheRoutesLead) {
    question.target = farAddress;
    host.routeTo = [](std::uint32_t address) {
        return HostRoute{.exists = address != farAddress, .link = sampleLink};
    };
    EXPECT_EQ(causes(), std::vector<Cause>{Cause::noRoute});
    const auto asked = std::ranges::find(sockets.sent, farAddress, &Sent::address);
    EXPECT_EQ(asked->link, 0U);
}

TEST_F(EvidenceSearchTest, AnAddressThatTheSystemAsksForIsWaitedFor) {
    question.target = nearAddress;
    neighbours.entries[nearAddress] = {.state = NeighbourState::asking, .hardwareAddress = {}};
    begin();
    runLoop.advanceBy(3s);
    EXPECT_FALSE(search->hasEnded());
    neighbours.entries[nearAddress].state = NeighbourState::failed;
    runLoop.advanceBy(60ms);
    EXPECT_TRUE(search->hasEnded());
    EXPECT_EQ(diagnosisOf(search->evidence()).causes, std::vector<Cause>{Cause::noHost});
}

TEST_F(EvidenceSearchTest, AWaitForAnAddressEnds) {
    question.target = nearAddress;
    neighbours.entries[nearAddress] = {.state = NeighbourState::asking, .hardwareAddress = {}};
    found();
    EXPECT_GE(*endedAfter, EvidenceSearch::longestTime);
    EXPECT_LE(*endedAfter, 3500ms);
}

TEST_F(EvidenceSearchTest, AnErrorThatComesBackForTheNamedAddressIsKept) {
    question.target = nearAddress;
    begin();
    sockets.sockets[1]->events.failed(
        {.destination = farAddress, .error = EHOSTUNREACH, .reporter = 0});
    sockets.sockets[1]->events.failed(
        {.destination = nearAddress, .error = ECONNREFUSED, .reporter = nearAddress});
    runLoop.advanceBy(1s);
    EXPECT_EQ(diagnosisOf(search->evidence()).causes, std::vector<Cause>{Cause::nobodyOnPort});
}

TEST_F(EvidenceSearchTest, ANamedUnitIsAskedAtTheAddressThatItTells) {
    question.target = UnitName(SerialNumberOfUnit{"01 02 03 04 05 07"});
    const std::uint32_t told = addressToldIn(secondSampleUnit().reply());
    hosts[told] = secondSampleUnit().reply();
    EXPECT_TRUE(found().target->answersItsAddress);
    EXPECT_TRUE(search->evidence().target->answersBroadcast);
    EXPECT_EQ(sentTo(told, 10000), 1U);
}

TEST_F(EvidenceSearchTest, AUnitThatIsKnownFromBeforeIsAskedAtItsAddress) {
    question.target = UnitName(SerialNumberOfUnit{"01 02 03 04 05 06"});
    question.knownRecord = heardUnit(SampleUnit()).record;
    units.clear();
    linkUnits.clear();
    begin();
    EXPECT_EQ(sentTo(addressToldIn(SampleUnit().reply()), 10000), 1U);
}

TEST_F(EvidenceSearchTest, AUnitBehindAWrongEntryIsAskedAtItsAddress) {
    const std::uint32_t address = addressToldIn(SampleUnit().reply());
    neighbours.entries[address] = {.state = NeighbourState::permanent,
                                   .hardwareAddress = "02:00:00:00:00:99"};
    EXPECT_EQ(causes(), std::vector<Cause>{Cause::staleARP});
    EXPECT_EQ(sentTo(address, 10000), 2U) << "from the second request on";
    hosts[address] = SampleUnit().reply();
    EXPECT_EQ(causes(), std::vector<Cause>()) << "it answers all the same";
}

TEST_F(EvidenceSearchTest, AnswersOnOtherPortsAreHeard) {
    begin();
    EXPECT_EQ(sockets.onPort(3520), nullptr) << "the listener has it";
    sockets.onPort(3523)->events.received(sampleUnitAt(60, {192, 168, 1, 60}).reply(), 0xC0A8013CU,
                                          3520);
    runLoop.advanceBy(1s);
    EXPECT_EQ(diagnosisOf(search->evidence()).causes, std::vector<Cause>{Cause::otherPort});
}

TEST_F(EvidenceSearchTest, APortThatAnotherProgramHasIsLeftToIt) {
    sockets.takenPorts = {3521, 3523};
    EXPECT_EQ(causes(), std::vector<Cause>());
}

TEST_F(EvidenceSearchTest, WithoutSocketsOfItsOwnTheListenerIsStillHeard) {
    sockets.isRefused = true;
    EXPECT_EQ(causes(), std::vector<Cause>());
    EXPECT_FALSE(search->evidence().hasAskedLink);
    units.clear();
    listen(3520);
    EXPECT_EQ(causes(), std::vector<Cause>{Cause::firewall})
        << "the own request was sent, and did not come back";
}

TEST_F(EvidenceSearchTest, WhatTheFilterTakesIsCountedBehindTheRequestsAndInBetween) {
    units.clear();
    linkUnits.clear();
    host.filter = 1;
    question.ask = [this] {
        ask();
        later.push_back(runLoop.callOnceAfter(2ms, [this] { host.counts->wrongReversePath += 3; }));
    };
    host.routeTo = [](std::uint32_t) { return HostRoute{.exists = true, .link = sampleLink + 1}; };
    EXPECT_EQ(causes(), std::vector<Cause>{Cause::reversePath});
    EXPECT_EQ(search->evidence().counters.wrongReversePath, 9U);
    later.clear();
    begin();
    runLoop.advanceBy(250ms);
    ++host.counts->wrongReversePath;
    runLoop.advanceBy(1s);
    EXPECT_EQ(diagnosisOf(search->evidence()).causes, std::vector<Cause>{Cause::nothingArrived});
}

TEST_F(EvidenceSearchTest, WithoutALinkNothingIsSentAndTheVerdictIsThereAtOnce) {
    question.interface->isRunning = false;
    begin();
    EXPECT_TRUE(search->hasEnded());
    EXPECT_TRUE(sockets.sent.empty());
    EXPECT_EQ(diagnosisOf(search->evidence()).causes, std::vector<Cause>{Cause::noLink});
}

TEST_F(EvidenceSearchTest, WhoHasATakenPortIsLookedUp) {
    calls.failNext(ScriptedSystemCalls::Operation::bind, EADDRINUSE);
    listen(3520);
    question.ask = {};
    host.owners[3520] = {.program = "other", .process = 7, .user = "root"};
    EXPECT_EQ(causes(), std::vector<Cause>{Cause::portTaken});
    EXPECT_EQ(search->evidence().portOwner, host.owners[3520]);
}

TEST_F(EvidenceSearchTest, AnInterruptedSearchEndsAndSendsNothingMore) {
    begin();
    runLoop.advanceBy(100ms);
    search->interrupt();
    EXPECT_TRUE(search->hasEnded());
    const auto before = sockets.sent.size();
    runLoop.advanceBy(5s);
    EXPECT_EQ(sockets.sent.size(), before);
    EXPECT_EQ(runLoop.pendingCallCount(), 0U);
}

TEST_F(EvidenceSearchTest, ASearchThatIsGivenUpLeavesTheListenerToItsOwner) {
    begin();
    const std::uint16_t port = sockets.sockets.front()->port();
    search.reset();
    read(textBytes("^^IdX"), ownAddress, port);
    EXPECT_EQ(readByOwner, 1);
    EXPECT_TRUE(sockets.sockets.empty());
}

TEST_F(EvidenceSearchTest, TheLowestAndTheHighestHostStandForTheNetwork) {
    std::vector<std::uint32_t> asked;
    host.routeTo = [&asked](std::uint32_t address) {
        asked.push_back(address);
        return HostRoute{.exists = true, .link = sampleLink};
    };
    found();
    EXPECT_EQ(asked, (std::vector<std::uint32_t>{0xC0A80102U, 0xC0A801FEU}));
}

} // namespace kx
