// The texts that a screen reader says while the keyboard is at another place, and its descriptions
// of empty controls.

#include "Looks.h"
#include "MainWindowFixture.h"
#include "ScreenReader.h"
#include "platform/qt/AnnouncedLabel.h"
#include "platform/qt/SentenceLabel.h"

#include <QAccessible>
#include <QAction>
#include <QMenu>

namespace kx {

namespace {

std::vector<std::string>& heard() {
    static std::vector<std::string> texts;
    return texts;
}

void hear(QAccessibleEvent* event) {
    const auto* const label = qobject_cast<QLabel*>(event->object());
    if (event->type() == QAccessible::ObjectShow && label != nullptr) {
        heard().push_back(label->text().toStdString());
    }
}

class MainWindowSpeech : public MainWindowTest {
protected:
    MainWindowSpeech() { heard().clear(); }

    static bool hears(const std::string& text) {
        return QTest::qWaitFor([&] { return !heard().empty() && heard().back() == text; });
    }

    std::string description(const char* name) {
        QAccessibleInterface& control = accessible(name);
        return control.text(QAccessible::Description).toStdString();
    }

    QAccessibleInterface& accessible(const char* name) {
        return *QAccessible::queryAccessibleInterface(&control<QWidget>(name));
    }
};

} // namespace

TEST_F(MainWindowSpeech, TheQuietLineIsANotificationWithItsText) {
    launch();
    click("sendOptionButton");
    EXPECT_EQ(accessible("quietLine").role(), QAccessible::Notification);
    EXPECT_EQ(accessible("quietLine").text(QAccessible::Name).toStdString(),
              "Attention: No unit is selected: Restore Defaults, like Reload, reaches every unit "
              "that hears it. Not sent: No unit is selected.");
}

TEST_F(MainWindowSpeech, TheButtonsThatMayReachEverybodySayWhomTheyReach) {
    launch();
    EXPECT_EQ(description("reloadButton"), "Asks every unit that hears it for its parameters.");
    EXPECT_EQ(description("restoreButton"),
              "Resets every unit that hears it to its factory settings.");
    EXPECT_TRUE(control<QWidget>("restoreButton").toolTip().contains("every unit that hears it"));
    launchWithTwoUnits();
    EXPECT_EQ(description("reloadButton"), "Asks the unit at 192.168.1.10 for its parameters.");
    EXPECT_EQ(description("restoreButton"),
              "Resets the unit at 192.168.1.10 to its factory settings.");
    EXPECT_TRUE(control<QWidget>("reloadButton").toolTip().contains("the unit at 192.168.1.10"));
}

TEST_F(MainWindowSpeech, ANoteIsSaidWhenTheTypingRests) {
    launchWithTwoUnits();
    const ScreenReader listening(&hear);
    clickParameter(UnitParameter::destinationPortNumber);
    control<QWidget>("editParameterTableView").setFocus();
    type("3521");
    EXPECT_TRUE(hears("Apply sends ^^IdT0DC1: destination port 3521."));
}

TEST_F(MainWindowSpeech, ANoteThatComesAgainIsSaidAgain) {
    launch();
    const ScreenReader listening(&hear);
    click("sendOptionButton");
    EXPECT_TRUE(hears("No unit is selected: Restore Defaults, like Reload, reaches every unit that "
                      "hears it. Not sent: No unit is selected."));
    click("sendOptionButton");
    EXPECT_TRUE(QTest::qWaitFor([] { return heard().size() == 2; }));
    EXPECT_EQ(heard().front(), heard().back());
}

TEST_F(MainWindowSpeech, OfTextsThatFollowEachOtherTheLastIsSaid) {
    AnnouncedLabel label;
    label.show();
    const ScreenReader listening(&hear);
    label.say("3");
    label.say("35");
    label.say("352");
    EXPECT_TRUE(hears("352"));
    EXPECT_EQ(heard().size(), 1U);
}

TEST_F(MainWindowSpeech, ATextThatIsSetAgainWhereItStandsIsNotSaidAgain) {
    AnnouncedLabel label;
    AnnouncedLabel later;
    label.show();
    later.show();
    const ScreenReader listening(&hear);
    label.say("a note");
    ASSERT_TRUE(hears("a note"));
    label.say("a note");
    later.say("another");
    EXPECT_TRUE(hears("another"));
    EXPECT_EQ(heard().size(), 2U);
}

TEST_F(MainWindowSpeech, ATextThatGoesIsNotSaid) {
    AnnouncedLabel label;
    AnnouncedLabel later;
    label.show();
    later.show();
    const ScreenReader listening(&hear);
    label.say("a note");
    label.say("");
    later.say("another");
    EXPECT_TRUE(hears("another"));
    EXPECT_EQ(heard().size(), 1U);
}

TEST_F(MainWindowSpeech, TheResultOfASearchIsSaid) {
    launch();
    const ScreenReader listening(&hear);
    press(Qt::Key_F, Qt::ControlModifier);
    ASSERT_TRUE(drawerComesToRest());
    type("nowhere");
    EXPECT_TRUE(hears("Not found"));
}

TEST_F(MainWindowSpeech, AnEmptyControlIsDescribedAsWhatItShows) {
    launch();
    EXPECT_EQ(description("unitParameterTableView"), "No unit is selected");
    EXPECT_EQ(description("editParameterTableView"), "Select a parameter to edit it");
    EXPECT_EQ(description("unitSelectPopUp"), "No units listed");
}

TEST_F(MainWindowSpeech, AControlWithAContentNeedsNoDescription) {
    launchWithTwoUnits();
    clickParameter(UnitParameter::destinationIPAddress, 0);
    for (const char* name :
         {"unitParameterTableView", "editParameterTableView", "unitSelectPopUp"}) {
        EXPECT_EQ(description(name), "") << name;
    }
    click("discoverButton");
    EXPECT_EQ(description("unitSelectPopUp"), "No units listed");
}

TEST_F(MainWindowSpeech, TheFieldOverAValueIsNamedAfterItsParameter) {
    launchWithTwoUnits();
    clickParameter(UnitParameter::devicePortNumber);
    press(Qt::Key_Return);
    auto* const editor =
        control<QTableView>("editParameterTableView").viewport()->findChild<QLineEdit*>();
    ASSERT_NE(editor, nullptr);
    EXPECT_EQ(editor->accessibleName().toStdString(), "device Port number");
}

TEST_F(MainWindowTest, PointingAtRestoreSaysWhomItReachesAndLeavingEndsThat) {
    launchWithTwoUnits();
    const std::string reached = "Resets the unit at 192.168.1.10 to its factory settings.";
    auto& restore = control<QPushButton>("restoreButton");
    QTest::mouseMove(&restore);
    EXPECT_TRUE(QTest::qWaitFor([&] { return quietLine() == reached; })) << quietLine();
    QTest::mouseMove(&control<QWidget>("unitIDField"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return quietLine().empty(); })) << quietLine();
    restore.setFocus(Qt::TabFocusReason);
    EXPECT_EQ(quietLine(), reached);
    control<QPushButton>("reloadButton").setFocus(Qt::TabFocusReason);
    EXPECT_EQ(quietLine(), "Asks the unit at 192.168.1.10 for its parameters.");
    control<QWidget>("unitIDField").setFocus();
    EXPECT_EQ(quietLine(), "");
    emit control<QMenu>("unitMenu").hovered(&control<QAction>("restoreAction"));
    EXPECT_EQ(quietLine(), reached);
    emit control<QMenu>("unitMenu").hovered(&control<QAction>("discoverAction"));
    EXPECT_EQ(quietLine(), "");
}

