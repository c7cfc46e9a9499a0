#include "platform/qt/FromFileTable.h"

#include "platform/qt/QtText.h"
#include "units/UnitParameter.h"

#include <QHeaderView>
#include <string>

namespace kx {

FromFileTable::FromFileTable(FromFileModel& model, QWidget* parent)
    : RowTableView(model, parent) {
    fitToFont();
    // A reset of the model takes the current row away without a word.
    connect(&model, &QAbstractItemModel::modelReset, this, &FromFileTable::currentRowDidChange);
}

QStringList FromFileTable::widestTextsOf(int column) const {
    switch (static_cast<PlanColumn>(column)) {
    case PlanColumn::line:
        return {"00000"};
    case PlanColumn::unit:
        return {"4B 58 00 00 00 00"};
    case PlanColumn::parameter: {
        QStringList names;
        for (const UnitParameter parameter : allUnitParameters) {
            names.append(qtText(localizedText(nameOfUnitParameter(parameter))));
        }
        return names;
    }
    case PlanColumn::before:
    case PlanColumn::wanted:
        return {"02:4B:58:00:00:00", "255.255.255.255", "4B 58 00 00 00 00"};
    case PlanColumn::state: {
        QStringList states;
        for (const std::string& words : wordsOfPlanStates()) {
            states.append(qtText(words));
        }
        return states;
    }
    default:
        return {};
    }
}

int FromFileTable::usefulWidth() const {
    constexpr int charactersOfReason = 40;
    return horizontalHeader()->sectionPosition(model()->columnCount() - 1) +
           charactersOfReason * fontMetrics().averageCharWidth() + 2 * frameWidth() +
           style()->pixelMetric(QStyle::PM_ScrollBarExtent);
}

void FromFileTable::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    RowTableView::currentChanged(current, previous);
    emit currentRowDidChange();
}

} // namespace kx
