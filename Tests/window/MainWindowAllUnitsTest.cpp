// The way from the main window to the window of all units and back.

#include "MainWindowFixture.h"
#include "platform/qt/AllUnitsView.h"
#include "platform/qt/AllUnitsWindow.h"
#include "platform/qt/QtText.h"

#include <QAction>
#include <QApplication>
#include <QFileDialog>

namespace kx {

namespace {

class MainWindowAllUnits : public MainWindowTest {
protected:
    static AllUnitsWindow* allUnits() {
        for (QWidget* const each : QApplication::topLevelWidgets()) {
            if (auto* const found = qobject_cast<AllUnitsWindow*>(each)) {
                return found;
            }
        }
        return nullptr;
    }
    static AllUnitsView& table() { return *allUnits()->findChild<AllUnitsView*>("allUnitsTable"); }

    void openAllUnits() {
        press(Qt::Key_U, Qt::ControlModifier);
        ASSERT_NE(allUnits(), nullptr);
        ASSERT_TRUE(QTest::qWaitForWindowActive(allUnits()));
    }
};

} // namespace

TEST_F(MainWindowAllUnits, TheKeyOpensOneWindowWithTheUnitsThatAnswered) {
    launchWithTwoUnits();
    EXPECT_EQ(allUnits(), nullptr);
    openAllUnits();
    EXPECT_EQ(table().model()->rowCount(), 2);
    const AllUnitsWindow* const before = allUnits();
    allUnits()->close();
    control<QAction>("allUnitsAction").trigger();
    EXPECT_EQ(allUnits(), before);
    EXPECT_TRUE(before->isVisible());
}

TEST_F(MainWindowAllUnits, AUnitThatIsPickedIsShownInTheMainWindow) {
    launchWithTwoUnits();
    openAllUnits();
    emit table().unitChosen(1);
    EXPECT_EQ(selected("unitSelectPopUp"), "01 02 03 04 05 07");
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    EXPECT_TRUE(control<QTableView>("unitParameterTableView").hasFocus());
    EXPECT_TRUE(allUnits()->isVisible());
}

TEST_F(MainWindowAllUnits, ItsHelpIsOpenedByTheController) {
    launchWithTwoUnits();
    openAllUnits();
    QTest::keyClick(allUnits()->windowHandle(), Qt::Key_F1);
    EXPECT_EQ(helpAnchors, (std::vector<std::string>{"all-units"}));
}

TEST_F(MainWindowAllUnits, ItGoesWithTheController) {
    launchWithTwoUnits();
    openAllUnits();
    QTest::keyClick(allUnits()->windowHandle(), Qt::Key_E, Qt::ControlModifier);
    EXPECT_NE(allUnits()->findChild<QFileDialog*>(), nullptr);
    window.disconnectActions();
    EXPECT_EQ(allUnits(), nullptr);
    control<QAction>("allUnitsAction").trigger();
    EXPECT_EQ(allUnits(), nullptr);
}

} // namespace kx
