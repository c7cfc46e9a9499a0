// The view of the event log: fixed-width text that cannot be changed, but selected, copied and
// searched. Lines too long for the view go on in the next one.
//
// Made for a log that grows fast and without limit. Appending costs what is appended; what is on
// the screen follows in frames of its own, so it may lag the text by one frame, while whoever reads
// the text reads all of it. Only the rows in sight are ever laid out, and the scroll bar counts
// rows. At rest nothing wakes up.
//
// Selecting works as in the platform's text fields: drag, double click for words, triple click for
// lines, Shift with a click or a movement key; what is selected becomes the primary selection where
// the system has one. Text that arrives leaves the selection alone. A caret that is out of sight is
// brought to the edge of what is in sight before a key moves it, so that the keyboard goes on from
// what the person reads.
//
// Main thread only.

#pragma once

#include "platform/qt/LogLines.h"
#include "platform/qt/LogMovement.h"
#include "words/LogText.h"

#include <QAbstractScrollArea>
#include <QBasicTimer>
#include <QElapsedTimer>

namespace kx {

class LogTextView final : public QAbstractScrollArea {
    Q_OBJECT
    Q_PROPERTY(QString plainText READ toPlainText)

public:
    explicit LogTextView(QWidget* parent = nullptr);

    // Replaces the text, selects nothing and shows the beginning.
    void setText(const LogText& text);

    void append(std::string_view text);

    // The next frame shows the end of the text.
    void scrollToEnd();

    // Whether the end of the text is in sight, in the frame that is shown.
    bool showsEnd() const;

    // All of it, also what no frame has shown yet.
    QString toPlainText() const;

    // What lies between two positions, in this order.
    QString textBetween(std::size_t from, std::size_t to) const;
    const LogText& text() const { return _text; }

    // A range of positions; a caret is the empty range.
    LogRange selection() const;
    std::size_t caret() const { return _caret; }
    QString selectedText() const;

    // Selects from the anchor to the caret, and scrolls the caret into sight.
    void select(std::size_t anchor, std::size_t caret);

    void selectAll();

    // Puts what is selected on the clipboard. Leaves the clipboard alone when nothing is.
    void copy() const;

    // Where the character after the position is, in the viewport. Empty when it is not in sight.
    QRect rectOf(std::size_t position) const;

    // The position nearest to a point of the viewport, which may lie outside.
    std::size_t positionAt(QPoint point) const;

    // Scrolls as little as that needs.
    void showPosition(std::size_t position);

    // How many lines fit into the view.
    int linesInSight() const;

protected:
    void changeEvent(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void timerEvent(QTimerEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void frameIsBehind();
    void showFrame();

    void fitToFont();
    void fitToSize();
    void fitScrollBar();
    void setTop(LogLine top);
    void scrollBy(int lines);
    LogLine lineAt(QPoint point) const;
    LogRange unitAt(QPoint point, LogUnit unit) const;
    void paintCaret(QPainter& painter);

    bool pressMovementKey(const QKeyEvent& event);
    qreal xOfCaret() const;
    std::size_t positionLinesFromCaret(int lines) const;
    void moveCaret(std::size_t caret, bool selects);
    void bringCaretIntoSight();
    void setSelection(std::size_t anchor, std::size_t caret);
    void takeAsPrimarySelection() const;

    void beginDrag(QPoint point, LogUnit unit);
    void dragTo(QPoint point);

    LogText _text;
    LogLooks _looks;
    LogLines _lines{_text, _looks};

    std::size_t _anchor = 0;
    std::size_t _caret = 0;
    qreal _wantedX = -1; // that moves up and down keep to, negative after any other move

    LogLine _top;        // the first line in sight
    LogLine _lowestTop;  // with the end of the text in sight, in the frame that is shown
    int _wheelAngle = 0; // turned, and not yet scrolled by
    bool _endIsWanted = false;
    QBasicTimer _nextFrame; // runs while the frame shown is behind the text
    QElapsedTimer _sinceFrame;
    std::size_t _announced = 0; // up to this position, to assistive technology

    LogUnit _dragUnit = LogUnit::character;
    LogRange _dragOrigin{0, 0};
    QPoint _dragPoint;
    QBasicTimer _dragScroll; // runs while a drag is held outside
    QPoint _doubleClickPoint;
    QElapsedTimer _sinceDoubleClick;
};

} // namespace kx