TEST_F(MainWindowTest, ARestoreThatWasPressedShowsItsOutcomeAlsoUnderTheMouse) {
    launchWithTwoUnits();
    QTest::mouseMove(&control<QWidget>("restoreButton"));
    click("restoreButton");
    EXPECT_EQ(quietLine(),
              "Sent ^^IdZ to the unit at 192.168.1.10. The unit has not answered yet.");
    QTest::mouseMove(&control<QWidget>("unitIDField"));
    QTest::qWait(10);
    EXPECT_EQ(quietLine(),
              "Sent ^^IdZ to the unit at 192.168.1.10. The unit has not answered yet.");
}

TEST_F(MainWindowTest, NoFingerHitsTheKeysOfRestoreByChance) {
    launchWithTwoUnits();
    newlySent();
    press(Qt::Key_Delete, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(newlySent(), std::vector<std::string>{});
    press(Qt::Key_F8, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(newlySent(), std::vector<std::string>{"^^IdZ"});
}

TEST_F(MainWindowTest, EveryButtonSaysWhatItDoesAndByWhichKeys) {
    launchWithTwoUnits();
    for (const auto& [name, keys] :
         {std::pair("discoverButton", "(Ctrl+D)"), std::pair("reloadButton", "(Ctrl+R)"),
          std::pair("applyButton", "(Ctrl+Return)"),
          std::pair("sendOptionButton", "(Ctrl+Shift+Return)"),
          std::pair("restoreButton", "(Ctrl+Shift+F8)"), std::pair("logDrawerButton", "(Ctrl+L)"),
          std::pair("helpButton", "(F1)")}) {
        const auto& button = control<QPushButton>(name);
        EXPECT_TRUE(button.toolTip().contains(keys)) << button.toolTip().toStdString();
        EXPECT_TRUE(button.accessibleDescription().endsWith('.')) << name;
        EXPECT_FALSE(button.accessibleDescription().contains(keys)) << name;
    }
    EXPECT_TRUE(control<QWidget>("editParameterTableView").toolTip().contains("Ctrl+Return"));
}

TEST_F(MainWindowTest, TheInterfacePopUpSaysBeforeAChoiceThatNothingIsChosen) {
    launchWithInterface();
    const auto& popUp = control<QComboBox>("interfacePopUp");
    const QString nothing = "No interface is chosen, so Discover asks 255.255.255.255.";
    EXPECT_EQ(popUp.toolTip(), nothing);
    EXPECT_EQ(popUp.accessibleDescription(), nothing);
    controller.interfaceSelect();
    EXPECT_EQ(popUp.accessibleDescription(),
              "Address 192.168.1.20, mask 255.255.255.0, broadcast address 192.168.1.255. The link "
              "is up.");
}

TEST_F(MainWindowTest, ReturnInTheEditRowSaysWhichKeysApply) {
    launchWithTwoUnits();
    clickParameter(UnitParameter::destinationPortNumber, 0);
    press(Qt::Key_Return); // begins typing
    type("3522");
    newlySent();
    press(Qt::Key_Return);
    EXPECT_EQ(newlySent(), std::vector<std::string>{});
    EXPECT_TRUE(quietLine().ends_with("Return ends the typing; Ctrl+Return applies."))
        << quietLine();
    press(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(newlySent(), std::vector<std::string>{"^^IdT0DC2"});
}

TEST_F(MainWindowTest, ASentenceThatMeansTroubleHasASignAndAWord) {
    launchWithTwoUnits();
    clickParameter(UnitParameter::internalIPAddress);
    auto& line = control<SentenceLabel>("quietLine");
    EXPECT_FALSE(line.meansTrouble());
    EXPECT_EQ(line.spokenText(), line.text());
    controller.editTextDidChange("192.168.1.11");
    EXPECT_TRUE(line.meansTrouble());
    EXPECT_EQ(line.spokenText(), "Attention: " + line.text());
    const QRect sign(0, 0, line.fontMetrics().ascent(), line.fontMetrics().height());
    EXPECT_GE(contrastOfTextIn(line, sign), 4.5);
    controller.editTextDidChange("192.168.1.99");
    EXPECT_FALSE(line.meansTrouble());
    EXPECT_EQ(line.contentsMargins().left(), 0);
}

TEST_F(MainWindowTest, AFieldThatCannotBeEditedHasTheColourOfTheWindow) {
    launchWithTwoUnits();
    auto& readOnly = control<QLineEdit>("unitIDField");
    EXPECT_EQ(backgroundOf(readOnly.grab().toImage()), window.palette().color(QPalette::Window));
    EXPECT_NE(backgroundOf(control<QLineEdit>("optionCommandField").grab().toImage()),
              window.palette().color(QPalette::Window));
}

} // namespace kx
