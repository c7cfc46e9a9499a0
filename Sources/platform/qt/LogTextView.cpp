#include "platform/qt/LogTextView.h"

#include "platform/qt/LogRowLayout.h"
#include "platform/qt/LogTextAccessible.h"

#include <QClipboard>
#include <QEvent>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QPainter>
#include <QScrollBar>
#include <QStyle>
#include <QTimerEvent>
#include <algorithm>
#include <cmath>
#include <utility>

namespace kx {

namespace {

// No screen that matters shows more frames, and no person misses one.
constexpr int millisecondsOfFrame = 16;

constexpr int margin = 4; // round the text, in pixels

constexpr int columnsOfScrollStep = 8;

} // namespace

LogTextView::LogTextView(QWidget* parent)
    : QAbstractScrollArea(parent) {
    installLogTextAccessible();
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setCursor(Qt::IBeamCursor);
    fitToFont();
}

void LogTextView::setText(std::string_view text) {
    announceRemoval(*this, _announced);
    _text.clear();
    _text.append(text);
    _announced = 0;
    _widestShown = 0;
    _endIsWanted = false;
    _followsEnd = false;
    _dragOrigin = {0, 0};
    setSelection(0, 0);
    showFrame();
    verticalScrollBar()->setValue(0);
    horizontalScrollBar()->setValue(0);
}

void LogTextView::append(std::string_view text) {
    _text.append(text);
    frameIsBehind();
}

void LogTextView::scrollToEnd() {
    _endIsWanted = true;
    frameIsBehind();
}

bool LogTextView::showsEnd() const {
    return !_nextFrame.isActive() && verticalScrollBar()->value() == verticalScrollBar()->maximum();
}

QString LogTextView::toPlainText() const {
    return _text.text(0, _text.size());
}

LogRange LogTextView::selection() const {
    return {std::min(_anchor, _caret), std::max(_anchor, _caret)};
}

QString LogTextView::selectedText() const {
    return _text.text(selection().from, selection().to);
}

void LogTextView::select(std::size_t anchor, std::size_t caret) {
    setSelection(std::min(anchor, _text.size()), std::min(caret, _text.size()));
    showPosition(_caret);
    takeAsPrimarySelection();
}

void LogTextView::selectAll() {
    setSelection(0, _text.size());
    takeAsPrimarySelection();
}

void LogTextView::copy() const {
    if (_anchor != _caret) {
        QGuiApplication::clipboard()->setText(selectedText());
    }
}

void LogTextView::takeAsPrimarySelection() const {
    QClipboard* clipboard = QGuiApplication::clipboard();
    if (_anchor != _caret && clipboard->supportsSelection()) {
        clipboard->setText(selectedText(), QClipboard::Selection);
    }
}

void LogTextView::setSelection(std::size_t anchor, std::size_t caret) {
    _wantedX = -1;
    if (anchor != _anchor || caret != _caret) {
        _anchor = anchor;
        _caret = caret;
        viewport()->update();
        announceSelection(*this);
    }
}

// --- Frames ---

// The first change after a rest is shown in the next turn of the loop, those that follow once in
// the time of a frame.
void LogTextView::frameIsBehind() {
    if (!_nextFrame.isActive()) {
        const qint64 since = _sinceFrame.isValid() ? _sinceFrame.elapsed() : millisecondsOfFrame;
        const auto wait = static_cast<int>(
            std::clamp<qint64>(millisecondsOfFrame - since, 0, millisecondsOfFrame));
        _nextFrame.start(wait, Qt::PreciseTimer, this);
    }
}

void LogTextView::showFrame() {
    _nextFrame.stop();
    fitScrollBars();
    if (std::exchange(_endIsWanted, false)) {
        showEnd();
    }
    viewport()->update();
    announceInsertion(*this, std::exchange(_announced, _text.size()));
    _sinceFrame.restart();
}

void LogTextView::timerEvent(QTimerEvent* event) {
    if (event->timerId() == _nextFrame.timerId()) {
        showFrame();
    } else if (event->timerId() == _dragScroll.timerId()) {
        scrollTowards(_dragPoint);
        dragTo(_dragPoint);
    } else {
        QAbstractScrollArea::timerEvent(event);
    }
}

// --- Scrolling ---

void LogTextView::fitToFont() {
    const QFontMetricsF metrics(font());
    _rowHeight = std::max(1, static_cast<int>(std::ceil(metrics.lineSpacing())));
    _columnWidth = metrics.horizontalAdvance('0');
    _widestShown = 0;
    fitScrollBars();
    viewport()->update();
}

void LogTextView::fitScrollBars() {
    const auto rows = static_cast<int>(_text.rowCount());
    const auto inSight = static_cast<int>(rowsInSight());
    verticalScrollBar()->setRange(0, std::max(0, rows - inSight));
    verticalScrollBar()->setPageStep(inSight);

    const qreal widest =
        std::max(static_cast<qreal>(_text.widestRow()) * _columnWidth, _widestShown);
    const auto width = static_cast<int>(std::ceil(widest)) + 2 * margin;
    horizontalScrollBar()->setRange(0, std::max(0, width - viewport()->width()));
    horizontalScrollBar()->setPageStep(viewport()->width());
    horizontalScrollBar()->setSingleStep(static_cast<int>(columnsOfScrollStep * _columnWidth));
}

// The beginnings of the rows stay in sight when the end needs no other place.
void LogTextView::showEnd() {
    verticalScrollBar()->setValue(verticalScrollBar()->maximum());
    horizontalScrollBar()->setValue(0);
    showPosition(_text.size());
    _followsEnd = true;
}

void LogTextView::showPosition(std::size_t position) {
    fitScrollBars();
    const auto row = static_cast<int>(_text.rowAt(position));
    QScrollBar& vertical = *verticalScrollBar();
    const int last = vertical.value() + static_cast<int>(rowsInSight()) - 1;
    if (row < vertical.value()) {
        vertical.setValue(row);
    } else if (row > last) {
        vertical.setValue(vertical.value() + row - last);
    }

    QScrollBar& horizontal = *horizontalScrollBar();
    const int x = static_cast<int>(xOf(position)) + margin;
    if (x - margin < horizontal.value()) {
        horizontal.setValue(x <= viewport()->width() - margin ? 0 : x - margin);
    } else if (x > horizontal.value() + viewport()->width() - margin) {
        horizontal.setValue(x - viewport()->width() + margin);
    }
}

void LogTextView::scrollTowards(QPoint point) {
    const auto stepFrom = [](int value, int size) { return value < 0 ? -1 : value < size ? 0 : 1; };
    const int rows = stepFrom(point.y(), viewport()->height());
    const int columns = stepFrom(point.x(), viewport()->width());
    verticalScrollBar()->setValue(verticalScrollBar()->value() + rows);
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() +
                                    columns * horizontalScrollBar()->singleStep());
}

