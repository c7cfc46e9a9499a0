// A pop-up button over a combo box, with the rules of Outlets.h.
//
// Takes over the items that the interface description gave the combo box, and keeps the one
// selected that was. From then on the items belong to this object: nobody else changes them. The
// combo box must outlive it. Costs grow with the number of titles, not with its square.

#pragma once

#include "Outlets.h"

#include <QComboBox>
#include <QHash>
#include <QStringListModel>

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
    void setTitles(const QStringList& titles, int selected);

    QComboBox& _comboBox;
    QStringListModel _titles;
    QHash<QString, int> _indexOfTitle;
};

} // namespace kx
