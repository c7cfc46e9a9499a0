#include "conversation/RunHistory.h"

#include "HeardUnitSamples.h"

#include <gtest/gtest.h>

#include <utility>

namespace kx {

namespace {

class RunHistoryTest : public testing::Test {
protected:
    using Identities = std::vector<UnitIdentity>;

    static JournalledUnit unit(std::uint32_t row, std::uint32_t serial, std::uint32_t hardware) {
        return {.line = row + 1,
                .rowSerialNumber = sampleSerial(row),
                .serialNumber = sampleSerial(serial),
                .hardwareAddress = sampleHardwareAddress(hardware)};
    }

    static ExactEdit edit(UnitParameter parameter, const std::string& value) {
        return std::get<ExactEdit>(exactEdit(parameter, value));
    }

    void command(const JournalledUnit& of, UnitParameter parameter,
                 const std::optional<std::string>& from, const std::string& to) {
        const ExactEdit made = edit(parameter, to);
        journal.emplace_back(JournalledCommand{.unit = of,
                                               .parameter = parameter,
                                               .from = from,
                                               .to = made.edit.expectedText.value_or(to),
                                               .command = made.edit.command});
    }
    void outcome(const JournalledUnit& of, UnitParameter parameter, ChangeState state) {
        journal.emplace_back(JournalledOutcome{.unit = of, .parameter = parameter, .state = state});
    }

    // A row that gives the unit another serial number, resumed after the journal.
    Identities resumed(std::uint32_t number, std::uint32_t newNumber) const {
        const WantedRow row{.line = 2,
                            .serialNumber = sampleSerial(number),
                            .edits = {edit(UnitParameter::serialNumber, sampleSerial(newNumber))}};
        return resumedRows({row}, journal).front().identities;
    }

    RevertedRows reverted() const { return revertedRows(journal); }