void LogTextView::scrollContentsBy(int dx, int dy) {
    QAbstractScrollArea::scrollContentsBy(dx, dy);
    _followsEnd = verticalScrollBar()->value() == verticalScrollBar()->maximum();
}

std::size_t LogTextView::firstRow() const {
    return std::min(static_cast<std::size_t>(verticalScrollBar()->value()), _text.rowCount() - 1);
}

std::size_t LogTextView::rowsInSight() const {
    return static_cast<std::size_t>(std::max(1, viewport()->height() / _rowHeight));
}

qreal LogTextView::xOf(std::size_t position) const {
    return LogRowLayout(_text.row(_text.rowAt(position)), font()).xOf(position);
}

std::size_t LogTextView::positionInRow(std::size_t row, qreal x) const {
    return LogRowLayout(_text.row(row), font()).positionAt(x);
}

std::size_t LogTextView::rowAt(QPoint point) const {
    const auto below = static_cast<int>(std::floor(static_cast<double>(point.y()) / _rowHeight));
    const int last = static_cast<int>(_text.rowCount()) - 1;
    return static_cast<std::size_t>(std::clamp(static_cast<int>(firstRow()) + below, 0, last));
}

qreal LogTextView::xInRow(QPoint point) const {
    return point.x() - margin + horizontalScrollBar()->value();
}

