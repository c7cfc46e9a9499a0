// One row of the log as it is drawn, broken into as many lines as it needs in the given width. The
// lines after the first one are indented.
//
// A row runs from left to right whatever its letters are, so that a foreign name cannot turn the
// row around. Text that is written from right to left keeps its order inside. The row is shown as
// shownRow() (words/LogText.h) tells it, so that a text from the network is harmless.
//
// Layouts are made for rows in sight only and live for a short time: the row must not change
// meanwhile.

#pragma once

#include "words/LogText.h"

#include <QColor>
#include <QFont>
#include <QPainter>
#include <QTextLayout>

namespace kx {

// The layout that all rows share; lengths in pixels.
struct LogRowStyle {
    QFont font;
    int lineHeight = 1;
    qreal baseLine = 0; // distance from the top of a line
    qreal tabStop = 1;
    qreal blank = 1; // the width of a blank
    qreal width = 1; // the width of a line
};

class LogRowLayout {
public:
    struct Selection {
        std::size_t from;
        std::size_t to;
        QColor text;
        QColor background;
    };

    LogRowLayout(const LogText::Row& row, const LogRowStyle& looks);

    int lineCount() const { return _layout.lineCount(); }

    // The line that holds a position of the row. At a break this is the later of the two lines.
    int lineOf(std::size_t position) const;

    // Draws the row, and marks the part that lies in the selection. A selected line feed is marked
    // as wide as a blank.
    void draw(QPainter& painter, QPointF corner, const Selection& selection);

    // The distance of a position from the row's left edge, in pixels.
    qreal xOf(std::size_t position) const;

    // The position in a line that is nearest to `x`, and the position before the character at `x`.
    // `x` is the distance from the left edge in pixels.
    std::size_t positionAt(int line, qreal x) const;
    std::size_t characterAt(int line, qreal x) const;

private:
    int unitOf(std::size_t position) const;
    std::size_t positionOf(int unit) const;

    LogText::Row _row;
    const LogRowStyle& _looks;
    QTextLayout _layout;
};

} // namespace kx
