// Draws a title of a pop-up's list, and the title's details in grey beside it.
//
// Main thread only.

#pragma once

#include <QStyledItemDelegate>

namespace kx {

class DetailDelegate final : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

    // Higher than the text, as an entry of a menu is.
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

} // namespace kx
