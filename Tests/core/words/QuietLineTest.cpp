#include "words/QuietLine.h"

#include "core/conversation/EditOutcomes.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kx {

namespace {

using enum UnitParameter;
using Said = std::vector<std::string>;

const std::string otherUnit = "01 02 03 04 05 07";
const std::string sentPort = "Sent ^^IdT0DC3. The unit has not answered yet.";

class QuietLineTest : public testing::Test {
protected:
    // The sentences since the last call, repeated ones included.
    Said taken() { return std::exchange(_said, {}); }

    EditOutcome portOutcome() { return outcomeOf(destinationPortNumber, "3523", "3520"); }

    // The outcome of a move, for whose ARP entry a tool runs.
    EditOutcome moveOutcome() {
        EditOutcome outcome = outcomeOf(internalIPAddress, "10.0.0.7", "192.168.1.10");
        outcome.setARPEntry({ARPEntryState::started});
        return outcome;
    }

    // Everything that units and tools can do.
    void letTheNetworkSpeak() {
        for (const std::string& unit : {editedUnit, otherUnit}) {
            line.unitDidAccept(unit, {});
            line.unitDidTell(unit, recordWith(destinationPortNumber, "3523"));
        }
        line.arpToolDidEnd(arpEntryForEndOfTool(1));
    }

    template<class State>
    bool holds() const {
        return std::holds_alternative<State>(line.state());
    }

private:
    Said _said;

protected:
    bool isTrouble = false; // the latest text

    QuietLine line{[this](std::string_view text, bool meansTrouble) {
        _said.emplace_back(text);
        isTrouble = meansTrouble;
    }};
};

} // namespace

TEST_F(QuietLineTest, BeginsWithAForecastThatSaysNothing) {
    EXPECT_TRUE(holds<QuietLine::Forecast>());
    EXPECT_EQ(taken(), Said{});
}

TEST_F(QuietLineTest, AForecastEndsWhateverStood) {
    line.showForecast("Apply sends one.");
    line.showForecast("Apply sends two.");
    EXPECT_EQ(taken(), (Said{"Apply sends one.", "Apply sends two."}));
    line.showMessage("Not sent.");
    line.showForecast("Apply sends one.");
    EXPECT_TRUE(holds<QuietLine::Forecast>());
    line.showOutcome(portOutcome());
    line.showForecast("");
    EXPECT_TRUE(holds<QuietLine::Forecast>());
    EXPECT_EQ(taken().back(), "");
}

TEST_F(QuietLineTest, AMessageEndsWhateverStood) {
    line.showForecast("Apply sends one.");
    line.showMessage("Not sent.");
    EXPECT_TRUE(holds<QuietLine::Message>());
    EXPECT_EQ(std::get<QuietLine::Message>(line.state()).text, "Not sent.");
    line.showOutcome(portOutcome());
    line.showMessage("Not sent.");
    EXPECT_TRUE(holds<QuietLine::Message>());
    EXPECT_EQ(taken().back(), "Not sent.");
}

TEST_F(QuietLineTest, AnOutcomeEndsWhateverStood) {
    line.showForecast("Apply sends one.");
    line.showOutcome(portOutcome());
    EXPECT_EQ(taken().back(), sentPort);
    line.showMessage("Not sent.");
    line.showOutcome(portOutcome());
    EXPECT_TRUE(holds<EditOutcome>());
    EXPECT_EQ(taken().back(), sentPort);
}

TEST_F(QuietLineTest, AnEmptyMessageLeavesTheLineEmpty) {
    line.showMessage("Not sent.");
    taken();
    line.showMessage("");
    EXPECT_EQ(taken(), Said{""});
    EXPECT_TRUE(holds<QuietLine::Forecast>());
    line.showOutcome(portOutcome());
    line.showMessage("");
    EXPECT_EQ(taken(), (Said{sentPort, ""}));
    EXPECT_TRUE(holds<QuietLine::Forecast>());
}

// A person who presses twice and is refused twice hears it twice.
TEST_F(QuietLineTest, TheSameMessageIsSaidAgain) {
    line.showMessage("Not sent.");
    taken();
    line.showMessage("Not sent.");
    EXPECT_EQ(taken(), (Said{"", "Not sent."}));
}

