#include "words/PlanCells.h"

#include "core/conversation/PlanFixture.h"

#include <set>
#include <string>
#include <vector>

namespace kx {

namespace {

class PlanCellsTest : public PlanTest {
protected:
    using Texts = std::vector<std::string>;

    // The cells of a line.
    static Texts cells(const UnitPlan& plan, std::size_t line, bool isUnderWay = false) {
        Texts texts;
        for (std::size_t column = 0; column < planColumnCount; ++column) {
            texts.push_back(cellOfPlan(plan, linesOfPlan(plan).at(line), isUnderWay,
                                       static_cast<PlanColumn>(column)));
        }
        return texts;
    }
    static std::string state(const UnitPlan& plan, std::size_t line) {
        return cells(plan, line).at(static_cast<std::size_t>(PlanColumn::state));
    }
    static std::string reason(const UnitPlan& plan, std::size_t line) {
        return cells(plan, line).at(static_cast<std::size_t>(PlanColumn::reason));
    }

    static Edits ports(const std::string& destination, const std::string& device) {
        return {{UnitParameter::destinationPortNumber, destination},
                {UnitParameter::devicePortNumber, device}};
    }
};

} // namespace

TEST_F(PlanCellsTest, EachChangeHasALineAndWhatTheUnitShowsAlreadyHasNone) {
    hear(1, 2);
    const UnitPlan made = plan({row(2, 1, ports("3521", "10000")), row(3, 2, ports("3521", "1"))});
    ASSERT_EQ(linesOfPlan(made).size(), 3U);
    EXPECT_EQ(cells(made, 0), (Texts{"2", sampleSerial(1), "destination Port number", "3520",
                                     "3521", "· To change", ""}));
    EXPECT_EQ(cells(made, 2)[4], "1");
}

TEST_F(PlanCellsTest, AUnitWithoutAChangeHasOneLine) {
    hear(1, 1);
    const UnitPlan made = plan({row(2, 1, ports("3520", "10000")), row(3, 2, ports("3521", "2"))});
    ASSERT_EQ(linesOfPlan(made).size(), 3U);
    EXPECT_EQ(cells(made, 0), (Texts{"2", sampleSerial(1), "", "", "", "= Unchanged", ""}));
    EXPECT_EQ(cells(made, 1),
              (Texts{"3", sampleSerial(2), "destination Port number", "", "3521", "○ No answer",
                     "The unit " + sampleSerial(2) + " does not answer."}));
}

TEST_F(PlanCellsTest, LinesStayWhileTheChangesGetTheirOutcomes) {
    hear(1, 1);
    UnitPlan made = plan({row(2, 1, ports("3521", "1"))});
    const auto before = linesOfPlan(made).size();
    made.rows[0].changes[0].state = ChangeState::done;
    made.rows[0].changes[1].state = ChangeState::silent;
    EXPECT_EQ(linesOfPlan(made).size(), before);
    made.rows[0].state = RowState::half;
    EXPECT_EQ(state(made, 0), "✓ Done");
    EXPECT_EQ(state(made, 1), "○ No answer");
    EXPECT_EQ(reason(made, 0),
              "The unit " + sampleSerial(1) + " has taken some of the values and not others.");
}

TEST_F(PlanCellsTest, WhatIsUnderWaySaysSoAndHasNoReasonYet) {
    hear(1, 1);
    const UnitPlan made = plan({row(2, 1, ports("3521", "1"))});
    EXPECT_EQ(cells(made, 0, true)[5], "… Under way");
    EXPECT_EQ(cells(made, 0, true)[6], "");
}

TEST_F(PlanCellsTest, EveryStateHasItsOwnSignAndWord) {
    const Texts words = wordsOfPlanStates();
    std::set<std::string> distinct(words.begin(), words.end());
    EXPECT_EQ(distinct.size(), words.size());
    for (const std::string& each : words) {
        EXPECT_NE(withoutSign(each), each);
        EXPECT_FALSE(withoutSign(each).empty());
    }
    EXPECT_EQ(withoutSign("✓ Done"), "Done");
}

TEST_F(PlanCellsTest, EveryColumnHasATitleOfItsOwn) {
    std::set<std::string> titles;
    for (std::size_t column = 0; column < planColumnCount; ++column) {
        titles.insert(titleOfPlanColumn(static_cast<PlanColumn>(column)));
    }
    EXPECT_EQ(titles.size(), planColumnCount);
}

TEST_F(PlanCellsTest, AnEntryThatStaysIsNamedByTheAddressThatItBinds) {
    hear(1, 1);
    UnitPlan made = plan({row(2, 1, move(9))});
    made.rows[0].isStillBound = true;
    EXPECT_EQ(noteOfRow(made.rows[0]),
              "The entry for " + address(9) + " could not be taken out of the ARP cache again.");
    made.rows[0].reason = {.objection = RowObjection::interrupted};
    EXPECT_EQ(noteOfRow(made.rows[0]), "Interrupted. The entry for " + address(9) +
                                           " could not be taken out of the ARP cache again.");
}

TEST_F(PlanCellsTest, ForeignTextsOfAComplaintAreShownAsMarks) {
    const TableComplaint complaint{.line = 7,
                                   .column = "unit-id",
                                   .fault = TableFault::controlCharacter,
                                   .cell = "a\nb\u202Ec"};
    EXPECT_EQ(cellOfComplaint(complaint, PlanColumn::line), "7");
    EXPECT_EQ(cellOfComplaint(complaint, PlanColumn::parameter), "unit-id");
    EXPECT_EQ(cellOfComplaint(complaint, PlanColumn::state), "✗ Wrong");
    EXPECT_EQ(cellOfComplaint(complaint, PlanColumn::unit), "");
    EXPECT_EQ(cellOfComplaint(complaint, PlanColumn::before), "");
    const std::string shown = cellOfComplaint(complaint, PlanColumn::wanted);
    EXPECT_EQ(shown.find('\n'), std::string::npos);
    EXPECT_EQ(shown.find("\u202E"), std::string::npos);
    EXPECT_FALSE(cellOfComplaint(complaint, PlanColumn::reason).empty());
}

TEST_F(PlanCellsTest, TheSumsCountUnitsAndTheirParameters) {
    hear(1, 3);
    const UnitPlan made = plan({row(2, 1, ports("3521", "1")), row(3, 2, ports("3520", "1")),
                                row(4, 3, ports("3520", "10000")), row(5, 4, ports("3521", "2"))});
    EXPECT_EQ(sentenceOfPlan(made), "Units to change: 2, parameters in all: 3. Unchanged: 1, "
                                    "refused: 0, without an answer: 1.");
    EXPECT_EQ(sentenceOfRun(made), "Done: 0, unchanged: 1, refused: 0, not begun: 0, half "
                                   "configured: 0, without an answer: 1.");
}

TEST_F(PlanCellsTest, TheRowsOfAReportHaveTheContractsStates) {
    hear(1, 1);
    const auto rows =
        rowsOfReport(plan({row(2, 1, ports("3521", "1")), row(3, 2, ports("3521", "2"))}));
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(rows[0].state, "planned");
    EXPECT_EQ(rows[0].reason, "");
    EXPECT_EQ(rows[1].line, 3U);
    EXPECT_EQ(rows[1].state, "silent");
    EXPECT_EQ(rows[1].reason, "The unit " + sampleSerial(2) + " does not answer.");
}

} // namespace kx