QRect LogTextView::rectOf(std::size_t position) const {
    const int row = static_cast<int>(_text.rowAt(position)) - static_cast<int>(firstRow());
    const int x = static_cast<int>(xOf(position)) + margin - horizontalScrollBar()->value();
    return {x, row * _rowHeight, static_cast<int>(_columnWidth), _rowHeight};
}

std::size_t LogTextView::positionAt(QPoint point) const {
    return positionInRow(rowAt(point), xInRow(point));
}

LogRange LogTextView::unitAt(QPoint point, LogUnit unit) const {
    const LogRowLayout layout(_text.row(rowAt(point)), font());
    const qreal x = xInRow(point);
    const bool isWord = unit == LogUnit::word;
    return unitAround(_text, isWord ? layout.characterAt(x) : layout.positionAt(x), unit);
}

// --- Looks ---

void LogTextView::paintEvent(QPaintEvent* event) {
    QPainter painter(viewport());
    const QPalette::ColorGroup group =
        hasFocus() && isActiveWindow() ? QPalette::Active : QPalette::Inactive;
    const LogRowLayout::Selection selected{selection().from, selection().to,
                                           palette().color(group, QPalette::HighlightedText),
                                           palette().color(group, QPalette::Highlight)};
    painter.setPen(palette().color(QPalette::Text));
    const qreal baseLine = QFontMetricsF(font()).ascent();
    const qreal left = margin - horizontalScrollBar()->value();
    const auto top = static_cast<std::size_t>(std::max(0, event->rect().top() / _rowHeight));
    const auto bottom = static_cast<std::size_t>(std::max(0, event->rect().bottom() / _rowHeight));
    const std::size_t end = std::min(firstRow() + bottom + 1, _text.rowCount());
    qreal widest = _widestShown;
    for (std::size_t row = firstRow() + top; row < end; ++row) {
        LogRowLayout layout(_text.row(row), font());
        const auto below = static_cast<int>(row - firstRow()) * _rowHeight;
        layout.draw(painter, QPointF(left, below), baseLine, selected);
        widest = std::max(widest, layout.width());
        paintCaret(painter, row);
    }
    if (widest > _widestShown) {
        _widestShown = widest;
        frameIsBehind(); // the estimate of the scroll bar's reach may have been too small
    }
}

void LogTextView::paintCaret(QPainter& painter, std::size_t row) {
    if (hasFocus() && _text.rowAt(_caret) == row) {
        const QRect place = rectOf(_caret);
        const int width = style()->pixelMetric(QStyle::PM_TextCursorWidth, nullptr, this);
        painter.fillRect(place.x(), place.y(), width, place.height(),
                         palette().color(QPalette::Text));
    }
}

void LogTextView::changeEvent(QEvent* event) {
    QAbstractScrollArea::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        fitToFont();
    } else if (event->type() == QEvent::ActivationChange ||
               event->type() == QEvent::PaletteChange) {
        viewport()->update();
    }
}

void LogTextView::focusInEvent(QFocusEvent* event) {
    QAbstractScrollArea::focusInEvent(event);
    viewport()->update();
}

void LogTextView::focusOutEvent(QFocusEvent* event) {
    QAbstractScrollArea::focusOutEvent(event);
    viewport()->update();
}

void LogTextView::resizeEvent(QResizeEvent* event) {
    QAbstractScrollArea::resizeEvent(event);
    const bool followsEnd = _followsEnd;
    fitScrollBars();
    if (followsEnd) {
        verticalScrollBar()->setValue(verticalScrollBar()->maximum());
        _followsEnd = true;
    }
}

} // namespace kx
