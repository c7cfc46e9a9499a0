#include "platform/qt/DetailDelegate.h"

#include "platform/qt/TitleListModel.h"

#include <QApplication>
#include <QPainter>
#include <algorithm>

namespace kx {

namespace {

// The details of most lists begin at one place: no serial number is wider.
constexpr const char* widestTitle = "DD DD DD DD DD DD";

} // namespace

void DetailDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                           const QModelIndex& index) const {
    QStyledItemDelegate::paint(painter, option, index);
    const QString details = index.data(TitleListModel::detailRole).toString();
    if (details.isEmpty()) {
        return;
    }
    const QFontMetrics& metrics = option.fontMetrics;
    const int title = std::max(metrics.horizontalAdvance(index.data().toString()),
                               metrics.horizontalAdvance(widestTitle));
    QRect room = option.rect;
    const int before = title + 4 * metrics.averageCharWidth();
    const int behind = metrics.averageCharWidth();
    const bool isRightToLeft = option.direction == Qt::RightToLeft;
    room.adjust(isRightToLeft ? behind : before, 0, isRightToLeft ? -before : -behind, 0);
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    QColor grey = option.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text);
    grey.setAlphaF(isSelected ? 0.85F : 0.65F);
    painter->save();
    painter->setPen(grey);
    painter->setFont(option.font);
    painter->drawText(room, Qt::AlignLeading | Qt::AlignVCenter | Qt::TextSingleLine,
                      metrics.elidedText(details, Qt::ElideRight, room.width()));
    painter->restore();
}

QSize DetailDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const QSize text = QStyledItemDelegate::sizeHint(option, index);
    return {text.width(), std::max(text.height(), option.fontMetrics.height() * 5 / 4)};
}

} // namespace kx
