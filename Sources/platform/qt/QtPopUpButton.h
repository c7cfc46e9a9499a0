// A pop-up button over a combo box, with the rules of Outlets.h.
//
// Takes over the items that the interface description gave the combo box, and keeps the one
// selected that was. From then on the items belong to this object: nobody else changes them. The
// combo box must outlive it. Costs grow with the number of titles, not with its square. A list that
// no screen could show at once opens as one that scrolls, without a look at every title.

#pragma once

#include "Outlets.h"
#include "platform/qt/TitleListModel.h"

#include <QComboBox>
#include <QProxyStyle>
#include <memory>
#include <unordered_map>

namespace kx {

class QtPopUpButton final : public PopUpButton {
public:
    explicit QtPopUpButton(QComboBox& comboBox);
    ~QtPopUpButton() override;
    QtPopUpButton(const QtPopUpButton&) = delete;
    QtPopUpButton& operator=(const QtPopUpButton&) = delete;

    void removeAllItems() override;
    void addItemsWithTitles(TitleList titles) override;
    void selectItemAtIndex(int index) override;
    void selectItemWithTitle(std::string_view title) override;
    std::optional<std::string> titleOfSelectedItem() const override;
    void setEnabled(bool enabled) override;

private:
    int indexOf(std::string_view title) const;
    void showTitles(TitleList titles, bool areAscending, std::string_view selected);
    void prepareForLongList();

    QComboBox& _comboBox;
    TitleListModel _model;
    std::unique_ptr<QProxyStyle> _styleOfLongList; // absent until a long list was shown

    bool _isAscending = true;
    std::unordered_map<std::string_view, int> _indexOfTitle; // empty while they are ascending
};

} // namespace kx
