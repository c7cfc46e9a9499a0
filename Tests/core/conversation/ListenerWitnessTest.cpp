#include "conversation/ListenerWitness.h"

#include "addresses/SocketAddressRecord.h"
#include "core/UnitReplies.h"
#include "doubles/ScriptedReceiveBufferControl.h"
#include "doubles/ScriptedSystemCalls.h"

#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <vector>

namespace kx {

namespace {

constexpr std::uint32_t listenersAddress = 0xC0A80101U;
constexpr std::uint32_t unitAddress = 0xC0A8010AU;
constexpr std::uint32_t everybodyThere = 0xC0A801FFU;
constexpr std::uint16_t probePort = 40000;

class ListenerWitnessTest : public testing::Test {
protected:
    using Operation = ScriptedSystemCalls::Operation;

    ListenerWitnessTest() {
        calls.addLink("kx0", 3);
        listenOn(3520);
    }

    int listenOn(std::uint16_t port) {
        descriptor = witness.socket();
        return witness.bind(descriptor, dataForAddress(0, port));
    }

    ssize_t ask(std::uint16_t port = 3520) {
        return witness.sendToByLink(descriptor, request, dataForAddress(everybodyThere, port), 3);
    }

    // What the listener's owner reads; absent when it reads nothing.
    std::optional<Bytes> receive(const Bytes& datagram, std::uint32_t sender = unitAddress,
                                 std::uint16_t port = 3520) {
        calls.queueDatagram(datagram, dataForAddress(sender, port), 3);
        std::array<std::uint8_t, 2048> buffer{};
        DatagramOrigin origin;
        const ssize_t received = witness.receiveFrom(descriptor, buffer, origin);
        return received < 0 ? std::nullopt
                            : std::optional(Bytes(buffer.begin(), buffer.begin() + received));
    }

    ListenerEvidence evidence() { return witness.evidence(own); }

