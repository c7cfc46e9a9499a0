// The titles of a pop-up as a model: texts in UTF-8, each turned into Qt's form when it is looked
// at, so that a long list costs no more than itself. Main thread only.

#pragma once

#include <QAbstractListModel>
#include <string>
#include <vector>

namespace kx {

class TitleListModel final : public QAbstractListModel {
public:
    const std::vector<std::string>& titles() const { return _titles; }
    void setTitles(std::vector<std::string> titles);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    std::vector<std::string> _titles;
};

} // namespace kx
