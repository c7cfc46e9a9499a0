// A person's actions in the log view with the mouse and the keyboard.

#include "platform/qt/LogTextView.h"
#include "platform/qt/QtText.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QStyleHints>
#include <algorithm>

namespace kx {

namespace {

constexpr int millisecondsOfDragScroll = 40;

struct MovementKey {
    QKeySequence::StandardKey moves;
    QKeySequence::StandardKey selects;
    LogCaretMovement movement;
};

constexpr MovementKey movementKeys[] = {
    {QKeySequence::MoveToNextChar, QKeySequence::SelectNextChar, LogCaretMovement::nextCharacter},
    {QKeySequence::MoveToPreviousChar, QKeySequence::SelectPreviousChar,
     LogCaretMovement::previousCharacter},
    {QKeySequence::MoveToNextWord, QKeySequence::SelectNextWord, LogCaretMovement::nextWord},
    {QKeySequence::MoveToPreviousWord, QKeySequence::SelectPreviousWord,
     LogCaretMovement::previousWord},
    {QKeySequence::MoveToStartOfLine, QKeySequence::SelectStartOfLine,
     LogCaretMovement::startOfRow},
    {QKeySequence::MoveToEndOfLine, QKeySequence::SelectEndOfLine, LogCaretMovement::endOfRow},
    {QKeySequence::MoveToStartOfDocument, QKeySequence::SelectStartOfDocument,
     LogCaretMovement::startOfText},
    {QKeySequence::MoveToEndOfDocument, QKeySequence::SelectEndOfDocument,
     LogCaretMovement::endOfText},
};

struct VerticalKey {
    QKeySequence::StandardKey moves;
    QKeySequence::StandardKey selects;
    int lines;
    int pages;
};

constexpr VerticalKey verticalKeys[] = {
    {QKeySequence::MoveToNextLine, QKeySequence::SelectNextLine, 1, 0},
    {QKeySequence::MoveToPreviousLine, QKeySequence::SelectPreviousLine, -1, 0},
    {QKeySequence::MoveToNextPage, QKeySequence::SelectNextPage, 0, 1},
    {QKeySequence::MoveToPreviousPage, QKeySequence::SelectPreviousPage, 0, -1},
};

} // namespace

// --- Keyboard ---

void LogTextView::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) {
        copy();
    } else if (event->matches(QKeySequence::SelectAll)) {
        selectAll();
    } else if (!pressMovementKey(*event)) {
        event->ignore();
    }
}

bool LogTextView::pressMovementKey(const QKeyEvent& event) {
    for (const MovementKey& each : movementKeys) {
        const bool selects = event.matches(each.selects);
        if (selects || event.matches(each.moves)) {
            bringCaretIntoSight();
            moveCaret(movedPosition(_text, _caret, each.movement), selects);
            return true;
        }
    }
    for (const VerticalKey& each : verticalKeys) {
        const bool selects = event.matches(each.selects);
        if (selects || event.matches(each.moves)) {
            bringCaretIntoSight();
            const qreal wantedX = _wantedX < 0 ? xOfCaret() : _wantedX;
            const int page = each.pages * std::max(1, linesInSight() - 1);
            _wantedX = wantedX;
            scrollBy(page);
            moveCaret(positionLinesFromCaret(each.lines + page), selects);
            _wantedX = wantedX; // moveCaret() has forgotten it
            return true;
        }
    }
    return false;
}

qreal LogTextView::xOfCaret() const {
    return _lines.layOut(_text.rowAt(_caret)).xOf(_caret);
}

// Beyond the first or the last line, this is the beginning or the end of the text.
std::size_t LogTextView::positionLinesFromCaret(int lines) const {
    const WrappedLogLine from = _lines.lineOf(_caret);
    const WrappedLogLine to = _lines.moved(from, lines);
    if (to == from) {
        return lines < 0 ? 0 : _text.size();
    }
    return _lines.layOut(to.row).positionAt(to.line, _wantedX);
}

void LogTextView::moveCaret(std::size_t caret, bool selects) {
    setSelection(selects ? _anchor : caret, caret);
    showPosition(caret);
    if (selects) {
        takeAsPrimarySelection();
    }
}

void LogTextView::bringCaretIntoSight() {
    const WrappedLogLine line = _lines.lineOf(_caret);
    const WrappedLogLine bottom = _lines.moved(_top, linesInSight() - 1);
    if (_anchor == _caret && (line < _top || line > bottom)) {
        const WrappedLogLine edge = line < _top ? _top : bottom;
        const std::size_t start = _lines.layOut(edge.row).positionAt(edge.line, 0);
        setSelection(start, start);
    }
}

// --- Mouse ---

void LogTextView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        return;
    }
    const QPoint point = event->pos();
    const QStyleHints& hints = *QGuiApplication::styleHints();
    const bool isThird = _sinceDoubleClick.isValid() &&
                         _sinceDoubleClick.elapsed() < hints.mouseDoubleClickInterval() &&
                         (point - _doubleClickPoint).manhattanLength() < hints.startDragDistance();
    if (isThird) {
        beginDrag(point, LogSelectionUnit::line);
    } else if (event->modifiers().testFlag(Qt::ShiftModifier)) {
        _dragUnit = LogSelectionUnit::character;
        _dragOrigin = {_anchor, _anchor};
        dragTo(point);
    } else {
        beginDrag(point, LogSelectionUnit::character);
    }
}

void LogTextView::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        _doubleClickPoint = event->pos();
        _sinceDoubleClick.start();
        beginDrag(event->pos(), LogSelectionUnit::word);
    }
}

void LogTextView::mouseMoveEvent(QMouseEvent* event) {
    if (!event->buttons().testFlag(Qt::LeftButton)) {
        return;
    }
    dragTo(event->pos());
    const bool isBeside = event->pos().y() >= 0 && event->pos().y() < viewport()->height();
    if (isBeside) {
        _dragScroll.stop();
    } else if (!_dragScroll.isActive()) {
        _dragScroll.start(millisecondsOfDragScroll, this);
    }
}

void LogTextView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        _dragScroll.stop();
        takeAsPrimarySelection();
    }
}

void LogTextView::beginDrag(QPoint point, LogSelectionUnit unit) {
    _dragUnit = unit;
    _dragOrigin = unitAt(point, unit);
    _dragPoint = point;
    setSelection(_dragOrigin.from, _dragOrigin.to);
}

void LogTextView::dragTo(QPoint point) {
    _dragPoint = point;
    const LogRange reached = unitAt(point, _dragUnit);
    const bool isBackwards = reached.from < _dragOrigin.from;
    const std::size_t anchor = isBackwards ? _dragOrigin.to : _dragOrigin.from;
    const std::size_t caret = isBackwards ? reached.from : std::max(reached.to, _dragOrigin.to);
    setSelection(anchor, caret);
}

// --- Menu ---

void LogTextView::contextMenuEvent(QContextMenuEvent* event) {
    auto* const menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    QAction* copyAction = menu->addAction(localizedQtText("&Copy"), this, &LogTextView::copy);
    copyAction->setShortcut(QKeySequence::Copy);
    copyAction->setEnabled(_anchor != _caret);
    QAction* allAction =
        menu->addAction(localizedQtText("Select &All"), this, &LogTextView::selectAll);
    allAction->setShortcut(QKeySequence::SelectAll);
    allAction->setEnabled(_text.size() > 0);
    if (!actions().isEmpty()) {
        menu->addSeparator();
        menu->addActions(actions());
    }
    menu->popup(event->globalPos());
}

} // namespace kx
