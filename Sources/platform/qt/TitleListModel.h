// The titles of a pop-up as a model. A title is kept in UTF-8 and turned into Qt's form each time
// it is read, so a long list needs no second copy of its texts. The display role has the visible
// text (support/VisibleText.h), the edit role the title itself. Main thread only.

#pragma once

#include "support/TitleList.h"

#include <QAbstractListModel>
#include <QPalette>
#include <functional>
#include <string_view>

namespace kx {

// The colour of a dimmed text: two thirds of the way from the background to the text, so that it
// can be read on any desktop.
QColor dimmedColour(const QColor& text, const QColor& background);

class TitleListModel final : public QAbstractListModel {
public:
    const TitleList& titles() const { return _titles; }
    void setTitles(TitleList titles);

    // Titles for which the function is true have a foreground of their own and the description.
    void setDimming(std::function<bool(std::string_view title)> isDimmed, QString description);
    bool isDimmed(int row) const; // false for a row that is not there
    const QString& dimmedDescription() const { return _dimmedDescription; }

    // Tells views that the function may give other results.
    void refreshDimming();

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

    // Gives the result of the base class. It makes no Qt text for each title, so it finds the text
    // that a person types into a list faster.
    QModelIndexList match(const QModelIndex& start, int role, const QVariant& value, int hits,
                          Qt::MatchFlags flags) const override;

private:
    TitleList _titles;
    std::function<bool(std::string_view title)> _isDimmed; // may be empty
    QString _dimmedDescription;
};

} // namespace kx
