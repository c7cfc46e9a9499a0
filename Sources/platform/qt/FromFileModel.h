// The lines that the window *Configure from File…* shows, as a model: a row for each, a column for
// each PlanColumn in their order.
//
// Main thread only. The run must outlive the model.

#pragma once

#include "KXTableRun.h"

#include <QAbstractTableModel>
#include <cstddef>

namespace kx {

class FromFileModel final : public QAbstractTableModel {
    Q_OBJECT

public:
    explicit FromFileModel(const KXTableRun& run, QObject* parent = nullptr);

    // Shows the lines as they are now. Call it when they may have changed. Views keep the selection
    // and their place as long as the list is the same.
    void follow();

    // The whole reason of a row.
    QString reason(int row) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    const KXTableRun& _run;
    int _rows = 0;
    std::size_t _listNumber = 0;
};

} // namespace kx
