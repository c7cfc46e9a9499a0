#include "platform/qt/LogCaretMovement.h"

#include "platform/qt/QtText.h"

#include <QTextBoundaryFinder>
#include <QTextLayout>
#include <algorithm>

namespace kx {

namespace {

std::size_t endOf(const LogText::Row& row) {
    return row.position + row.text.size();
}

int unitOf(const LogText::Row& row, std::size_t position) {
    return static_cast<int>(charactersIn(row.text.substr(0, position - row.position)));
}

std::size_t positionOf(const LogText::Row& row, qsizetype unit) {
    return row.position + bytesOfCharacters(row.text, static_cast<std::size_t>(unit));
}

std::size_t forward(const LogText& text, std::size_t position, QTextLayout::CursorMode mode) {
    const LogText::Row row = text.row(text.rowAt(position));
    if (position == endOf(row)) {
        return std::min(position + 1, text.size()); // step over the line feed
    }
    const QTextLayout layout(qtText(shownRow(row.text)));
    return positionOf(row, layout.nextCursorPosition(unitOf(row, position), mode));
}

std::size_t backward(const LogText& text, std::size_t position, QTextLayout::CursorMode mode) {
    std::size_t index = text.rowAt(position);
    if (text.row(index).position == position) {
        if (index == 0) {
            return position;
        }
        --index;
        if (text.row(index).endsLine) {
            return position - 1;
        }
    }
    const LogText::Row row = text.row(index);
    const QTextLayout layout(qtText(shownRow(row.text)));
    return positionOf(row, layout.previousCursorPosition(unitOf(row, position), mode));
}

LogRange wordAround(const LogText& text, std::size_t position) {
    const LogText::Row row = text.row(text.rowAt(position));
    const QString shown = qtText(shownRow(row.text));
    QTextBoundaryFinder finder(QTextBoundaryFinder::Word, shown);
    finder.setPosition(std::min<qsizetype>(unitOf(row, position), shown.size()));
    const bool atEnd = finder.position() == shown.size();
    if (atEnd || !finder.isAtBoundary()) {
        finder.toPreviousBoundary();
    }
    const qsizetype from = std::max<qsizetype>(finder.position(), 0);
    const qsizetype to = finder.toNextBoundary();
    return {positionOf(row, from), to < 0 ? endOf(row) : positionOf(row, to)};
}

LogRange lineAround(const LogText& text, std::size_t position) {
    std::size_t first = text.rowAt(position);
    std::size_t last = first;
    while (first > 0 && !text.row(first - 1).endsLine) {
        --first;
    }
    while (last + 1 < text.rowCount() && !text.row(last).endsLine) {
        ++last;
    }
    const LogText::Row end = text.row(last);
    return {text.row(first).position, endOf(end) + (end.endsLine ? 1 : 0)};
}

} // namespace

std::size_t movedPosition(const LogText& text, std::size_t position, LogCaretMovement movement) {
    switch (movement) {
    case LogCaretMovement::nextCharacter:
        return forward(text, position, QTextLayout::SkipCharacters);
    case LogCaretMovement::previousCharacter:
        return backward(text, position, QTextLayout::SkipCharacters);
    case LogCaretMovement::nextWord:
        return forward(text, position, QTextLayout::SkipWords);
    case LogCaretMovement::previousWord:
        return backward(text, position, QTextLayout::SkipWords);
    case LogCaretMovement::startOfRow:
        return text.row(text.rowAt(position)).position;
    case LogCaretMovement::endOfRow:
        return endOf(text.row(text.rowAt(position)));
    case LogCaretMovement::startOfText:
        return 0;
    case LogCaretMovement::endOfText:
        return text.size();
    }
    return position;
}

LogRange unitAround(const LogText& text, std::size_t position, LogSelectionUnit unit) {
    switch (unit) {
    case LogSelectionUnit::word:
        return wordAround(text, position);
    case LogSelectionUnit::line:
        return lineAround(text, position);
    case LogSelectionUnit::character:
        break;
    }
    return {position, position};
}

} // namespace kx
