#include "words/EditOutcomeText.h"

#include "core/conversation/EditOutcomes.h"
#include "doubles/MarkedLocalizedText.h"
#include "support/AuthorizationService.h"
#include "words/QuotedText.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <utility>

namespace kx {

namespace {

using enum UnitParameter;

// The text after the unit has shown `value`.
std::string textAfterReply(UnitParameter parameter, const std::string& typed,
                           const std::string& before, std::string_view value) {
    EditOutcome outcome = outcomeOf(parameter, typed, before);
    outcome.unitDidTell(editedUnit, recordWith(parameter, value));
    return textOfEditOutcome(outcome);
}

std::string textAfterAcceptance(UnitParameter parameter, const std::string& typed,
                                const std::string& before) {
    EditOutcome outcome = outcomeOf(parameter, typed, before);
    outcome.unitDidAccept(editedUnit, {});
    return textOfEditOutcome(outcome);
}

std::string textWithARPEntry(const std::string& typed, ARPEntry entry) {
    EditOutcome outcome = outcomeOf(internalIPAddress, typed, "192.168.1.10");
    outcome.setARPEntry(std::move(entry));
    return textOfEditOutcome(outcome);
}

} // namespace

TEST(EditOutcomeText, SaysWhatWasSent) {
    EXPECT_EQ(textOfEditOutcome(outcomeOf(destinationPortNumber, "3523", "3520")),
              "Sent ^^IdT0DC3. The unit has not answered yet.");
}

// The text names no command, because an acknowledgement names none.
TEST(EditOutcomeText, SaysThatACommandWasAccepted) {
    EXPECT_EQ(textAfterAcceptance(destinationPortNumber, "3523", "3520"),
              "The unit accepted a command and was asked for its parameters.");
}

TEST(EditOutcomeText, SaysThatTheUnitCouldNotBeAskedAndEndsWithAFullStop) {
    const auto text = [](const SendFailure& failure) {
        EditOutcome outcome = outcomeOf(unitID, "7", "42");
        outcome.unitDidAccept(editedUnit, failure);
        return textOfEditOutcome(outcome);
    };
    EXPECT_EQ(text({posixError(ENETUNREACH)}),
              "The unit accepted a command. It could not be asked for its parameters: Network is "
              "unreachable.");
    EXPECT_EQ(text({}), "The unit accepted a command. It could not be asked for its parameters: "
                        "The UDP listener is not running.");
}

TEST(EditOutcomeText, AUnitWhosePortMayHaveChangedIsFoundByDiscover) {
    EXPECT_EQ(textAfterAcceptance(devicePortNumber, "10001", "10000"),
              "The unit accepted a command and was asked for its parameters. If its port has "
              "changed, Discover finds it.");
    EXPECT_EQ(textAfterAcceptance(devicePortNumber, "10000", "10000"),
              "The unit accepted a command and was asked for its parameters.");
}

TEST(EditOutcomeText, SaysWhatTheUnitShows) {
    EXPECT_EQ(textAfterReply(destinationPortNumber, "3523", "3520", "3523"),
              "The unit now shows 3523 as its destination Port number (was 3520).");
    EXPECT_EQ(textAfterReply(destinationPortNumber, "3523", "3523", "3523"),
              "The unit now shows 3523 as its destination Port number.");
    EXPECT_EQ(textAfterReply(destinationPortNumber, "3523", "", "3523"),
              "The unit now shows 3523 as its destination Port number.");
    EXPECT_EQ(textAfterReply(devicePortNumber, "10001", "10000", "10000"),
              "The unit still shows 10000 as its device Port number.");
    EXPECT_EQ(textAfterReply(devicePortNumber, "70000", "10000", "4464"),
              "The unit now shows 4464 as its device Port number, which is not what was sent.");
    EXPECT_EQ(textAfterReply(unitID, "AB", "42", std::string_view("AB\0\0\0\0", 6)),
              "The unit now shows AB as its unit ID (was 42).");
    EditOutcome outcome = outcomeOf(unitID, "7", "42");
    outcome.unitDidTell(editedUnit, UnitRecord());
    EXPECT_EQ(textOfEditOutcome(outcome), "The unit's parameters hold no unit ID.");
}

TEST(EditOutcomeText, AUnitWithANewSerialNumberIsListedUnderIt) {
    EditOutcome outcome = outcomeOf(serialNumber, "0a0b0c0d0e0f", editedUnit);
    outcome.unitDidTell("0A 0B 0C 0D 0E 0F", recordWith(serialNumber, "0A 0B 0C 0D 0E 0F"));
    EXPECT_EQ(textOfEditOutcome(outcome), "The unit now shows 0A 0B 0C 0D 0E 0F as its serial "
                                          "number (was 01 02 03 04 05 06). Discover lists it under "
                                          "that.");
    EXPECT_EQ(textAfterReply(serialNumber, editedUnit, editedUnit, editedUnit),
              "The unit now shows 01 02 03 04 05 06 as its serial number.");
}

TEST(EditOutcomeText, AFailedSendSaysWhy) {
    const EditOutcome refused(editOf(unitID, "7"), {}, SendFailure{posixError(ENETUNREACH)});
    EXPECT_EQ(textOfEditOutcome(refused), "Not sent: Network is unreachable.");
    const EditOutcome stopped(editOf(unitID, "7"), {}, SendFailure{});
    EXPECT_EQ(textOfEditOutcome(stopped), "Not sent: The UDP listener is not running.");
}

TEST(EditOutcomeText, SaysWhyThereIsNoARPEntry) {
    const std::string sent = "Sent ^^IdI0A000007. The unit has not answered yet.";
    const std::string none = sent + " No ARP entry was made for 10.0.0.7: ";
    const auto text = [](ARPEntryState state, std::int32_t code = 0) {
        return textWithARPEntry("10.0.0.7", {state, code});
    };
    EXPECT_EQ(text(ARPEntryState::started), sent);
    EXPECT_EQ(text(ARPEntryState::rightsNotGiven), none + "administrator rights were not given.");
    EXPECT_EQ(text(ARPEntryState::cannotRun), none + "the ARP tool cannot be run.");
    EXPECT_EQ(text(ARPEntryState::refused), none + "running the ARP tool was refused.");
    EXPECT_EQ(text(ARPEntryState::dismissed),
              none + "the question for administrator rights was dismissed.");
    EXPECT_EQ(text(ARPEntryState::notStarted, -60002),
              none + "the ARP tool was not started (-60002).");
    EXPECT_EQ(text(ARPEntryState::ended, 255), none + "the ARP tool ended with status 255.");
    EXPECT_EQ(text(ARPEntryState::onAnotherLink),
              sent +
                  " The ARP entry for 10.0.0.7 is not on the interface by which the command left, "
                  "so the unit may not have heard it.");
    EXPECT_EQ(textWithARPEntry("10.0.0.7ü", {ARPEntryState::notASCII}),
              sent + " No ARP entry was made for 10.0.0.7ü: it can hold ASCII characters only.");
}

TEST(EditOutcomeText, SaysInWordsOfTheToolWhyThereIsNoARPEntry) {
    const auto text = [](const std::string& said) {
        return textWithARPEntry("10.0.0.7", arpEntryForEndOfTool(255, said));
    };
    const std::string none =
        "Sent ^^IdI0A000007. The unit has not answered yet. No ARP entry was made for 10.0.0.7: ";
    EXPECT_EQ(text("SIOCSARP: Network is unreachable"), none + "SIOCSARP: Network is unreachable.");
    EXPECT_EQ(text("The ARP tool cannot be run."), none + "The ARP tool cannot be run.");
    EXPECT_EQ(text("\x1B[31mred"), none + safeForSentence("\x1B[31mred") + ".");
    EXPECT_EQ(text(std::string(300, 'x')), none + std::string(200, 'x') + "….");
    EXPECT_EQ(textWithARPEntry("10.0.0.7", arpEntryForEndOfTool(0, "a warning")),
              "Sent ^^IdI0A000007. The unit has not answered yet.");
    EXPECT_EQ(textWithARPEntry("10.0.0.7", arpEntryForResult(errAuthorizationDenied, "Not this.")),
              none + "Not this.");
}

TEST(EditOutcomeText, WhyThereIsNoARPEntryStandsBehindWhatTheUnitShows) {
    EditOutcome outcome = outcomeOf(internalIPAddress, "10.0.0.7", "192.168.1.10");
    outcome.setARPEntry({ARPEntryState::ended, 255});
    outcome.unitDidTell(editedUnit, recordWith(internalIPAddress, "10.0.0.7"));
    EXPECT_EQ(textOfEditOutcome(outcome),
              "The unit now shows 10.0.0.7 as its internal IP address (was 192.168.1.10). No ARP "
              "entry was made for 10.0.0.7: the ARP tool ended with status 255.");
}

TEST(EditOutcomeText, EverySentenceIsLookedUpAsAWhole) {
    const MarkedLocalizedText marked;
    EXPECT_EQ(textWithARPEntry("10.0.0.7", {ARPEntryState::rightsNotGiven}),
              "<Sent ^^IdI0A000007. The unit has not answered yet.> <No ARP entry was made for "
              "10.0.0.7: administrator rights were not given.>");
}

TEST(EditOutcomeText, NamesTheParameterAsPeopleSeeIt) {
    const MarkedLocalizedText marked;
    EXPECT_EQ(textAfterReply(destinationPortNumber, "3523", "3520", "3523"),
              "<The unit now shows 3523 as its <destination Port number> (was 3520).>");
}

TEST(EditOutcomeText, AnEntryThatWasNotMadeHasASentenceForEveryReason) {
    for (const auto state :
         {ARPEntryState::rightsNotGiven, ARPEntryState::refused, ARPEntryState::dismissed,
          ARPEntryState::cannotRun, ARPEntryState::notASCII, ARPEntryState::notStarted,
          ARPEntryState::ended}) {
        const std::string text = textOfARPEntry("192.0.2.41", {.state = state, .code = 7});
        EXPECT_TRUE(text.starts_with("No ARP entry was made for 192.0.2.41: ")) << text;
    }
    EXPECT_EQ(textOfARPEntry("192.0.2.41", {.state = ARPEntryState::started}), "");
}

TEST(EditOutcomeText, AfterTimeForAnAnswerTheYetGoes) {
    EditOutcome outcome = outcomeOf(unitID, "7", "42");
    EXPECT_FALSE(meansTrouble(outcome));
    EXPECT_TRUE(outcome.patienceDidEnd());
    EXPECT_EQ(textOfEditOutcome(outcome), "Sent ^^IdU000000000007. The unit has not answered.");
    EXPECT_TRUE(meansTrouble(outcome));
    EXPECT_TRUE(outcome.patienceDidBegin());
    EXPECT_EQ(textOfEditOutcome(outcome), "Sent ^^IdU000000000007. The unit has not answered yet.");
    outcome.unitDidAccept(editedUnit, {});
    EXPECT_FALSE(outcome.patienceDidEnd());
    EXPECT_FALSE(meansTrouble(outcome));
}

TEST(EditOutcomeText, SaysWhichOtherUnitTookAnEdit) {
    const std::string other = "01 02 03 04 05 07";
    EditOutcome outcome(editOf(unitID, "7"),
                        {.serialNumber = editedUnit, .valueBefore = "42", .address = 0xC000020B});
    ASSERT_TRUE(outcome.otherUnitDidAccept(other, 0xC000020B));
    EXPECT_EQ(textOfEditOutcome(outcome), "Sent ^^IdU000000000007. Another unit, " + other +
                                              ", accepted a command: both have the address "
                                              "192.0.2.11.");
    EXPECT_TRUE(meansTrouble(outcome));
    outcome.unitDidTell(editedUnit, recordWith(unitID, "42"));
    EXPECT_EQ(textOfEditOutcome(outcome), "The unit still shows 42 as its unit ID. Another unit, " +
                                              other +
                                              ", accepted a command: both have the address "
                                              "192.0.2.11.");
    EditOutcome move(editOf(internalIPAddress, "192.0.2.11"),
                     {.serialNumber = editedUnit, .address = 0xC000020B});
    ASSERT_TRUE(move.otherUnitDidAccept(other, 0xC000020B));
    EXPECT_EQ(textOfEditOutcome(move), "Sent ^^IdIC000020B. Another unit, " + other +
                                           ", accepted a command: it has the address 192.0.2.11 "
                                           "already.");
}

} // namespace kx
