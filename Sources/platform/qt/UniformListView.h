// A list whose rows all have the height of the first row and a margin. However long it is, only the
// rows in sight are visited. It is made for the long lists of pop-ups.
//
// It derives from the list view for the sake of screen readers. It passes over the list view's own
// layout, which visits every row. Main thread only.

#pragma once

#include <QListView>

namespace kx {

class UniformListView final : public QListView {
    Q_OBJECT

public:
    using QListView::QListView;

    QModelIndex indexAt(const QPoint& point) const override;
    void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;
    QRect visualRect(const QModelIndex& index) const override;
    void doItemsLayout() override;

protected:
    int horizontalOffset() const override { return 0; }
    int verticalOffset() const override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void setSelection(const QRect& area, QItemSelectionModel::SelectionFlags flags) override;
    void updateGeometries() override;
    QRegion visualRegionForSelection(const QItemSelection& selection) const override;

private:
    int rowCount() const;
    int rowHeight() const;
    int rowsInSight() const;
};

} // namespace kx
