// The titles of a pop-up as a model. A title is kept in UTF-8 and turned into Qt's form each time
// it is read, so a long list needs no second copy of its texts. The display role has the visible
// text (support/VisibleText.h), the edit role the title itself. Main thread only.

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

    // Gives the result of the base class. It makes no Qt text for each title, so it finds the text
    // that a person types into a list faster.
    QModelIndexList match(const QModelIndex& start, int role, const QVariant& value, int hits,
                          Qt::MatchFlags flags) const override;

private:
    TitleList _titles;
};

} // namespace kx
