#include "platform/qt/UniformListView.h"

#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>

namespace kx {

QModelIndex UniformListView::indexAt(const QPoint& point) const {
    const int row = verticalOffset() + point.y() / rowHeight();
    const bool isInside = viewport()->rect().contains(point) && row < rowCount();
    return isInside ? model()->index(row, modelColumn(), rootIndex()) : QModelIndex();
}

QRect UniformListView::visualRect(const QModelIndex& index) const {
    if (!index.isValid()) {
        return {};
    }
    const int height = rowHeight();
    return {0, (index.row() - verticalOffset()) * height, viewport()->width(), height};
}

void UniformListView::scrollTo(const QModelIndex& index, ScrollHint hint) {
    if (!index.isValid()) {
        return;
    }
    const int first = verticalOffset();
    const int last = first + rowsInSight() - 1;
    const bool isAbove = index.row() < first;
    const bool isBelow = index.row() > last;
    if (hint == PositionAtCenter) {
        verticalScrollBar()->setValue(index.row() - rowsInSight() / 2);
    } else if (hint == PositionAtTop || isAbove) {
        verticalScrollBar()->setValue(index.row());
    } else if (hint == PositionAtBottom || isBelow) {
        verticalScrollBar()->setValue(index.row() - rowsInSight() + 1);
    }
}

// There is no layout: the place of a row follows from its number.
void UniformListView::doItemsLayout() {
    QAbstractItemView::doItemsLayout(); // NOLINT(bugprone-parent-virtual-call)
}

// The scroll bar counts rows.
int UniformListView::verticalOffset() const {
    return verticalScrollBar()->value();
}

QModelIndex UniformListView::moveCursor(CursorAction action, Qt::KeyboardModifiers /*modifiers*/) {
    executeDelayedItemsLayout();
    int row = currentIndex().row();
    switch (action) {
    case MoveUp:
    case MoveLeft:
    case MovePrevious:
        --row;
        break;
    case MoveDown:
    case MoveRight:
    case MoveNext:
        ++row;
        break;
    case MovePageUp:
        row -= rowsInSight();
        break;
    case MovePageDown:
        row += rowsInSight();
        break;
    case MoveHome:
        row = 0;
        break;
    case MoveEnd:
        row = rowCount() - 1;
        break;
    }
    row = std::clamp(row, 0, std::max(0, rowCount() - 1));
    return model()->index(row, modelColumn(), rootIndex());
}

void UniformListView::paintEvent(QPaintEvent* event) {
    QPainter painter(viewport());
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    const QStyle::State state = option.state;
    const int top = std::max(0, event->rect().top() / rowHeight());
    const int bottom = std::max(0, event->rect().bottom() / rowHeight());
    const int end = std::min(rowCount(), verticalOffset() + bottom + 1);
    for (int row = verticalOffset() + top; row < end; ++row) {
        const QModelIndex index = model()->index(row, modelColumn(), rootIndex());
        option.rect = visualRect(index);
        option.state = state;
        option.state.setFlag(QStyle::State_Selected, selectionModel()->isSelected(index));
        option.state.setFlag(QStyle::State_HasFocus, hasFocus() && index == currentIndex());
        itemDelegateForIndex(index)->paint(&painter, option, index);
    }
}

void UniformListView::resizeEvent(QResizeEvent* event) {
    QAbstractItemView::resizeEvent(event); // NOLINT(bugprone-parent-virtual-call)
}

void UniformListView::scrollContentsBy(int /*dx*/, int /*dy*/) {
    viewport()->update();
}

void UniformListView::setSelection(const QRect& area, QItemSelectionModel::SelectionFlags flags) {
    const QModelIndex first = indexAt(area.topLeft());
    const QModelIndex last = indexAt(area.bottomRight());
    selectionModel()->select(QItemSelection(first, last.isValid() ? last : first), flags);
}

void UniformListView::updateGeometries() {
    verticalScrollBar()->setRange(0, std::max(0, rowCount() - rowsInSight()));
    verticalScrollBar()->setPageStep(rowsInSight());
    QAbstractItemView::updateGeometries(); // NOLINT(bugprone-parent-virtual-call)
}

QRegion UniformListView::visualRegionForSelection(const QItemSelection& selection) const {
    QRegion region;
    for (const QItemSelectionRange& range : selection) {
        region += visualRect(range.topLeft()).united(visualRect(range.bottomRight()));
    }
    return region & viewport()->rect();
}

int UniformListView::rowCount() const {
    return model() == nullptr ? 0 : model()->rowCount(rootIndex());
}

int UniformListView::rowHeight() const {
    if (rowCount() == 0) {
        return 1;
    }
    const QModelIndex first = model()->index(0, modelColumn(), rootIndex());
    return std::max(1, sizeHintForIndex(first).height() + fontMetrics().height() / 2);
}

int UniformListView::rowsInSight() const {
    return std::max(1, viewport()->height() / rowHeight());
}

} // namespace kx
