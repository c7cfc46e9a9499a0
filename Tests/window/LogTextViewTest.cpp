// The log view: frames, scrolling, selecting, copying.

#include "platform/qt/LogTextView.h"

#include "platform/qt/QtText.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QFontInfo>
#include <QMenu>
#include <QScrollBar>
#include <QTest>
#include <string>

namespace kx {

namespace {

std::string numberedLines(int count) {
    std::string text;
    for (int line = 0; line < count; ++line) {
        text += (line == 0 ? "line " : "\nline ") + std::to_string(line);
    }
    return text;
}

// Sets the application's palette back when the test is over.
class Palette {
public:
    explicit Palette(const QPalette& palette) { QApplication::setPalette(palette); }
    ~Palette() { QApplication::setPalette(_before); }
    Palette(const Palette&) = delete;
    Palette& operator=(const Palette&) = delete;

private:
    QPalette _before = QApplication::palette();
};

bool hasColor(const QImage& picture, const QColor& color) {
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixelColor(x, y) == color) {
                return true;
            }
        }
    }
    return false;
}

class LogTextViewTest : public ::testing::Test {
protected:
    LogTextViewTest() {
        view.resize(400, 200);
        view.show();
        view.setFocus();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&view));
    }

    void showAppended(std::string_view text) {
        view.append(text);
        view.scrollToEnd();
        EXPECT_TRUE(QTest::qWaitFor([this] { return view.showsEnd(); }));
    }

    QPoint pointAt(std::size_t position) const { return view.rectOf(position).center(); }
    QPoint leftOf(std::size_t position) const {
        const QRect place = view.rectOf(position);
        return {place.left() + 1, place.center().y()};
    }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(&view, key, modifiers);
    }
    void clickAt(std::size_t position, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::mouseClick(view.viewport(), Qt::LeftButton, modifiers, leftOf(position));
    }
    void moveTo(QPoint point) {
        const QPoint global = view.viewport()->mapToGlobal(point);
        QMouseEvent move(QEvent::MouseMove, point, global, Qt::NoButton, Qt::LeftButton,
                         Qt::NoModifier);
        QApplication::sendEvent(view.viewport(), &move);
    }
    void drag(QPoint from, QPoint to) {
        QTest::mousePress(view.viewport(), Qt::LeftButton, Qt::NoModifier, from);
        moveTo(to);
        QTest::mouseRelease(view.viewport(), Qt::LeftButton, Qt::NoModifier, to);
    }

    std::string selected() const { return utf8Text(view.selectedText()); }
    std::string clipboard() const { return utf8Text(QGuiApplication::clipboard()->text()); }
    int firstRow() const { return view.verticalScrollBar()->value(); }
    int linesInSight() const { return view.linesInSight(); }

    LogTextView view;
};

} // namespace

TEST_F(LogTextViewTest, UsesAFixedWidthFont) {
    EXPECT_TRUE(QFontInfo(view.font()).fixedPitch());
}

TEST_F(LogTextViewTest, WhoReadsTheTextReadsWhatNoFrameHasShownYet) {
    view.append("\nfirst");
    view.append("\nsecond");
    EXPECT_EQ(utf8Text(view.toPlainText()), "\nfirst\nsecond");
    EXPECT_EQ(view.property("plainText").toString(), view.toPlainText());
}

TEST_F(LogTextViewTest, AnAppendIsOnTheScreenAFrameLater) {
    const QImage empty = view.viewport()->grab().toImage();
    view.append("shown");
    EXPECT_TRUE(QTest::qWaitFor([&] { return view.viewport()->grab().toImage() != empty; }));
}

