#include "platform/qt/NoteLabel.h"

#include <algorithm>

namespace kx {

NoteLabel::NoteLabel(QWidget* parent)
    : SpokenLabel(parent) {
    setWordWrap(true);
    setAlignment(Qt::AlignLeading | Qt::AlignTop);
}

// The window decides the width: no text makes the label wider.
QSize NoteLabel::sizeHint() const {
    return {0, std::max(heightForWidth(width()), 2 * fontMetrics().lineSpacing())};
}

QSize NoteLabel::minimumSizeHint() const {
    return sizeHint();
}

void NoteLabel::resizeEvent(QResizeEvent* event) {
    SpokenLabel::resizeEvent(event);
    updateGeometry();
}

} // namespace kx
