#include "platform/qt/RowTableView.h"

#include "platform/qt/Placeholder.h"

#include <QEvent>
#include <QHeaderView>
#include <algorithm>

namespace kx {

RowTableView::RowTableView(QAbstractItemModel& model, QWidget* parent)
    : QTableView(parent) {
    setModel(&model);
    setShowGrid(false);
    setWordWrap(false);
    setAlternatingRowColors(true);
    setTabKeyNavigation(false);
    setCornerButtonEnabled(false);
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setHorizontalScrollMode(ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setStretchLastSection(true);
}

void RowTableView::setPlaceholderText(const QString& text) {
    if (text != _placeholderText) {
        _placeholderText = text;
        setAccessibleDescription(text);
        viewport()->update();
    }
}

std::vector<int> RowTableView::shownColumnNumbers() const {
    std::vector<int> columns;
    for (int place = 0; place < horizontalHeader()->count(); ++place) {
        const int column = horizontalHeader()->logicalIndex(place);
        if (!isColumnHidden(column)) {
            columns.push_back(column);
        }
    }
    return columns;
}

std::vector<int> RowTableView::selectedRowNumbers() const {
    std::vector<int> rows;
    for (const QItemSelectionRange& range : selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            rows.push_back(row);
        }
    }
    std::ranges::sort(rows);
    const auto repeated = std::ranges::unique(rows);
    rows.erase(repeated.begin(), repeated.end());
    return rows;
}

QString RowTableView::selectedRowsText() const {
    const std::vector<int> rows = selectedRowNumbers();
    if (rows.empty()) {
        return {};
    }
    const std::vector<int> columns = shownColumnNumbers();
    QStringList cells;
    for (const int column : columns) {
        // The head may be in two lines; its accessible text never is.
        const QVariant text = model()->headerData(column, Qt::Horizontal, Qt::AccessibleTextRole);
        cells.append(text.isValid() ? text.toString()
                                    : model()->headerData(column, Qt::Horizontal).toString());
    }
    QString table = cells.join('\t') + '\n';
    for (const int row : rows) {
        cells.clear();
        for (const int column : columns) {
            cells.append(model()->index(row, column).data().toString());
        }
        table += cells.join('\t') + '\n';
    }
    return table;
}

void RowTableView::fitToFont() {
    verticalHeader()->setMinimumSectionSize(fontMetrics().height());
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() * 3 / 2);
    const int padding = 3 * fontMetrics().averageCharWidth();
    for (int column = 0; column < model()->columnCount(); ++column) {
        int width = horizontalHeader()->sectionSizeHint(column);
        for (const QString& text : widestTextsOf(column)) {
            width = std::max(width, fontMetrics().horizontalAdvance(text) + padding);
        }
        setColumnWidth(column, width);
    }
}

void RowTableView::changeEvent(QEvent* event) {
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        fitToFont();
    }
}

void RowTableView::paintEvent(QPaintEvent* event) {
    QTableView::paintEvent(event);
    if (model()->rowCount() == 0) {
        paintPlaceholder(*viewport(), _placeholderText);
    }
}

} // namespace kx
