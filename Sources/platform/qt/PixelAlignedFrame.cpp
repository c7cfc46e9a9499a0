#include "platform/qt/PixelAlignedFrame.h"

#include <QEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFrame>
#include <cmath>

namespace kx {

namespace {

class PixelAlignedFrame final : public QObject {
public:
    explicit PixelAlignedFrame(QFrame& frame)
        : QObject(&frame)
        , _frame(frame) {
        frame.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        const double ratio = _frame.devicePixelRatioF();
        if (watched != &_frame || event->type() != QEvent::Paint || ratio == std::round(ratio)) {
            return false;
        }
        draw();
        return true;
    }

private:
    void draw() {
        QPainter painter(&_frame);
        const QTransform toPixels = painter.deviceTransform();
        const QRectF edges = toPixels.mapRect(QRectF(_frame.rect()));
        const QPoint first(qRound(edges.left()), qRound(edges.top()));
        const QPoint behindLast(qRound(edges.right()), qRound(edges.bottom()));
        QStyleOptionFrame option;
        option.initFrom(&_frame);
        option.rect = QRect(first, behindLast - QPoint(1, 1));
        option.frameShape = _frame.frameShape();
        option.lineWidth = _frame.frameWidth();
        option.state |= QStyle::State_Sunken;
        painter.setTransform(toPixels.inverted());
        _frame.style()->drawControl(QStyle::CE_ShapedFrame, &option, &painter, &_frame);
    }

    QFrame& _frame;
};

} // namespace

void drawFrameOnPixels(QFrame& frame) {
    new PixelAlignedFrame(frame); // the frame owns it
}

} // namespace kx
