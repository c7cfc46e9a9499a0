// The events of a session, for datagrams that come and for those that do not.

#include "SessionFixture.h"

#include <cerrno>
#include <chrono>
#include <memory>
#include <stdexcept>

namespace kx {

namespace {

using namespace std::chrono_literals;

const std::string unitItself = "01 02 03 04 05 06 from 192.168.1.10:3520 by 3";

class UnitSessionEvents : public SessionTest {
protected:
    UnitSessionEvents() { start(); }

    // The system drops so many datagrams; one more is read, and the time of a count passes.
    void drop(std::uint32_t datagrams) {
        receiveBuffers.drop(systemCalls.lastDescriptor(), datagrams);
        receive(SampleUnit().acknowledgement());
        observer.taken();
        runLoop.advanceBy(250ms);
    }

    // An endpoint from before, or from elsewhere.
    std::shared_ptr<UDPEcho> stranger = UDPEcho::make(runLoop, hostResolver, systemCalls);
};

} // namespace

TEST_F(UnitSessionEvents, EveryDatagramIsCountedBeforeItIsTold) {
    EXPECT_EQ(eventsOf(textBytes("^^<U")),
              (Events{"datagram of 4", "ignored: too short from 192.168.1.10:3520 by 3"}));
    EXPECT_EQ(eventsOf(textBytes("x^<U>")),
              (Events{"datagram of 5", "ignored: unknown from 192.168.1.10:3520 by 3"}));
    EXPECT_EQ(eventsOf(SampleUnit().reply()),
              (Events{"datagram of 81", "parameters of " + unitItself}));
    EXPECT_EQ(eventsOf(SampleUnit().acknowledgement()),
              (Events{"datagram of 24", "acceptance of " + unitItself}));
    EXPECT_EQ(eventsOf(joined({SampleUnit().header(), textBytes("hello")})),
              (Events{"datagram of 26", "\"$hello\" of " + unitItself}));
    EXPECT_EQ(eventsOf(textBytes("^^<X>")),
              (Events{"datagram of 5", "\"\" of (nobody) from 192.168.1.10:3520 by 3"}));
    EXPECT_EQ(systemLog.lines(), Events{});
}

TEST_F(UnitSessionEvents, AnEventNamesTheSenderAndTheLinkOfItsOwnDatagram) {
    systemCalls.queueDatagram(SampleUnit().acknowledgement(), dataForAddress(0x0A000007U, 4000), 7);
    systemCalls.queueDatagram(SampleUnit().reply(), dataForAddress(0x0A000008U, 4001), 8);
    runLoop.makeReadable(systemCalls.lastDescriptor());
    runLoop.makeReadable(systemCalls.lastDescriptor());
    EXPECT_EQ(
        observer.events,
        (Events{"datagram of 24", "acceptance of 01 02 03 04 05 06 from 10.0.0.7:4000 by 7",
                "datagram of 81", "parameters of 01 02 03 04 05 06 from 10.0.0.8:4001 by 8"}));
}

TEST_F(UnitSessionEvents, ParametersAreInTheRegistryBeforeTheyAreTold) {
    bool wereThere = false;
    inside("parameters of " + unitItself,
           [&] { wereThere = registry.find("01 02 03 04 05 06") != nullptr; });
    receive(SampleUnit().reply());
    EXPECT_TRUE(wereThere);
    EXPECT_EQ(*registry.find("01 02 03 04 05 06"),
              decodeUnitParameters(SampleUnit().parameterList()).record);
    EXPECT_EQ(observer.lastParameters.record, *registry.find("01 02 03 04 05 06"));
}

TEST_F(UnitSessionEvents, ParametersWithoutASerialNumberAreToldAndNotKept) {
    const Bytes list = item("<M>", {1, 2, 3, 4, 5, 6});
    EXPECT_EQ(eventsOf(joined({SampleUnit().header(), list})),
              (Events{"datagram of 30", "parameters of " + unitItself}));
    ASSERT_EQ(observer.lastParameters.items.size(), 1U);
    EXPECT_EQ(observer.lastParameters.items[0].parameter, UnitParameter::internalMACAddress);
    EXPECT_TRUE(registry.records().empty());
}

TEST_F(UnitSessionEvents, ADatagramThatBreaksItsFormatIsCountedAndLeftToTheSystemLog) {
    Bytes cutShort = SampleUnit().reply();
    cutShort.pop_back();
    EXPECT_EQ(eventsOf(cutShort),
              (Events{"datagram of 80", "abandoned from 192.168.1.10:3520 by 3"}));
    EXPECT_EQ(systemLog.lines(), Events{"Exception during echo:didReceiveData:fromAddress: "
                                        "range {3, 6} exceeds data length 8"});
    EXPECT_TRUE(registry.records().empty());
}

TEST_F(UnitSessionEvents, ADatagramThatIsNotToldMovesNoUnitToItsLink) {
    const auto linkInRegistry = [&] { return registry.find("01 02 03 04 05 06")->link(); };
    const auto receiveBySeven = [&](const Bytes& datagram) {
        systemCalls.queueDatagram(datagram, dataForAddress(unitAddress, 3520), 7);
        runLoop.makeReadable(systemCalls.lastDescriptor());
    };
    receive(SampleUnit().reply());
    Bytes cutShort = SampleUnit().reply();
    cutShort.pop_back();
    receiveBySeven(cutShort);
    EXPECT_EQ(linkInRegistry(), 3U);
    for (const Bytes& told :
         {SampleUnit().acknowledgement(), joined({SampleUnit().header(), textBytes("hello")}),
          joined({SampleUnit().header(), secondSampleUnit().parameterList()})}) {
        receive(SampleUnit().reply());
        EXPECT_EQ(linkInRegistry(), 3U);
        receiveBySeven(told);
        EXPECT_EQ(linkInRegistry(), 7U);
    }
}

TEST_F(UnitSessionEvents, AnExceptionOfThePlatformInsideAnEventGoesToTheSystemLog) {
    for (const std::string& event :
         {"parameters of " + unitItself, "acceptance of " + unitItself}) {
        inside(event, [] { throw PlatformException("no such text"); });
        receive(SampleUnit().reply());
        receive(SampleUnit().acknowledgement());
    }
    EXPECT_EQ(systemLog.lines(),
              Events(2, "Exception during echo:didReceiveData:fromAddress: no such text"));
    EXPECT_TRUE(session.isListening());
}

TEST_F(UnitSessionEvents, AnExceptionWhereADatagramIsCountedIsPassedOn) {
    inside("datagram of 81", [] { throw PlatformException("no such text"); });
    EXPECT_THROW(receive(SampleUnit().reply()), PlatformException);
    EXPECT_EQ(systemLog.lines(), Events{});
}

TEST_F(UnitSessionEvents, AFrontThatStopsBeforeItThrowsHearsNoMoreOfTheDatagram) {
    inside("acceptance of " + unitItself, [&] {
        session.stop();
        throw PlatformException("no such text");
    });
    EXPECT_EQ(eventsOf(SampleUnit().acknowledgement()).back(), "acceptance of " + unitItself);
}

TEST_F(UnitSessionEvents, TheLinkIsThatOfTheDatagramThatIsTold) {
    inside("datagram of 81", [&] {
        systemCalls.queueDatagram(SampleUnit().reply(), dataForAddress(unitAddress, 3520), 7);
        runLoop.makeReadable(systemCalls.lastDescriptor()); // a dialog that runs the loop
    });
    EXPECT_EQ(eventsOf(SampleUnit().reply()),
              (Events{"datagram of 81", "datagram of 81",
                      "parameters of 01 02 03 04 05 06 from 192.168.1.10:3520 by 7",
                      "parameters of " + unitItself}));
}

TEST_F(UnitSessionEvents, OtherExceptionsInsideAnEventArePassedOn) {
    inside("acceptance of " + unitItself, [] { throw std::logic_error("a mistake"); });
    EXPECT_THROW(receive(SampleUnit().acknowledgement()), std::logic_error);
    EXPECT_EQ(systemLog.lines(), Events{});
}

TEST_F(UnitSessionEvents, AFrontThatStopsInsideADatagramHearsNoMoreOfIt) {
    inside("datagram of 81", [&] { session.stop(); });
    EXPECT_EQ(eventsOf(SampleUnit().reply()), Events{"datagram of 81"});
    EXPECT_TRUE(registry.records().empty());
}

TEST_F(UnitSessionEvents, AFrontThatStartsAnewInsideADatagramHearsNoMoreOfIt) {
    inside("datagram of 81", [&] { session.start(3521); });
    EXPECT_EQ(eventsOf(SampleUnit().reply()),
              (Events{"datagram of 81", "started at 0.0.0.0:3521", "can broadcast"}));
    EXPECT_TRUE(registry.records().empty());
    EXPECT_EQ(eventsOf(SampleUnit().reply()).back(), "parameters of " + unitItself);
}

TEST_F(UnitSessionEvents, AFailedReadIsToldAndTheSessionGoesOn) {
    systemCalls.failNext(Operation::receiveFrom, ECONNREFUSED);
    runLoop.makeReadable(systemCalls.lastDescriptor());
    EXPECT_EQ(observer.events,
              Events{"receive error: " + posixError(ECONNREFUSED).localizedDescription()});
    EXPECT_EQ(eventsOf(SampleUnit().reply()).size(), 2U);
}

TEST_F(UnitSessionEvents, AnotherEndpointHasNothingToTellButItsErrors) {
    session.echoDidStartWithAddress(*stranger, dataForAddress(0, 3520));
    session.echoDidReceiveDataFromAddress(*stranger, SampleUnit().reply(), {});
    session.echoDidSendDataToAddress(*stranger, {}, {});
    EXPECT_EQ(observer.events, Events{});
    EXPECT_TRUE(registry.records().empty());
    EXPECT_EQ(runLoop.pendingCallCount(), 0U);

    session.echoDidReceiveError(*stranger, posixError(EIO));
    session.echoDidFailToSendDataToAddressError(*stranger, {}, {}, posixError(EIO));
    session.echoDidStopWithError(*stranger, posixError(EIO));
    const std::string reason = posixError(EIO).localizedDescription();
    EXPECT_EQ(observer.events,
              (Events{"receive error: " + reason, "not sent: " + reason, "stopped: " + reason}));
    EXPECT_TRUE(session.isListening());
}

TEST_F(UnitSessionEvents, DropsAreToldWhenTheirNumberChanges) {
    drop(5);
    EXPECT_EQ(observer.taken(), Events{"dropped 5"});
    drop(0);
    EXPECT_EQ(observer.taken(), Events{});
    drop(1);
    EXPECT_EQ(observer.taken(), Events{"dropped 6"});
}

TEST_F(UnitSessionEvents, WhatIsDroppedAfterACountIsCountedWithTheNextRead) {
    drop(2);
    receiveBuffers.drop(systemCalls.lastDescriptor(), 3);
    observer.taken();
    runLoop.advanceBy(10s);
    EXPECT_EQ(observer.taken(), Events{});
    drop(0);
    EXPECT_EQ(observer.taken(), Events{"dropped 5"});
}

TEST_F(UnitSessionEvents, AFailedReadIsFollowedByACountToo) {
    receiveBuffers.drop(systemCalls.lastDescriptor(), 7);
    receive({}); // an empty datagram counts as an error
    observer.taken();
    runLoop.advanceBy(250ms);
    EXPECT_EQ(observer.taken(), Events{"dropped 7"});
}

TEST_F(UnitSessionEvents, AStartForgetsTheDropsAndSaysSoFirst) {
    session.start(3520);
    EXPECT_EQ(observer.taken(), (Events{"started at 0.0.0.0:3520", "can broadcast"}));
    drop(5);
    observer.taken();
    session.start(3520);
    EXPECT_EQ(observer.taken(), (Events{"dropped 0", "started at 0.0.0.0:3520", "can broadcast"}));
    drop(1);
    EXPECT_EQ(observer.taken(), Events{"dropped 1"});
}

TEST_F(UnitSessionEvents, AFrontMayStopOrStartWhereTheDropsAreForgotten) {
    drop(5);
    observer.taken();
    inside("dropped 0", [&] { session.stop(); });
    session.start(3520);
    EXPECT_EQ(observer.taken(), Events{"dropped 0"});
    EXPECT_EQ(session.listener(), nullptr);

    session.start(3520);
    drop(5);
    observer.taken();
    inside("dropped 0", [&] { session.start(3521); });
    session.start(3520);
    EXPECT_EQ(observer.taken(), (Events{"dropped 0", "started at 0.0.0.0:3521", "can broadcast"}));
    EXPECT_EQ(session.listener()->port(), 3521U);
    EXPECT_EQ(systemCalls.openDescriptors().size(), 1U);
}

TEST_F(UnitSessionEvents, AnErrorOfAnotherEndpointIsNoReasonToCountWithoutAListener) {
    session.stop();
    session.echoDidReceiveError(*stranger, posixError(EIO));
    runLoop.advanceBy(10s);
    EXPECT_EQ(receiveBuffers.lookCount(), 0);
}

TEST_F(UnitSessionEvents, ACountThatIsStillDueAfterAStartIsOfTheNewListener) {
    receiveBuffers.drop(systemCalls.lastDescriptor(), 5);
    receive(SampleUnit().acknowledgement());
    start();
    runLoop.advanceBy(250ms);
    EXPECT_EQ(observer.taken(), Events{});
    drop(6);
    EXPECT_EQ(observer.taken(), Events{"dropped 6"});
}

TEST_F(UnitSessionEvents, AListenerThatDidNotStartIsNotCounted) {
    receiveBuffers.drop(systemCalls.lastDescriptor(), 5);
    receive(SampleUnit().acknowledgement());
    systemCalls.failNext(Operation::bind, EADDRINUSE);
    start();
    runLoop.advanceBy(10s);
    EXPECT_EQ(receiveBuffers.lookCount(), 0);
    EXPECT_EQ(observer.taken(), Events{});
}

TEST_F(UnitSessionEvents, WhatTheSystemNoLongerTellsIsNotTold) {
    drop(5);
    observer.taken();
    receiveBuffers.tellNothing();
    drop(1);
    EXPECT_EQ(observer.taken(), Events{}) << "and 5 stays what was told";
}

TEST_F(UnitSessionEvents, WithoutAWayToCountTheSessionWorksAllTheSame) {
    UnitSession plain({runLoop, hostResolver, systemCalls}, registry, observer);
    session.stop();
    plain.start(3520);
    observer.taken();
    EXPECT_EQ(eventsOf(SampleUnit().reply()).size(), 2U);
    EXPECT_EQ(runLoop.pendingCallCount(), 0U);
    EXPECT_EQ(receiveBuffers.wishes().size(), 1U) << "that of the session with one";
}

TEST_F(UnitSessionEvents, ABurstIsCountedOnceAndRestIsNotCounted) {
    for (int reply = 0; reply < 100; ++reply) {
        receive(SampleUnit().acknowledgement());
    }
    runLoop.advanceBy(249ms);
    EXPECT_EQ(receiveBuffers.lookCount(), 0);
    runLoop.advanceBy(10s);
    EXPECT_EQ(receiveBuffers.lookCount(), 1);
    EXPECT_EQ(runLoop.pendingCallCount(), 0U);
}

TEST_F(UnitSessionEvents, ASystemThatNeverTellsIsAskedInVain) {
    receiveBuffers.tellNothing();
    drop(5);
    EXPECT_EQ(receiveBuffers.lookCount(), 1);
    EXPECT_EQ(observer.events, Events{});
}

TEST(UnitSessionObserver, NeedsNoMethodAtAll) {
    ManualRunLoop runLoop;
    ScriptedHostResolver hostResolver;
    ScriptedSystemCalls systemCalls;
    UnitRegistry registry;
    UnitSessionObserver silent;
    UnitSession session({runLoop, hostResolver, systemCalls}, registry, silent);
    systemCalls.failNext(ScriptedSystemCalls::Operation::enableBroadcast, EPERM);
    session.start(3520);
    systemCalls.failNext(ScriptedSystemCalls::Operation::bind, EADDRINUSE);
    session.start(3520);
    session.send("^^IdX", 0, 3520, 0);
    session.start(3520);
    session.send("^^IdX", 0, 3520, 0);
    for (const Bytes& datagram : {textBytes("x"), textBytes("^^<X>"), SampleUnit().reply(),
                                  SampleUnit().acknowledgement(), Bytes()}) {
        systemCalls.queueDatagram(datagram, dataForAddress(0, 3520));
        runLoop.makeReadable(systemCalls.lastDescriptor());
    }
    EXPECT_EQ(registry.records().size(), 1U);
}

} // namespace kx