TEST_F(QuietLineTest, TheSameOutcomeIsSaidAgain) {
    line.showOutcome(portOutcome());
    line.showOutcome(portOutcome());
    EXPECT_EQ(taken(), (Said{sentPort, sentPort}));
}

TEST_F(QuietLineTest, TheEndOfAMessageShowsTheForecast) {
    line.showMessage("Not sent.");
    taken();
    line.endMessage("Apply sends one.");
    EXPECT_EQ(taken(), Said{"Apply sends one."});
    EXPECT_TRUE(holds<QuietLine::Forecast>());
    line.endMessage("Apply sends two.");
    EXPECT_EQ(taken(), Said{"Apply sends two."}) << "a forecast is made anew";
}

TEST_F(QuietLineTest, TheEndOfAMessageLeavesAnOutcome) {
    line.showOutcome(portOutcome());
    taken();
    line.endMessage("Apply sends one.");
    EXPECT_EQ(taken(), Said{});
    EXPECT_TRUE(holds<EditOutcome>());
}

TEST_F(QuietLineTest, AForecastIsRefreshedWhereOneStands) {
    line.showForecast("Apply sends one.");
    taken();
    line.refreshForecast("Apply sends one.");
    EXPECT_EQ(taken(), Said{}) << "it says the same";
    line.refreshForecast("Apply sends two.");
    EXPECT_EQ(taken(), Said{"Apply sends two."});
    EXPECT_EQ(std::get<QuietLine::Forecast>(line.state()).text, "Apply sends two.");
    line.showMessage("Not sent.");
    line.refreshForecast("Apply sends one.");
    EXPECT_EQ(taken().back(), "Not sent.");
    line.showOutcome(portOutcome());
    line.refreshForecast("Apply sends one.");
    EXPECT_EQ(taken(), Said{sentPort});
}

TEST_F(QuietLineTest, WhatTheNetworkBringsEndsNeitherForecastNorMessage) {
    line.showForecast("Apply sends one.");
    taken();
    letTheNetworkSpeak();
    line.unitIsShown(otherUnit);
    EXPECT_EQ(taken(), Said{});
    EXPECT_TRUE(holds<QuietLine::Forecast>());
    line.showMessage("Not sent.");
    taken();
    letTheNetworkSpeak();
    line.unitIsShown(otherUnit);
    EXPECT_EQ(taken(), Said{});
    EXPECT_TRUE(holds<QuietLine::Message>());
}

TEST_F(QuietLineTest, WhatTheNetworkBringsDoesNotEndAnOutcome) {
    line.showOutcome(portOutcome());
    letTheNetworkSpeak();
    EXPECT_TRUE(holds<EditOutcome>());
    EXPECT_EQ(taken(),
              (Said{sentPort, "The unit accepted a command and was asked for its parameters.",
                    "The unit now shows 3523 as its destination Port number (was 3520)."}))
        << "another unit and a tool have no part in it";
}

TEST_F(QuietLineTest, AnOutcomeIsSaidAgainWithEveryReplyOfItsUnit) {
    line.showOutcome(portOutcome());
    taken();
    const std::string unchanged = "The unit still shows 3520 as its destination Port number.";
    for (int reply = 0; reply < 2; ++reply) {
        line.unitDidTell(editedUnit, recordWith(destinationPortNumber, "3520"));
    }
    EXPECT_EQ(taken(), (Said{unchanged, unchanged}));
}

TEST_F(QuietLineTest, AnOutcomeIsForgottenWhenAnotherUnitIsShown) {
    line.showOutcome(portOutcome());
    line.unitIsShown(editedUnit);
    EXPECT_TRUE(holds<EditOutcome>());
    taken();
    line.unitIsShown(otherUnit);
    EXPECT_TRUE(holds<QuietLine::Forecast>());
    EXPECT_EQ(taken(), Said{}) << "its text stays until there is a forecast";
    line.unitDidTell(editedUnit, recordWith(destinationPortNumber, "3523"));
    EXPECT_EQ(taken(), Said{});
    line.refreshForecast("");
    EXPECT_EQ(taken(), Said{""});
}

TEST_F(QuietLineTest, TheEndOfAToolBelongsToTheOutcomeOfAMove) {
    line.showOutcome(moveOutcome());
    taken();
    line.arpToolDidEnd(arpEntryForEndOfTool(255));
    EXPECT_EQ(taken(), Said{"Sent ^^IdI0A000007. The unit has not answered yet. No ARP entry was "
                            "made for 10.0.0.7: the ARP tool ended with status 255."});
    line.arpToolDidEnd(arpEntryForEndOfTool(0));
    EXPECT_EQ(taken(), Said{"Sent ^^IdI0A000007. The unit has not answered yet."});
}

