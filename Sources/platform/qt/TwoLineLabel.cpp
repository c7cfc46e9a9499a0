#include "platform/qt/TwoLineLabel.h"

#include <algorithm>

namespace kx {

TwoLineLabel::TwoLineLabel(QWidget* parent)
    : AnnouncedLabel(parent) {
    setWordWrap(true);
    setAlignment(Qt::AlignLeading | Qt::AlignTop);
}

// The window decides the width: no text makes the label wider.
QSize TwoLineLabel::sizeHint() const {
    return {0, std::max(heightForWidth(width()), 2 * fontMetrics().lineSpacing())};
}

QSize TwoLineLabel::minimumSizeHint() const {
    return sizeHint();
}

void TwoLineLabel::resizeEvent(QResizeEvent* event) {
    AnnouncedLabel::resizeEvent(event);
    updateGeometry();
}

} // namespace kx
