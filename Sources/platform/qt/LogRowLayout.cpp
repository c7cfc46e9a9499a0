#include "platform/qt/LogRowLayout.h"

#include "platform/qt/QtText.h"

#include <QFontMetricsF>
#include <QTextOption>
#include <algorithm>

namespace kx {

namespace {

QChar shownCharacter(QChar character) {
    constexpr char16_t firstPicture = 0x2400;
    constexpr char16_t pictureOfDelete = 0x2421;
    constexpr char16_t mark = QChar::ReplacementCharacter;
    const char16_t code = character.unicode();
    if (code < 0x20 && code != '\t') {
        return QChar(static_cast<char16_t>(firstPicture + code));
    }
    if (code == 0x7F) {
        return pictureOfDelete;
    }
    const bool isControl = code >= 0x80 && code < 0xA0;
    const bool breaksLines = code == QChar::LineSeparator || code == QChar::ParagraphSeparator;
    const bool reorders = code == 0x061C || code == 0x200E || code == 0x200F ||
                          (code >= 0x202A && code <= 0x202E) || (code >= 0x2066 && code <= 0x2069);
    const bool standsForObject = code == QChar::ObjectReplacementCharacter;
    return isControl || breaksLines || reorders || standsForObject ? QChar(mark) : character;
}

} // namespace

QString shownText(std::string_view text) {
    QString shown = qtText(text);
    std::transform(shown.cbegin(), shown.cend(), shown.begin(), shownCharacter);
    return shown;
}

LogRowLayout::LogRowLayout(const LogText::Row& row, const QFont& font)
    : _row(row)
    , _layout(shownText(row.text), font) {
    QTextOption option(Qt::AlignLeft | Qt::AlignAbsolute);
    option.setTextDirection(Qt::LeftToRight);
    option.setWrapMode(QTextOption::NoWrap);
    option.setTabStopDistance(LogText::columnsOfTab * QFontMetricsF(font).horizontalAdvance(' '));
    _layout.setTextOption(option);
    _layout.setCacheEnabled(true);
    _layout.beginLayout();
    _layout.createLine();
    _layout.endLayout();
}

void LogRowLayout::draw(QPainter& painter, QPointF top, qreal baseLine,
                        const Selection& selection) {
    const std::size_t end = _row.position + _row.text.size();
    const std::size_t from = std::clamp(selection.from, _row.position, end);
    const std::size_t to = std::clamp(selection.to, _row.position, end);
    QList<QTextLayout::FormatRange> marked;
    if (from < to) {
        QTextLayout::FormatRange range;
        range.start = unitOf(from);
        range.length = unitOf(to) - range.start;
        range.format.setForeground(selection.text);
        range.format.setBackground(selection.background);
        marked.append(range);
    }
    const QTextLine line = _layout.lineAt(0);
    const QPointF corner = top + QPointF(0, baseLine - line.ascent());
    if (_row.endsLine && selection.from <= end && selection.to > end) {
        const qreal blank = QFontMetricsF(_layout.font()).horizontalAdvance(' ');
        painter.fillRect(QRectF(corner.x() + width(), corner.y(), blank, line.height()),
                         selection.background);
    }
    _layout.draw(&painter, corner, marked);
}

qreal LogRowLayout::xOf(std::size_t position) const {
    return _layout.lineAt(0).cursorToX(unitOf(position));
}

std::size_t LogRowLayout::positionAt(qreal x) const {
    return positionOf(_layout.lineAt(0).xToCursor(x));
}

std::size_t LogRowLayout::characterAt(qreal x) const {
    return positionOf(_layout.lineAt(0).xToCursor(x, QTextLine::CursorOnCharacter));
}

qreal LogRowLayout::width() const {
    const QTextLine line = _layout.lineAt(0);
    return std::max(line.naturalTextWidth(), line.cursorToX(line.textLength()));
}

std::size_t LogRowLayout::positionOf(int unit) const {
    return _row.position + bytesOfCharacters(_row.text, static_cast<std::size_t>(unit));
}

int LogRowLayout::unitOf(std::size_t position) const {
    const auto before =
        static_cast<int>(charactersIn(_row.text.substr(0, position - _row.position)));
    return std::min(before, static_cast<int>(_layout.text().size()));
}

} // namespace kx
