// The log view: the caret, selecting by mouse and keyboard, copying.

#include "LogTextViewFixture.h"
#include "support/QuotedLines.h"

#include <malloc.h>

#include <QAction>
#include <QContextMenuEvent>
#include <QMenu>
#include <QMimeData>

namespace kx {

using LogSelectionTest = LogTextViewTest;

TEST_F(LogSelectionTest, WhatIsSelectedStaysSelectedWhileTextArrives) {
    view.setText(LogText("[Begin Discover]\nUDP listener did start. "));
    view.select(1, 6);
    showAppended("0.0.0.0:3520");
    EXPECT_EQ(selected(), "Begin");
    view.setText(LogText(""));
    EXPECT_EQ(selected(), "");
    EXPECT_EQ(view.caret(), 0U);
}

TEST_F(LogSelectionTest, DraggingSelectsFromLetterToLetter) {
    view.setText(LogText("one two\nthree four"));
    drag(leftOf(4), leftOf(8 + 5));
    EXPECT_EQ(selected(), "two\nthree");
    drag(leftOf(8 + 5), leftOf(4));
    EXPECT_EQ(selected(), "two\nthree");
    clickAt(2);
    EXPECT_EQ(selected(), "");
    EXPECT_EQ(view.caret(), 2U);
}

TEST_F(LogSelectionTest, AClickWithShiftExtendsTheSelection) {
    view.setText(LogText("one two three"));
    clickAt(4);
    clickAt(7, Qt::ShiftModifier);
    EXPECT_EQ(selected(), "two");
    clickAt(0, Qt::ShiftModifier);
    EXPECT_EQ(selected(), "one ");
}

TEST_F(LogSelectionTest, ADoubleClickSelectsTheWordBelowThePointer) {
    view.setText(LogText("Reply of 192.168.1.10: ok"));
    const QRect lastLetter = view.rectOf(4);
    QTest::mouseDClick(view.viewport(), Qt::LeftButton, Qt::NoModifier,
                       {lastLetter.right() - 1, lastLetter.center().y()});
    EXPECT_EQ(selected(), "Reply");
    moveTo(pointAt(7));
    EXPECT_EQ(selected(), "Reply of");
}

TEST_F(LogSelectionTest, ATripleClickSelectsTheLine) {
    view.setText(LogText("one\ntwo words\nthree"));
    QTest::mouseDClick(view.viewport(), Qt::LeftButton, Qt::NoModifier, pointAt(6));
    QTest::mousePress(view.viewport(), Qt::LeftButton, Qt::NoModifier, pointAt(6));
    EXPECT_EQ(selected(), "two words\n");
    moveTo(pointAt(16));
    EXPECT_EQ(selected(), "two words\nthree");
}

TEST_F(LogSelectionTest, ADragHeldBelowScrollsOn) {
    view.setText(LogText(numberedLines(500)));
    QTest::mousePress(view.viewport(), Qt::LeftButton, Qt::NoModifier, leftOf(0));
    moveTo({5, view.viewport()->height() + 10});
    EXPECT_TRUE(QTest::qWaitFor([this] { return firstRow() > 5; }));
    QTest::mouseRelease(view.viewport(), Qt::LeftButton, Qt::NoModifier, {5, 5});
    const int stopped = firstRow();
    QTest::qWait(100);
    EXPECT_EQ(firstRow(), stopped);
    EXPECT_GT(view.text().rowAt(view.caret()), static_cast<std::size_t>(linesInSight()));
}

TEST_F(LogSelectionTest, ADragGoesOnHarmlesslyWhenTheTextIsReplaced) {
    view.setText(LogText(numberedLines(500)));
    QTest::mousePress(view.viewport(), Qt::LeftButton, Qt::NoModifier, leftOf(40));
    moveTo(leftOf(60));
    view.setText(LogText("short"));
    moveTo({300, 150});
    EXPECT_EQ(selected(), "short");
}

TEST_F(LogSelectionTest, KeysMoveTheCaretAndShiftSelects) {
    view.setText(LogText("one two\nthree\n\nfour"));
    press(Qt::Key_Right);
    EXPECT_EQ(view.caret(), 1U);
    press(Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(view.caret(), 4U);
    press(Qt::Key_End, Qt::ShiftModifier);
    EXPECT_EQ(selected(), "two");
    press(Qt::Key_Right);
    EXPECT_EQ(view.caret(), 8U);
    press(Qt::Key_Left);
    EXPECT_EQ(view.caret(), 7U);
    press(Qt::Key_Down);
    EXPECT_EQ(view.caret(), 13U);
    press(Qt::Key_Down);
    EXPECT_EQ(view.caret(), 14U);
    press(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(selected(), "\nfour"); // the caret keeps its column
    press(Qt::Key_Home, Qt::ControlModifier);
    EXPECT_EQ(view.caret(), 0U);
    press(Qt::Key_End, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(selected(), "one two\nthree\n\nfour");
    press(Qt::Key_Left, Qt::ControlModifier);
    EXPECT_EQ(view.caret(), 15U);
    press(Qt::Key_Home);
    press(Qt::Key_Up);
    EXPECT_EQ(view.caret(), 14U);
}

TEST_F(LogSelectionTest, KeysStopAtBothEnds) {
    view.setText(LogText("one\ntwo"));
    for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Up, Qt::Key_Home, Qt::Key_PageUp}) {
        press(key);
        EXPECT_EQ(view.caret(), 0U);
    }
    press(Qt::Key_End, Qt::ControlModifier);
    for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Down, Qt::Key_End, Qt::Key_PageDown}) {
        press(key);
        EXPECT_EQ(view.caret(), 7U);
    }
}

