// Every text stands out in every palette, and every colour comes from the palette.

#include "Looks.h"
#include "MainWindowFixture.h"
#include "platform/qt/FindBar.h"

namespace kx {

namespace {

constexpr double readableContrast = 4.5;

class MainWindowColours : public MainWindowTest, public ::testing::WithParamInterface<Looks> {
protected:
    // Shows a unit, prepares an edit of one of its parameters, and finds a text in the log.
    void launchWithEverything() {
        launchWithTwoUnits();
        clickParameter(UnitParameter::devicePortNumber, 0);
        press(Qt::Key_F, Qt::ControlModifier);
        ASSERT_TRUE(drawerComesToRest());
        type("parameters");
        ASSERT_EQ(log().selectedText().toLower(), "parameters");
    }

    LogTextView& log() { return control<LogTextView>("logTextView"); }

    // The rectangle of the found text in the log's viewport.
    QRect match() {
        return log().rectOf(log().selection().from) |
               log().rectOf(log().selection().to).adjusted(0, 0, -log().rectOf(0).width(), 0);
    }

    QRect rowOf(const char* table, int row) {
        const auto& view = control<QTableView>(table);
        const QAbstractItemModel& model = *view.model();
        return view.visualRect(model.index(row, 0)) | view.visualRect(model.index(row, 1));
    }
};

} // namespace

TEST_P(MainWindowColours, EveryTextStandsOut) {
    const UsedPalette used(GetParam());
    launchWithEverything();
    for (const char* name : {"interfacePopUp",
                             "udpPortPopUp",
                             "unitSelectPopUp",
                             "unitIDField",
                             "unitParameterTableView",
                             "editParameterTableView",
                             "optionCommandPopUp",
                             "optionCommandField",
                             "logTextView",
                             "interfaceLabel",
                             "unitLabel",
                             "discoverButton",
                             "reloadButton",
                             "applyButton",
                             "quietLine",
                             "sendOptionButton",
                             "restoreButton",
                             "logDrawerButton",
                             "helpButton",
                             "menuBar",
                             "logFindField"}) {
        EXPECT_GE(contrastOfTextIn(control<QWidget>(name)), readableContrast) << name;
    }
}

TEST_P(MainWindowColours, EmptyStatesStandOut) {
    const UsedPalette used(GetParam());
    launch();
    for (const char* name : {"unitSelectPopUp", "unitParameterTableView", "editParameterTableView",
                             "interfacePopUp"}) {
        EXPECT_GE(contrastOfTextIn(control<QWidget>(name)), readableContrast) << name;
    }
}

TEST_P(MainWindowColours, TheResultOfASearchStandsOut) {
    const UsedPalette used(GetParam());
    launchWithEverything();
    type("x");
    ASSERT_EQ(control<QLabel>("logFindResult").text(), "Not found");
    EXPECT_GE(contrastOfTextIn(control<QLabel>("logFindResult")), readableContrast);
}

TEST_P(MainWindowColours, TheSignsOnTheFindBarStandOut) {
    const UsedPalette used(GetParam());
    launchWithEverything();
    for (const char* name : {"logFindPreviousButton", "logFindNextButton", "logFindCloseButton"}) {
        EXPECT_GE(contrastOfTextIn(control<QWidget>(name)), 3.0) << name;
    }
}

TEST_P(MainWindowColours, WhatIsSelectedHasThePalettesOwnContrast) {
    const UsedPalette used(GetParam());
    launchWithEverything();
    const QPalette& colors = window.palette();
    const QColor highlight = colors.color(QPalette::Highlight);
    const double wanted = 0.9 * contrastOf(highlight, colors.color(QPalette::HighlightedText));
    EXPECT_EQ(backgroundOf(log().viewport()->grab(match()).toImage()), highlight);
    EXPECT_GE(contrastOfTextIn(*log().viewport(), match()), wanted);
    auto& rows = *control<QTableView>("unitParameterTableView").viewport();
    const QRect selected = rowOf("unitParameterTableView", 3).adjusted(2, 2, -2, -2);
    EXPECT_EQ(backgroundOf(rows.grab(selected).toImage()), highlight);
    EXPECT_GE(contrastOfTextIn(rows, selected), wanted);
}

INSTANTIATE_TEST_SUITE_P(Looks, MainWindowColours, ::testing::ValuesIn(allLooks),
                         [](const auto& looks) { return nameOf(looks.param); });

// The palette has no blue, so every blue pixel has a colour of its own.
TEST_F(MainWindowTest, NoTextOrBackgroundHasAColourOfItsOwn) {
    QPalette withoutBlue(QColor(60, 30, 0));
    for (int role = 0; role < QPalette::NColorRoles; ++role) {
        withoutBlue.setColor(static_cast<QPalette::ColorRole>(role), QColor(255, 240, 0));
    }
    for (const QPalette::ColorRole role : {QPalette::Window, QPalette::Base, QPalette::Button,
                                           QPalette::AlternateBase, QPalette::HighlightedText}) {
        withoutBlue.setColor(role, QColor(60, 30, 0));
    }
    const UsedPalette used(withoutBlue);
    launch();
    const auto expectNoBlue = [](QWidget& widget, const std::string& name) {
        const QImage picture = widget.grab().toImage();
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                ASSERT_EQ(qBlue(picture.pixel(x, y)), 0) << name << " at " << x << ", " << y;
            }
        }
    };
    const auto expectNoBlueAnywhere = [&] {
        for (const char* name : {"unitParameterTableView", "editParameterTableView"}) {
            expectNoBlue(*control<QTableView>(name).viewport(), name);
        }
        expectNoBlue(*control<LogTextView>("logTextView").viewport(), "logTextView");
        expectNoBlue(control<QLabel>("quietLine"), "quietLine");
        expectNoBlue(control<QLabel>("logFindResult"), "logFindResult");
    };
    press(Qt::Key_F, Qt::ControlModifier);
    ASSERT_TRUE(drawerComesToRest());
    type("begin");
    expectNoBlueAnywhere();
    type("x");
    receive(SampleUnit().reply());
    click("reloadButton");
    clickCell("unitParameterTableView", 0, 0);
    control<QWidget>("logTextView").setFocus();
    expectNoBlueAnywhere();
}

} // namespace kx
