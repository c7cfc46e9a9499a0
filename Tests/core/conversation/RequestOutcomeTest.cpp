#include "conversation/RequestOutcome.h"

#include <gtest/gtest.h>

namespace kx {

namespace {

const std::string askedUnit = "01 02 03 04 05 06";
const std::string otherUnit = "01 02 03 04 05 07";
constexpr std::uint32_t askedAddress = 0xC0A8010AU;
constexpr std::uint32_t elsewhere = 0xC0A8010BU;

RequestOutcome toUnit(RequestKind kind) {
    return {kind, "^^IdV\r", {.reach = RequestReach::oneUnit, .address = askedAddress}, askedUnit};
}

RequestOutcome toAll(RequestKind kind) {
    return {kind, "^^IdZ", {.reach = RequestReach::everybodyWithoutUnit}, std::nullopt};
}

} // namespace

TEST(RequestOutcome, CountsEachUnitOnceThatAcceptsARestore) {
    RequestOutcome outcome = toAll(RequestKind::restore);
    EXPECT_TRUE(outcome.unitDidAccept(askedUnit, askedAddress));
    EXPECT_FALSE(outcome.unitDidAccept(askedUnit, askedAddress));
    EXPECT_TRUE(outcome.unitDidAccept(otherUnit, elsewhere));
    EXPECT_FALSE(outcome.unitDidTell(askedUnit, askedAddress));
    EXPECT_EQ(outcome.answers(), 2U);
}

TEST(RequestOutcome, AReloadIsAnsweredByParametersAlone) {
    RequestOutcome outcome = toAll(RequestKind::reload);
    EXPECT_FALSE(outcome.unitDidAccept(askedUnit, askedAddress));
    EXPECT_FALSE(outcome.unitDidAnswer(askedUnit, askedAddress, "V1"));
    EXPECT_TRUE(outcome.unitDidTell(askedUnit, askedAddress));
    EXPECT_EQ(outcome.answers(), 1U);
}

TEST(RequestOutcome, KnowsTheUnitThatWasMeantFromAnotherAtItsAddress) {
    RequestOutcome outcome = toUnit(RequestKind::restore);
    EXPECT_FALSE(outcome.unitDidAccept(otherUnit, elsewhere));
    EXPECT_TRUE(outcome.unitDidAccept(otherUnit, askedAddress));
    EXPECT_EQ(outcome.otherUnit(), otherUnit);
    EXPECT_FALSE(outcome.hasUnitAnswered());
    EXPECT_TRUE(outcome.unitDidAccept(askedUnit, elsewhere)); // it may have restored its address
    EXPECT_TRUE(outcome.hasUnitAnswered());
}

TEST(RequestOutcome, KeepsTheLatestAnswerToAnOptionCommand) {
    RequestOutcome outcome = toUnit(RequestKind::optionCommand);
    EXPECT_TRUE(outcome.unitDidAccept(askedUnit, askedAddress));
    EXPECT_EQ(outcome.answer(), std::nullopt);
    EXPECT_TRUE(outcome.unitDidAnswer(askedUnit, askedAddress, "V1"));
    EXPECT_TRUE(outcome.unitDidAnswer(askedUnit, askedAddress, "V2"));
    EXPECT_FALSE(outcome.unitDidAnswer(otherUnit, elsewhere, "V3"));
    EXPECT_EQ(outcome.answer(), "V2");
}

TEST(RequestOutcome, TheEndOfPatienceChangesOnlyASilence) {
    RequestOutcome silent = toUnit(RequestKind::reload);
    EXPECT_TRUE(silent.patienceDidEnd());
    EXPECT_TRUE(silent.isPatienceOver());
    RequestOutcome answered = toUnit(RequestKind::reload);
    answered.unitDidTell(askedUnit, askedAddress);
    EXPECT_FALSE(answered.patienceDidEnd());
}

TEST(RequestOutcome, InventedUnitsTakeNoMemoryBeyondALimit) {
    RequestOutcome outcome = toAll(RequestKind::restore);
    for (std::size_t invented = 0; invented < RequestOutcome::mostUnits; ++invented) {
        ASSERT_TRUE(outcome.unitDidAccept(std::to_string(invented), askedAddress));
    }
    EXPECT_FALSE(outcome.unitDidAccept(askedUnit, askedAddress));
    EXPECT_EQ(outcome.answers(), RequestOutcome::mostUnits);
}

} // namespace kx
