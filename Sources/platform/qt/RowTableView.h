// A table in which whole rows are selected, and which many rows cost no more than those that are
// seen: all have one height, and columns are as wide as their usual texts.
//
// While there are no rows, the table shows a text in their place; the text is also its description
// for a screen reader.
//
// Main thread only.

#pragma once

#include <QStringList>
#include <QTableView>
#include <vector>

namespace kx {

class RowTableView : public QTableView {
    Q_OBJECT

public:
    void setPlaceholderText(const QString& text);
    const QString& placeholderText() const { return _placeholderText; }

    // The selected rows as a table: the heads of the columns that are shown, from left to right,
    // then a line for each row, with tabs between the cells. Empty when nothing is selected.
    QString selectedRowsText() const;

protected:
    // The model must outlive it. The constructor of the class that is derived calls fitToFont().
    RowTableView(QAbstractItemModel& model, QWidget* parent);

    // Gives rows and columns the sizes that the font needs.
    void fitToFont();

    // Texts as wide as the widest that a column usually has; none for a column that is as wide as
    // its head.
    virtual QStringList widestTextsOf(int column) const = 0;

    // The columns that are shown, from left to right, by their numbers in the model.
    std::vector<int> shownColumnNumbers() const;

    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    std::vector<int> selectedRowNumbers() const;

    QString _placeholderText;
};

} // namespace kx
