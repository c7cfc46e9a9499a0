// Editing a parameter with mouse and keyboard: the edit row, Apply, the quiet line and the alert.

#include "MainWindowFixture.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QTimer>

namespace kx {

namespace {

using Texts = std::vector<std::string>;

class MainWindowApply : public MainWindowTest {
protected:
    // Opens the editor of a parameter's value and types into it.
    void typeInstead(UnitParameter parameter, const char* text) {
        clickParameter(parameter);
        press(Qt::Key_Return);
        ASSERT_NE(editor(), nullptr);
        type(text);
    }

    QLineEdit* editor() {
        auto* const found =
            control<QTableView>("editParameterTableView").viewport()->findChild<QLineEdit*>();
        return found != nullptr && found->isVisible() ? found : nullptr;
    }

    bool editorCloses() {
        return QTest::qWaitFor([this] { return editor() == nullptr; });
    }

    std::string editedValue() { return cell("editParameterTableView", 0, 1); }
};

} // namespace

TEST_F(MainWindowApply, AClickOnApplySendsTheEditRowsValue) {
    launchWithTwoUnits();
    clickParameter(UnitParameter::devicePortNumber);
    newlySent();
    click("applyButton");
    EXPECT_EQ(newlySent(), Texts{"^^IdP2710"});
}

TEST_F(MainWindowApply, ApplyWithAnOpenEditSendsWhatWasTyped) {
    launchWithTwoUnits();
    typeInstead(UnitParameter::devicePortNumber, "10001");
    newlySent();
    click("applyButton");
    EXPECT_EQ(newlySent(), Texts{"^^IdP2711"});
    EXPECT_EQ(editedValue(), "10001");
    EXPECT_EQ(editor(), nullptr);
}

TEST_F(MainWindowApply, TheShortcutAppliesOutOfAnOpenEdit) {
    launchWithTwoUnits();
    typeInstead(UnitParameter::devicePortNumber, "10001");
    newlySent();
    press(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(newlySent(), Texts{"^^IdP2711"});
    EXPECT_EQ(quietLine(), "Sent ^^IdP2711. The unit has not answered yet.");
    EXPECT_EQ(window.focusWidget(), &control<QWidget>("editParameterTableView"));
    EXPECT_TRUE(editorCloses());
    press(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(newlySent(), Texts{"^^IdP2711"});
}

TEST_F(MainWindowApply, TheMenuAppliesToo) {
    launchWithTwoUnits();
    clickParameter(UnitParameter::unitID);
    newlySent();
    control<QAction>("applyAction").trigger();
    EXPECT_EQ(newlySent(), Texts{"^^IdU00000000002A"});
}

TEST_F(MainWindowApply, TheKeyboardAloneLeadsFromTheRowToApply) {
    launchWithTwoUnits();
    control<QWidget>("unitParameterTableView").setFocus();
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    ASSERT_EQ(cell("editParameterTableView", 0, 0), "destination Port number");
    press(Qt::Key_Return);
    type("3521");
    press(Qt::Key_Return);
    ASSERT_TRUE(editorCloses());
    EXPECT_EQ(editedValue(), "3521");
    newlySent();
    press(Qt::Key_Tab);
    EXPECT_EQ(window.focusWidget(), &control<QWidget>("applyButton"));
    press(Qt::Key_Return);
    EXPECT_EQ(newlySent(), Texts{"^^IdT0DC1"});
    press(Qt::Key_Space);
    EXPECT_EQ(newlySent(), Texts{"^^IdT0DC1"});
}

TEST_F(MainWindowApply, TabOutOfAnOpenEditKeepsWhatWasTyped) {
    launchWithTwoUnits();
    typeInstead(UnitParameter::devicePortNumber, "10001");
    newlySent();
    press(Qt::Key_Tab);
    EXPECT_TRUE(editorCloses());
    EXPECT_EQ(editedValue(), "10001");
}

TEST_F(MainWindowApply, ApplyIsNeverDisabled) {
    launch();
    EXPECT_TRUE(control<QPushButton>("applyButton").isEnabled());
    EXPECT_TRUE(control<QAction>("applyAction").isEnabled());
    newlySent();
    click("applyButton");
    EXPECT_EQ(newlySent(), Texts{});
    EXPECT_EQ(quietLine(), "");
}

TEST_F(MainWindowApply, TheQuietLineFollowsEveryKey) {
    launchWithTwoUnits();
    clickParameter(UnitParameter::devicePortNumber);
    EXPECT_EQ(quietLine(), "Apply sends ^^IdP2710: device port 10000.");
    control<QWidget>("editParameterTableView").setFocus();
    type("7"); // opens the editor with this character in it
    EXPECT_EQ(quietLine(), "Apply sends ^^IdP0007: device port 7.");
    type("x");
    EXPECT_EQ(quietLine(),
              "Apply sends ^^IdP0007: device port 7, because that is how “7x” is read.");
    press(Qt::Key_Backspace);
    type("8");
    EXPECT_EQ(quietLine(), "Apply sends ^^IdP004E: device port 78.");
    EXPECT_EQ(editedValue(), "10000");
}

TEST_F(MainWindowApply, AnEditThatIsGivenUpIsForgottenByTheQuietLine) {
    launchWithTwoUnits();
    typeInstead(UnitParameter::devicePortNumber, "1");
    EXPECT_EQ(quietLine(), "Apply sends ^^IdP0001: device port 1.");
    press(Qt::Key_Escape);
    EXPECT_TRUE(editorCloses());
    EXPECT_EQ(quietLine(), "Apply sends ^^IdP2710: device port 10000.");
    newlySent();
    click("applyButton");
    EXPECT_EQ(newlySent(), Texts{"^^IdP2710"});
}

TEST_F(MainWindowApply, AnEditorThatClosesBecauseAnotherCellBecomesCurrentTellsItsOwnCell) {
    launchWithTwoUnits();
    typeInstead(UnitParameter::devicePortNumber, "10001");
    auto& editRow = control<QTableView>("editParameterTableView");
    editRow.setCurrentIndex(editRow.model()->index(0, 0));
    EXPECT_TRUE(editorCloses());
    EXPECT_EQ(editedValue(), "10001");
    EXPECT_EQ(quietLine(), "Apply sends ^^IdP2711: device port 10001.");
}

TEST_F(MainWindowApply, TheQuietLineShowsTheUnitsAnswer) {
    launchWithTwoUnits();
    typeInstead(UnitParameter::destinationPortNumber, "3523");
    click("applyButton");
    SampleUnit changed;
    changed.destinationPort = {0x0D, 0xC3};
    receive(changed.acknowledgement());
    receive(changed.reply());
    EXPECT_EQ(quietLine(), "The unit now shows 3523 as its destination Port number (was 3520).");
    EXPECT_EQ(cell("unitParameterTableView", 2, 1), "3523");
}

TEST_F(MainWindowApply, RefusedRightsAreAModalAlertAndTheCommandIsSent) {
    launchWithTwoUnits();
    authority.answerDialogsWith(errAuthorizationDenied);
    typeInstead(UnitParameter::internalIPAddress, "10.0.0.7");
    newlySent();
    Texts seen;
    QTimer person;
    QObject::connect(&person, &QTimer::timeout, &person, [&] {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box == nullptr || !box->isVisible()) {
            return;
        }
        person.stop();
        seen = {box->windowTitle().toStdString(), box->text().toStdString(),
                box->buttons().constFirst()->text().toStdString()};
        EXPECT_EQ(newlySent(), Texts{});
        QTest::keyClick(box, Qt::Key_Return);
    });
    person.start(std::chrono::milliseconds(1));
    click("applyButton");
    EXPECT_EQ(seen, (Texts{"KXConfig",
                           "Authentication was not completed, some features may not be available.",
                           "OK"}));
    EXPECT_EQ(newlySent(), Texts{"^^IdI0A000007"});
    EXPECT_EQ(quietLine(), "Sent ^^IdI0A000007. The unit has not answered yet. No ARP entry was "
                           "made for 10.0.0.7: administrator rights were not given.");
}

// The window lists the interfaces when it becomes active and had none. Some desktops make it active
// while the alert is open, even if only to pass the keyboard on.
TEST_F(MainWindowApply, WhatTheWindowAsksForWhileTheAlertStandsComesAfterTheAction) {
    launch();
    receive(SampleUnit().reply());
    runLoop.advanceBy(std::chrono::seconds(2));
    ASSERT_FALSE(control<QComboBox>("interfacePopUp").isEnabled());
    authority.answerDialogsWith(errAuthorizationDenied);
    typeInstead(UnitParameter::internalIPAddress, "10.0.0.7");
    Texts shown;
    QTimer person;
    QObject::connect(&person, &QTimer::timeout, &person, [&] {
        QWidget* const box = QApplication::activeModalWidget();
        if (box == nullptr || !box->isActiveWindow()) {
            return;
        }
        person.stop();
        interfaces.addService("Ethernet", "eth0", "192.168.1.20", "255.255.255.0");
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitFor([this] { return window.isActiveWindow(); }));
        shown.push_back(selected("interfacePopUp"));
        QTest::keyClick(box, Qt::Key_Return);
    });
    person.start(std::chrono::milliseconds(1));
    newlySent();
    systemCalls.setObserver([&](const ScriptedSystemCalls::Call& call) {
        if (call.operation == ScriptedSystemCalls::Operation::sendTo) {
            shown.push_back(selected("interfacePopUp"));
        }
    });
    click("applyButton");
    EXPECT_EQ(newlySent(), Texts{"^^IdI0A000007"});
    EXPECT_EQ(shown, (Texts{"No configured interfaces", "No configured interfaces"}));
    EXPECT_EQ(selected("interfacePopUp"), "Ethernet (eth0)");
}

TEST_F(MainWindowApply, NothingOfAnEditReachesAControllerThatWasTakenAway) {
    launchWithTwoUnits();
    typeInstead(UnitParameter::devicePortNumber, "1");
    const std::string before = quietLine();
    newlySent();
    window.disconnectActions();
    type("2");
    click("applyButton");
    EXPECT_EQ(newlySent(), Texts{});
    EXPECT_EQ(quietLine(), before);
}

} // namespace kx