    const Bytes request = textBytes("^^IdX");
    const std::vector<std::uint32_t> own{listenersAddress};
    ScriptedSystemCalls calls;
    ScriptedReceiveBufferControl buffers;
    ListenerWitness witness{calls, &buffers};
    int descriptor = -1;
};

} // namespace

TEST_F(ListenerWitnessTest, KnowsWhoAnsweredSinceTheListenerWasBound) {
    receive(SampleUnit().reply());
    receive(secondSampleUnit().reply());
    receive(SampleUnit().reply());
    EXPECT_EQ(evidence().units.count(), 2U);
    EXPECT_EQ(evidence().units.all().front()->sender, unitAddress);
    listenOn(3521);
    EXPECT_EQ(evidence().units.count(), 0U);
    EXPECT_EQ(evidence().port, 3521);
}

TEST_F(ListenerWitnessTest, TellsAPortThatIsTaken) {
    calls.failNext(Operation::bind, EADDRINUSE);
    EXPECT_EQ(listenOn(3520), -1);
    EXPECT_EQ(errno, EADDRINUSE);
    EXPECT_EQ(evidence().startError, posixError(EADDRINUSE));
    EXPECT_FALSE(evidence().isListening);
}

TEST_F(ListenerWitnessTest, AListenerThatIsClosedDoesNotListen) {
    EXPECT_TRUE(evidence().isListening);
    witness.close(descriptor);
    EXPECT_FALSE(evidence().isListening);
}

TEST_F(ListenerWitnessTest, TellsWhetherTheRequestLeft) {
    EXPECT_FALSE(evidence().hasAsked);
    calls.failNext(Operation::sendTo, EPERM);
    EXPECT_EQ(ask(), -1);
    EXPECT_EQ(errno, EPERM);
    EXPECT_FALSE(evidence().hasAsked);
    EXPECT_EQ(evidence().sendError, posixError(EPERM));
    ask();
    EXPECT_TRUE(evidence().hasAsked);
    EXPECT_EQ(evidence().sendError, std::nullopt);
    calls.failNext(Operation::sendTo, EPERM);
    ask(10000);
    EXPECT_EQ(evidence().sendError, std::nullopt) << "a unit's own port is not everybody's";
}

TEST_F(ListenerWitnessTest, HearsItsOwnBroadcastAndNotThatOfAnotherComputer) {
    EXPECT_EQ(evidence().ownBroadcast, OwnBroadcast::untested);
    ask();
    EXPECT_EQ(evidence().ownBroadcast, OwnBroadcast::notHeard);
    receive(request, unitAddress);
    EXPECT_EQ(evidence().ownBroadcast, OwnBroadcast::notHeard);
    EXPECT_EQ(receive(request, listenersAddress), request) << "its owner reads it too";
    EXPECT_EQ(evidence().ownBroadcast, OwnBroadcast::heard);
}

TEST_F(ListenerWitnessTest, OnAnotherPortItsOwnBroadcastCannotComeBack) {
    listenOn(3522);
    ask();
    EXPECT_EQ(evidence().ownBroadcast, OwnBroadcast::untested);
}

TEST_F(ListenerWitnessTest, TakesOutAProbeOfThisHostAndNothingElse) {
    witness.expectProbes({probePort}, own);
    EXPECT_EQ(receive(request, listenersAddress, probePort), std::nullopt);
    EXPECT_EQ(errno, 0);
    EXPECT_TRUE(witness.hasHeardProbe());
    EXPECT_EQ(evidence().ownBroadcast, OwnBroadcast::heard);
    EXPECT_TRUE(receive(request, unitAddress, probePort).has_value());
    EXPECT_TRUE(receive(request, listenersAddress, 3520).has_value());
    EXPECT_TRUE(receive(SampleUnit().reply(), listenersAddress, probePort).has_value());
    witness.expectProbes({}, {});
    EXPECT_TRUE(receive(request, listenersAddress, probePort).has_value());
}

TEST_F(ListenerWitnessTest, TellsAnswersThatCannotBeDecodedFromWhateverElseComes) {
    const Bytes whole = SampleUnit().reply();
    receive(Bytes(whole.begin(), whole.begin() + 40));
    receive(textBytes("^^<U>12345"));
    EXPECT_EQ(evidence().notUnderstood, 2U);
    receive(textBytes("hello"));
    receive(textBytes("^"));
    EXPECT_EQ(evidence().foreign, 2U);
    receive(SampleUnit().acknowledgement());
    receive(request);
    EXPECT_EQ(evidence().notUnderstood, 2U);
    EXPECT_EQ(evidence().units.count(), 0U);
}

TEST_F(ListenerWitnessTest, TellsWhatTheSystemDropped) {
    EXPECT_EQ(evidence().dropped, 0U);
    buffers.drop(descriptor, 5);
    EXPECT_EQ(evidence().dropped, 5U);
}

TEST_F(ListenerWitnessTest, DecodesNoMoreThanItsShareOfAFlood) {
    for (std::uint32_t i = 0; i < ListenerWitness::mostDecoded; ++i) {
        receive(textBytes("^^<U>12345"));
        receive(textBytes("hello"));
    }
    EXPECT_TRUE(evidence().isWhole);
    receive(SampleUnit().reply());
    EXPECT_FALSE(evidence().isWhole);
    EXPECT_EQ(evidence().units.count(), 0U);
    EXPECT_EQ(evidence().notUnderstood, ListenerWitness::mostDecoded);
}

TEST_F(ListenerWitnessTest, RequestsOfAnotherListenerOfTheProgramAreTakenOutAndNoOther) {
    witness.passOverRequestsFrom(3521, own);
    EXPECT_EQ(receive(request, listenersAddress, 3521), std::nullopt);
    EXPECT_EQ(receive(request, listenersAddress, 3520), request) << "the listener's own";
    EXPECT_EQ(receive(request, unitAddress, 3521), request) << "of another host";
    EXPECT_EQ(receive(textBytes("^^IdZ"), listenersAddress, 3521), textBytes("^^IdZ"))
        << "no request for parameters";
    witness.passOverRequestsFrom(0, own);
    EXPECT_EQ(receive(request, listenersAddress, 3521), request);
    EXPECT_EQ(receive(request, listenersAddress, 0), request) << "RFC 768 allows port 0";
}

} // namespace kx
