#include "platform/qt/FromFileTable.h"

#include "platform/qt/Placeholder.h"
#include "platform/qtcore/QtText.h"
#include "units/UnitParameter.h"

#include <QEvent>
#include <QHeaderView>
#include <algorithm>
#include <set>
#include <string>
#include <vector>

namespace kx {

namespace {

std::vector<std::string> widestTextsOf(PlanColumn column) {
    switch (column) {
    case PlanColumn::line:
        return {"00000"};
    case PlanColumn::unit:
        return {"4B 58 00 00 00 00"};
    case PlanColumn::parameter: {
        std::vector<std::string> names;
        names.reserve(allUnitParameters.size());
        for (const UnitParameter parameter : allUnitParameters) {
            names.push_back(localizedText(nameOfUnitParameter(parameter)));
        }
        return names;
    }
    case PlanColumn::before:
    case PlanColumn::wanted:
        return {"02:4B:58:00:00:00", "255.255.255.255", "4B 58 00 00 00 00"};
    case PlanColumn::state:
        return wordsOfPlanStates();
    default:
        return {};
    }
}

} // namespace

FromFileTable::FromFileTable(FromFileModel& model, QWidget* parent)
    : QTableView(parent)
    , _model(model) {
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
    fitToFont();
    // A reset of the model takes the current row away without a word.
    connect(&model, &QAbstractItemModel::modelReset, this,
            [this] { emit currentRowDidChange(-1); });
}

void FromFileTable::setPlaceholderText(const QString& text) {
    if (text != _placeholderText) {
        _placeholderText = text;
        setAccessibleDescription(text);
        viewport()->update();
    }
}

QString FromFileTable::selectedRowsText() const {
    std::set<int> rows;
    for (const QItemSelectionRange& range : selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            rows.insert(row);
        }
    }
    if (rows.empty()) {
        return {};
    }
    const int last = _model.columnCount() - 1;
    QString text;
    for (int column = 0; column <= last; ++column) {
        text += _model.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
        text += column == last ? '\n' : '\t';
    }
    for (const int row : rows) {
        for (int column = 0; column <= last; ++column) {
            text += _model.index(row, column).data().toString();
            text += column == last ? '\n' : '\t';
        }
    }
    return text;
}

int FromFileTable::usefulWidth() const {
    constexpr int charactersOfReason = 40;
    const int last = _model.columnCount() - 1;
    return horizontalHeader()->sectionPosition(last) +
           charactersOfReason * fontMetrics().averageCharWidth() + 2 * frameWidth() +
           style()->pixelMetric(QStyle::PM_ScrollBarExtent);
}

void FromFileTable::fitToFont() {
    verticalHeader()->setMinimumSectionSize(fontMetrics().height());
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() * 3 / 2);
    const int padding = 3 * fontMetrics().averageCharWidth();
    for (int column = 0; column < _model.columnCount() - 1; ++column) {
        int width = horizontalHeader()->sectionSizeHint(column);
        for (const std::string& text : widestTextsOf(static_cast<PlanColumn>(column))) {
            width = std::max(width, fontMetrics().horizontalAdvance(qtText(text)) + padding);
        }
        setColumnWidth(column, width);
    }
}

void FromFileTable::changeEvent(QEvent* event) {
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        fitToFont();
    }
}

void FromFileTable::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTableView::currentChanged(current, previous);
    emit currentRowDidChange(current.row());
}

void FromFileTable::paintEvent(QPaintEvent* event) {
    QTableView::paintEvent(event);
    if (_model.rowCount() == 0) {
        paintPlaceholder(*viewport(), _placeholderText);
    }
}

} // namespace kx