TEST_F(LogSelectionTest, PageKeysScrollByWhatIsInSight) {
    view.setText(LogText(numberedLines(500)));
    press(Qt::Key_PageDown);
    EXPECT_EQ(firstRow(), linesInSight() - 1);
    EXPECT_EQ(view.text().rowAt(view.caret()), static_cast<std::size_t>(linesInSight() - 1));
    press(Qt::Key_PageUp);
    EXPECT_EQ(firstRow(), 0);
    EXPECT_EQ(view.caret(), 0U);
}

TEST_F(LogSelectionTest, KeysGoOnFromWhatIsInSight) {
    showAppended(numberedLines(500));
    press(Qt::Key_Up);
    EXPECT_EQ(view.text().rowAt(view.caret()), static_cast<std::size_t>(500 - linesInSight() - 1));
    view.verticalScrollBar()->setValue(100);
    press(Qt::Key_Down);
    EXPECT_EQ(firstRow(), 101);
}

TEST_F(LogSelectionTest, CopiesWhatIsSelectedAndNothingElse) {
    view.setText(LogText("one\ntwo 网路😀\tthree"));
    QGuiApplication::clipboard()->setText("before");
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboard(), "before");
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboard(), "one\ntwo 网路😀\tthree");
}

TEST_F(LogSelectionTest, WhatIsCopiedIsWhatTheScreenShows) {
    view.setText(LogText("V\r\n\x1B[31mred\u009B0m" + quotedLines("\nforged") + "\u202E\u200Bx"));
    view.selectAll();
    EXPECT_EQ(selected(), "V \n\uFFFD[31mred\uFFFD0m\uFFFDforged\uFFFD\uFFFDx");
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboard(), selected());
    EXPECT_EQ(utf8Text(view.toPlainText()), selected());
    view.select(3, 8);
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboard(), "\uFFFD[31m");
}

