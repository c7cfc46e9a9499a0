// The change of a unit's own IP address: the ARP entry first, then the command to the new address.

#include "ControllerFixture.h"

#include <algorithm>

namespace kx {

namespace {

const std::string refusedMessage =
    "Authentication was not completed, some features may not be available.";

class ControllerAddressChange : public ControllerTest {
protected:
    ControllerAddressChange() {
        launch();
        discover({SampleUnit()});
        logBefore = controller.eventLog().size();
        sentBefore = sent().size();
    }

    void changeAddress(const std::string& address) {
        fillEditRow("internal IP address", address);
        controller.applyEditParameterButton();
    }

    // A unit's reply waits at the listener's socket until the loop reads it.
    void reply(const SampleUnit& unit) {
        systemCalls.queueDatagram(unit.reply(), dataForAddress(ipForString("192.168.1.10"), 3520));
        runLoop.setReadable(systemCalls.lastDescriptor(), true);
    }

    // The authority is still at work for the controller when the application ends.
    void endWhileThePersonIsAsked() {
        authority.setMeanwhile([&] {
            controller.applicationWillTerminate();
            EXPECT_EQ(authority.referencesAlive(), 1);
        });
        changeAddress("10.0.0.7");
        EXPECT_EQ(newlySent(), Lines{});
        EXPECT_EQ(authority.referencesAlive(), 0);
    }

    Lines newLog() const { return logSince(logBefore); }

    Lines newlySent() const {
        const Lines all = sent();
        return {all.begin() + static_cast<std::ptrdiff_t>(sentBefore), all.end()};
    }

