#include "platform/qt/SentenceLabel.h"

#include "platform/qt/QtText.h"
#include "support/LocalizedText.h"

#include <QPainter>
#include <QPainterPath>
#include <QStringList>

namespace kx {

SentenceLabel::SentenceLabel(QWidget* parent)
    : AnnouncedLabel(parent) {
    setWordWrap(true);
    setAlignment(Qt::AlignLeading | Qt::AlignTop);
}

void SentenceLabel::setReservedLines(int lines) {
    _reservedLines = lines;
    updateGeometry();
}

void SentenceLabel::setLeastLines(int lines) {
    _leastLines = lines;
    updateGeometry();
}

void SentenceLabel::setMeansTrouble(bool meansTrouble) {
    if (meansTrouble != this->meansTrouble()) {
        AnnouncedLabel::setMeansTrouble(meansTrouble);
        const int room = meansTrouble ? widthOfSign() : 0;
        setContentsMargins(isRightToLeft() ? 0 : room, 0, isRightToLeft() ? room : 0, 0);
        updateGeometry();
    }
}

// The window decides the width: no text makes the label wider.
QSize SentenceLabel::sizeHint() const {
    return {0, std::max(heightForWidth(width()), heightOfLines(_reservedLines))};
}

QSize SentenceLabel::minimumSizeHint() const {
    return {0, std::max(heightForWidth(width()), heightOfLines(leastLines()))};
}

// Letters that the label's font does not have come from another font, whose lines may be higher. So
// this measures lines with both kinds of letters, as the label measures its text.
int SentenceLabel::heightOfLines(int count) const {
    const QString line = "Ag" + qtText(localizedText("Unit parameters"));
    const QString lines = QStringList(count, line).join('\n');
    constexpr QRect room(0, 0, QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    return std::max(count * fontMetrics().lineSpacing(),
                    fontMetrics().boundingRect(room, 0, lines).height());
}

int SentenceLabel::widthOfSign() const {
    return fontMetrics().height() + fontMetrics().averageCharWidth();
}

// A triangle with a mark of exclamation, in the colours of the text, because people set those so
// that they can see them.
void SentenceLabel::paintEvent(QPaintEvent* event) {
    AnnouncedLabel::paintEvent(event);
    if (!meansTrouble() || text().isEmpty()) {
        return;
    }
    const qreal side = fontMetrics().ascent();
    const qreal left = isRightToLeft() ? width() - side : 0;
    const QRectF place(left, (fontMetrics().height() - side) / 2, side, side);
    QPainterPath triangle;
    triangle.moveTo(place.center().x(), place.top());
    triangle.lineTo(place.bottomRight());
    triangle.lineTo(place.bottomLeft());
    triangle.closeSubpath();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor ink = palette().color(QPalette::WindowText);
    painter.setPen(QPen(ink, side / 9, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(triangle);
    const qreal middle = place.center().x();
    painter.drawLine(QPointF(middle, place.top() + 0.42 * side),
                     QPointF(middle, place.top() + 0.66 * side));
    painter.drawPoint(QPointF(middle, place.top() + 0.83 * side));
}

void SentenceLabel::resizeEvent(QResizeEvent* event) {
    AnnouncedLabel::resizeEvent(event);
    updateGeometry();
}

} // namespace kx
