// The line below Discover, within the window.

#include "MainWindowFixture.h"

namespace kx {

namespace {

constexpr const char* longSentence =
    "The system dropped 1234 datagrams before they were read, so units "
    "may be missing. Help says how to allow a larger buffer.";

class DiscoveryLineTest : public MainWindowTest {
protected:
    DiscoveryLineTest() {
        launchWithTwoUnits();
        layOut();
    }

    void say(const char* said) {
        window.outlets().discoveryLine->setStringValue(said);
        layOut();
    }

    QRect placeOf(const char* name) {
        const auto& widget = control<QWidget>(name);
        return {widget.mapTo(&window, QPoint(0, 0)), widget.size()};
    }

    QLabel& line() { return control<QLabel>("discoveryLine"); }

private:
    static void layOut() { QTest::qWait(10); }
};

} // namespace

TEST_F(DiscoveryLineTest, KeepsItsPlaceSoThatNothingMovesWhenItsTextComesOrGoes) {
    EXPECT_EQ(line().text(), "2 units answered. No interface is chosen: asked 255.255.255.255.");
    const QRect unitsBefore = placeOf("unitSelectPopUp");
    for (const char* said : {longSentence, "", "2 units answered."}) {
        say(said);
        EXPECT_TRUE(line().isVisible());
        EXPECT_EQ(placeOf("unitSelectPopUp"), unitsBefore) << said;
    }
}

TEST_F(DiscoveryLineTest, KeepsItsPlaceAlsoForTheLongestUsualSentenceWithItsSign) {
    const QRect unitsBefore = placeOf("unitSelectPopUp");
    const QRect tableBefore = placeOf("unitParameterTableView");
    window.outlets().discoveryLine->setMeansTrouble(true);
    say("No unit answered. The 3 listed answered earlier. The request left, and nothing came back. "
        "No interface is chosen: asked 255.255.255.255.");
    EXPECT_GT(line().heightForWidth(line().width()), 2 * line().fontMetrics().lineSpacing());
    EXPECT_EQ(placeOf("unitSelectPopUp"), unitsBefore);
    EXPECT_EQ(placeOf("unitParameterTableView"), tableBefore);
}

TEST_F(DiscoveryLineTest, StandsBelowDiscoverAndIsShownWhole) {
    say(longSentence);
    EXPECT_GT(placeOf("discoveryLine").top(), placeOf("discoverButton").bottom());
    EXPECT_LT(placeOf("discoveryLine").bottom(), placeOf("unitSelectPopUp").top());
    EXPECT_GE(line().height(), line().heightForWidth(line().width()));
    window.resize(420, 480);
    say(longSentence);
    EXPECT_GE(line().height(), line().heightForWidth(line().width()));
}

TEST_F(DiscoveryLineTest, WhateverAPersonIsAboutToClickBelowTheTableStaysWhereItIs) {
    const auto places = [&] {
        std::vector<QRect> all;
        for (const char* name : {"editParameterTableView", "applyButton", "quietLine",
                                 "sendOptionButton", "restoreButton", "logDrawerButton"}) {
            all.push_back(placeOf(name));
        }
        return all;
    };
    const std::vector<QRect> before = places();
    const QSize sizeBefore = window.size();
    say(longSentence);
    EXPECT_EQ(places(), before);
    EXPECT_EQ(window.size(), sizeBefore);
}

TEST_F(DiscoveryLineTest, CanBeCopied) {
    say(longSentence);
    EXPECT_TRUE(line().textInteractionFlags().testFlag(Qt::TextSelectableByMouse));
    EXPECT_EQ(line().text(), longSentence);
}

} // namespace kx
