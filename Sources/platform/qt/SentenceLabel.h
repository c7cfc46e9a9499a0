// A label for sentences of changing length. It has room for some lines from the start, so that the
// controls below it do not move when a text comes or goes. Longer texts make it grow.
//
// A sentence that means trouble has a sign in front of it. The sign is painted, so that it looks
// the same in every font and takes no line of its own; a screen reader says it as a word.
//
// Its height follows from its width, but it does not tell layouts so. If it did, a scroll
// area would give its content the preferred height, and never the smaller height that is enough.

#pragma once

#include "platform/qt/AnnouncedLabel.h"

#include <algorithm>
#include <limits>

namespace kx {

class SentenceLabel final : public AnnouncedLabel {
    Q_OBJECT
    Q_PROPERTY(int reservedLines READ reservedLines WRITE setReservedLines)
    Q_PROPERTY(int leastLines READ leastLines WRITE setLeastLines)

public:
    explicit SentenceLabel(QWidget* parent = nullptr);

    int reservedLines() const { return _reservedLines; }
    void setReservedLines(int lines);

    // A window that is too low for all of it keeps room for so many lines only. Without this, it
    // keeps room for all reserved lines.
    int leastLines() const { return std::min(_leastLines, _reservedLines); }
    void setLeastLines(int lines);

    void setMeansTrouble(bool meansTrouble) override;

    bool hasHeightForWidth() const override { return false; }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    int heightOfLines(int count) const;
    int widthOfSign() const;

    int _reservedLines = 2;
    int _leastLines = std::numeric_limits<int>::max();
};

} // namespace kx
