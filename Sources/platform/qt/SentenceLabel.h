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

namespace kx {

class SentenceLabel final : public AnnouncedLabel {
    Q_OBJECT
    Q_PROPERTY(int reservedLines READ reservedLines WRITE setReservedLines)

public:
    explicit SentenceLabel(QWidget* parent = nullptr);

    int reservedLines() const { return _reservedLines; }
    void setReservedLines(int lines);

    void setMeansTrouble(bool meansTrouble) override;

    bool hasHeightForWidth() const override { return false; }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    int heightOfReservedLines() const;
    int widthOfSign() const;

    int _reservedLines = 2;
};

} // namespace kx
