// The log view: frames, scrolling, looks.

#include "LogTextViewFixture.h"

#include <QFontMetrics>
#include <QWheelEvent>

namespace kx {

namespace {

// Restores the application's palette when the test is over.
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

} // namespace

TEST_F(LogTextViewTest, UsesAFixedWidthFont) {
    // Some fixed-width fonts do not report that they are.
    const QFontMetrics metrics(view.font());
    EXPECT_EQ(metrics.horizontalAdvance("iiii"), metrics.horizontalAdvance("WWWW"));
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
    int frames = 0; // each frame changes the range of the scroll bar
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
    view.setText(LogText(numberedLines(300)));
    EXPECT_EQ(firstRow(), 0);
    EXPECT_EQ(view.verticalScrollBar()->maximum(), 300 - linesInSight());
    view.setText(LogText(""));
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
    view.setText(LogText(std::string(120, 'x') + " y\nnext"));
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
    view.setText(LogText(std::string(LogText::longestRow, 'x')));
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
    view.setText(LogText(numberedLines(500)));
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

TEST_F(LogTextViewTest, ATextThatIsSetIsSharedNotCopied) {
    LogText text(numberedLines(20'000));
    view.setText(text);
    EXPECT_EQ(view.text().pieceAt(0).text.data(), text.pieceAt(0).text.data());
    const std::string before = text.text();
    text.append("\nonly here");
    showAppended("\nonly there");
    EXPECT_TRUE(view.text().text() == before + "\nonly there");
}

TEST_F(LogTextViewTest, AMillionLinesScrollAndSelect) {
    std::string text;
    for (int line = 0; line < 1'000'000; ++line) {
        text += "\nUDP listener did receive data. Length: 81";
    }
    view.setText(LogText(text));
    EXPECT_EQ(view.verticalScrollBar()->maximum(), 1'000'001 - linesInSight());
    showAppended("\nlast");
    press(Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(view.text().rowAt(view.caret()), 1'000'001U);
    press(Qt::Key_Home, Qt::ShiftModifier);
    EXPECT_EQ(selected(), "last");
    EXPECT_EQ(view.toPlainText().size(), static_cast<qsizetype>(text.size() + 5));
}

TEST_F(LogTextViewTest, ALineThatBeginsFromRightToLeftStillBeginsAtTheLeft) {
    view.setText(LogText("שלום unit 42\nunit 42 שלום"));
    const int left = view.rectOf(view.text().row(1).position).left();
    EXPECT_LT(left, 20);
    // The last letters of the row stand at the right of the foreign name.
    EXPECT_GT(view.rectOf(view.text().row(0).text.size() - 1).left(),
              view.rectOf(view.text().row(0).position + 2).left());
    view.selectAll();
    EXPECT_EQ(selected(), "שלום unit 42\nunit 42 שלום");
}

TEST_F(LogTextViewTest, WhatIsSelectedComesIntoSight) {
    showAppended(numberedLines(500));
    view.select(4, 0);
    EXPECT_TRUE(view.rectOf(0).isValid());
    const std::size_t end = view.text().size();
    view.select(0, end);
    EXPECT_TRUE(view.rectOf(end).isValid()) << "where the caret is";
}

TEST_F(LogTextViewTest, ShowsTheColoursOfThePalette) {
    view.setText(LogText("some text\nmore text"));
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
    view.setText(LogText(""));
    const QImage focused = view.viewport()->grab().toImage();
    view.clearFocus();
    EXPECT_NE(view.viewport()->grab().toImage(), focused);
}

// --- A text beyond its limit ---

namespace {

constexpr std::string_view goneNotice = "[older text is gone]";

LogText limitedText(std::string_view beginning) {
    LogText text;
    text.setLimit(200'000, goneNotice);
    text.append(beginning);
    return text;
}

} // namespace

TEST_F(LogTextViewTest, BeyondTheLimitTheOldestTextGoesAndTheFirstLineSaysSo) {
    view.setText(limitedText(""));
    for (int line = 0; line < 30'000; ++line) {
        view.append("\nline " + std::to_string(line));
    }
    view.scrollToEnd();
    EXPECT_TRUE(QTest::qWaitFor([this] { return view.showsEnd(); }));
    EXPECT_LE(view.text().size(), 200'000U);
    EXPECT_TRUE(utf8Text(view.toPlainText()).starts_with(std::string(goneNotice) + "\nline "));
    EXPECT_EQ(view.verticalScrollBar()->maximum(),
              static_cast<int>(view.text().rowCount()) - linesInSight());
    EXPECT_FALSE(view.grab().isNull());
}

TEST_F(LogTextViewTest, APersonsPlaceAndSelectionMoveWithTheTextUntilItGoes) {
    view.setText(limitedText(numberedLines(9'000)));
    const std::size_t from = view.text().row(8'000).position;
    view.select(from, from + 9);
    view.verticalScrollBar()->setValue(8'500);
    ASSERT_EQ(selected(), "line 8000");
    const auto firstShown = [this] {
        return std::string(view.text().row(static_cast<std::size_t>(firstRow())).text);
    };
    ASSERT_EQ(firstShown(), "line 8500");
    bool hasMoved = false;
    for (int line = 0; line < 13'000; ++line) {
        view.append("\nmore " + std::to_string(line));
        hasMoved = hasMoved || view.text().row(0).text == goneNotice;
    }
    QTest::qWait(50);
    ASSERT_TRUE(hasMoved);
    EXPECT_EQ(selected(), "line 8000");
    EXPECT_EQ(firstShown(), "line 8500");
    for (int line = 0; line < 30'000; ++line) {
        view.append("\nmore " + std::to_string(line));
    }
    QTest::qWait(50);
    EXPECT_EQ(selected(), "") << "its text is gone";
    EXPECT_EQ(firstRow(), 1) << "the first line that is left";
}

TEST_F(LogTextViewTest, LinesAfterTheFirstOneOfARowAreIndented) {
    view.setText(LogText(std::string(200, 'x') + "\n\tname: value"));
    const auto secondLine = view.positionAt(QPoint(300, view.rectOf(0).bottom() + 5));
    const auto start = view.positionAt(QPoint(0, view.rectOf(0).bottom() + 5));
    EXPECT_GT(secondLine, start);
    const int indent = view.rectOf(start).left() - view.rectOf(0).left();
    EXPECT_NEAR(indent, 6 * view.rectOf(0).width(), 6); // a blank is no whole number of pixels
    EXPECT_GT(indent, view.rectOf(202).left() - view.rectOf(0).left()); // deeper than a parameter
    EXPECT_LE(view.rectOf(199).right(), view.viewport()->width());
}

} // namespace kx