    std::vector<JournalEntry> journal;
    static constexpr auto serialNumber = UnitParameter::serialNumber;
    static constexpr auto hardwareAddress = UnitParameter::internalMACAddress;
    static constexpr auto port = UnitParameter::devicePortNumber;
    static constexpr auto done = ChangeState::done;
};

} // namespace

// --- Resuming ---

TEST_F(RunHistoryTest, ARowThatWasNotBegunIsFoundByItsSerialNumber) {
    EXPECT_EQ(resumed(1, 9), Identities());
}

TEST_F(RunHistoryTest, AUnitWhoseNewSerialNumberIsUncertainMayAnswerUnderBoth) {
    command(unit(1, 1, 1), serialNumber, sampleSerial(1), sampleSerial(9));
    EXPECT_EQ(resumed(1, 9), (Identities{{sampleSerial(1), sampleHardwareAddress(1)},
                                         {sampleSerial(9), sampleHardwareAddress(1)}}));
    outcome(unit(1, 1, 1), serialNumber, ChangeState::silent);
    EXPECT_EQ(resumed(1, 9).size(), 2U);
}

TEST_F(RunHistoryTest, AUnitThatHasShownItsNewSerialNumberAnswersUnderIt) {
    command(unit(1, 1, 1), serialNumber, sampleSerial(1), sampleSerial(9));
    outcome(unit(1, 9, 1), serialNumber, done);
    EXPECT_EQ(resumed(1, 9), (Identities{{sampleSerial(9), sampleHardwareAddress(1)}}));
}

TEST_F(RunHistoryTest, ACommandThatWasNotSentChangesNoName) {
    command(unit(1, 1, 1), serialNumber, sampleSerial(1), sampleSerial(9));
    outcome(unit(1, 1, 1), serialNumber, ChangeState::refused);
    EXPECT_EQ(resumed(1, 9), (Identities{{sampleSerial(1), sampleHardwareAddress(1)}}));
}

TEST_F(RunHistoryTest, TheHardwareAddressThatARowGivesIsFollowed) {
    WantedRow row{.line = 2,
                  .serialNumber = sampleSerial(1),
                  .edits = {edit(serialNumber, sampleSerial(9)),
                            edit(hardwareAddress, sampleHardwareAddress(9))}};
    command(unit(1, 1, 1), hardwareAddress, sampleHardwareAddress(1), sampleHardwareAddress(9));
    EXPECT_EQ(resumedRows({row}, journal).front().identities,
              (Identities{{sampleSerial(1), sampleHardwareAddress(1)},
                          {sampleSerial(1), sampleHardwareAddress(9)}}));
    outcome(unit(1, 1, 9), hardwareAddress, done);
    command(unit(1, 1, 9), serialNumber, sampleSerial(1), sampleSerial(9));
    EXPECT_EQ(resumedRows({row}, journal).front().identities,
              (Identities{{sampleSerial(1), sampleHardwareAddress(9)},
                          {sampleSerial(9), sampleHardwareAddress(9)}}));
}

TEST_F(RunHistoryTest, CommandsOfAnotherTableDoNotCount) {
    command(unit(1, 1, 1), serialNumber, sampleSerial(1), sampleSerial(8));
    outcome(unit(1, 8, 1), serialNumber, done);
    EXPECT_EQ(resumed(1, 9), Identities());
    EXPECT_EQ(resumed(8, 9), Identities());
}

TEST_F(RunHistoryTest, ARowWithoutANewSerialNumberIsFoundByItsSerialNumber) {
    command(unit(1, 1, 1), port, "10000", "4000");
    const WantedRow row{.line = 2, .serialNumber = sampleSerial(1), .edits = {edit(port, "4000")}};
    EXPECT_TRUE(resumedRows({row}, journal).front().identities.empty());
}

TEST_F(RunHistoryTest, AUnitIsFollowedThroughTheRunsOfOtherRows) {
    command(unit(1, 1, 1), serialNumber, sampleSerial(1), sampleSerial(9));
    outcome(unit(1, 9, 1), serialNumber, done);
    const WantedRow row = resumedRows({{.line = 2,
                                        .serialNumber = sampleSerial(1),
                                        .edits = {edit(serialNumber, sampleSerial(9))}}},
                                      std::exchange(journal, {}))
                              .front();
    // A run that takes it back: its row is called by the new serial number.
    command(unit(9, 9, 1), serialNumber, sampleSerial(9), sampleSerial(1));
    outcome(unit(9, 1, 1), serialNumber, done);
    EXPECT_EQ(resumedRows({row}, journal).front().identities,
              (Identities{{sampleSerial(1), sampleHardwareAddress(1)}}));
}

TEST_F(RunHistoryTest, ACommandToTheUnitThatHasTheSerialNumberNowIsNotTheRows) {
    const std::vector<WantedRow> rows{
        {.line = 2,
         .serialNumber = sampleSerial(1),
         .edits = {edit(serialNumber, sampleSerial(2)), edit(port, "4000")}},
        {.line = 3,
         .serialNumber = sampleSerial(2),
         .edits = {edit(serialNumber, sampleSerial(9)), edit(port, "4000")}}};
    command(unit(2, 2, 2), serialNumber, sampleSerial(2), sampleSerial(9));
    outcome(unit(2, 9, 2), serialNumber, done);
    command(unit(1, 1, 1), serialNumber, sampleSerial(1), sampleSerial(2));
    outcome(unit(1, 2, 1), serialNumber, done);
    command(unit(2, 2, 1), port, "10000", "4000"); // a later run calls unit 1 so
    const auto after = resumedRows(rows, journal);
    EXPECT_EQ(after[0].identities, (Identities{{sampleSerial(2), sampleHardwareAddress(1)}}));
    EXPECT_EQ(after[1].identities, (Identities{{sampleSerial(9), sampleHardwareAddress(2)}}));
}

TEST_F(RunHistoryTest, TheNamesThatAUnitHadBeforeAreKept) {
    command(unit(1, 1, 1), hardwareAddress, sampleHardwareAddress(1), sampleHardwareAddress(9));
    outcome(unit(1, 1, 9), hardwareAddress, done);
    command(unit(1, 1, 9), port, "10000", "4000");
    outcome(unit(1, 1, 9), port, done);
    command(unit(1, 1, 9), serialNumber, sampleSerial(1), sampleSerial(9));
    outcome(unit(1, 9, 9), serialNumber, done);
    const WantedRow row{.line = 2,
                        .serialNumber = sampleSerial(1),
                        .edits = {edit(hardwareAddress, sampleHardwareAddress(9)),
                                  edit(serialNumber, sampleSerial(9))}};
    const Identities before{{sampleSerial(1), sampleHardwareAddress(1)},
                            {sampleSerial(1), sampleHardwareAddress(9)}};
    EXPECT_EQ(resumedRows({row}, journal).front().formerIdentities, before);
    EXPECT_EQ(reverted().rows.at(0).formerIdentities, before);
}

TEST_F(RunHistoryTest, TheNamesOfAnOlderJournalAreFormerOnes) {
    command(unit(1, 1, 1), serialNumber, sampleSerial(1), sampleSerial(9));
    outcome(unit(1, 9, 1), serialNumber, done);
    const std::vector<JournalEntry> older = std::exchange(journal, {});
    command(unit(1, 1, 2), serialNumber, sampleSerial(1), sampleSerial(9));
    outcome(unit(1, 9, 2), serialNumber, done);
    const WantedRow row{
        .line = 2, .serialNumber = sampleSerial(1), .edits = {edit(serialNumber, sampleSerial(9))}};
    const WantedRow resumed = resumedRows(resumedRows({row}, older), journal).front();
    EXPECT_EQ(resumed.identities, (Identities{{sampleSerial(9), sampleHardwareAddress(2)}}));
    EXPECT_EQ(resumed.formerIdentities, (Identities{{sampleSerial(1), sampleHardwareAddress(1)},
                                                    {sampleSerial(9), sampleHardwareAddress(1)},
                                                    {sampleSerial(1), sampleHardwareAddress(2)}}));
}

// --- Taking back ---

TEST_F(RunHistoryTest, EveryValueIsTakenBackToTheOneBeforeTheFirstCommand) {
    command(unit(1, 1, 1), port, "10000", "4000");
    outcome(unit(1, 1, 1), port, done);
    command(unit(1, 1, 1), port, "4000", "5000");
    const RevertedRows back = reverted();
    ASSERT_EQ(back.rows.size(), 1U);
    EXPECT_EQ(back.rows[0].line, 2U);
    EXPECT_EQ(back.rows[0].serialNumber, sampleSerial(1));
    ASSERT_EQ(back.rows[0].edits.size(), 1U);
    EXPECT_EQ(back.rows[0].edits[0].edit.expectedText, "10000");
    EXPECT_TRUE(back.lost.empty());
}

TEST_F(RunHistoryTest, AUnitIsTakenBackUnderItsNewNames) {
    command(unit(1, 1, 1), hardwareAddress, sampleHardwareAddress(1), sampleHardwareAddress(9));
    outcome(unit(1, 1, 9), hardwareAddress, done);
    command(unit(1, 1, 9), serialNumber, sampleSerial(1), sampleSerial(9));
    outcome(unit(1, 9, 9), serialNumber, done);
    const RevertedRows back = reverted();
    ASSERT_EQ(back.rows.size(), 1U);
    EXPECT_EQ(back.rows[0].serialNumber, sampleSerial(9));
    EXPECT_EQ(back.rows[0].identities, (Identities{{sampleSerial(9), sampleHardwareAddress(9)}}));
    EXPECT_EQ(back.rows[0].edits.size(), 2U);
}

TEST_F(RunHistoryTest, UnitsThatPassASerialNumberOnAreKeptApart) {
    command(unit(2, 2, 2), port, "1", "4000");
    command(unit(2, 2, 2), serialNumber, sampleSerial(2), sampleSerial(9));
    outcome(unit(2, 9, 2), serialNumber, done);
    command(unit(1, 1, 1), serialNumber, sampleSerial(1), sampleSerial(2));
    outcome(unit(1, 2, 1), serialNumber, done);
    command(unit(1, 2, 1), port, "2", "5000");
    const RevertedRows back = reverted();
    ASSERT_EQ(back.rows.size(), 2U);
    EXPECT_EQ(back.rows[0].serialNumber, sampleSerial(9));
    EXPECT_EQ(back.rows[1].serialNumber, sampleSerial(2));
    EXPECT_EQ(back.rows[0].edits[0].edit.expectedText, "1");
    EXPECT_EQ(back.rows[1].edits[0].edit.expectedText, "2");
}

TEST_F(RunHistoryTest, AValueWhoseCommandWasNeverSentIsLeftAlone) {
    command(unit(1, 1, 1), port, "10000", "4000");
    outcome(unit(1, 1, 1), port, ChangeState::refused);
    EXPECT_TRUE(reverted().rows.empty());
    // Somebody has changed the value since.
    command(unit(1, 1, 1), port, "7000", "4000");
    EXPECT_EQ(reverted().rows.at(0).edits.at(0).edit.expectedText, "7000");
    outcome(unit(1, 1, 1), port, done);
    command(unit(1, 1, 1), port, "4000", "5000");
    outcome(unit(1, 1, 1), port, ChangeState::refused);
    EXPECT_EQ(reverted().rows.at(0).edits.at(0).edit.expectedText, "7000");
}

TEST_F(RunHistoryTest, AUnitIDThatIsNoTextIsTakenBackByItsBytes) {
    command(unit(1, 1, 1), UnitParameter::unitID, std::nullopt, "A");
    std::get<JournalledCommand>(journal[0]).fromUnitID = UnitIDBytes{0xFF, 0, 0xFE, 0, 0, 1};
    const ExactEdit back = reverted().rows.at(0).edits.at(0);
    EXPECT_EQ(back.edit.command, "^^IdUFF00FE000001");
    EXPECT_EQ(back.unitIDBytes, (UnitIDBytes{0xFF, 0, 0xFE, 0, 0, 1}));
}

TEST_F(RunHistoryTest, ValuesThatNoCommandBringsBackAreTold) {
    command(unit(1, 1, 1), UnitParameter::destinationPortNumber, "4000", "3521");
    command(unit(1, 1, 1), port, std::nullopt, "4000");
    const RevertedRows back = reverted();
    EXPECT_TRUE(back.rows.empty());
    ASSERT_EQ(back.lost.size(), 2U);
    EXPECT_EQ(back.lost[0].parameter, UnitParameter::destinationPortNumber);
    EXPECT_EQ(back.lost[0].value, "4000");
    EXPECT_EQ(back.lost[0].serialNumber, sampleSerial(1));
    EXPECT_EQ(back.lost[1].value, std::nullopt);
}

TEST_F(RunHistoryTest, AnOutcomeWithoutACommandIsPassedOver) {
    outcome(unit(1, 1, 1), port, done);
    EXPECT_TRUE(reverted().rows.empty());
}

// --- Entries of the ARP cache ---

TEST_F(RunHistoryTest, EntriesThatWereNotTakenOutAreLeft) {
    const auto binding = [this](const std::string& address, bool isMade) {
        journal.emplace_back(JournalledBinding{
            .address = address, .hardwareAddress = sampleHardwareAddress(1), .isMade = isMade});
    };
    binding("192.0.2.9", true);
    binding("192.0.2.8", true);
    binding("192.0.2.9", false);
    binding("192.0.2.8", true); // begun again
    journal.emplace_back(JournalledBinding{
        .address = "192.0.2.8", .hardwareAddress = sampleHardwareAddress(2), .isMade = false});
    const auto left = bindingsLeft(journal);
    ASSERT_EQ(left.size(), 1U);
    EXPECT_EQ(left[0].address, "192.0.2.8");
}

} // namespace kx
