// The contract of table views (Outlets.h): tests that every adapter must pass.
//
// An adapter takes part through a trait. It is constructed from the data source of a table with the
// columns "parameterName" and "parameterValue", gives the contents that a person sees, and does
// what a person does:
//
//   TableView& control();
//   int rowCount();
//   std::string cellText(int row, const std::string& identifier);
//   void selectRow(int row); -1 selects nothing
//   void typeIntoCell(int row, const std::string& identifier, const std::string& text);
//   void setAction(std::function<void()>), which runs when a person selects another row or none

#pragma once

#include "Outlets.h"
#include "tables/TableViewDataSource.h"

#include <gtest/gtest.h>

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace kx {

// Rows that a test changes at will. The view must notice a change only when it is told to reload.
class ListedRows final : public TableViewDataSource {
public:
    using Row = std::map<std::string, std::string, std::less<>>;

    std::vector<Row> rows;

    int numberOfRowsInTableView() override { return static_cast<int>(rows.size()); }

    std::optional<PropertyListValue>
    tableViewObjectValueForTableColumnRow(const TableColumn& column, int row) override {
        const Row& cells = rows.at(static_cast<std::size_t>(row));
        const auto found = cells.find(column.identifier);
        return found != cells.end() ? std::optional(PropertyListValue(found->second))
                                    : std::nullopt;
    }

    void tableViewSetObjectValueForTableColumnRow(const PropertyListValue& value,
                                                  const TableColumn& column, int row) override {
        rows.at(static_cast<std::size_t>(row))[column.identifier] = value.description();
    }
};

template<class Trait>
class TableViewContract : public ::testing::Test {
protected:
    void showRows(int count) {
        source.rows.clear();
        for (int row = 0; row < count; ++row) {
            source.rows.push_back({{"parameterName", "name " + std::to_string(row)},
                                   {"parameterValue", "value " + std::to_string(row)}});
        }
        trait.control().reloadData();
    }

    ListedRows source;
    Trait trait{source};
};

TYPED_TEST_SUITE_P(TableViewContract);

TYPED_TEST_P(TableViewContract, ShowsNoRowsOfAnEmptySource) {
    this->trait.control().reloadData();
    EXPECT_EQ(this->trait.rowCount(), 0);
    EXPECT_EQ(this->trait.control().selectedRow(), -1);
}

TYPED_TEST_P(TableViewContract, ShowsEveryCellAfterReload) {
    this->showRows(2);
    ASSERT_EQ(this->trait.rowCount(), 2);
    EXPECT_EQ(this->trait.cellText(0, "parameterName"), "name 0");
    EXPECT_EQ(this->trait.cellText(0, "parameterValue"), "value 0");
    EXPECT_EQ(this->trait.cellText(1, "parameterName"), "name 1");
    EXPECT_EQ(this->trait.cellText(1, "parameterValue"), "value 1");
}

TYPED_TEST_P(TableViewContract, ShowsAnAbsentValueAsAnEmptyCell) {
    this->source.rows = {{{"parameterName", "unit ID"}}};
    this->trait.control().reloadData();
    EXPECT_EQ(this->trait.cellText(0, "parameterName"), "unit ID");
    EXPECT_EQ(this->trait.cellText(0, "parameterValue"), "");
}

TYPED_TEST_P(TableViewContract, FollowsItsSourceWhenRowsCome) {
    this->showRows(1);
    this->showRows(8);
    ASSERT_EQ(this->trait.rowCount(), 8);
    EXPECT_EQ(this->trait.cellText(7, "parameterValue"), "value 7");
}

TYPED_TEST_P(TableViewContract, FollowsItsSourceWhenRowsGo) {
    this->showRows(8);
    this->showRows(0);
    EXPECT_EQ(this->trait.rowCount(), 0);
}

TYPED_TEST_P(TableViewContract, HasNoSelectionUntilARowIsSelected) {
    this->showRows(3);
    EXPECT_EQ(this->trait.control().selectedRow(), -1);
    this->trait.selectRow(2);
    EXPECT_EQ(this->trait.control().selectedRow(), 2);
    this->trait.selectRow(-1);
    EXPECT_EQ(this->trait.control().selectedRow(), -1);
}

TYPED_TEST_P(TableViewContract, ReloadKeepsTheSelectionOfARowThatStillExists) {
    this->showRows(3);
    this->trait.selectRow(1);
    this->showRows(2);
    EXPECT_EQ(this->trait.control().selectedRow(), 1);
}

TYPED_TEST_P(TableViewContract, ReloadDropsTheSelectionOfARowThatIsGone) {
    this->showRows(3);
    this->trait.selectRow(2);
    this->showRows(2);
    EXPECT_EQ(this->trait.control().selectedRow(), -1);
}

TYPED_TEST_P(TableViewContract, GivesWhatIsTypedToItsSource) {
    this->showRows(2);
    this->trait.typeIntoCell(1, "parameterValue", "192.168.1.20");
    EXPECT_EQ(this->source.rows[1]["parameterValue"], "192.168.1.20");
    EXPECT_EQ(this->source.rows[0]["parameterValue"], "value 0");
}

TYPED_TEST_P(TableViewContract, SelectionByAPersonRunsTheAction) {
    this->showRows(3);
    std::vector<int> selections;
    this->trait.setAction([&] { selections.push_back(this->trait.control().selectedRow()); });
    this->trait.selectRow(2);
    this->trait.selectRow(0);
    this->trait.selectRow(-1);
    EXPECT_EQ(selections, (std::vector<int>{2, 0, -1}));
}

TYPED_TEST_P(TableViewContract, ReloadRunsNoActionAlsoWhenItDropsTheSelection) {
    this->showRows(3);
    this->trait.selectRow(2);
    int actions = 0;
    this->trait.setAction([&] { ++actions; });
    this->showRows(4);
    EXPECT_EQ(this->trait.control().selectedRow(), 2);
    this->showRows(2);
    EXPECT_EQ(this->trait.control().selectedRow(), -1);
    EXPECT_EQ(actions, 0);
}

REGISTER_TYPED_TEST_SUITE_P(TableViewContract, SelectionByAPersonRunsTheAction,
                            ReloadRunsNoActionAlsoWhenItDropsTheSelection,
                            ShowsNoRowsOfAnEmptySource, ShowsEveryCellAfterReload,
                            ShowsAnAbsentValueAsAnEmptyCell, FollowsItsSourceWhenRowsCome,
                            FollowsItsSourceWhenRowsGo, HasNoSelectionUntilARowIsSelected,
                            ReloadKeepsTheSelectionOfARowThatStillExists,
                            ReloadDropsTheSelectionOfARowThatIsGone, GivesWhatIsTypedToItsSource);

} // namespace kx
