#include "words/RequestOutcomeText.h"

#include <gtest/gtest.h>

namespace kx {

namespace {

const std::string answeringUnit = "01 02 03 04 05 06";
const std::string secondUnit = "01 02 03 04 05 07";
constexpr std::uint32_t unitAddress = 0xC0A8010AU;

RequestOutcome requestToUnit(RequestKind kind, const std::string& command) {
    return {kind, command, {.reach = RequestReach::oneUnit, .address = unitAddress}, answeringUnit};
}

RequestOutcome requestToAll(RequestKind kind, const std::string& command) {
    return {kind, command, {.reach = RequestReach::everybodyWithoutUnit}, std::nullopt};
}

} // namespace

TEST(RequestOutcomeText, SaysWhatWasSentToOneUnitAndWhetherItAnswered) {
    RequestOutcome outcome = requestToUnit(RequestKind::restore, "^^IdZ");
    const std::string sent = "Sent ^^IdZ to the unit at 192.168.1.10. ";
    EXPECT_EQ(textOfRequestOutcome(outcome), sent + "The unit has not answered yet.");
    EXPECT_FALSE(meansTrouble(outcome));
    outcome.patienceDidEnd();
    EXPECT_EQ(textOfRequestOutcome(outcome), sent + "The unit has not answered.");
    EXPECT_TRUE(meansTrouble(outcome));
    outcome.unitDidAccept(answeringUnit, unitAddress);
    EXPECT_EQ(textOfRequestOutcome(outcome), sent + "The unit accepted a command.");
    EXPECT_FALSE(meansTrouble(outcome));
}

TEST(RequestOutcomeText, CountsTheUnitsThatAcceptedARestoreOfAll) {
    RequestOutcome outcome = requestToAll(RequestKind::restore, "^^IdZ");
    const std::string sent = "Sent ^^IdZ to every unit that hears it. ";
    EXPECT_EQ(textOfRequestOutcome(outcome), sent + "No unit has answered yet.");
    outcome.patienceDidEnd();
    EXPECT_EQ(textOfRequestOutcome(outcome), sent + "No unit has answered.");
    outcome.unitDidAccept("1", unitAddress);
    EXPECT_EQ(textOfRequestOutcome(outcome), sent + "Accepted by 1 unit.");
    outcome.unitDidAccept("2", unitAddress);
    outcome.unitDidAccept("3", unitAddress);
    EXPECT_EQ(textOfRequestOutcome(outcome), sent + "Accepted by 3 units.");
    for (std::size_t unit = 0; unit < RequestOutcome::mostUnits; ++unit) {
        outcome.unitDidAccept(std::to_string(unit), unitAddress);
    }
    EXPECT_EQ(textOfRequestOutcome(outcome), sent + "Accepted by 100000 units or more.");
}

TEST(RequestOutcomeText, ReloadSaysWhomItAskedAndWhoAnswered) {
    RequestOutcome one = requestToUnit(RequestKind::reload, "^^IdX");
    const std::string asked = "Asked the unit at 192.168.1.10 for its parameters. ";
    EXPECT_EQ(textOfRequestOutcome(one), asked + "The unit has not answered yet.");
    one.unitDidTell(answeringUnit, unitAddress);
    EXPECT_EQ(textOfRequestOutcome(one), asked + "The unit has told them.");

    RequestOutcome all = requestToAll(RequestKind::reload, "^^IdX");
    all.unitDidTell(answeringUnit, unitAddress);
    EXPECT_EQ(textOfRequestOutcome(all),
              "Asked every unit that hears it for its parameters. 1 unit has answered.");
    all.unitDidTell(secondUnit, unitAddress);
    EXPECT_EQ(textOfRequestOutcome(all),
              "Asked every unit that hears it for its parameters. 2 units have answered.");
}

TEST(RequestOutcomeText, SendShowsTheAnswerOfTheUnit) {
    RequestOutcome outcome = requestToUnit(RequestKind::optionCommand, "^^IdV\r");
    const std::string sent = "Sent ^^IdV to the unit at 192.168.1.10. ";
    EXPECT_EQ(textOfRequestOutcome(outcome), sent + "The unit has not answered yet.");
    outcome.unitDidAccept(answeringUnit, unitAddress);
    EXPECT_EQ(textOfRequestOutcome(outcome), sent + "The unit accepted a command.");
    outcome.unitDidAnswer(answeringUnit, unitAddress, "V1.2\x1B[31m");
    EXPECT_EQ(textOfRequestOutcome(outcome), sent + "The unit answered “V1.2\uFFFD[31m”.");
}

TEST(RequestOutcomeText, NamesAnotherUnitThatAnswersInThePlaceOfTheOneThatWasMeant) {
    RequestOutcome outcome = requestToUnit(RequestKind::optionCommand, "^^IdV\r");
    outcome.unitDidAccept(secondUnit, unitAddress);
    const std::string sent = "Sent ^^IdV to the unit at 192.168.1.10. ";
    EXPECT_EQ(textOfRequestOutcome(outcome),
              sent + "Another unit at this address, 01 02 03 04 05 07, answered.");
    outcome.unitDidAnswer(secondUnit, unitAddress, "V9");
    EXPECT_EQ(textOfRequestOutcome(outcome),
              sent + "Another unit at this address, 01 02 03 04 05 07, answered “V9”.");
    EXPECT_TRUE(meansTrouble(outcome));
}

TEST(RequestOutcomeText, AnAnswerIsShownWithoutItsMarkerAndItsLineEnd) {
    EXPECT_EQ(textOfAnswer("$V1.2\r\n"), "V1.2");
    EXPECT_EQ(textOfAnswer(std::string_view("$V1 2 \0\0", 8)), "V1 2");
    EXPECT_EQ(textOfAnswer("$"), "");
    EXPECT_EQ(textOfAnswer(""), "");
}

} // namespace kx
