// The log view as a screen reader sees it.

#include "LogTextViewFixture.h"
#include "ScreenReader.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QTest>
#include <string>
#include <vector>

namespace kx {

namespace {

std::vector<std::string>& announcements() {
    static std::vector<std::string> texts;
    return texts;
}

void recordAnnouncement(QAccessibleEvent* event) {
    if (event->type() == QAccessible::TextInserted) {
        const auto& inserted = static_cast<QAccessibleTextInsertEvent&>(*event);
        announcements().push_back("inserted at " + std::to_string(inserted.changePosition()) +
                                  ": " + utf8Text(inserted.textInserted()));
    } else if (event->type() == QAccessible::TextRemoved) {
        const auto& removed = static_cast<QAccessibleTextRemoveEvent&>(*event);
        announcements().push_back("removed: " + utf8Text(removed.textRemoved()));
    } else if (event->type() == QAccessible::TextSelectionChanged) {
        const auto& selection = static_cast<QAccessibleTextSelectionEvent&>(*event);
        announcements().push_back("selected " + std::to_string(selection.selectionStart()) +
                                  " to " + std::to_string(selection.selectionEnd()));
    }
}

class LogAccessibilityTest : public ::testing::Test {
protected:
    LogAccessibilityTest() {
        view.setAccessibleName("Event log text");
        view.resize(400, 200);
        view.show();
        view.setText(LogText("Ä😀 one\ntwo words\nthree"));
    }

    QAccessibleInterface& accessible() { return *QAccessible::queryAccessibleInterface(&view); }
    QAccessibleTextInterface& text() { return *accessible().textInterface(); }

    LogTextView view;
};

} // namespace

TEST_F(LogAccessibilityTest, IsATextToReadUnderItsName) {
    EXPECT_EQ(accessible().role(), QAccessible::EditableText);
    EXPECT_TRUE(accessible().state().readOnly);
    EXPECT_TRUE(accessible().state().multiLine);
    EXPECT_TRUE(accessible().state().focusable);
    EXPECT_EQ(utf8Text(accessible().text(QAccessible::Name)), "Event log text");
    EXPECT_EQ(accessible().text(QAccessible::Value), view.toPlainText());
    EXPECT_EQ(accessible().editableTextInterface(), nullptr);
}

TEST_F(LogAccessibilityTest, GivesEveryPartOfTheText) {
    EXPECT_EQ(text().characterCount(), view.toPlainText().size());
    EXPECT_EQ(utf8Text(text().text(0, 3)), "Ä😀");
    EXPECT_EQ(utf8Text(text().text(8, 100)), "two words\nthree");
}

TEST_F(LogAccessibilityTest, GivesTextByLineWordAndCharacter) {
    int start = 0;
    int end = 0;
    EXPECT_EQ(utf8Text(text().textAtOffset(10, QAccessible::LineBoundary, &start, &end)),
              "two words\n");
    EXPECT_EQ(start, 8);
    EXPECT_EQ(end, 18);
    EXPECT_EQ(utf8Text(text().textBeforeOffset(10, QAccessible::LineBoundary, &start, &end)),
              "Ä😀 one\n");
    EXPECT_EQ(utf8Text(text().textAfterOffset(10, QAccessible::LineBoundary, &start, &end)),
              "three");
    EXPECT_EQ(utf8Text(text().textAtOffset(13, QAccessible::WordBoundary, &start, &end)), "words");
    EXPECT_EQ(utf8Text(text().textAtOffset(1, QAccessible::CharBoundary, &start, &end)), "😀");
    EXPECT_EQ(end, 3);
    EXPECT_EQ(text().textAtOffset(1, QAccessible::NoBoundary, &start, &end), view.toPlainText());
    EXPECT_EQ(text().textAfterOffset(20, QAccessible::LineBoundary, &start, &end), "");
    EXPECT_EQ(start, -1);
    EXPECT_EQ(text().textBeforeOffset(0, QAccessible::WordBoundary, &start, &end), "");
}

TEST_F(LogAccessibilityTest, SelectsAndMovesTheCaret) {
    EXPECT_EQ(text().selectionCount(), 0);
    text().setSelection(0, 8, 11);
    EXPECT_EQ(utf8Text(view.selectedText()), "two");
    int start = 0;
    int end = 0;
    text().selection(0, &start, &end);
    EXPECT_EQ(start, 8);
    EXPECT_EQ(end, 11);
    EXPECT_EQ(text().cursorPosition(), 11);
    text().removeSelection(0);
    EXPECT_EQ(text().selectionCount(), 0);
    text().setCursorPosition(1000);
    EXPECT_EQ(view.caret(), view.text().size());
}

TEST_F(LogAccessibilityTest, KnowsWhereOnTheScreenALetterIs) {
    const QRect place = text().characterRect(9);
    EXPECT_TRUE(view.rect().translated(view.mapToGlobal(QPoint())).contains(place));
    EXPECT_EQ(text().offsetAtPoint({place.left() + 1, place.center().y()}), 9);
}

TEST_F(LogAccessibilityTest, AnnouncesWhatAFrameAddedWhileAScreenReaderListens) {
    announcements().clear();
    const ScreenReader listening(&recordAnnouncement);
    view.append("\nfour");
    view.append(" and five");
    EXPECT_TRUE(QTest::qWaitFor([] { return !announcements().empty(); }));
    view.select(0, 1);
    view.setText(LogText("new"));
    EXPECT_EQ(announcements(), (std::vector<std::string>{
                                   "inserted at 23: \nfour and five",
                                   "selected 0 to 1",
                                   "removed: Ä😀 one\ntwo words\nthree\nfour and five",
                                   "inserted at 0: new",
                               }));
}

TEST_F(LogAccessibilityTest, AnnouncesTheOldestLinesThatGoAndTheLineInTheirPlace) {
    LogText limited;
    limited.setLimit(131'072, "Older lines are gone.");
    limited.append(numberedLines(12'000));
    view.setText(limited);
    announcements().clear();
    const ScreenReader listening(&recordAnnouncement);
    view.append("\n" + numberedLines(7000));
    ASSERT_GE(announcements().size(), 2U);
    EXPECT_EQ(announcements()[0].substr(0, 23), "removed: line 0\nline 1\n");
    EXPECT_EQ(announcements()[1], "inserted at 0: Older lines are gone.\n");
}

} // namespace kx
