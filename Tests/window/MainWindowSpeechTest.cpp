// The texts that a screen reader says while the keyboard is at another place, and its descriptions
// of empty controls.

#include "MainWindowFixture.h"
#include "ScreenReader.h"
#include "platform/qt/AnnouncedLabel.h"

#include <QAccessible>

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
              "No unit is selected: Restore Defaults, like Reload, reaches every unit that hears "
              "it. Not sent: No unit is selected.");
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
    for (const char* name : {"unitParameterTableView", "editParameterTableView", "unitSelectPopUp",
                             "interfacePopUp"}) {
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

} // namespace kx