TEST_F(LogTextViewTest, ManyAppendsInOneTurnAreOneFrame) {
    int frames = 0; // each gives the scroll bar another reach
    QObject::connect(view.verticalScrollBar(), &QScrollBar::rangeChanged, [&] { ++frames; });
    for (int line = 0; line < 10'000; ++line) {
        view.append("\nUDP listener did receive data. Length: 81");
        view.scrollToEnd();
    }
    EXPECT_EQ(frames, 0);
    EXPECT_TRUE(QTest::qWaitFor([this] { return view.showsEnd(); }));
    EXPECT_EQ(frames, 1);
    EXPECT_EQ(firstRow(), 10'001 - linesInSight());
}

TEST_F(LogTextViewTest, AtRestNothingWakesUp) {
    class TimerCount final : public QObject {
    public:
        bool eventFilter(QObject* /*watched*/, QEvent* event) override {
            events += event->type() == QEvent::Timer ? 1 : 0;
            return false;
        }
        int events = 0;
    };
    TimerCount timers;
    view.installEventFilter(&timers);
    showAppended(numberedLines(500));
    EXPECT_GT(timers.events, 0);
    timers.events = 0;
    QTest::qWait(200);
    EXPECT_EQ(timers.events, 0);
}

TEST_F(LogTextViewTest, SettingTheTextShowsItsBeginningAtOnce) {
    showAppended(numberedLines(500));
    EXPECT_GT(firstRow(), 0);
    view.setText(numberedLines(300));
    EXPECT_EQ(firstRow(), 0);
    EXPECT_EQ(view.verticalScrollBar()->maximum(), 300 - linesInSight());
    view.setText("");
    EXPECT_EQ(view.verticalScrollBar()->maximum(), 0);
    EXPECT_EQ(view.toPlainText(), "");
}

TEST_F(LogTextViewTest, AnAppendShowsTheEndAlsoAfterTheUserHasScrolledUp) {
    showAppended(numberedLines(500));
    view.verticalScrollBar()->setValue(10);
    showAppended("\nnew");
    EXPECT_EQ(firstRow(), 501 - linesInSight());
}

TEST_F(LogTextViewTest, TheEndStaysInSightWhenTheViewIsResized) {
    showAppended(numberedLines(500));
    view.resize(400, 100);
    EXPECT_TRUE(view.showsEnd());
    view.resize(400, 300);
    EXPECT_TRUE(view.showsEnd());
    view.verticalScrollBar()->setValue(10);
    view.resize(400, 200);
    EXPECT_EQ(firstRow(), 10);
}

TEST_F(LogTextViewTest, ALineTooLongForTheViewGoesOnBelow) {
    view.setText(std::string(120, 'x') + " y\nnext");
    EXPECT_LE(view.rectOf(119).right(), view.viewport()->width());
    EXPECT_GT(view.rectOf(119).top(), view.rectOf(0).top());
    EXPECT_GT(view.rectOf(123).top(), view.rectOf(121).top());
    const QRect before = view.rectOf(123);
    view.resize(300, 200);
    EXPECT_GT(view.rectOf(123).top(), before.top());
    EXPECT_EQ(view.horizontalScrollBar()->maximum(), 0);
}

TEST_F(LogTextViewTest, TheEndOfALongLastLineComesIntoSight) {
    showAppended(numberedLines(100) + "\n" + std::string(LogText::longestRow - 2, 'x'));
    EXPECT_TRUE(view.viewport()->rect().contains(view.rectOf(view.text().size())));
    showAppended(std::string(3 * LogText::longestRow, 'y'));
    EXPECT_TRUE(view.viewport()->rect().contains(view.rectOf(view.text().size())));
}

TEST_F(LogTextViewTest, EveryPartOfALineHigherThanTheViewCanBeReached) {
    view.setText(std::string(LogText::longestRow, 'x'));
    EXPECT_GT(view.verticalScrollBar()->maximum(), 0);
    EXPECT_FALSE(view.showsEnd());
    for (int step = 0; !view.showsEnd() && step < 100; ++step) {
        QWheelEvent turn(QPointF(5, 5), view.mapToGlobal(QPointF(5, 5)), {}, {0, -120},
                         Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(view.viewport(), &turn);
    }
    EXPECT_TRUE(view.showsEnd());
    press(Qt::Key_Home, Qt::ControlModifier);
    for (int step = 0; !view.showsEnd() && step < 100; ++step) {
        press(Qt::Key_Down);
    }
    EXPECT_TRUE(view.showsEnd());
    view.verticalScrollBar()->setValue(0);
    EXPECT_EQ(view.positionAt({0, 0}), 0U);
    view.verticalScrollBar()->setValue(view.verticalScrollBar()->maximum());
    EXPECT_TRUE(view.showsEnd());
}

TEST_F(LogTextViewTest, TheWheelScrollsByLines) {
    view.setText(numberedLines(500));
    const auto turn = [this](int angle) {
        QWheelEvent event(QPointF(5, 5), view.mapToGlobal(QPointF(5, 5)), {}, {0, angle},
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(view.viewport(), &event);
    };
    turn(-240);
    EXPECT_EQ(firstRow(), 2 * QApplication::wheelScrollLines());
    turn(120);
    EXPECT_EQ(firstRow(), QApplication::wheelScrollLines());
    turn(12'000);
    EXPECT_EQ(firstRow(), 0);
}

TEST_F(LogTextViewTest, WhatIsSelectedStaysSelectedWhileTextArrives) {
    view.setText("[Begin Discover]\nUDP listener did start. ");
    view.select(1, 6);
    showAppended("0.0.0.0:3520");
    EXPECT_EQ(selected(), "Begin");
    view.setText("");
    EXPECT_EQ(selected(), "");
    EXPECT_EQ(view.caret(), 0U);
}

TEST_F(LogTextViewTest, DraggingSelectsFromLetterToLetter) {
    view.setText("one two\nthree four");
    drag(leftOf(4), leftOf(8 + 5));
    EXPECT_EQ(selected(), "two\nthree");
    drag(leftOf(8 + 5), leftOf(4));
    EXPECT_EQ(selected(), "two\nthree");
    clickAt(2);
    EXPECT_EQ(selected(), "");
    EXPECT_EQ(view.caret(), 2U);
}

TEST_F(LogTextViewTest, AClickWithShiftExtendsTheSelection) {
    view.setText("one two three");
    clickAt(4);
    clickAt(7, Qt::ShiftModifier);
    EXPECT_EQ(selected(), "two");
    clickAt(0, Qt::ShiftModifier);
    EXPECT_EQ(selected(), "one ");
}

TEST_F(LogTextViewTest, ADoubleClickSelectsTheWordBelowThePointer) {
    view.setText("Reply of 192.168.1.10: ok");
    const QRect lastLetter = view.rectOf(4);
    QTest::mouseDClick(view.viewport(), Qt::LeftButton, Qt::NoModifier,
                       {lastLetter.right() - 1, lastLetter.center().y()});
    EXPECT_EQ(selected(), "Reply");
    moveTo(pointAt(7));
    EXPECT_EQ(selected(), "Reply of");
}

TEST_F(LogTextViewTest, ATripleClickSelectsTheLine) {
    view.setText("one\ntwo words\nthree");
    QTest::mouseDClick(view.viewport(), Qt::LeftButton, Qt::NoModifier, pointAt(6));
    QTest::mousePress(view.viewport(), Qt::LeftButton, Qt::NoModifier, pointAt(6));
    EXPECT_EQ(selected(), "two words\n");
    moveTo(pointAt(16));
    EXPECT_EQ(selected(), "two words\nthree");
}

TEST_F(LogTextViewTest, ADragHeldBelowScrollsOn) {
    view.setText(numberedLines(500));
    QTest::mousePress(view.viewport(), Qt::LeftButton, Qt::NoModifier, leftOf(0));
    moveTo({5, view.viewport()->height() + 10});
    EXPECT_TRUE(QTest::qWaitFor([this] { return firstRow() > 5; }));
    QTest::mouseRelease(view.viewport(), Qt::LeftButton, Qt::NoModifier, {5, 5});
    const int stopped = firstRow();
    QTest::qWait(100);
    EXPECT_EQ(firstRow(), stopped);
    EXPECT_GT(view.text().rowAt(view.caret()), static_cast<std::size_t>(linesInSight()));
}

TEST_F(LogTextViewTest, ADragGoesOnHarmlesslyWhenTheTextIsReplaced) {
    view.setText(numberedLines(500));
    QTest::mousePress(view.viewport(), Qt::LeftButton, Qt::NoModifier, leftOf(40));
    moveTo(leftOf(60));
    view.setText("short");
    moveTo({300, 150});
    EXPECT_EQ(selected(), "short");
}

TEST_F(LogTextViewTest, KeysMoveTheCaretAndShiftSelects) {
    view.setText("one two\nthree\n\nfour");
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
    EXPECT_EQ(selected(), "\nfour"); // it keeps to its column
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

TEST_F(LogTextViewTest, KeysStopAtBothEnds) {
    view.setText("one\ntwo");
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

TEST_F(LogTextViewTest, PageKeysScrollByWhatIsInSight) {
    view.setText(numberedLines(500));
    press(Qt::Key_PageDown);
    EXPECT_EQ(firstRow(), linesInSight() - 1);
    EXPECT_EQ(view.text().rowAt(view.caret()), static_cast<std::size_t>(linesInSight() - 1));
    press(Qt::Key_PageUp);
    EXPECT_EQ(firstRow(), 0);
    EXPECT_EQ(view.caret(), 0U);
}

TEST_F(LogTextViewTest, KeysGoOnFromWhatIsInSight) {
    showAppended(numberedLines(500));
    press(Qt::Key_Up);
    EXPECT_EQ(view.text().rowAt(view.caret()), static_cast<std::size_t>(500 - linesInSight() - 1));
    view.verticalScrollBar()->setValue(100);
    press(Qt::Key_Down);
    EXPECT_EQ(firstRow(), 101);
}

TEST_F(LogTextViewTest, CopiesWhatIsSelectedAndNothingElse) {
    view.setText("one\r\ntwo\u2028网路😀\tthree");
    QGuiApplication::clipboard()->setText("before");
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboard(), "before");
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboard(), "one\r\ntwo\u2028网路😀\tthree");
}

TEST_F(LogTextViewTest, CannotBeChangedByTyping) {
    view.setText("as it was");
    view.selectAll();
    QTest::keyClicks(&view, "typed");
    for (const Qt::Key key : {Qt::Key_Delete, Qt::Key_Backspace, Qt::Key_Return}) {
        press(key);
    }
    press(Qt::Key_V, Qt::ControlModifier);
    press(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(view.toPlainText(), "as it was");
}

TEST_F(LogTextViewTest, TheContextMenuOffersToCopyAndToSelectAll) {
    view.setText("one two");
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

TEST_F(LogTextViewTest, AVeryLongLineIsShownSelectedAndCopiedWhole) {
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

TEST_F(LogTextViewTest, AMillionLinesScrollAndSelect) {
    std::string text;
    for (int line = 0; line < 1'000'000; ++line) {
        text += "\nUDP listener did receive data. Length: 81";
    }
    view.setText(text);
    EXPECT_EQ(view.verticalScrollBar()->maximum(), 1'000'001 - linesInSight());
    showAppended("\nlast");
    press(Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(view.text().rowAt(view.caret()), 1'000'001U);
    press(Qt::Key_Home, Qt::ShiftModifier);
    EXPECT_EQ(selected(), "last");
    EXPECT_EQ(view.toPlainText().size(), static_cast<qsizetype>(text.size() + 5));
}

TEST_F(LogTextViewTest, MovesOverWholeLettersOfEveryScript) {
    view.setText("a\u0308網😀e");
    for (const std::size_t position : {3U, 6U, 10U, 11U}) {
        press(Qt::Key_Right);
        EXPECT_EQ(view.caret(), position);
    }
    for (const std::size_t position : {10U, 6U, 3U, 0U}) {
        press(Qt::Key_Left);
        EXPECT_EQ(view.caret(), position);
    }
}

TEST_F(LogTextViewTest, ALineThatBeginsFromRightToLeftStillBeginsAtTheLeft) {
    view.setText("שלום unit 42\nunit 42 שלום");
    const int left = view.rectOf(view.text().row(1).position).left();
    EXPECT_LT(left, 20);
    // Its last letters stand at the right of the foreign name.
    EXPECT_GT(view.rectOf(view.text().row(0).text.size() - 1).left(),
              view.rectOf(view.text().row(0).position + 2).left());
    view.selectAll();
    EXPECT_EQ(selected(), "שלום unit 42\nunit 42 שלום");
}

TEST_F(LogTextViewTest, ShowsTheColoursOfThePalette) {
    view.setText("some text\nmore text");
    view.select(0, 9);
    QPalette contrasting(Qt::black);
    contrasting.setColor(QPalette::Base, Qt::black);
    contrasting.setColor(QPalette::Text, Qt::yellow);
    contrasting.setColor(QPalette::Highlight, Qt::cyan);
    contrasting.setColor(QPalette::HighlightedText, Qt::red);
    const Palette palette(contrasting);
    for (const Qt::GlobalColor color : {Qt::black, Qt::yellow, Qt::cyan, Qt::red}) {
        const auto isShown = [&] { return hasColor(view.viewport()->grab().toImage(), color); };
        EXPECT_TRUE(QTest::qWaitFor(isShown)) << color;
    }
}

TEST_F(LogTextViewTest, AnotherFontTakesOtherRoom) {
    showAppended(numberedLines(500));
    const int rows = linesInSight();
    QFont larger = view.font();
    larger.setPointSize(2 * larger.pointSize());
    view.setFont(larger);
    EXPECT_LT(linesInSight(), rows);
    EXPECT_EQ(view.verticalScrollBar()->maximum(), 500 - linesInSight());
}

TEST_F(LogTextViewTest, TheCaretShowsOnlyWhereTheKeyboardIs) {
    view.setText("");
    const QImage focused = view.viewport()->grab().toImage();
    view.clearFocus();
    EXPECT_NE(view.viewport()->grab().toImage(), focused);
}

} // namespace kx
