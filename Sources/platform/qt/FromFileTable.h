// The table of the window *Configure from File…*. Main thread only.

#pragma once

#include "platform/qt/FromFileModel.h"
#include "platform/qt/RowTableView.h"

namespace kx {

class FromFileTable final : public RowTableView {
    Q_OBJECT

public:
    // The model must outlive it.
    explicit FromFileTable(FromFileModel& model, QWidget* parent = nullptr);

    // The width at which every column but the last one is seen whole, and some of the last one.
    int usefulWidth() const;

signals:
    void currentRowDidChange();

protected:
    QStringList widestTextsOf(int column) const override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
};

} // namespace kx
