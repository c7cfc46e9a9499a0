#include "platform/qt/DataSourceTableModel.h"

#include <gtest/gtest.h>

#include <QSignalSpy>

namespace kx {

namespace {

class TwoRows final : public TableViewDataSource {
public:
    int numberOfRowsInTableView() override { return 2; }
    std::optional<PropertyListValue>
    tableViewObjectValueForTableColumnRow(const TableColumn& /*column*/, int /*row*/) override {
        return std::nullopt;
    }
};

} // namespace

TEST(DataSourceTableModel, AReloadIsToldForEveryCell) {
    TwoRows source;
    DataSourceTableModel model(
        {{.column = {"Key"}, .title = "Parameter"}, {.column = {"Value"}, .title = "Value"}});
    QSignalSpy told(&model, &QAbstractItemModel::dataChanged);
    model.setDataSource(&source);
    ASSERT_EQ(told.size(), 1);
    EXPECT_EQ(told[0][0].value<QModelIndex>(), model.index(0, 0));
    EXPECT_EQ(told[0][1].value<QModelIndex>(), model.index(1, 1));
}

} // namespace kx
