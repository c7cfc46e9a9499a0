// The life of a session: its start, its stop, and what it sends.

#include "SessionFixture.h"

#include <cerrno>
#include <memory>
#include <set>
#include <stdexcept>

namespace kx {

namespace {

class UnitSessionLife : public SessionTest {};

std::string errorText(int errorNumber) {
    return posixError(errorNumber).localizedDescription();
}

} // namespace

TEST_F(UnitSessionLife, HasNoListenerBeforeItsStart) {
    EXPECT_EQ(session.listener(), nullptr);
    EXPECT_FALSE(session.isListening());
    EXPECT_TRUE(systemCalls.calls().empty());
    EXPECT_EQ(observer.events, Events{});
}

TEST_F(UnitSessionLife, AStartTellsTheAddressAndThenThatBroadcastsMayBeSent) {
    session.start(3521);
    EXPECT_EQ(observer.events, (Events{"started at 0.0.0.0:3521", "can broadcast"}));
    ASSERT_NE(session.listener(), nullptr);
    EXPECT_EQ(session.listener()->port(), 3521U);
    EXPECT_TRUE(session.isListening());
    EXPECT_EQ(systemCalls.count(Operation::sendTo), 0U) << "what to send is the front's business";
}

TEST_F(UnitSessionLife, RoomAndLinksAreAskedForBeforeAnybodyCanAnswer) {
    Events order;
    inside("can broadcast", [&] {
        order.push_back(std::to_string(receiveBuffers.wishes().size()) + " wishes");
        order.push_back(std::to_string(systemCalls.count(Operation::enablePacketInfo)) + " links");
    });
    session.start(3520);
    EXPECT_EQ(order, (Events{"1 wishes", "1 links"}));
    EXPECT_EQ(receiveBuffers.wishes().at(0),
              (ScriptedReceiveBufferControl::Wish{systemCalls.lastDescriptor(), 4'194'304}));
}

TEST_F(UnitSessionLife, ASystemThatTellsNoLinksIsNoObstacle) {
    systemCalls.failNext(Operation::enablePacketInfo, ENOPROTOOPT);
    session.start(3520);
    EXPECT_EQ(observer.taken(), (Events{"started at 0.0.0.0:3520", "can broadcast"}));
    EXPECT_EQ(eventsOf(SampleUnit().acknowledgement()).back(),
              "acceptance of 01 02 03 04 05 06 from 192.168.1.10:3520 by 0");
}

TEST_F(UnitSessionLife, ARestartClosesTheOldSocketFirstAndSaysNothingOfIt) {
    session.start(3520);
    const int first = systemCalls.lastDescriptor();
    observer.taken();
    systemCalls.setObserver([&](const ScriptedSystemCalls::Call& call) {
        if (call.operation == Operation::socket) {
            EXPECT_EQ(systemCalls.closeCount(first), 1U);
        }
    });
    session.start(3520);
    EXPECT_EQ(observer.events, (Events{"started at 0.0.0.0:3520", "can broadcast"}));
    EXPECT_EQ(systemCalls.openDescriptors(), std::set<int>{systemCalls.lastDescriptor()});
    EXPECT_EQ(runLoop.watchCount(), 1U);
}

TEST_F(UnitSessionLife, AStopIsSilentAndGivesEverythingBack) {
    start();
    receive(SampleUnit().reply()); // a count of drops is due
    observer.taken();
    session.stop();
    EXPECT_EQ(session.listener(), nullptr);
    EXPECT_FALSE(session.isListening());
    EXPECT_TRUE(systemCalls.openDescriptors().empty());
    EXPECT_EQ(runLoop.watchCount(), 0U);
    EXPECT_EQ(runLoop.pendingCallCount(), 0U);
    session.stop();
    EXPECT_EQ(observer.events, Events{});
}

TEST_F(UnitSessionLife, StopsAListenerThatSomebodyStillHolds) {
    start();
    const std::shared_ptr<const UDPEcho> held = session.listener()->shared_from_this();
    session.stop();
    EXPECT_EQ(held->port(), 0U);
    EXPECT_EQ(held->delegate(), nullptr);
    EXPECT_TRUE(systemCalls.openDescriptors().empty());
}

TEST_F(UnitSessionLife, TheEndOfASessionIsSilentToo) {
    {
        UnitSession brief({runLoop, hostResolver, systemCalls}, registry, observer);
        brief.start(3522);
        observer.taken();
    }
    EXPECT_TRUE(systemCalls.openDescriptors().empty());
    EXPECT_EQ(runLoop.watchCount(), 0U);
    EXPECT_EQ(observer.events, Events{});
}

TEST_F(UnitSessionLife, APortThatIsTakenStopsIt) {
    systemCalls.failNext(Operation::bind, EADDRINUSE);
    session.start(3520);
    EXPECT_EQ(observer.taken(), Events{"stopped: " + errorText(EADDRINUSE)});
    ASSERT_NE(session.listener(), nullptr);
    EXPECT_EQ(session.listener()->port(), 0U);
    EXPECT_FALSE(session.isListening());
    EXPECT_TRUE(receiveBuffers.wishes().empty());

    session.start(3520);
    EXPECT_EQ(observer.events, (Events{"started at 0.0.0.0:3520", "can broadcast"}));
    EXPECT_TRUE(session.isListening());
}

TEST_F(UnitSessionLife, WithoutBroadcastsItListensAndSendsAllTheSame) {
    systemCalls.failNext(Operation::enableBroadcast, EPERM);
    session.start(3520);
    EXPECT_EQ(observer.taken(),
              (Events{"started at 0.0.0.0:3520", "cannot broadcast: " + errorText(EPERM)}));
    EXPECT_TRUE(session.isListening());
    EXPECT_EQ(resultOfSend("^^IdX"), "sent");
}

TEST_F(UnitSessionLife, ASendGoesToTheAddressAndPortThatItNames) {
    start();
    EXPECT_EQ(resultOfSend("^^IdV\r"), "sent");
    EXPECT_EQ(sentThrough(systemCalls), Events{"192.168.1.10:10000 ^^IdV\\r"});
    EXPECT_EQ(observer.events, Events{"sent"});
}

TEST_F(UnitSessionLife, ASendLeavesByTheLinkThatItNames) {
    start();
    systemCalls.addLink("kx0", 4);
    const auto lastLink = [&] { return systemCalls.sentDatagrams().back().link; };
    EXPECT_EQ(resultOfSend("^^IdX", session.linkForName("kx0")), "sent");
    EXPECT_EQ(lastLink(), 4U);
    EXPECT_EQ(resultOfSend("^^IdX"), "sent");
    EXPECT_EQ(lastLink(), 0U) << "the routes decide again";
}

TEST_F(UnitSessionLife, ASendByALinkThatIsGoneFailsAndTakesNoOtherWay) {
    start();
    EXPECT_EQ(session.linkForName("kx0"), noSuchLink);
    EXPECT_EQ(resultOfSend("^^IdX", session.linkForName("kx0")), errorText(ENODEV));
    EXPECT_EQ(observer.taken(), Events{"not sent: " + errorText(ENODEV)});
    EXPECT_EQ(systemCalls.count(Operation::sendTo), 1U);
}

TEST_F(UnitSessionLife, ADatagramThatCannotLeaveIsASendThatFailed) {
    const auto failed = [this] {
        const auto failure = session.failToSend(posixError(ENETUNREACH));
        return failure.has_value() ? RecordingObserver::reasonOf(*failure) : "nothing";
    };
    EXPECT_EQ(failed(), "no listener");
    EXPECT_EQ(observer.taken(), Events{});
    start();
    EXPECT_EQ(failed(), errorText(ENETUNREACH));
    EXPECT_EQ(observer.taken(), Events{"not sent: " + errorText(ENETUNREACH)});
    systemCalls.failNext(Operation::bind, EADDRINUSE);
    start();
    EXPECT_EQ(failed(), "no listener");
    EXPECT_EQ(systemCalls.count(Operation::sendTo), 0U);
}

TEST_F(UnitSessionLife, AFailedSendIsAResultAndAnEvent) {
    start();
    systemCalls.failNext(Operation::sendTo, ENETUNREACH);
    EXPECT_EQ(resultOfSend("^^IdX"), errorText(ENETUNREACH));
    EXPECT_EQ(observer.taken(), Events{"not sent: " + errorText(ENETUNREACH)});
    EXPECT_EQ(resultOfSend("^^IdX"), "sent") << "an earlier failure is not that of this one";
    EXPECT_EQ(observer.taken(), Events{"sent"});
}

TEST_F(UnitSessionLife, TheFailureOfAnotherEndpointIsNotThatOfTheNextSend) {
    start();
    const auto stranger = UDPEcho::make(runLoop, hostResolver, systemCalls);
    session.echoDidFailToSendDataToAddressError(*stranger, {}, {}, posixError(EIO));
    EXPECT_EQ(resultOfSend("^^IdX"), "sent");
}

TEST_F(UnitSessionLife, ASendThroughAStoppedListenerFailsWithoutASystemCall) {
    systemCalls.failNext(Operation::bind, EADDRINUSE);
    start();
    EXPECT_EQ(resultOfSend("^^IdX"), "no listener");
    EXPECT_EQ(observer.events, Events{"not sent: no listener"});
    EXPECT_EQ(systemCalls.count(Operation::sendTo), 0U);
}

TEST_F(UnitSessionLife, WithoutAListenerASendFailsWithoutAnEvent) {
    EXPECT_EQ(resultOfSend("^^IdX"), "no listener");
    start();
    session.stop();
    EXPECT_EQ(resultOfSend("^^IdX"), "no listener");
    EXPECT_EQ(observer.events, Events{});
    EXPECT_EQ(systemCalls.count(Operation::sendTo), 0U);
}

TEST_F(UnitSessionLife, ASendInsideAnEventHasAResultOfItsOwn) {
    start();
    systemCalls.failNext(Operation::sendTo, ENETUNREACH);
    std::string resultInside;
    inside("not sent: " + errorText(ENETUNREACH), [&] { resultInside = resultOfSend("^^IdV\r"); });
    EXPECT_EQ(resultOfSend("^^IdX"), errorText(ENETUNREACH));
    EXPECT_EQ(resultInside, "sent");

    inside("sent", [&] {
        systemCalls.failNext(Operation::sendTo, EHOSTUNREACH);
        resultInside = resultOfSend("^^IdV\r");
    });
    EXPECT_EQ(resultOfSend("^^IdX"), "sent");
    EXPECT_EQ(resultInside, errorText(EHOSTUNREACH));
}

TEST_F(UnitSessionLife, MayBeStoppedInsideItsStart) {
    inside("started at 0.0.0.0:3520", [&] { session.stop(); });
    session.start(3520);
    EXPECT_EQ(observer.events, Events{"started at 0.0.0.0:3520"});
    EXPECT_EQ(session.listener(), nullptr);
    EXPECT_TRUE(systemCalls.openDescriptors().empty());
}

TEST_F(UnitSessionLife, MayBeStartedAgainInsideItsStart) {
    inside("started at 0.0.0.0:3520", [&] { session.start(3521); });
    session.start(3520);
    EXPECT_EQ(observer.events,
              (Events{"started at 0.0.0.0:3520", "started at 0.0.0.0:3521", "can broadcast"}));
    EXPECT_EQ(session.listener()->port(), 3521U);
    EXPECT_EQ(systemCalls.openDescriptors().size(), 1U);
}

TEST_F(UnitSessionLife, MayBeStartedAgainWhenItDidStop) {
    systemCalls.failNext(Operation::bind, EADDRINUSE);
    inside("stopped: " + errorText(EADDRINUSE), [&] { session.start(3521); });
    session.start(3520);
    EXPECT_EQ(observer.events, (Events{"stopped: " + errorText(EADDRINUSE),
                                       "started at 0.0.0.0:3521", "can broadcast"}));
    EXPECT_TRUE(session.isListening());
}

TEST_F(UnitSessionLife, MayBeStoppedInsideAFailedSend) {
    start();
    systemCalls.failNext(Operation::sendTo, ENETUNREACH);
    inside("not sent: " + errorText(ENETUNREACH), [&] { session.stop(); });
    EXPECT_EQ(resultOfSend("^^IdX"), errorText(ENETUNREACH));
    EXPECT_EQ(session.listener(), nullptr);
}

TEST_F(UnitSessionLife, AnExceptionOfThePlatformInsideTheStartGoesToTheSystemLog) {
    inside("started at 0.0.0.0:3520", [] { throw PlatformException("no such text"); });
    session.start(3520);
    EXPECT_EQ(systemLog.lines(), Events{"Exception during echo:didStartWithAddress: no such text"});
    EXPECT_EQ(observer.events, Events{"started at 0.0.0.0:3520"});
    EXPECT_TRUE(session.isListening());

    inside("can broadcast", [] { throw PlatformException("nor this one"); });
    session.start(3520);
    EXPECT_EQ(systemLog.lines().back(), "Exception during echo:didStartWithAddress: nor this one");
}

TEST_F(UnitSessionLife, OtherExceptionsInsideTheStartArePassedOn) {
    inside("can broadcast", [] { throw std::logic_error("a mistake in the front"); });
    EXPECT_THROW(session.start(3520), std::logic_error);
    EXPECT_EQ(systemLog.lines(), Events{});
}

} // namespace kx
