// The titles of a pop-up as a model. A title is kept in UTF-8 and turned into Qt's form each time
// it is read, so a long list needs no second copy of its texts. The display role has the visible
// text (support/VisibleText.h), the edit role the title itself.
//
// A title may have details, texts by which a person knows it as well. They are asked for when they
// are wanted and not kept. Main thread only.

#pragma once

#include "support/TitleList.h"

#include <QAbstractListModel>
#include <QPalette>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kx {

// The colour of a dimmed text: two thirds of the way from the background to the text, so that it
// can be read on any desktop.
QColor dimmedColour(const QColor& text, const QColor& background);

class TitleListModel final : public QAbstractListModel {
public:
    using Details = std::function<std::vector<std::string>(std::string_view title)>;

    // The details of a title as one visible text.
    static constexpr int detailRole = Qt::UserRole;

    const TitleList& titles() const { return _titles; }
    void setTitles(TitleList titles);

    // Titles for which the function is true have a foreground of their own and the description.
    void setDimming(std::function<bool(std::string_view title)> isDimmed, QString description);
    bool isDimmed(int row) const; // false for a row that is not there
    const QString& dimmedDescription() const { return _dimmedDescription; }

    // Tells views that the function may give other results.
    void refreshDimming();

    // Empty: titles have no details.
    void setDetails(Details details) { _details = std::move(details); }

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

    // Finds the text that a person types into a list: a title that begins with it, then a title
    // that begins with it without its blanks, then one with a detail that begins with it. Letters
    // match in either case. It makes no Qt text for each title, so it is faster than the base
    // class, which has the result of everything else.
    QModelIndexList match(const QModelIndex& start, int role, const QVariant& value, int hits,
                          Qt::MatchFlags flags) const override;

private:
    QString detailsOf(std::string_view title) const;
    QString descriptionOf(std::string_view title) const;

    TitleList _titles;
    std::function<bool(std::string_view title)> _isDimmed; // may be empty
    QString _dimmedDescription;
    Details _details;
};

} // namespace kx
