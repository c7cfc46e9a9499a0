#include "platform/qt/NoteLabel.h"

#include <algorithm>

namespace kx {

NoteLabel::NoteLabel(QWidget* parent)
    : SpokenLabel(parent) {
    setWordWrap(true);
    setAlignment(Qt::AlignLeading | Qt::AlignTop);
}

// The width is the window's affair: no text makes it wider.
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
