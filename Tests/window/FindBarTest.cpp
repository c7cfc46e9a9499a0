// Finding a text in the log, in the real window.

#include "platform/qt/FindBar.h"

#include "MainWindowFixture.h"
#include "platform/qt/QtText.h"

namespace kx {

namespace {

class FindBarTest : public MainWindowTest {
protected:
    void launchWithLog() {
        launch();
        controller.appendString("\nReply one\nreply two\nREPLY three");
        press(Qt::Key_F, Qt::ControlModifier);
        ASSERT_TRUE(drawerComesToRest());
    }

    FindBar& bar() { return control<FindBar>("logFindBar"); }
    LogTextView& log() { return control<LogTextView>("logTextView"); }
    // The line of the log that contains the selection.
    std::string selectedIn() {
        const LogText& text = log().text();
        return "'" + utf8Text(log().selectedText()) + "' in '" +
               std::string(text.row(text.rowAt(log().selection().from)).text) + "'";
    }
    std::string result() { return control<QLabel>("logFindResult").text().toStdString(); }
};

} // namespace

TEST_F(FindBarTest, TheShortcutOpensTheDrawerAndTheBar) {
    launch();
    EXPECT_FALSE(bar().isVisible());
    press(Qt::Key_F, Qt::ControlModifier);
    ASSERT_TRUE(drawerComesToRest());
    EXPECT_EQ(window.outlets().eventLogDrawer->state(), DrawerState::open);
    EXPECT_TRUE(bar().isVisible());
    EXPECT_EQ(window.focusWidget()->objectName(), "logFindField");
}

TEST_F(FindBarTest, FindsWhileOneTypes) {
    launchWithLog();
    type("rep");
    EXPECT_EQ(selectedIn(), "'Rep' in 'Reply one'");
    type("ly t");
    EXPECT_EQ(selectedIn(), "'reply t' in 'reply two'");
    type("wx");
    EXPECT_EQ(result(), "Not found");
    EXPECT_EQ(selectedIn(), "'reply tw' in 'reply two'");
}

TEST_F(FindBarTest, ReturnAndF3GoOnAndRoundTheEnd) {
    launchWithLog();
    newlySent();
    type("reply");
    press(Qt::Key_Return);
    EXPECT_EQ(selectedIn(), "'reply' in 'reply two'");
    press(Qt::Key_F3);
    EXPECT_EQ(selectedIn(), "'REPLY' in 'REPLY three'");
    EXPECT_EQ(result(), "3 matches");
    press(Qt::Key_F3);
    EXPECT_EQ(selectedIn(), "'Reply' in 'Reply one'");
    EXPECT_EQ(result(), "From the beginning – 3 matches");
    press(Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(selectedIn(), "'REPLY' in 'REPLY three'");
    EXPECT_EQ(result(), "From the end – 3 matches");
    press(Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(selectedIn(), "'reply' in 'reply two'");
    EXPECT_EQ(result(), "3 matches");
    EXPECT_TRUE(newlySent().empty()); // Return must not press a button behind the bar
}

TEST_F(FindBarTest, TellsHowManyMatchesThereAreAlsoWhenTheLogGrows) {
    launchWithLog();
    type("two");
    EXPECT_EQ(result(), "1 match");
    controller.appendString("\ntwo and two");
    ASSERT_TRUE(QTest::qWaitFor([this] { return log().showsEnd(); }));
    press(Qt::Key_F3);
    EXPECT_EQ(result(), "3 matches");
    for (int line = 0; line < 1000; ++line) {
        controller.appendString("\ntwo");
    }
    press(Qt::Key_F3);
    EXPECT_EQ(result(), "1000 matches or more");
}

TEST_F(FindBarTest, TheButtonsDoTheSame) {
    launchWithLog();
    type("reply");
    QTest::mouseClick(&control<QWidget>("logFindNextButton"), Qt::LeftButton);
    EXPECT_EQ(selectedIn(), "'reply' in 'reply two'");
    QTest::mouseClick(&control<QWidget>("logFindPreviousButton"), Qt::LeftButton);
    EXPECT_EQ(selectedIn(), "'Reply' in 'Reply one'");
    QTest::mouseClick(&control<QWidget>("logFindCloseButton"), Qt::LeftButton);
    EXPECT_FALSE(bar().isVisible());
}

TEST_F(FindBarTest, EscapeClosesTheBarFromTheFieldAndFromTheLog) {
    launchWithLog();
    press(Qt::Key_Escape);
    EXPECT_FALSE(bar().isVisible());
    EXPECT_EQ(window.focusWidget(), &log());
    press(Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(bar().isVisible());
    log().setFocus();
    press(Qt::Key_Escape);
    EXPECT_FALSE(bar().isVisible());
}

TEST_F(FindBarTest, WhatIsSelectedIsSoughtWhenTheBarOpens) {
    launchWithLog();
    press(Qt::Key_Escape);
    const auto match = log().toPlainText().indexOf("two");
    log().select(static_cast<std::size_t>(match), static_cast<std::size_t>(match) + 3);
    press(Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(control<QLineEdit>("logFindField").text(), "two");
}

TEST_F(FindBarTest, WithNothingToLookForF3OpensTheBar) {
    launch();
    press(Qt::Key_F3);
    ASSERT_TRUE(drawerComesToRest());
    EXPECT_TRUE(bar().isVisible());
}

TEST_F(FindBarTest, AnEmptiedFieldSelectsNothing) {
    launchWithLog();
    type("r");
    press(Qt::Key_Backspace);
    EXPECT_EQ(log().selectedText(), "");
    EXPECT_EQ(result(), "");
}

TEST_F(FindBarTest, TheMatchComesIntoSight) {
    launchWithLog();
    for (int line = 0; line < 500; ++line) {
        controller.appendString("\nUDP server did send data.");
    }
    ASSERT_TRUE(QTest::qWaitFor([this] { return log().showsEnd(); }));
    type("reply two");
    EXPECT_TRUE(log().rectOf(log().selection().from).isValid());
}

TEST_F(FindBarTest, ClosingTheDrawerTakesTheKeyboardOutOfTheBar) {
    launchWithLog();
    press(Qt::Key_L, Qt::ControlModifier);
    ASSERT_TRUE(drawerComesToRest());
    EXPECT_EQ(window.focusWidget(), &control<QWidget>("logDrawerButton"));
}

} // namespace kx
