// The view of the event log: fixed-width text that a person can select, copy and search, but not
// change. A line too long for the view goes on in the next line of the view.
//
// The view is made for a log that grows fast. When the text goes beyond its limit, the oldest
// pieces go, and the person's place and selection stay as far as they are left. The cost of
// appending depends only on the appended text. The screen follows in frames of its own, so it may
// be one frame behind the text; the operations that read the text see all of it. Only the rows in
// sight are ever laid out, and the scroll bar counts rows. At rest nothing wakes up.
//
// Selecting works as in the platform's text fields: drag, double click for words, triple click for
// lines, Shift with a click or a movement key. The selected text becomes the primary selection
// where the system has one. Copied text is made when somebody pastes it (LogText::copiedText()).
// New text does not change the selection. When a key moves a caret that is out of sight, the caret
// first comes to the edge of the text in sight, so that the keyboard goes on from the place where
// the person reads.
//
// Main thread only.

#pragma once

#include "platform/qt/LogCaretMovement.h"
#include "platform/qt/WrappedLogLines.h"
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

    // See TextView (Outlets.h).
    void shareMemoryOf(const LogText& equalText) { _text.shareMemoryOf(equalText); }

    // Makes the next frame show the end of the text.
    void scrollToEnd();

    // Whether the end of the text is in sight, in the frame on the screen.
    bool showsEnd() const;

    // All of the text as it is shown, including the part that no frame has shown yet.
    QString toPlainText() const;

    // The text between two positions as it is shown; `from` comes first.
    QString textBetween(std::size_t from, std::size_t to) const;
    const LogText& text() const { return _text; }

    // A range of positions; a caret is the empty range.
    LogRange selection() const;
    std::size_t caret() const { return _caret; }
    QString selectedText() const;

    // Selects from the anchor to the caret, and scrolls the caret into sight.
    void select(std::size_t anchor, std::size_t caret);

    void selectAll();

    // Puts the selected text on the clipboard. When nothing is selected, the clipboard does not
    // change.
    void copy() const;

    // The rectangle of the character after the position, in the viewport. Empty when the character
    // is not in sight.
    QRect rectOf(std::size_t position) const;

    // The position nearest to a point of the viewport, which may lie outside.
    std::size_t positionAt(QPoint point) const;

    // Scrolls the position into sight, by as little as possible.
    void showPosition(std::size_t position);

    // The number of lines that fit into the view.
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
    void forgetOldest();
    void frameIsBehind();
    void showFrame();

    void fitToFont();
    void fitToSize();
    void fitScrollBar();
    void setTop(WrappedLogLine top);
    void scrollBy(int lines);
    WrappedLogLine lineAt(QPoint point) const;
    LogRange unitAt(QPoint point, LogSelectionUnit unit) const;
    void paintCaret(QPainter& painter);

    bool pressMovementKey(const QKeyEvent& event);
    qreal xOfCaret() const;
    std::size_t positionLinesFromCaret(int lines) const;
    void moveCaret(std::size_t caret, bool selects);
    void bringCaretIntoSight();
    void setSelection(std::size_t anchor, std::size_t caret);
    void takeAsPrimarySelection() const;

    void beginDrag(QPoint point, LogSelectionUnit unit);
    void dragTo(QPoint point);

    LogText _text;
    LogRowStyle _looks;
    WrappedLogLines _lines{_text, _looks};

    std::size_t _anchor = 0;
    std::size_t _caret = 0;
    qreal _wantedX = -1; // moves up and down keep to it; negative after any other move

    WrappedLogLine _top;       // the first line in sight
    WrappedLogLine _lowestTop; // the top at which the frame on the screen shows the end of the text
    int _wheelAngle = 0;       // turned by the wheel and not yet scrolled
    bool _endIsWanted = false;
    QBasicTimer _nextFrame; // runs while the frame on the screen is behind the text
    QElapsedTimer _sinceFrame;
    std::size_t _announced = 0; // assistive technology knows the text up to this position

    LogSelectionUnit _dragUnit = LogSelectionUnit::character;
    LogRange _dragOrigin{0, 0};
    QPoint _dragPoint;
    QBasicTimer _dragScroll; // runs while a drag is held outside the view
    QPoint _doubleClickPoint;
    QElapsedTimer _sinceDoubleClick;
};

} // namespace kx