TEST_F(LogSelectionTest, WhatWasCopiedStaysWhateverTheLogDoes) {
    view.setText(LogText("before\n" + std::string(200'000, 'x') + "\nafter"));
    view.select(0, 6);
    press(Qt::Key_C, Qt::ControlModifier);
    view.setText(LogText("another"));
    EXPECT_EQ(clipboard(), "before");
    view.append("\nmore");
    view.selectAll();
    press(Qt::Key_C, Qt::ControlModifier);
    view.append("\nand more");
    EXPECT_EQ(clipboard(), "another\nmore");
}

// The number of bytes that the process holds in blocks of any kind.
std::size_t bytesHeld() {
    const struct mallinfo2 blocks = ::mallinfo2();
    return blocks.uordblks + blocks.hblkhd;
}

TEST_F(LogSelectionTest, SelectingAndCopyingALongLogTakesNoMemoryUntilSomebodyPastes) {
    constexpr std::size_t length = std::size_t{32} * 1024 * 1024;
    LogText text;
    while (text.size() < length) {
        text.append("\nUDP listener did receive data. Length: 81" + std::string(60, 'x'));
    }
    view.setText(text);
    QGuiApplication::clipboard()->clear();
    [[maybe_unused]] const std::size_t before = bytesHeld();
    view.selectAll();
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_TRUE(QGuiApplication::clipboard()->mimeData()->hasText());
#ifndef KX_SANITIZED // the sanitizers have an allocator of their own
    EXPECT_LT(bytesHeld(), before + length / 16);
#endif
    const QString pasted = QGuiApplication::clipboard()->text();
    EXPECT_EQ(pasted.size(), static_cast<qsizetype>(text.size()));
#ifndef KX_SANITIZED
    EXPECT_GT(bytesHeld(), before + length) << "this measures what it says";
#endif
}

TEST_F(LogSelectionTest, CannotBeChangedByTyping) {
    view.setText(LogText("as it was"));
    view.selectAll();
    QTest::keyClicks(&view, "typed");
    for (const Qt::Key key : {Qt::Key_Delete, Qt::Key_Backspace, Qt::Key_Return}) {
        press(key);
    }
    press(Qt::Key_V, Qt::ControlModifier);
    press(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(view.toPlainText(), "as it was");
}

TEST_F(LogSelectionTest, TheContextMenuOffersToCopyAndToSelectAll) {
    view.setText(LogText("one two"));
    QAction extra("Find");
    view.addAction(&extra);
    const auto openMenu = [this] {
        QContextMenuEvent event(QContextMenuEvent::Mouse, {5, 5},
                                view.viewport()->mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(view.viewport(), &event);
        return qobject_cast<QMenu*>(QApplication::activePopupWidget());
    };
    QMenu* menu = openMenu();
    ASSERT_NE(menu, nullptr);
    ASSERT_EQ(menu->actions().size(), 4);
    EXPECT_FALSE(menu->actions()[0]->isEnabled());
    EXPECT_EQ(menu->actions()[3], &extra);
    menu->actions()[1]->trigger();
    menu->close();
    EXPECT_EQ(selected(), "one two");
    menu = openMenu();
    ASSERT_NE(menu, nullptr);
    EXPECT_TRUE(menu->actions()[0]->isEnabled());
    menu->actions()[0]->trigger();
    menu->close();
    EXPECT_EQ(clipboard(), "one two");
}

TEST_F(LogSelectionTest, AVeryLongLineIsShownSelectedAndCopiedWhole) {
    const std::string line(200'000, 'x');
    showAppended("before\n" + line + "\nafter");
    press(Qt::Key_Home, Qt::ControlModifier);
    QTest::mouseDClick(view.viewport(), Qt::LeftButton, Qt::NoModifier, pointAt(20));
    QTest::mousePress(view.viewport(), Qt::LeftButton, Qt::NoModifier, pointAt(20));
    EXPECT_EQ(selected(), line + "\n");
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboard(), line + "\n");
    press(Qt::Key_End);
    EXPECT_FALSE(view.grab().isNull());
}

TEST_F(LogSelectionTest, MovesOverWholeLettersOfEveryScript) {
    view.setText(LogText("a\u0308網😀e"));
    for (const std::size_t position : {3U, 6U, 10U, 11U}) {
        press(Qt::Key_Right);
        EXPECT_EQ(view.caret(), position);
    }
    for (const std::size_t position : {10U, 6U, 3U, 0U}) {
        press(Qt::Key_Left);
        EXPECT_EQ(view.caret(), position);
    }
}

} // namespace kx
