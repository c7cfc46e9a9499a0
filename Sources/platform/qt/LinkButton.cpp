#include "platform/qt/LinkButton.h"

#include <QStyleOptionFocusRect>
#include <QStylePainter>

namespace kx {

LinkButton::LinkButton(QWidget* parent)
    : QPushButton(parent) {
    setFlat(true);
    setCursor(Qt::PointingHandCursor);
}

QSize LinkButton::sizeHint() const {
    const int width = fontMetrics().size(Qt::TextShowMnemonic, text()).width();
    return {width + 2 * fontMetrics().averageCharWidth(), fontMetrics().height()};
}

// The style would centre the text in a button with room above and below it.
void LinkButton::paintEvent(QPaintEvent* /*event*/) {
    QStylePainter painter(this);
    painter.drawItemText(rect(), Qt::AlignHCenter | Qt::AlignTop | Qt::TextShowMnemonic, palette(),
                         isEnabled(), text(), QPalette::WindowText);
    if (hasFocus()) {
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
    }
}

} // namespace kx
