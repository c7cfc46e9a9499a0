// The listener's receive buffer, and the line that tells how many datagrams found no room in it.

#include "ControllerFixture.h"

namespace kx {

namespace {

constexpr auto untilCounted = 250ms;

constexpr const char* oneDropped = "The system dropped 1 datagram before it was read, so a unit "
                                   "may be missing. Help says how to allow a larger buffer.";

std::string manyDropped(const std::string& count) {
    return "The system dropped " + count +
           " datagrams before they were read, so units may be missing. Help says how to allow a "
           "larger buffer.";
}

class ControllerReceiveBuffer : public ControllerTest {
protected:
    // The line counts answers until the two seconds are over.
    void launch() {
        ControllerTest::launch();
        runLoop.advanceBy(2000ms);
    }

    // The system drops this many datagrams; one more is read.
    void drop(std::uint32_t datagrams) {
        receiveBuffers.drop(systemCalls.lastDescriptor(), datagrams);
        receive(SampleUnit().reply());
    }

    void dropAndCount(std::uint32_t datagrams) {
        drop(datagrams);
        runLoop.advanceBy(untilCounted);
    }
};

} // namespace

TEST_F(ControllerReceiveBuffer, EveryListenerAsksForFourMebibytes) {
    using Wish = ScriptedReceiveBufferControl::Wish;
    launch();
    const int first = systemCalls.lastDescriptor();
    controller.discoverButton();
    const int second = systemCalls.lastDescriptor();
    EXPECT_NE(first, second);
    EXPECT_EQ(receiveBuffers.wishes(),
              (std::vector<Wish>{{first, 4'194'304}, {second, 4'194'304}}));
}

TEST_F(ControllerReceiveBuffer, TheBufferIsThereBeforeAnybodyIsAsked) {
    bool wasAskedFor = false;
    systemCalls.setObserver([&](const ScriptedSystemCalls::Call& call) {
        if (call.operation == Operation::sendTo) {
            wasAskedFor = !receiveBuffers.wishes().empty();
        }
    });
    launch();
    EXPECT_TRUE(wasAskedFor);
}

TEST_F(ControllerReceiveBuffer, TheLineTellsOfAnswersWhileNothingIsDropped) {
    launch();
    receive(SampleUnit().reply());
    runLoop.advanceBy(2000ms);
    EXPECT_GT(receiveBuffers.lookCount(), 0);
    EXPECT_TRUE(isNothingFound()) << discoveryLine();
}

TEST_F(ControllerReceiveBuffer, TheLineSaysHowManyDatagramsWereDropped) {
    launch();
    dropAndCount(1);
    EXPECT_EQ(discoveryLine(), oneDropped);
    dropAndCount(1233);
    EXPECT_EQ(discoveryLine(), manyDropped("1234"));
}

TEST_F(ControllerReceiveBuffer, TheEventLogDoesNotMentionIt) {
    launch();
    receive(SampleUnit().reply());
    runLoop.advanceBy(untilCounted);
    const std::string expected = controller.eventLog();
    launch();
    dropAndCount(5);
    EXPECT_EQ(controller.eventLog(), expected);
}

TEST_F(ControllerReceiveBuffer, TheQuietLineKeepsWhatItSays) {
    launch();
    discover({SampleUnit()});
    selectRow(UnitParameter::destinationPortNumber);
    controller.editTextDidChange("3521");
    const std::string before = quietLine();
    dropAndCount(5);
    EXPECT_EQ(discoveryLine(), manyDropped("5"));
    EXPECT_EQ(quietLine(), before);
}

TEST_F(ControllerReceiveBuffer, DiscoverBeginsAnew) {
    launch();
    dropAndCount(5);
    controller.discoverButton();
    EXPECT_TRUE(isNothingFound());
    runLoop.advanceBy(2000ms);
    dropAndCount(1);
    EXPECT_EQ(discoveryLine(), oneDropped);
}

TEST_F(ControllerReceiveBuffer, TheNextLaunchCountsAgain) {
    launch();
    drop(5);
    controller.applicationWillTerminate();
    launch();
    dropAndCount(6);
    EXPECT_EQ(discoveryLine(), manyDropped("6"));
}

TEST_F(ControllerReceiveBuffer, WithoutTheServiceTheListenerWorksAllTheSame) {
    KXConfigAppDelegate plain(
        window.outlets(), {runLoop, hostResolver, systemCalls, wallClock, application, nullptr});
    plain.applicationDidFinishLaunching();
    drop(5);
    runLoop.advanceBy(2000ms);
    EXPECT_EQ(plain.devices().records().size(), 1U);
    EXPECT_TRUE(isNothingFound()) << discoveryLine();
}

} // namespace kx
