// The titles of a pop-up as a model: texts in UTF-8, each turned into Qt's form when it is looked
// at, so that a long list costs no more than itself. Main thread only.

#pragma once

#include "support/TitleList.h"

#include <QAbstractListModel>

namespace kx {

class TitleListModel final : public QAbstractListModel {
public:
    const TitleList& titles() const { return _titles; }
    void setTitles(TitleList titles);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

    // As the base class has it; what a person types into a list is found without a text of Qt's for
    // each title on the way.
    QModelIndexList match(const QModelIndex& start, int role, const QVariant& value, int hits,
                          Qt::MatchFlags flags) const override;

private:
    TitleList _titles;
};

} // namespace kx
