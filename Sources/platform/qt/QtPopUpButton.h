// A pop-up button over a combo box, with the rules of Outlets.h.
//
// Takes over the items that the interface description gave the combo box, and keeps the one
// selected that was. From then on the items belong to this object: nobody else changes them. The
// combo box must outlive it. Costs grow with the number of titles, not with its square. A list that
// no screen could show at once opens as one that scrolls, without a look at every title.

#pragma once

#include "Outlets.h"

#include <QComboBox>
#include <QHash>
#include <QProxyStyle>
#include <QStringListModel>
#include <memory>

namespace kx {

class QtPopUpButton final : public PopUpButton {
public:
    explicit QtPopUpButton(QComboBox& comboBox);
    ~QtPopUpButton() override;
    QtPopUpButton(const QtPopUpButton&) = delete;
    QtPopUpButton& operator=(const QtPopUpButton&) = delete;

    void removeAllItems() override;
    void addItemsWithTitles(const std::vector<std::string>& titles) override;
    void selectItemAtIndex(int index) override;
    void selectItemWithTitle(std::string_view title) override;
    std::optional<std::string> titleOfSelectedItem() const override;
    void setEnabled(bool enabled) override;

private:
    void addTitle(const QString& title);
    void closeGaps();
    int indexOf(const QString& title) const;
    void showTitles(const QString& selected);
    void prepareForLongList();

    QComboBox& _comboBox;
    QStringListModel _model;
    std::unique_ptr<QProxyStyle> _styleOfLongList; // absent until a long list was shown

    QStringList _titles;
    bool _isAscending = true;
    QHash<QString, qsizetype> _indexOfTitle; // filled once the titles are not ascending
    bool _hasGaps = false;                   // a title was added again, and its first place is void
};

} // namespace kx