    std::size_t logBefore = 0;
    std::size_t sentBefore = 0;
};

using Arguments = std::vector<std::string>;

} // namespace

TEST_F(ControllerAddressChange, WritesTheARPEntryAndSendsToTheNewAddress) {
    changeAddress("10.0.0.7");
    ASSERT_EQ(authority.runs().size(), 1U);
    EXPECT_EQ(authority.runs()[0].toolPath, "/usr/sbin/arp");
    EXPECT_EQ(authority.runs()[0].arguments, (Arguments{"-s", "10.0.0.7", "00:1A:2B:3C:4D:5E"}));
    EXPECT_EQ(newlySent(), Lines{"10.0.0.7:10000 ^^IdI0A000007"});
    EXPECT_EQ(newLog(),
              (Lines{"Stuff ARP cache with MAC 00:1A:2B:3C:4D:5E for IP 10.0.0.7",
                     "Send to: 10.0.0.7 command: ^^IdI0A000007", "UDP server did send data."}));
    EXPECT_TRUE(window.alert.shown().empty());
}

TEST_F(ControllerAddressChange, TheEntryComesBeforeTheRecordsChangeAndBothBeforeTheSend) {
    Lines order;
    systemCalls.setObserver([&](const ScriptedSystemCalls::Call& call) {
        if (call.operation == Operation::sendTo) {
            order.push_back("send, runs: " + std::to_string(authority.runs().size()) + ", " +
                            value("01 02 03 04 05 06", UnitParameter::internalIPAddress));
        }
    });
    authority.answerDialogsWith(errAuthorizationDenied);
    window.alert.setMeanwhile([&] {
        order.push_back("alert, " + value("01 02 03 04 05 06", UnitParameter::internalIPAddress));
    });
    changeAddress("10.0.0.7");
    authority.answerDialogsWith(errAuthorizationSuccess);
    receive(SampleUnit().reply());
    changeAddress("10.0.0.7");
    EXPECT_EQ(order,
              (Lines{"alert, 192.168.1.10", "send, runs: 0, (absent)", "send, runs: 1, (absent)"}));
}

TEST_F(ControllerAddressChange, FurtherCommandsAreNotSentUntilTheUnitAnswers) {
    changeAddress("10.0.0.7");
    EXPECT_EQ(value("01 02 03 04 05 06", UnitParameter::internalIPAddress), "(absent)");
    controller.edit_destPort();
    EXPECT_EQ(newlySent().size(), 1U);
    controller.reloadUnitParameterButton();
    EXPECT_EQ(lastSent(), "255.255.255.255:10000 ^^IdX");

    SampleUnit moved;
    moved.internalIP = {10, 0, 0, 7};
    receive(moved.acknowledgement());
    EXPECT_EQ(lastSent(), "255.255.255.255:10000 ^^IdX");
    receive(moved.reply());
    controller.edit_destPort();
    EXPECT_EQ(lastSent(), "10.0.0.7:10000 ^^IdT0DC0");
}

TEST_F(ControllerAddressChange, ACommandThatCannotBeSentLeavesTheRecordWithoutTheAddress) {
    systemCalls.failNext(Operation::sendTo, EHOSTUNREACH);
    changeAddress("10.0.0.7");
    ASSERT_EQ(newLog().back(), "  " + posixErrorText(EHOSTUNREACH));
    EXPECT_EQ(value("01 02 03 04 05 06", UnitParameter::internalIPAddress), "(absent)");
    controller.edit_destPort();
    EXPECT_EQ(newlySent(), Lines{"10.0.0.7:10000 ^^IdI0A000007"}) << "it goes nowhere else";
}

TEST_F(ControllerAddressChange, AnEmptyValueAsksNobodyAndSendsNothing) {
    changeAddress("");
    EXPECT_EQ(newlySent(), Lines{});
    EXPECT_EQ(newLog(), Lines{});
    EXPECT_EQ(authority.referencesMade(), 0);
    EXPECT_EQ(value("01 02 03 04 05 06", UnitParameter::internalIPAddress), "192.168.1.10");
}

TEST_F(ControllerAddressChange, TextThatIsNoAddressIsHandedOnAsItIs) {
    const std::string overlong(10'000, '1');
    for (const std::string& typed :
         {std::string("unit.example"), std::string("-d; reboot"), std::string("%@%n"), overlong}) {
        changeAddress(typed);
        EXPECT_EQ(authority.runs().back().arguments, (Arguments{"-s", typed, "00:1A:2B:3C:4D:5E"}));
        EXPECT_EQ(lastSent(), "0.0.0.0:10000 ^^IdI00000000");
        EXPECT_NE(controller.eventLog().find("\nSend to: " + typed + " command: ^^IdI00000000"),
                  std::string::npos);
    }
}

TEST_F(ControllerAddressChange, TextBehindAnAddressGoesToTheToolAndNotIntoTheCommand) {
    changeAddress(" 10.0.0.7 and more");
    EXPECT_EQ(authority.runs().back().arguments.at(1), " 10.0.0.7 and more");
    EXPECT_EQ(newlySent(), Lines{"10.0.0.7:10000 ^^IdI0A000007"});
}

TEST_F(ControllerAddressChange, TextThatIsNotASCIIIsNotHandedToTheTool) {
    changeAddress("Zürich");
    EXPECT_TRUE(authority.runs().empty());
    EXPECT_EQ(systemLog.lines(), Lines{"Character conversion exception: Zürich"});
    EXPECT_EQ(newlySent(), Lines{"0.0.0.0:10000 ^^IdI00000000"});
    EXPECT_EQ(newLog().at(0), "Stuff ARP cache result: -1");
}

TEST_F(ControllerAddressChange, RefusedRightsAreAnAlertAndTheCommandIsStillSent) {
    for (const auto status : {errAuthorizationDenied, errAuthorizationCanceled}) {
        receive(SampleUnit().reply());
        authority.answerDialogsWith(status);
        logBefore = controller.eventLog().size();
        changeAddress("10.0.0.7");
        EXPECT_EQ(window.alert.shown().back(),
                  (RecordedAlert::Shown{"KXConfig", refusedMessage, "OK"}));
        EXPECT_EQ(lastSent(), "10.0.0.7:10000 ^^IdI0A000007");
        EXPECT_EQ(newLog(),
                  (Lines{"Send to: 10.0.0.7 command: ^^IdI0A000007", "UDP server did send data."}));
    }
    EXPECT_TRUE(authority.runs().empty());
    EXPECT_EQ(window.alert.shown().size(), 2U);
}

TEST_F(ControllerAddressChange, WithoutAnAuthorityThereIsTheAlertToo) {
    authority.beAbsent();
    changeAddress("10.0.0.7");
    EXPECT_EQ(window.alert.shown().size(), 1U);
    EXPECT_EQ(newlySent().size(), 1U);

    RecordedMainWindow other;
    KXConfigAppDelegate hostWithoutRights(
        other.outlets(), {runLoop, hostResolver, systemCalls, wallClock, application, nullptr});
    EXPECT_EQ(hostWithoutRights.arpSetEAForIP("00:1A:2B:3C:4D:5E", "10.0.0.7"), -1);
    EXPECT_EQ(other.alert.shown(),
              std::vector{(RecordedAlert::Shown{"KXConfig", refusedMessage, "OK"})});
    EXPECT_EQ(hostWithoutRights.eventLog(), "");
}

TEST_F(ControllerAddressChange, AToolThatDoesNotStartIsLoggedWithItsResult) {
    authority.startToolsWith(errAuthorizationToolExecuteFailure);
    changeAddress("10.0.0.7");
    EXPECT_EQ(newLog().at(0), "Stuff ARP cache result: -60031");
    EXPECT_EQ(newlySent(), Lines{"10.0.0.7:10000 ^^IdI0A000007"});
    EXPECT_TRUE(window.alert.shown().empty());
}

TEST_F(ControllerAddressChange, HowTheToolEndsIsNotLogged) {
    changeAddress("10.0.0.7");
    const auto log = controller.eventLog();
    authority.endTools(1);
    EXPECT_EQ(controller.eventLog(), log);
}

TEST_F(ControllerAddressChange, ARightIsAskedForOnceAndKeptUntilTheEnd) {
    changeAddress("10.0.0.7");
    changeAddress("10.0.0.8");
    EXPECT_EQ(authority.dialogs(), 1);
    EXPECT_EQ(authority.referencesMade(), 1);
    EXPECT_EQ(authority.requests().size(), 2U);
    EXPECT_EQ(authority.runs().size(), 2U);
    EXPECT_EQ(authority.referencesAlive(), 1);
    controller.applicationWillTerminate();
    EXPECT_EQ(authority.referencesAlive(), 0);
}

TEST_F(ControllerAddressChange, ARefusedRightIsAskedForAgainUnderTheSameReference) {
    authority.answerDialogsWith(errAuthorizationCanceled);
    changeAddress("10.0.0.7");
    authority.answerDialogsWith(errAuthorizationSuccess);
    changeAddress("10.0.0.7");
    EXPECT_EQ(authority.dialogs(), 2);
    EXPECT_EQ(authority.referencesMade(), 1);
    EXPECT_EQ(authority.runs().size(), 1U);
}

TEST_F(ControllerAddressChange, NoRightIsAskedForByOtherEdits) {
    fillEditRow("destination IP address", "10.0.0.7");
    controller.applyEditParameterButton();
    EXPECT_EQ(authority.referencesMade(), 0);
}

TEST_F(ControllerAddressChange, AUnitWithoutAMACAddressLeavesItOut) {
    SampleUnit unit;
    receive(joined({unit.header(), item("<M>", unit.internalMAC), item("<S>", unit.serial)}));
    EXPECT_EQ(controller.arpSetEAForIP(std::nullopt, "10.0.0.7"), 0);
    EXPECT_EQ(authority.runs().back().arguments, (Arguments{"-s", "10.0.0.7"}));
    EXPECT_EQ(log().back(), "Stuff ARP cache with MAC (null) for IP 10.0.0.7");
    EXPECT_EQ(controller.arpSetEAForIP("00:1A:2B:3C:4D:5E", std::nullopt), 0);
    EXPECT_EQ(authority.runs().back().arguments, Arguments{"-s"});
    EXPECT_EQ(log().back(), "Stuff ARP cache with MAC 00:1A:2B:3C:4D:5E for IP (null)");
}

// The command goes to the typed address, so it needs no unit.
TEST_F(ControllerAddressChange, WithoutASelectedUnitTheCommandIsStillSentToTheTypedAddress) {
    controller.discoverButton();
    controller.unitSelectPopUp(); // the pop-up is empty
    ASSERT_EQ(selectedUnit(), "(none)");
    changeAddress("10.0.0.7");
    EXPECT_EQ(authority.runs().back().arguments, (Arguments{"-s", "10.0.0.7"}));
    EXPECT_EQ(lastSent(), "10.0.0.7:3520 ^^IdI0A000007");
    EXPECT_EQ(value("01 02 03 04 05 06", UnitParameter::internalIPAddress), "192.168.1.10");
}

TEST_F(ControllerAddressChange, NothingIsHandledWhileThePersonIsAskedOrToldAndNothingIsLost) {
    const auto somethingComes = [this] {
        const auto log = controller.eventLog();
        reply(SampleUnit());
        runLoop.runOneTurn();
        EXPECT_EQ(controller.eventLog(), log);
        EXPECT_EQ(value("01 02 03 04 05 06", UnitParameter::internalIPAddress), "192.168.1.10");
    };
    authority.setMeanwhile(somethingComes);
    authority.answerDialogsWith(errAuthorizationDenied);
    window.alert.setMeanwhile(somethingComes);
    changeAddress("10.0.0.7");
    EXPECT_EQ(authority.dialogs(), 1);
    EXPECT_EQ(window.alert.shown().size(), 1U);
    EXPECT_EQ(newLog(),
              (Lines{"Send to: 10.0.0.7 command: ^^IdI0A000007", "UDP server did send data."}));
    EXPECT_EQ(value("01 02 03 04 05 06", UnitParameter::internalIPAddress), "(absent)");

    logBefore = controller.eventLog().size();
    runLoop.runOneTurn();
    runLoop.runOneTurn();
    EXPECT_EQ(std::ranges::count(newLog(), "UDP listener did receive data. Length: 81"), 2);
    EXPECT_EQ(value("01 02 03 04 05 06", UnitParameter::internalIPAddress), "192.168.1.10");
}

TEST_F(ControllerAddressChange, ADiscoveryThatIsOverWhileThePersonIsToldIsCompletedAfterwards) {
    SampleUnit second = secondSampleUnit();
    second.devicePort = {0x27, 0x11};
    controller.discoverButton();
    receive(second.reply());
    authority.answerDialogsWith(errAuthorizationDenied);
    window.alert.setMeanwhile([&] {
        runLoop.advanceBy(5000ms);
        EXPECT_EQ(window.unitSelectPopUp.titles(), Titles{});
    });
    changeAddress("10.0.0.7");
    EXPECT_EQ(window.unitSelectPopUp.titles(), Titles{});
    EXPECT_EQ(lastSent(), "10.0.0.7:10000 ^^IdI0A000007");

    runLoop.runOneTurn();
    EXPECT_EQ(window.unitSelectPopUp.titles(), (Titles{"01 02 03 04 05 06", "01 02 03 04 05 07"}));
    EXPECT_EQ(selectedUnit(), "01 02 03 04 05 06");
    EXPECT_EQ(value("01 02 03 04 05 06", UnitParameter::internalIPAddress), "(absent)");
}

TEST_F(ControllerAddressChange, TheEndOfTheApplicationWhileThePersonIsToldIsSafe) {
    authority.answerDialogsWith(errAuthorizationDenied);
    window.alert.setMeanwhile([&] { controller.applicationWillTerminate(); });
    changeAddress("10.0.0.7");
    EXPECT_EQ(newlySent(), Lines{});
    EXPECT_EQ(controller.udpListener(), nullptr);
}

TEST_F(ControllerAddressChange, ThePersonWhoIsAskedIsShownWhatTheToolGets) {
    changeAddress("10.0.0.7");
    ASSERT_EQ(authority.requests().size(), 1U);
    EXPECT_EQ(authority.requests()[0].right.arguments,
              (Arguments{"-s", "10.0.0.7", "00:1A:2B:3C:4D:5E"}));
    EXPECT_EQ(authority.requests()[0].right.arguments, authority.runs().at(0).arguments);
}

TEST_F(ControllerAddressChange, TheSentenceOfTheToolStandsInTheQuietLineAndNotInTheLog) {
    changeAddress("192.0.2.010");
    const auto log = controller.eventLog();
    authority.endTools(65, "An address is four decimal numbers without leading zeros, as in "
                           "192.0.2.7.");
    EXPECT_TRUE(quietLine().ends_with("No ARP entry was made for 192.0.2.010: An address is four "
                                      "decimal numbers without leading zeros, as in 192.0.2.7."))
        << quietLine();
    EXPECT_EQ(controller.eventLog(), log);
}

TEST_F(ControllerAddressChange, ARunThatTheAuthorityObjectsToIsToldBeforehandAndAfterwards) {
    authority.objectWith([](const ScriptedAuthorizationService::Run& run) {
        EXPECT_EQ(run.toolPath, "/usr/sbin/arp");
        EXPECT_EQ(run.arguments.at(0), "-s");
        EXPECT_EQ(run.arguments.at(2), "00:1A:2B:3C:4D:5E");
        return run.arguments.at(1) == "-d" ? std::optional<std::string>("Not this text.")
                                           : std::nullopt;
    });
    fillEditRow("internal IP address", "10.0.0.7");
    EXPECT_TRUE(quietLine().starts_with("Apply enters 10.0.0.7 at 00:1A:2B:3C:4D:5E"));
    controller.editTextDidChange("-d");
    EXPECT_EQ(quietLine(),
              "Apply asks for administrator rights, but no ARP entry will be made for "
              "“-d”: Not this text. Apply sends ^^IdI00000000 to 0.0.0.0, because “-d” "
              "is not an IPv4 address.");
    authority.startToolsWith(errAuthorizationDenied);
    changeAddress("-d");
    EXPECT_TRUE(quietLine().ends_with("No ARP entry was made for -d: Not this text."))
        << quietLine();
    EXPECT_EQ(newLog().at(0), "Stuff ARP cache result: -60005");
}

TEST_F(ControllerAddressChange, TheEndOfTheApplicationWhileThePersonIsAskedIsSafe) {
    authority.answerDialogsWith(errAuthorizationCanceled);
    endWhileThePersonIsAsked();
    EXPECT_TRUE(window.alert.shown().empty());
}

TEST_F(ControllerAddressChange, RightsThatComeWithTheEndOfTheApplicationAreNotUsed) {
    endWhileThePersonIsAsked();
    EXPECT_TRUE(authority.runs().empty());
}

} // namespace kx
