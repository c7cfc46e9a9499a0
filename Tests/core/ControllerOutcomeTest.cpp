// The outcome of an edit, when other edits, other units and failures come in between.

#include "ControllerFixture.h"

namespace kx {

namespace {

using enum UnitParameter;

const std::string noEntry = " No ARP entry was made for 10.0.0.7: ";
const std::string unreachable = posixErrorText(ENETUNREACH);

class ControllerOutcome : public ControllerTest {
protected:
    ControllerOutcome() {
        launch();
        discoverTwo();
    }

    void refuseRights() {
        authority.revokeRights();
        authority.answerDialogsWith(errAuthorizationDenied);
    }

    // Applies the same new address once more, while the record has none.
    void applyAgain() {
        fillEditRow("internal IP address", "10.0.0.7");
        controller.applyEditParameterButton();
    }
};

} // namespace

TEST_F(ControllerOutcome, AnotherUnitThatHasTheNewSerialNumberDoesNotConfirmIt) {
    apply(serialNumber, "010203040507");
    ASSERT_EQ(lastSent(), "192.168.1.10:10000 ^^IdS010203040507"); // and is lost
    const std::string pending = "Sent ^^IdS010203040507. The unit has not answered yet.";
    receive(secondSampleUnit().acknowledgement());
    receive(secondSampleUnit().reply());
    EXPECT_EQ(quietLine(), pending);
    discover({SampleUnit(), secondSampleUnit()});
    EXPECT_EQ(quietLine(), "The unit still shows 01 02 03 04 05 06 as its serial number.");
}

TEST_F(ControllerOutcome, ACommandThatTheNetworkRefusedIsNotAcceptedByTheOkOfAnEarlierOne) {
    apply(destinationPortNumber, "3523");
    systemCalls.failNext(Operation::sendTo, ENETUNREACH);
    apply(unitID, "7");
    receive(SampleUnit().acknowledgement()); // of the first
    EXPECT_EQ(quietLine(), "Not sent: " + unreachable + ".");
    receive(SampleUnit().reply());
    EXPECT_EQ(quietLine(), "Not sent: " + unreachable + ".");
}

// It may be that of an earlier command: it names none.
TEST_F(ControllerOutcome, AnOkSaysThatACommandWasAccepted) {
    apply(destinationPortNumber, "3523");
    apply(unitID, "7");
    receive(SampleUnit().acknowledgement());
    EXPECT_EQ(quietLine(), "The unit accepted a command and was asked for its parameters.");
}

TEST_F(ControllerOutcome, AUnitThatCouldNotBeAskedIsNotSaidToHaveBeen) {
    apply(unitID, "7");
    systemCalls.failNext(Operation::sendTo, ENETUNREACH);
    receive(SampleUnit().acknowledgement());
    EXPECT_EQ(quietLine(), "The unit accepted a command. It could not be asked for its "
                           "parameters: " +
                               unreachable + ".");
}

TEST_F(ControllerOutcome, ASecondMoveDoesNotMakeTheOldAddressANewOne) {
    refuseRights();
    apply(internalIPAddress, "10.0.0.7");
    applyAgain();
    ASSERT_EQ(window.alert.shown().size(), 2U);
    receive(SampleUnit().reply());
    EXPECT_EQ(quietLine(), "The unit still shows 192.168.1.10 as its internal IP address." +
                               noEntry + "administrator rights were not given.");
}

TEST_F(ControllerOutcome, TheFailureOfAnEarlierToolDoesNotStayWhenTheLaterOneWentWell) {
    apply(internalIPAddress, "10.0.0.7");
    authority.endTools(1);
    EXPECT_TRUE(quietLine().ends_with(noEntry + "the ARP tool ended with status 1."));
    applyAgain();
    authority.endTools(0);
    EXPECT_EQ(quietLine(), "Sent ^^IdI0A000007. The unit has not answered yet.");
}

TEST_F(ControllerOutcome, AToolThatEndsLateDoesNotSpeakForTheOneThatWasStartedAfterIt) {
    const std::string pending = "Sent ^^IdI0A000007. The unit has not answered yet.";
    apply(internalIPAddress, "10.0.0.7");
    applyAgain();
    ASSERT_EQ(authority.runs().size(), 2U);
    authority.endOldestTool(1);
    EXPECT_EQ(quietLine(), pending);
    authority.endOldestTool(0);
    EXPECT_EQ(quietLine(), pending);

    applyAgain();
    applyAgain();
    authority.endOldestTool(0);
    authority.endOldestTool(2);
    EXPECT_EQ(quietLine(), pending + noEntry + "the ARP tool ended with status 2.");
}

TEST_F(ControllerOutcome, AToolThatEndsWellDoesNotSpeakForALaterOneThatWasNotStarted) {
    const std::string pending = "Sent ^^IdI0A000007. The unit has not answered yet." + noEntry;
    apply(internalIPAddress, "10.0.0.7");
    refuseRights();
    applyAgain();
    EXPECT_EQ(quietLine(), pending + "administrator rights were not given.");
    authority.endTools(0);
    EXPECT_EQ(quietLine(), pending + "administrator rights were not given.");

    authority.answerDialogsWith(errAuthorizationSuccess);
    applyAgain();
    authority.startToolsWith(errAuthorizationToolExecuteFailure);
    applyAgain();
    authority.endTools(0);
    EXPECT_EQ(quietLine(), pending + "the ARP tool cannot be run.");
}

TEST_F(ControllerOutcome, OfAnotherParameterHasNoARPEntry) {
    apply(internalIPAddress, "10.0.0.7");
    receive(SampleUnit().reply());
    apply(unitID, "7");
    authority.endTools(1);
    EXPECT_EQ(quietLine(), "Sent ^^IdU000000000007. The unit has not answered yet.");
}

} // namespace kx
