// Launch, port choice, the listener's events, help and the end.

#include "ControllerFixture.h"
#include "doubles/BrokenText.h"

#include <stdexcept>

namespace kx {

namespace {

class ControllerLifecycle : public ControllerTest {};

} // namespace

TEST_F(ControllerLifecycle, LaunchOffersTheInterfacesInTheirOrder) {
    interfaces.addTitle("Wi-Fi (wlan0)", "b");
    interfaces.addTitle("Ethernet (eth0)", "a");
    window.interfacePopUp.addItemsWithTitles({"left over"});
    launch();
    EXPECT_EQ(window.interfacePopUp.titles(), (Titles{"Wi-Fi (wlan0)", "Ethernet (eth0)"}));
    EXPECT_TRUE(window.interfacePopUp.isEnabled());
}

TEST_F(ControllerLifecycle, LaunchWithoutInterfacesSaysSoAndDiscoversAllTheSame) {
    launch();
    EXPECT_EQ(window.interfacePopUp.titles(), Titles{"No configured interfaces"});
    EXPECT_FALSE(window.interfacePopUp.isEnabled());
    EXPECT_EQ(sent(), Lines{"255.255.255.255:3520 ^^IdX"});
}

TEST_F(ControllerLifecycle, LaunchWorksWithoutAnyKnowledgeOfTheHostsNetwork) {
    KXConfigAppDelegate blind(window.outlets(), {runLoop, hostResolver, systemCalls, wallClock,
                                                 application, nullptr, nullptr});
    blind.applicationDidFinishLaunching();
    EXPECT_EQ(window.interfacePopUp.titles(), Titles{"No configured interfaces"});
    blind.interfaceSelect();
    blind.myHelp();
    blind.reloadUnitParameterButton();
    EXPECT_EQ(lastSent(), "255.255.255.255:3520 ^^IdX");
}

TEST_F(ControllerLifecycle, LaunchClosesTheDrawer) {
    window.eventLogDrawer.setState(DrawerState::open);
    launch();
    EXPECT_EQ(window.eventLogDrawer.state(), DrawerState::closing);
}

TEST_F(ControllerLifecycle, LaunchPreparesTheOptionCommand) {
    launch();
    EXPECT_EQ(window.optionCommandField.stringValue(), "V");
}

TEST_F(ControllerLifecycle, LaunchSelectsNoUnit) {
    launch();
    discover({SampleUnit()});
    ASSERT_EQ(selectedUnit(), "01 02 03 04 05 06");
    launch();
    EXPECT_EQ(controller.selectedUnit(), std::nullopt);
    EXPECT_TRUE(controller.devices().records().empty());
}

TEST_F(ControllerLifecycle, AnotherPortRestartsTheListenerOnIt) {
    launch();
    const int firstSocket = systemCalls.lastDescriptor();
    window.udpPortPopUp.selectItemWithTitle("3522");
    controller.udpPortSelect();
    EXPECT_EQ(log(), (Lines{"[Begin Discover]", "UDP listener did start. 0.0.0.0:3522",
                            "Request unit parameters with address: 255.255.255.255",
                            "UDP server did send data."}));
    EXPECT_EQ(systemCalls.closeCount(firstSocket), 1U);
    EXPECT_NE(systemCalls.lastDescriptor(), firstSocket);
    EXPECT_EQ(controller.udpListener()->port(), 3522U);
}

TEST_F(ControllerLifecycle, BroadcastUsesPort3520WhateverPortIsListenedOnOrUnitSelected) {
    launch();
    discover({SampleUnit()}); // its device port is 10000
    ASSERT_EQ(selectedUnit(), "01 02 03 04 05 06");
    window.udpPortPopUp.selectItemWithTitle("3523");
    controller.udpPortSelect();
    EXPECT_EQ(lastSent(), "255.255.255.255:3520 ^^IdX");
}

TEST_F(ControllerLifecycle, BroadcastIsAllowedBeforeItIsSent) {
    launch();
    std::vector<Operation> order;
    for (const auto& call : systemCalls.calls()) {
        if (call.operation == Operation::enableBroadcast || call.operation == Operation::sendTo) {
            EXPECT_EQ(call.descriptor, systemCalls.lastDescriptor());
            order.push_back(call.operation);
        }
    }
    EXPECT_EQ(order, (std::vector{Operation::enableBroadcast, Operation::sendTo}));
}

TEST_F(ControllerLifecycle, RefusedBroadcastIsLoggedAndNothingIsSent) {
    systemCalls.failNext(Operation::enableBroadcast, EPERM);
    launch();
    EXPECT_EQ(log(), (Lines{"[Begin Discover]", "UDP listener did start. 0.0.0.0:3520",
                            "Error setting SO_BROADCAST " + posixErrorText(EPERM)}));
    EXPECT_EQ(sent(), Lines{});
    EXPECT_EQ(controller.udpListener()->port(), 3520U);
}

TEST_F(ControllerLifecycle, PortThatIsTakenIsLogged) {
    systemCalls.failNext(Operation::bind, EADDRINUSE);
    launch();
    EXPECT_EQ(log(), (Lines{"[Begin Discover]", "UDP did stop with error.",
                            "  " + posixErrorText(EADDRINUSE)}));
    EXPECT_EQ(sent(), Lines{});
    ASSERT_NE(controller.udpListener(), nullptr);
    EXPECT_EQ(controller.udpListener()->port(), 0U);
}

TEST_F(ControllerLifecycle, DiscoverRecoversFromATakenPort) {
    systemCalls.failNext(Operation::bind, EADDRINUSE);
    launch();
    controller.discoverButton();
    EXPECT_EQ(log().at(1), "UDP listener did start. 0.0.0.0:3520");
}

TEST_F(ControllerLifecycle, ListenerOfAnotherFamilyHasNoAddressInTheLog) {
    launch();
    const auto length = controller.eventLog().size();
    controller.echoDidStartWithAddress(listener(), dataForAddress6({}, 3520));
    EXPECT_EQ(logSince(length), (Lines{"UDP listener did start. ",
                                       "Request unit parameters with address: 255.255.255.255",
                                       "UDP server did send data."}));
}

TEST_F(ControllerLifecycle, StartOfAnotherEndpointIsIgnored) {
    launch();
    const Lines before = log();
    const auto stranger = UDPEcho::make(runLoop, hostResolver, systemCalls);
    controller.echoDidStartWithAddress(*stranger, dataForAddress(0, 3520));
    EXPECT_EQ(log(), before);
    EXPECT_EQ(sent().size(), 1U);
}

TEST_F(ControllerLifecycle, SendOfAnotherEndpointIsNotLogged) {
    launch();
    const Lines before = log();
    const auto stranger = UDPEcho::make(runLoop, hostResolver, systemCalls);
    controller.echoDidSendDataToAddress(*stranger, {}, {});
    EXPECT_EQ(log(), before);
}

TEST_F(ControllerLifecycle, ErrorsOfEveryEndpointAreLogged) {
    launch();
    const auto length = controller.eventLog().size();
    const auto stranger = UDPEcho::make(runLoop, hostResolver, systemCalls);
    controller.echoDidReceiveError(*stranger, posixError(ECONNREFUSED));
    controller.echoDidFailToSendDataToAddressError(*stranger, {}, {}, posixError(ENETUNREACH));
    controller.echoDidStopWithError(*stranger, posixError(EACCES));
    EXPECT_EQ(logSince(length),
              (Lines{"UDP did receive error.", "  " + posixErrorText(ECONNREFUSED),
                     "UDP failed to send data.", "  " + posixErrorText(ENETUNREACH),
                     "UDP did stop with error.", "  " + posixErrorText(EACCES)}));
    EXPECT_EQ(controller.udpListener()->port(), 3520U);
}

TEST_F(ControllerLifecycle, FailedReadIsLoggedAndTheListenerGoesOn) {
    launch();
    const auto length = controller.eventLog().size();
    systemCalls.failNext(Operation::receiveFrom, ECONNREFUSED);
    runLoop.makeReadable(systemCalls.lastDescriptor());
    EXPECT_EQ(logSince(length),
              (Lines{"UDP did receive error.", "  " + posixErrorText(ECONNREFUSED)}));
    receive(SampleUnit().reply());
    EXPECT_EQ(controller.devices().records().size(), 1U);
}

TEST_F(ControllerLifecycle, EmptyDatagramIsLoggedAsAnError) {
    launch();
    const auto length = controller.eventLog().size();
    receive({});
    EXPECT_EQ(logSince(length), (Lines{"UDP did receive error.", "  " + posixErrorText(EPIPE)}));
}

TEST_F(ControllerLifecycle, FailedBroadcastIsLogged) {
    systemCalls.failNext(Operation::sendTo, ENETUNREACH);
    launch();
    EXPECT_EQ(log(), (Lines{"[Begin Discover]", "UDP listener did start. 0.0.0.0:3520",
                            "Request unit parameters with address: 255.255.255.255",
                            "UDP failed to send data.", "  " + posixErrorText(ENETUNREACH)}));
}

TEST_F(ControllerLifecycle, SendOfNoBytesCountsAsFailed) {
    systemCalls.giveNext(Operation::sendTo, 0);
    launch();
    EXPECT_EQ(log().back(), "  " + posixErrorText(EPIPE));
}

TEST_F(ControllerLifecycle, StoppedListenerStaysUntilTheNextRestart) {
    systemCalls.failNext(Operation::bind, EACCES);
    launch();
    controller.interfaceSelect();
    controller.reloadUnitParameterButton();
    runLoop.advanceBy(2000ms);
    EXPECT_EQ(controller.udpListener()->port(), 0U);
    EXPECT_EQ(systemCalls.count(Operation::socket), 1U);
}

TEST_F(ControllerLifecycle, SendingThroughAStoppedListenerIsAFailedSend) {
    systemCalls.failNext(Operation::bind, EADDRINUSE);
    launch();
    const auto length = controller.eventLog().size();
    controller.reloadUnitParameterButton();
    EXPECT_EQ(logSince(length),
              (Lines{"Request unit parameters with address: 255.255.255.255",
                     "UDP failed to send data.", "  The UDP listener is not running."}));
    EXPECT_EQ(sent(), Lines{});
}

TEST_F(ControllerLifecycle, ExceptionWhileTheListenerStartsGoesToTheSystemLog) {
    const BrokenText broken("\nRequest unit parameters with address: %@",
                            PlatformException("no such text"));
    launch();
    EXPECT_EQ(systemLog.lines(), Lines{"Exception during echo:didStartWithAddress: no such text"});
    EXPECT_EQ(log(), (Lines{"[Begin Discover]", "UDP listener did start. 0.0.0.0:3520"}));
    EXPECT_EQ(sent(), Lines{});
    EXPECT_EQ(controller.udpListener()->port(), 3520U);
}

TEST_F(ControllerLifecycle, TheStartStaysInTheLogWhenItsAddressCannotBeAppended) {
    const BrokenText broken("%@:%d", PlatformException("no such text"));
    launch();
    EXPECT_EQ(log(), (Lines{"[Begin Discover]", "UDP listener did start. "}));
    EXPECT_EQ(sent(), Lines{});
}

TEST_F(ControllerLifecycle, AReasonIsAppendedByItself) {
    launch();
    controller.logDrawerButton();
    window.eventLogDrawer.finishMoving();
    const int before = window.logTextView.insertCount();
    systemCalls.failNext(Operation::sendTo, ENETUNREACH);
    controller.reloadUnitParameterButton();
    EXPECT_EQ(window.logTextView.insertCount(), before + 3)
        << "the request, the failure, the reason";
}

TEST_F(ControllerLifecycle, OtherExceptionsArePassedOn) {
    const BrokenText broken("\nRequest unit parameters with address: %@",
                            std::logic_error("a mistake in the program"));
    EXPECT_THROW(launch(), std::logic_error);
    EXPECT_EQ(systemLog.lines(), Lines{});
}

TEST_F(ControllerLifecycle, ClosingTheWindowEndsTheApplication) {
    launch();
    controller.windowWillClose();
    EXPECT_EQ(application.terminateCount(), 1);
}

TEST_F(ControllerLifecycle, HelpOpensAtItsIndex) {
    controller.myHelp();
    EXPECT_EQ(helpAnchors, Lines{"index"});
    EXPECT_EQ(quietLine(), "");
}

TEST_F(ControllerLifecycle, HelpThatDoesNotOpenSaysHowToReadIt) {
    launch();
    helpOpens = false;
    controller.myHelp();
    EXPECT_EQ(quietLine(), "Help could not be opened in a web browser. To read it here, press "
                           "Alt+Shift+F1.");
    helpOpens = true;
    controller.myHelp();
    EXPECT_EQ(quietLine(), "");
}

// The viewer with the Alt key would not open either.
TEST_F(ControllerLifecycle, HelpThatIsNotThereIsNotAdvised) {
    launch();
    helpOpens = false;
    helpIsThere = false;
    controller.myHelp();
    EXPECT_EQ(quietLine(), "The pages of the help are not installed.");
    helpIsThere = true;
    controller.myHelp();
    EXPECT_NE(quietLine(), "The pages of the help are not installed.");
}

TEST_F(ControllerLifecycle, TerminationClosesTheSocketAndReleasesEverything) {
    launch();
    discover({SampleUnit()});
    const int socket = systemCalls.lastDescriptor();
    controller.applicationWillTerminate();
    EXPECT_EQ(controller.eventLog(), "");
    EXPECT_EQ(controller.udpListener(), nullptr);
    EXPECT_TRUE(controller.devices().records().empty());
    EXPECT_EQ(controller.selectedUnit(), std::nullopt);
    EXPECT_EQ(systemCalls.closeCount(socket), 1U);
    EXPECT_EQ(runLoop.watchCount(), 0U);
}

TEST_F(ControllerLifecycle, TerminationCancelsDelayedCalls) {
    launch();
    discover({SampleUnit()}); // otherwise a completion would have nothing to select
    controller.restoreDefaultSettings();
    controller.discoverButton();
    window.unitSelectPopUp.addItemsWithTitles({"01 02 03 04 05 06"});
    EXPECT_EQ(runLoop.pendingCallCount(), 3U); // one waits for answers to the restore
    controller.applicationWillTerminate();
    EXPECT_EQ(runLoop.pendingCallCount(), 0U);
    const int reloads = window.unitParameterTableView.reloadCount();
    runLoop.advanceBy(10s);
    EXPECT_EQ(controller.eventLog(), "");               // the reload would begin an entry
    EXPECT_EQ(controller.selectedUnit(), std::nullopt); // the completion would select a unit
    EXPECT_EQ(window.unitParameterTableView.reloadCount(), reloads);
}

TEST_F(ControllerLifecycle, EditTableStaysAnswerableAfterTheEnd) {
    launch();
    controller.applicationWillTerminate();
    window.editParameterTableView.typeIntoCell(0, "parameterValue", "late");
    window.editParameterTableView.reloadData();
    EXPECT_EQ(editRows(), Lines{" = "});
}

TEST_F(ControllerLifecycle, DestructionEndsEverythingThatWasStarted) {
    {
        KXConfigAppDelegate brief(window.outlets(), {runLoop, hostResolver, systemCalls, wallClock,
                                                     application, nullptr, nullptr});
        brief.applicationDidFinishLaunching();
        EXPECT_EQ(runLoop.pendingCallCount(), 1U);
    }
    EXPECT_EQ(runLoop.pendingCallCount(), 0U);
    EXPECT_EQ(runLoop.watchCount(), 0U);
    EXPECT_TRUE(systemCalls.openDescriptors().empty());
}

} // namespace kx
