#include "platform/qt/LogTextView.h"

#include "platform/qt/LogMimeData.h"
#include "platform/qt/LogTextAccessible.h"
#include "platform/qt/QtText.h"

#include <QApplication>
#include <QClipboard>
#include <QFontDatabase>
#include <QPainter>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStyle>
#include <QTimerEvent>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <utility>

namespace kx {

namespace {

// Common screens show no more frames, and no person misses one.
constexpr int millisecondsOfFrame = 16;

constexpr int margin = 4; // pixels round the text

constexpr int columnsOfTab = 4;

} // namespace

LogTextView::LogTextView(QWidget* parent)
    : QAbstractScrollArea(parent) {
    installLogTextAccessible();
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    setFocusPolicy(Qt::StrongFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    viewport()->setCursor(Qt::IBeamCursor);
    fitToFont();
}

void LogTextView::setText(const LogText& text) {
    announceRemoval(*this, _announced);
    _text = text;
    _announced = 0;
    _endIsWanted = false;
    _dragOrigin = {0, 0};
    setSelection(0, 0);
    _top = {};
    showFrame();
}

void LogTextView::append(std::string_view text) {
    _text.append(text);
    if (_text.surplus() > 0) {
        forgetOldest();
    }
    frameIsBehind();
}

// A frame follows at once, because the text on the screen is about to be freed.
void LogTextView::forgetOldest() {
    announceRemoval(*this, std::min(_text.surplus(), _announced));
    const LogText::Trimmed trimmed = _text.trim();
    for (std::size_t* const position :
         {&_anchor, &_caret, &_announced, &_dragOrigin.from, &_dragOrigin.to}) {
        *position = trimmed.movedPosition(*position);
    }
    for (WrappedLogLine* const line : {&_top, &_lowestTop}) {
        line->line = line->row < trimmed.rows ? 0 : line->line;
        line->row = trimmed.movedRow(line->row);
    }
    announceInsertion(*this, 0, trimmed.noticeBytes);
    viewport()->update();
}

void LogTextView::scrollToEnd() {
    _endIsWanted = true;
    frameIsBehind();
}

bool LogTextView::showsEnd() const {
    return !_nextFrame.isActive() && _top == _lowestTop;
}

QString LogTextView::toPlainText() const {
    return textBetween(0, _text.size());
}

QString LogTextView::textBetween(std::size_t from, std::size_t to) const {
    return shownLogText(_text, {from, to});
}

LogRange LogTextView::selection() const {
    return {std::min(_anchor, _caret), std::max(_anchor, _caret)};
}

QString LogTextView::selectedText() const {
    return copiedLogText(_text, selection());
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
        QGuiApplication::clipboard()->setMimeData(new LogMimeData(_text, selection()));
    }
}

void LogTextView::takeAsPrimarySelection() const {
    QClipboard* clipboard = QGuiApplication::clipboard();
    if (_anchor != _caret && clipboard->supportsSelection()) {
        clipboard->setMimeData(new LogMimeData(_text, selection()), QClipboard::Selection);
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

// The first change after a rest is shown in the next turn of the loop. Later changes are shown once
// in the time of a frame.
void LogTextView::frameIsBehind() {
    if (!_nextFrame.isActive()) {
        const qint64 since = _sinceFrame.isValid() ? _sinceFrame.elapsed() : millisecondsOfFrame;
        const qint64 wait = std::clamp<qint64>(millisecondsOfFrame - since, 0, millisecondsOfFrame);
        _nextFrame.start(static_cast<int>(wait), Qt::PreciseTimer, this);
    }
}

void LogTextView::showFrame() {
    _nextFrame.stop();
    fitScrollBar();
    if (std::exchange(_endIsWanted, false)) {
        setTop(_lowestTop);
    }
    viewport()->update();
    announceInsertion(*this, std::exchange(_announced, _text.size()), _text.size());
    _sinceFrame.restart();
}

void LogTextView::timerEvent(QTimerEvent* event) {
    if (event->timerId() == _nextFrame.timerId()) {
        showFrame();
    } else if (event->timerId() == _dragScroll.timerId()) {
        scrollBy(_dragPoint.y() < 0 ? -1 : 1);
        dragTo(_dragPoint);
    } else {
        QAbstractScrollArea::timerEvent(event);
    }
}

// --- Scrolling ---

void LogTextView::fitToFont() {
    const QFontMetricsF metrics(font());
    _looks.font = font();
    _looks.lineHeight = std::max(1, static_cast<int>(std::ceil(metrics.lineSpacing())));
    _looks.baseLine = metrics.ascent();
    _looks.blank = metrics.horizontalAdvance(' ');
    _looks.tabStop = columnsOfTab * _looks.blank;
    fitToSize();
}

// A view that showed the end still shows it afterwards.
void LogTextView::fitToSize() {
    const bool showedEnd = _top == _lowestTop && _top != WrappedLogLine();
    _looks.width = std::max<qreal>(_looks.blank, viewport()->width() - 2 * margin);
    _top.line = std::min(_top.line, _lines.layOut(_top.row).lineCount() - 1);
    fitScrollBar();
    if (showedEnd) {
        setTop(_lowestTop);
    }
    viewport()->update();
}

// The bar counts rows. Its last step leads to the end; the view may then begin inside a row.
void LogTextView::fitScrollBar() {
    const WrappedLogLine last = _lines.lineOf(_text.size());
    _lowestTop = _lines.moved(last, 1 - linesInSight());
    const std::size_t maximum = _lowestTop.row + (_lowestTop.line > 0 ? 1 : 0);
    const WrappedLogLine top = _top; // the bar may move, and then moves the view
    verticalScrollBar()->setPageStep(linesInSight());
    verticalScrollBar()->setRange(0, static_cast<int>(maximum));
    setTop(top);
}

void LogTextView::setTop(WrappedLogLine top) {
    _top = std::min(top, _lowestTop);
    const QSignalBlocker onlyTheBar(verticalScrollBar());
    verticalScrollBar()->setValue(_top == _lowestTop ? verticalScrollBar()->maximum()
                                                     : static_cast<int>(_top.row));
    viewport()->update();
}

void LogTextView::scrollContentsBy(int /*dx*/, int /*dy*/) {
    const QScrollBar& bar = *verticalScrollBar();
    setTop(bar.value() == bar.maximum() ? _lowestTop
                                        : WrappedLogLine{static_cast<std::size_t>(bar.value()), 0});
}

void LogTextView::scrollBy(int lines) {
    setTop(_lines.moved(_top, lines));
}

void LogTextView::wheelEvent(QWheelEvent* event) {
    constexpr int angleOfStep = 120;
    _wheelAngle += event->angleDelta().y() * QApplication::wheelScrollLines();
    scrollBy(-_wheelAngle / angleOfStep);
    _wheelAngle %= angleOfStep;
    event->accept();
}

int LogTextView::linesInSight() const {
    return std::max(1, (viewport()->height() - margin) / _looks.lineHeight);
}

void LogTextView::showPosition(std::size_t position) {
    fitScrollBar();
    const WrappedLogLine line = _lines.lineOf(position);
    if (line < _top) {
        setTop(line);
    } else if (_lines.distance(_top, line, linesInSight()) == linesInSight()) {
        setTop(_lines.moved(line, 1 - linesInSight()));
    }
}

QRect LogTextView::rectOf(std::size_t position) const {
    const WrappedLogLine line = _lines.lineOf(position);
    const int below = line < _top ? -1 : _lines.distance(_top, line, linesInSight() + 1);
    if (below < 0 || below > linesInSight()) {
        return {};
    }
    const auto x = static_cast<int>(_lines.layOut(line.row).xOf(position));
    return {margin + x, margin + below * _looks.lineHeight, static_cast<int>(_looks.blank),
            _looks.lineHeight};
}

WrappedLogLine LogTextView::lineAt(QPoint point) const {
    const double below = std::floor(static_cast<double>(point.y() - margin) / _looks.lineHeight);
    return _lines.moved(_top, static_cast<int>(below));
}

std::size_t LogTextView::positionAt(QPoint point) const {
    const WrappedLogLine line = lineAt(point);
    return _lines.layOut(line.row).positionAt(line.line, point.x() - margin);
}

LogRange LogTextView::unitAt(QPoint point, LogSelectionUnit unit) const {
    if (unit != LogSelectionUnit::word) {
        return unitAround(_text, positionAt(point), unit);
    }
    const WrappedLogLine line = lineAt(point);
    const LogRowLayout layout = _lines.layOut(line.row);
    return unitAround(_text, layout.characterAt(line.line, point.x() - margin), unit);
}

// --- Looks ---

void LogTextView::paintEvent(QPaintEvent* event) {
    QPainter painter(viewport());
    const bool hasKeyboard = hasFocus() && isActiveWindow();
    const QPalette::ColorGroup group = hasKeyboard ? QPalette::Active : QPalette::Inactive;
    const LogRowLayout::Selection selected{selection().from, selection().to,
                                           palette().color(group, QPalette::HighlightedText),
                                           palette().color(group, QPalette::Highlight)};
    painter.setPen(palette().color(QPalette::Text));
    int y = margin - _top.line * _looks.lineHeight;
    for (std::size_t row = _top.row; row < _text.rowCount() && y < viewport()->height(); ++row) {
        LogRowLayout layout = _lines.layOut(row);
        const int below = y + layout.lineCount() * _looks.lineHeight;
        if (event->rect().top() < below && event->rect().bottom() >= y) {
            layout.draw(painter, QPointF(margin, y), selected);
        }
        y = below;
    }
    if (hasFocus()) {
        paintCaret(painter);
    }
}

void LogTextView::paintCaret(QPainter& painter) {
    const QRect place = rectOf(_caret);
    const int width = style()->pixelMetric(QStyle::PM_TextCursorWidth, nullptr, this);
    if (!place.isNull()) {
        painter.fillRect(QRect(place.topLeft(), QSize(width, place.height())),
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
    fitToSize();
}

} // namespace kx
