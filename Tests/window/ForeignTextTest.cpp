// Text from the network in the controls of the window: what a person sees and copies has a mark for
// each character that acts on the screen, and the text itself stays as it is.

#include "MainWindowFixture.h"
#include "platform/qt/QtText.h"
#include "support/VisibleText.h"

#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QTableView>

namespace kx {

namespace {

constexpr std::string_view foreign = "A\u202E\x1B\u200Bz";
constexpr std::string_view seen = "A\uFFFD\uFFFD\uFFFDz";

class ForeignTextTest : public MainWindowTest {
protected:
    ForeignTextTest() {
        launchWithTwoUnits();
        SampleUnit unit;
        unit.unitID = textBytes("A\u202E\x1Bz");
        controller.discoverButton();
        receive(unit.reply());
        runLoop.advanceBy(std::chrono::milliseconds(2000));
    }

    static constexpr std::string_view unitID = "A\u202E\x1Bz";
    static constexpr std::string_view seenUnitID = "A\uFFFD\uFFFDz";
};

} // namespace

TEST_F(ForeignTextTest, TheUnitIDFieldShowsMarksAndAPersonCopiesThem) {
    auto& field = control<QLineEdit>("unitIDField");
    EXPECT_EQ(utf8Text(field.text()), seenUnitID);
    field.selectAll();
    field.copy();
    EXPECT_EQ(utf8Text(QGuiApplication::clipboard()->text()), seenUnitID);
    EXPECT_EQ(window.outlets().unitIDField->stringValue(), unitID) << "kept as it is";
}

TEST_F(ForeignTextTest, TheTablesShowMarksAndApplySendsTheTextItself) {
    auto& table = control<QTableView>("unitParameterTableView");
    const auto rowOf = [&] {
        for (int row = 0; row < table.model()->rowCount(); ++row) {
            if (table.model()->index(row, 0).data() == "unit ID") {
                return row;
            }
        }
        return -1;
    };
    ASSERT_GE(rowOf(), 0);
    const QModelIndex cell = table.model()->index(rowOf(), 1);
    EXPECT_EQ(utf8Text(cell.data().toString()), seenUnitID);
    EXPECT_EQ(utf8Text(cell.data(Qt::EditRole).toString()), unitID);
    table.selectRow(rowOf());
    auto& edit = control<QTableView>("editParameterTableView");
    EXPECT_EQ(utf8Text(edit.model()->index(0, 1).data().toString()), seenUnitID);
    const QString forecast = control<QLabel>("quietLine").text();
    edit.edit(edit.model()->index(0, 1));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    QTest::qWait(10);
    EXPECT_EQ(control<QLabel>("quietLine").text(), forecast) << "an edit that is given up";
    const std::size_t before = controller.eventLog().size();
    control<QPushButton>("applyButton").click();
    EXPECT_NE(controller.eventLog().find("command: ^^IdU41E280AE1B7A", before), std::string::npos);
}

TEST_F(ForeignTextTest, APopUpShowsMarksAndSelectsByTheTextItself) {
    auto& popUp = *window.outlets().interfacePopUp;
    popUp.removeAllItems();
    popUp.addItemsWithTitles({"plain", foreign});
    popUp.selectItemWithTitle(foreign);
    const auto& comboBox = control<QComboBox>("interfacePopUp");
    EXPECT_EQ(utf8Text(comboBox.currentText()), seen);
    EXPECT_EQ(popUp.titleOfSelectedItem(), foreign);
    popUp.selectItemWithTitle(seen);
    EXPECT_EQ(popUp.titleOfSelectedItem(), std::nullopt) << "the marks are no title";
}

} // namespace kx
