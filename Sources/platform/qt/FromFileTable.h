// The table of the window *Configure from File…*.
//
// All rows have one height, so that ten thousand units cost no more than those that are seen. While
// there are no rows, the table shows a text in their place; the text is also its description for a
// screen reader.
//
// Main thread only.

#pragma once

#include "platform/qt/FromFileModel.h"

#include <QTableView>

namespace kx {

class FromFileTable final : public QTableView {
    Q_OBJECT

public:
    // The model must outlive it.
    explicit FromFileTable(FromFileModel& model, QWidget* parent = nullptr);

    void setPlaceholderText(const QString& text);
    const QString& placeholderText() const { return _placeholderText; }

    // The selected rows as a table: the heads of the columns, then a line for each row, with tabs
    // between the cells. Empty when nothing is selected.
    QString selectedRowsText() const;

    // The width at which every column but the last one is seen whole, and some of the last one.
    int usefulWidth() const;

signals:
    void currentRowDidChange(int row);

protected:
    void changeEvent(QEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void fitToFont();

    FromFileModel& _model;
    QString _placeholderText;
};

} // namespace kx
