#include "platform/qt/LogRowLayout.h"

#include "platform/qt/QtText.h"

#include <QTextOption>
#include <algorithm>

namespace kx {

namespace {

// Deeper than the tab in front of a parameter, so that the continuation of a row is not taken for a
// row.
constexpr int columnsOfIndent = 6;

} // namespace

LogRowLayout::LogRowLayout(const LogText::Row& row, const LogRowStyle& looks)
    : _row(row)
    , _looks(looks)
    , _layout(qtText(shownRow(row.text)), looks.font) {
    QTextOption option(Qt::AlignLeft | Qt::AlignAbsolute);
    option.setTextDirection(Qt::LeftToRight);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setTabStopDistance(looks.tabStop);
    _layout.setTextOption(option);
    _layout.setCacheEnabled(true);
    _layout.beginLayout();
    const qreal indent = std::min(columnsOfIndent * looks.blank, looks.width / 2);
    for (QTextLine line = _layout.createLine(); line.isValid(); line = _layout.createLine()) {
        const qreal left = line.lineNumber() == 0 ? 0 : indent;
        line.setLineWidth(looks.width - left);
        const int top = line.lineNumber() * looks.lineHeight;
        line.setPosition({left, top + looks.baseLine - line.ascent()});
    }
    _layout.endLayout();
}

int LogRowLayout::lineOf(std::size_t position) const {
    return _layout.lineForTextPosition(unitOf(position)).lineNumber();
}

void LogRowLayout::draw(QPainter& painter, QPointF corner, const Selection& selection) {
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
    if (_row.endsLine && selection.from <= end && selection.to > end) {
        const QTextLine last = _layout.lineAt(lineCount() - 1);
        const QRectF blank(last.naturalTextRect().right(), last.y(), _looks.blank, last.height());
        painter.fillRect(blank.translated(corner), selection.background);
    }
    _layout.draw(&painter, corner, marked);
}

qreal LogRowLayout::xOf(std::size_t position) const {
    const int unit = unitOf(position);
    return _layout.lineForTextPosition(unit).cursorToX(unit);
}

std::size_t LogRowLayout::positionAt(int line, qreal x) const {
    return positionOf(_layout.lineAt(line).xToCursor(x));
}

std::size_t LogRowLayout::characterAt(int line, qreal x) const {
    return positionOf(_layout.lineAt(line).xToCursor(x, QTextLine::CursorOnCharacter));
}

int LogRowLayout::unitOf(std::size_t position) const {
    const std::string_view before = _row.text.substr(0, position - _row.position);
    return std::min(static_cast<int>(charactersIn(before)),
                    static_cast<int>(_layout.text().size()));
}

std::size_t LogRowLayout::positionOf(int unit) const {
    return _row.position + bytesOfCharacters(_row.text, static_cast<std::size_t>(unit));
}

} // namespace kx