TEST_F(QuietLineTest, TheEndOfAToolDoesNotTouchTheOutcomeOfAnotherParameter) {
    line.showOutcome(portOutcome());
    taken();
    line.arpToolDidEnd(arpEntryForEndOfTool(255));
    EXPECT_EQ(taken(), Said{});
    EXPECT_EQ(std::get<EditOutcome>(line.state()).arpEntry(), ARPEntry());
}

TEST_F(QuietLineTest, AWarningStandsInFrontOfEverySentenceUntilItIsTakenBack) {
    line.setWarning("Careful.");
    EXPECT_EQ(taken(), Said{"Careful."});
    line.showForecast("Apply sends it.");
    line.showMessage("Not sent.");
    line.showOutcome(portOutcome());
    EXPECT_EQ(taken(), (Said{"Careful. Apply sends it.", "Careful.", "Careful. Not sent.",
                             "Careful. " + sentPort}));
    line.showForecast({});
    EXPECT_EQ(taken(), Said{"Careful."});
    line.showForecast("Apply sends it.");
    taken();
    line.setWarning({});
    EXPECT_EQ(taken(), Said{"Apply sends it."});
}

TEST_F(QuietLineTest, AWarningEndsNothingAndIsSaidOnce) {
    line.showOutcome(portOutcome());
    taken();
    line.setWarning("Careful.");
    line.setWarning("Careful.");
    EXPECT_EQ(taken(), Said{"Careful. " + sentPort});
    EXPECT_TRUE(holds<EditOutcome>());
    line.showForecast("Apply sends it.");
    taken();
    line.refreshForecast("Apply sends it.");
    EXPECT_EQ(taken(), Said{}) << "the warning makes no new text of it";
}

TEST_F(QuietLineTest, AHintStandsInThePlaceOfTheSentenceUntilAPersonPointsElsewhere) {
    line.showForecast("Apply sends one.");
    line.setHint("Resets the unit.");
    line.refreshForecast("Apply sends two.");
    EXPECT_EQ(taken().back(), "Resets the unit.");
    line.setHint("");
    EXPECT_EQ(taken().back(), "Apply sends two.");
}

TEST_F(QuietLineTest, WhateverAPersonPressesOrTypesEndsTheHint) {
    line.setHint("Resets the unit.");
    line.showForecast("Apply sends one.");
    EXPECT_EQ(taken().back(), "Apply sends one.");
    line.setHint("Resets the unit.");
    line.showOutcome(portOutcome());
    EXPECT_EQ(taken().back(), sentPort);
    line.setHint("Resets the unit.");
    line.showMessage("Not sent.");
    EXPECT_EQ(taken().back(), "Not sent.");
    EXPECT_FALSE(line.hasHint());
}

TEST_F(QuietLineTest, AWarningAndAMessageMeanTrouble) {
    line.showForecast("Apply sends one.");
    EXPECT_FALSE(isTrouble);
    line.showForecast("Apply sends one, though.", true);
    EXPECT_TRUE(isTrouble);
    line.setHint("Resets the unit.");
    EXPECT_FALSE(isTrouble);
    line.setHint("");
    EXPECT_TRUE(isTrouble);
    line.showForecast("Apply sends one.");
    line.setWarning("No unit is selected.");
    EXPECT_TRUE(isTrouble);
    line.setWarning("");
    line.showMessage("Not sent.");
    EXPECT_TRUE(isTrouble);
}

TEST_F(QuietLineTest, TheOutcomeOfARequestEndsWhereAMessageEnds) {
    const RequestOutcome restore(RequestKind::restore, "^^IdZ", RequestTarget(), std::nullopt);
    line.showOutcome(restore);
    line.unitDidAccept(otherUnit, {});
    EXPECT_EQ(taken().back(), "Sent ^^IdZ to every unit that hears it. Accepted by 1 unit.");
    line.unitIsShown(otherUnit);
    EXPECT_TRUE(holds<RequestOutcome>());
    line.endMessage("Apply sends one.");
    EXPECT_EQ(taken().back(), "Apply sends one.");
}

} // namespace kx
