// The listener's restart: by Discover, by the choice of a port and at launch, and the events before
// and after it.

#include "ControllerFixture.h"

#include <memory>

namespace kx {

namespace {

class ControllerListener : public ControllerTest {
protected:
    // Calls `note` at the beginning of each call that makes a socket.
    template<class Note>
    void whenASocketIsMade(Note note) {
        systemCalls.setObserver([note](const ScriptedSystemCalls::Call& call) {
            if (call.operation == Operation::socket) {
                note();
            }
        });
    }
};

} // namespace

TEST_F(ControllerListener, AnotherPortEmptiesTheUnitsAndListsThemTwoSecondsLater) {
    launch();
    discover({SampleUnit()});
    window.udpPortPopUp.selectItemWithTitle("3522");
    controller.udpPortSelect();
    EXPECT_EQ(window.unitSelectPopUp.titles(), Titles{});
    runLoop.advanceBy(1999ms);
    EXPECT_EQ(window.unitSelectPopUp.titles(), Titles{});
    runLoop.advanceBy(1ms);
    EXPECT_EQ(window.unitSelectPopUp.titles(), Titles{"01 02 03 04 05 06"});
    EXPECT_EQ(window.unitSelectPopUp.titleOfSelectedItem(), "01 02 03 04 05 06");
}

TEST_F(ControllerListener, TheSamePortIsFreeAgainForTheNextListener) {
    launch();
    const int firstSocket = systemCalls.lastDescriptor();
    whenASocketIsMade([&] { EXPECT_EQ(systemCalls.closeCount(firstSocket), 1U); });
    controller.discoverButton();
    EXPECT_EQ(systemCalls.count(Operation::socket), 2U);
    EXPECT_EQ(log().at(1), "UDP listener did start. 0.0.0.0:3520");
}

TEST_F(ControllerListener, ARestartStopsAListenerThatSomebodyStillHolds) {
    launch();
    const std::shared_ptr<UDPEcho> held = listener().shared_from_this();
    controller.discoverButton();
    EXPECT_EQ(held->port(), 0U);
    EXPECT_EQ(held->delegate(), nullptr);
    EXPECT_EQ(systemCalls.openDescriptors().size(), 1U);
    EXPECT_NE(controller.udpListener(), held.get()) << "the old one is never started again";
    EXPECT_EQ(controller.udpListener()->port(), 3520U);
}

TEST_F(ControllerListener, TheEndStopsAListenerThatSomebodyStillHolds) {
    launch();
    const std::shared_ptr<UDPEcho> held = listener().shared_from_this();
    controller.applicationWillTerminate();
    EXPECT_EQ(held->port(), 0U);
    EXPECT_TRUE(systemCalls.openDescriptors().empty());
}

TEST_F(ControllerListener, TheStartIsLoggedWithTheAddressThatTheListenerReports) {
    launch();
    const auto length = controller.eventLog().size();
    controller.echoDidStartWithAddress(listener(), dataForAddress(ipForString("192.0.2.7"), 4000));
    EXPECT_EQ(logSince(length).at(0), "UDP listener did start. 192.0.2.7:4000");
}

TEST_F(ControllerListener, TheCompletionIsScheduledOnlyOnceTheListenerHasStarted) {
    std::vector<std::size_t> scheduled;
    systemCalls.setObserver([&](const ScriptedSystemCalls::Call& call) {
        if (call.operation == Operation::socket || call.operation == Operation::sendTo) {
            scheduled.push_back(runLoop.pendingCallCount());
        }
    });
    launch();
    EXPECT_EQ(scheduled, (std::vector<std::size_t>{0, 0}));
    EXPECT_EQ(runLoop.pendingCallCount(), 1U);
}

TEST_F(ControllerListener, LaunchDiscoversBeforeItPreparesTheOptionCommand) {
    window.optionCommandField.setStringValue("from before");
    std::string textAtDiscovery;
    whenASocketIsMade([&] { textAtDiscovery = window.optionCommandField.stringValue(); });
    launch();
    EXPECT_EQ(textAtDiscovery, "from before");
    EXPECT_EQ(window.optionCommandField.stringValue(), "V");
}

} // namespace kx
