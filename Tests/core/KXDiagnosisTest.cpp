#include "KXDiagnosis.h"

#include "addresses/SocketAddressRecord.h"
#include "core/conversation/DiagnosisSamples.h"
#include "doubles/ManualRunLoop.h"
#include "doubles/ScriptedDiagnosticSockets.h"
#include "doubles/ScriptedHostDiagnostics.h"
#include "doubles/ScriptedNeighbours.h"
#include "doubles/ScriptedSystemCalls.h"

#include <gtest/gtest.h>

#include <array>
#include <cerrno>

namespace kx {

namespace {

using namespace std::chrono_literals;

class ListedInterfaces final : public HostInterfaces {
public:
    std::vector<HostInterface> interfaces{sampleInterface()};
    std::vector<HostInterface> list() override { return interfaces; }
};

// The window has discovered on port 3520; the test plays what it heard.
class KXDiagnosisTest : public testing::Test {
protected:
    KXDiagnosisTest() {
        calls.addLink("kx0", sampleLink);
        host.routeTo = [this](std::uint32_t) {
            return HostRoute{.exists = hasRoute, .link = sampleLink};
        };
        diagnosis.setSelection({.chosenInterface = [this] { return chosen; },
                                .selectedUnit = [this] { return selected; },
                                .record = [this](const std::string&) { return record; }});
        discover();
    }

    void discover() {
        witness.close(listener);
        listener = witness.socket();
        witness.bind(listener, dataForAddress(0, 3520));
        witness.sendToByLink(listener, textBytes("^^IdX"), dataForAddress(0xC0A801FFU, 3520),
                             sampleLink);
    }

    void receive(const Bytes& datagram, std::uint32_t sender) {
        calls.queueDatagram(datagram, dataForAddress(sender, 3520), sampleLink);
        std::array<std::uint8_t, 2048> buffer{};
        DatagramOrigin origin;
        witness.receiveFrom(listener, buffer, origin);
    }

    void hearOwnRequest() { receive(textBytes("^^IdX"), 0xC0A80101U); }

    bool hasRoute = true;
    ManualRunLoop runLoop;
    ScriptedSystemCalls calls;
    ListenerWitness witness{calls};
    ScriptedDiagnosticSockets sockets;
    ScriptedHostDiagnostics host;
    ScriptedNeighbours neighbours;
    ListedInterfaces interfaces;
    std::optional<std::string> chosen = "kx0";
    std::optional<std::string> selected;
    std::optional<UnitRecord> record;
    int listener = -1;
    KXDiagnosis diagnosis{{.runLoop = runLoop,
                           .now = [this] { return runLoop.now(); },
                           .witness = witness,
                           .systemCalls = calls,
                           .sockets = sockets,
                           .host = host,
                           .neighbours = neighbours,
                           .interfaces = interfaces}};
};

} // namespace

TEST_F(KXDiagnosisTest, TheLikeliestCauseIsToldAtOnceAndNothingIsSentForIt) {
    const auto before = calls.sentDatagrams().size();
    EXPECT_EQ(diagnosis.likeliestCause(),
              "A firewall on this computer lets no answers in to UDP port 3520.");
    hearOwnRequest();
    EXPECT_EQ(diagnosis.likeliestCause(), "The request left, and nothing came back.");
    EXPECT_EQ(calls.sentDatagrams().size(), before);
    EXPECT_TRUE(sockets.sent.empty());
    EXPECT_EQ(runLoop.pendingCallCount(), 0U);
}

TEST_F(KXDiagnosisTest, WhereUnitsAnswerThereIsNoCause) {
    hearOwnRequest();
    receive(SampleUnit().reply(), addressToldIn(SampleUnit().reply()));
    EXPECT_EQ(diagnosis.likeliestCause(), std::nullopt);
}

TEST_F(KXDiagnosisTest, TheInterfaceIsLookedAtAsItIsNow) {
    interfaces.interfaces.front().isRunning = false;
    EXPECT_EQ(diagnosis.likeliestCause(), "The interface kx0 has no link.");
    interfaces.interfaces.clear();
    EXPECT_EQ(diagnosis.likeliestCause(), "The interface kx0 has no link.");
}

TEST_F(KXDiagnosisTest, APortThatIsTakenIsTheCause) {
    calls.failNext(ScriptedSystemCalls::Operation::bind, EADDRINUSE);
    witness.bind(witness.socket(), dataForAddress(0, 3520));
    host.owners[3520] = {.program = "kxconfig", .process = 42, .user = "anna"};
    EXPECT_EQ(diagnosis.likeliestCause(), "UDP port 3520 is taken by kxconfig (process 42).");
}

TEST_F(KXDiagnosisTest, BeforeAChoiceTheDefaultRouteDecidesAboutTheInterface) {
    chosen.reset();
    hearOwnRequest();
    EXPECT_EQ(diagnosis.likeliestCause(), "The request left, and nothing came back.");
    hasRoute = false;
    calls.failNext(ScriptedSystemCalls::Operation::sendTo, ENETUNREACH);
    discover();
    EXPECT_EQ(diagnosis.likeliestCause(),
              "No route of this computer leads to the units behind the interface kx0.");
}

TEST_F(KXDiagnosisTest, AskingMakesAReportWithSentencesAndChecks) {
    bool hasEnded = false;
    diagnosis.ask([&] { hasEnded = true; });
    EXPECT_TRUE(diagnosis.isAsking());
    runLoop.advanceBy(1s);
    EXPECT_TRUE(hasEnded);
    EXPECT_FALSE(diagnosis.isAsking());
    EXPECT_EQ(diagnosis.report().rows.size(), 14U);
    ASSERT_EQ(diagnosis.report().causes.size(), 1U);
    EXPECT_NE(diagnosis.text().find(diagnosis.report().causes.front()), std::string::npos);
    EXPECT_NE(diagnosis.text().find("Own broadcast\tFails\t"), std::string::npos);
}

TEST_F(KXDiagnosisTest, TheListenerSendsNothingForTheChecks) {
    const auto before = calls.sentDatagrams().size();
    diagnosis.ask({});
    runLoop.advanceBy(1s);
    EXPECT_EQ(calls.sentDatagrams().size(), before);
    EXPECT_FALSE(sockets.sent.empty());
}

TEST_F(KXDiagnosisTest, ASelectedUnitThatIsSilentIsAskedForAtItsAddress) {
    selected = "01 02 03 04 05 06";
    record = heardUnit(SampleUnit()).record;
    receive(secondSampleUnit().reply(), addressToldIn(secondSampleUnit().reply()));
    hearOwnRequest();
    diagnosis.ask({});
    runLoop.advanceBy(1s);
    EXPECT_EQ(diagnosis.report().rows.size(), 15U);
    EXPECT_EQ(diagnosis.report().causes,
              std::vector<std::string>{
                  "The request left, and nothing came back from 01 02 03 04 05 06."});
    receive(SampleUnit().reply(), addressToldIn(SampleUnit().reply()));
    diagnosis.ask({});
    runLoop.advanceBy(1s);
    EXPECT_EQ(diagnosis.report().rows.size(), 14U) << "it has answered the discovery";
}

TEST_F(KXDiagnosisTest, WhatIsStoppedTellsNothing) {
    bool hasEnded = false;
    diagnosis.ask([&] { hasEnded = true; });
    diagnosis.stop();
    runLoop.advanceBy(5s);
    EXPECT_FALSE(hasEnded);
    EXPECT_TRUE(sockets.sockets.empty());
}

} // namespace kx
