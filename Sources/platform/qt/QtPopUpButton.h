// A pop-up button over a combo box, with the rules of Outlets.h.
//
// A screen reader is told what stands in the place of a selected title while nothing is selected.
//
// The object takes over the items that the interface description gave the combo box, and keeps the
// selected one selected. The items then belong to this object: no other code may change them. The
// combo box must outlive it. Costs grow with the number of titles, not with its square. A list that
// is longer than any screen opens as a scrolling list, and Qt does not visit every title.

#pragma once

#include "Outlets.h"
#include "platform/qt/TitleListModel.h"

#include <QComboBox>
#include <QProxyStyle>
#include <functional>
#include <memory>
#include <string_view>
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
    void setDimming(std::function<bool(std::string_view title)> isDimmed,
                    std::string_view description) override;
    void refreshDimming() override;

private:
    int indexOf(std::string_view title) const;
    void showTitles(TitleList titles, bool areAscending, std::string_view selected);
    void prepareForLongList();
    void useOwnStyle();
    void describeSelectedTitle();

    QComboBox& _comboBox;
    TitleListModel _model;
    QMetaObject::Connection _selection;
    std::unique_ptr<QProxyStyle> _ownStyle; // absent until it is needed
    bool _hasLongList = false;              // a long list was shown

    bool _isAscending = true;
    std::unordered_map<std::string_view, int> _indexOfTitle; // empty while titles are ascending
};

} // namespace kx
