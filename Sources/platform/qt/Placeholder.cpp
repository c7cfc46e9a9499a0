#include "platform/qt/Placeholder.h"

#include <QPainter>

namespace kx {

void paintPlaceholder(QWidget& viewport, const QString& text) {
    QColor dimmed = viewport.palette().color(QPalette::Text);
    dimmed.setAlphaF(0.6F);
    QPainter painter(&viewport);
    painter.setPen(dimmed);
    const int margin = viewport.fontMetrics().averageCharWidth();
    painter.drawText(viewport.rect().adjusted(margin, 0, -margin, 0),
                     static_cast<int>(Qt::AlignCenter) | Qt::TextWordWrap, text);
}

} // namespace kx
