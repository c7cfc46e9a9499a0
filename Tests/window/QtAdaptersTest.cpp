#include "contracts/TableViewContract.h"
#include "platform/qt/EditCommands.h"
#include "platform/qt/ParameterTableView.h"
#include "platform/qt/QtPopUpButton.h"
#include "platform/qt/QtTableView.h"
#include "platform/qt/QtTextField.h"

#include <QClipboard>
#include <QGuiApplication>
#include <chrono>

namespace kx {

namespace {

std::vector<QtTableColumn> columns() {
    return {{{"parameterName"}, "Parameter", false}, {{"parameterValue"}, "Value", true}};
}

} // namespace

TEST(QtPopUpButton, TakesOverTheItemsOfTheInterfaceDescription) {
    QComboBox comboBox;
    comboBox.addItems({"3520", "3521", "3522"});
    comboBox.setCurrentIndex(1);
    QtPopUpButton popUp(comboBox);
    EXPECT_EQ(comboBox.count(), 3);
    EXPECT_EQ(popUp.titleOfSelectedItem(), "3521");
}

TEST(QtPopUpButton, TensOfThousandsOfTitlesTakeNoLongTime) {
    std::vector<std::string> titles;
    titles.reserve(65'536);
    for (int unit = 0; unit < 65'536; ++unit) {
        titles.push_back("4B 58 00 00 " + std::to_string(unit));
    }
    QComboBox comboBox;
    QtPopUpButton popUp(comboBox);
    const auto start = std::chrono::steady_clock::now();
    popUp.addItemsWithTitles(titles);
    popUp.addItemsWithTitles(titles); // each title replaces the equal one
    for (const std::string& title : titles) {
        popUp.selectItemWithTitle(title);
    }
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
    EXPECT_EQ(comboBox.count(), 65'536);
    EXPECT_EQ(popUp.titleOfSelectedItem(), titles.back());
}

// This happens when Discover was pressed twice: both completions list every unit.
TEST(QtPopUpButton, TitlesInOrderThatComeAgainAreMergedInPlace) {
    QComboBox comboBox;
    QtPopUpButton popUp(comboBox);
    popUp.addItemsWithTitles({"b", "d"});
    popUp.selectItemWithTitle("d");
    popUp.addItemsWithTitles({"a", "b", "c", "d"});
    ASSERT_EQ(comboBox.count(), 4);
    for (const int row : {0, 1, 2, 3}) {
        EXPECT_EQ(comboBox.itemText(row), QString(QChar('a' + row)));
    }
    EXPECT_EQ(popUp.titleOfSelectedItem(), "d");
    popUp.addItemsWithTitles({"b", "e"}); // the other titles stay before them
    EXPECT_EQ(comboBox.itemText(3), "b");
    popUp.selectItemWithTitle("c");
    EXPECT_EQ(comboBox.currentIndex(), 1);
}

TEST(QtTextField, ALongTextShowsItsBeginning) {
    QLineEdit lineEdit;
    QtTextField field(lineEdit);
    field.setStringValue(std::string(500, 'x'));
    EXPECT_EQ(lineEdit.cursorPosition(), 0);
}

TEST(QtTableView, WithoutADataSourceThereAreNoRows) {
    ListedRows source;
    source.rows = {{{"parameterName", "a"}}};
    QTableView view;
    QtTableView table(view, columns());
    table.reloadData();
    EXPECT_EQ(view.model()->rowCount(), 0);
    table.setDataSource(&source);
    EXPECT_EQ(view.model()->rowCount(), 1);
    table.setDataSource(nullptr);
    EXPECT_EQ(view.model()->rowCount(), 0);
}

TEST(QtTableView, ChangedValuesShowOnlyAfterAReload) {
    ListedRows source;
    source.rows = {{{"parameterName", "a"}}};
    QTableView view;
    QtTableView table(view, columns());
    table.setDataSource(&source);
    source.rows[0]["parameterName"] = "b";
    EXPECT_EQ(view.model()->index(0, 0).data().toString(), "a");
    table.reloadData();
    EXPECT_EQ(view.model()->index(0, 0).data().toString(), "b");
}

TEST(QtTableView, AColumnThatIsNotEditableTakesNothing) {
    ListedRows source;
    source.rows = {{{"parameterName", "a"}}};
    QTableView view;
    QtTableView table(view, columns());
    table.setDataSource(&source);
    EXPECT_FALSE(view.model()->setData(view.model()->index(0, 0), "b"));
    EXPECT_EQ(source.rows[0]["parameterName"], "a");
}

TEST(ParameterTableView, ShowsItsPlaceholderWhileNoCellHoldsAText) {
    ListedRows source;
    ParameterTableView view;
    QtTableView table(view, columns());
    table.setDataSource(&source);
    EXPECT_TRUE(view.showsPlaceholder());
    source.rows = {{{"parameterName", ""}}};
    table.reloadData();
    EXPECT_TRUE(view.showsPlaceholder());
    source.rows = {{{"parameterName", "unit ID"}}};
    table.reloadData();
    EXPECT_FALSE(view.showsPlaceholder());
}

TEST(EditCommands, CopyARowWithATabBetweenItsCells) {
    ListedRows source;
    source.rows = {{{"parameterName", "unit ID"}, {"parameterValue", "42"}}};
    QTableView view;
    QtTableView table(view, columns());
    table.setDataSource(&source);
    QGuiApplication::clipboard()->setText("before");
    copySelection(&view);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "before");
    view.selectRow(0);
    copySelection(&view);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "unit ID\t42");
}

TEST(EditCommands, WorkWithoutAControl) {
    QGuiApplication::clipboard()->setText("before");
    copySelection(nullptr);
    selectAll(nullptr);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "before");
}

} // namespace kx
