// One row of the log as it is drawn.
//
// Runs from left to right whatever its letters are, so that a foreign name cannot turn the row
// around; what is written from right to left keeps its order inside. Control characters show as
// their pictures, and characters that would break or reorder the row as a replacement mark, so that
// a text from the network is harmless on the screen.
//
// Made for rows in sight only, and short-lived: the row must not change meanwhile.

#pragma once

#include "platform/qt/LogText.h"

#include <QColor>
#include <QFont>
#include <QPainter>
#include <QTextLayout>

namespace kx {

// The text as it is drawn: as many UTF-16 units as the text has, some of them replaced.
QString shownText(std::string_view text);

class LogRowLayout {
public:
    struct Selection {
        std::size_t from;
        std::size_t to;
        QColor text;
        QColor background;
    };

    LogRowLayout(const LogText::Row& row, const QFont& font);

    // Draws with the base line so far below `top`. Marks what lies in the selection, the line feed
    // included, as wide as a blank.
    void draw(QPainter& painter, QPointF top, qreal baseLine, const Selection& selection);

    // From the row's left edge, in pixels, for a position in the row.
    qreal xOf(std::size_t position) const;

    // The position nearest to so many pixels from the left edge.
    std::size_t positionAt(qreal x) const;

    // The position before the character that so many pixels from the left edge lies on.
    std::size_t characterAt(qreal x) const;

    // In pixels.
    qreal width() const;

private:
    int unitOf(std::size_t position) const;
    std::size_t positionOf(int unit) const;

    LogText::Row _row;
    QTextLayout _layout;
};

} // namespace kx
