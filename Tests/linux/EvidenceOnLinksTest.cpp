// The search for evidence beside a real listener: what it sends from sockets of its own comes back
// to the witness, and not to the listener's owner.

#include "PrivateNetwork.h"
#include "addresses/SocketAddressRecord.h"
#include "conversation/Diagnosis.h"
#include "conversation/EvidenceSearch.h"
#include "conversation/UnitSession.h"
#include "platform/linux/LinuxDiagnosticSockets.h"
#include "platform/linux/LinuxHostDiagnostics.h"
#include "platform/linux/LinuxNeighbourTable.h"
#include "platform/linux/LinuxReceiveBufferControl.h"
#include "platform/posix/PollRunLoop.h"
#include "platform/posix/ThreadHostResolver.h"

#include <gtest/gtest.h>
#include <net/if.h>

#include <chrono>
#include <string>
#include <vector>

namespace kx {

namespace {

class CountingObserver final : public UnitSessionObserver {
public:
    int events = 0;
    void sessionDidReceiveDatagram(std::size_t /*length*/,
                                   const DatagramOrigin& /*origin*/) override {
        ++events;
    }
    void sessionDidReceiveError(const Error& /*error*/) override { ++events; }
};

class EvidenceOnLinks : public testing::Test {
protected:
    EvidenceOnLinks() {
        network.addLink("kx0", "02:00:00:00:00:01");
        network.addAddress("kx0", "192.0.2.1/24");
        HostInterface interface;
        interface.name = "kx0";
        interface.link = ::if_nametoindex("kx0");
        interface.networks = {{.address = 0xC0000201U, .mask = 0xFFFFFF00U}};
        interface.canBroadcast = interface.isRunning = interface.canAsk = true;
        question.interfaceName = "kx0";
        question.interface = interface;
        question.ownAddresses = {0xC0000201U};
    }

    Diagnosis diagnosed() {
        EvidenceSearch search({.runLoop = runLoop,
                               .now =
                                   [] {
                                       return std::chrono::duration_cast<std::chrono::milliseconds>(
                                           std::chrono::steady_clock::now().time_since_epoch());
                                   },
                               .witness = witness,
                               .systemCalls = calls,
                               .sockets = sockets,
                               .host = host,
                               .neighbours = neighbours},
                              question);
        search.begin({});
        runLoop.runUntil([&search] { return search.hasEnded(); });
        evidence = search.evidence();
        return diagnosisOf(evidence);
    }

    PrivateNetwork network;
    PollRunLoop runLoop;
    DatagramSystemCalls calls;
    LinuxReceiveBufferControl buffers;
    ListenerWitness witness{calls, &buffers};
    ThreadHostResolver resolver{runLoop};
    CountingObserver observer;
    UnitRegistry registry;
    UnitSession session{{.runLoop = runLoop,
                         .hostResolver = resolver,
                         .systemCalls = witness,
                         .receiveBuffers = &buffers},
                        registry,
                        observer};
    LinuxDiagnosticSockets sockets{runLoop};
    LinuxHostDiagnostics host;
    LinuxNeighbourTable neighbours;
    DiagnosisQuestion question;
    DiagnosisEvidence evidence;
};

} // namespace

TEST_F(EvidenceOnLinks, TheListenersOwnerSeesNothingOfTheProbes) {
    for (const std::size_t port : {3520U, 3522U}) {
        session.start(port);
        diagnosed();
        EXPECT_EQ(evidence.listener.ownBroadcast, OwnBroadcast::heard) << port;
        EXPECT_EQ(observer.events, 0) << port;
    }
}

TEST_F(EvidenceOnLinks, AListenerWhosePortIsTakenIsTheCause) {
    const int other = calls.socket();
    ASSERT_EQ(calls.bind(other, dataForAddress(0, 3520)), 0);
    session.start(3520);
    EXPECT_EQ(diagnosed().causes, std::vector<Cause>{Cause::portTaken});
    EXPECT_EQ(evidence.portOwner->process, ::getpid());
    calls.close(other);
}

} // namespace kx
