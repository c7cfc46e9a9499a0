// The window Configure from File… as the main window opens it, and what closing the main window
// does to its run.

#include "FromFileFixture.h"

namespace kx {

namespace {

class MainWindowFromFileTest : public TableRunTest {
protected:
    ~MainWindowFromFileTest() override { window.setTableRun(nullptr, {}); }

    QAction& action() { return *window.findChild<QAction*>("fromFileAction"); }
    static QWidget* shown() {
        for (QWidget* const each : QApplication::topLevelWidgets()) {
            if (each->objectName() == "fromFileWindow" && each->isVisible()) {
                return each;
            }
        }
        return nullptr;
    }

    // Clicks Stop in the question.
    static void answerStop() {
        auto* const asked = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(asked, nullptr);
        for (QAbstractButton* const each : asked->buttons()) {
            if (asked->buttonRole(each) == QMessageBox::AcceptRole) {
                each->click();
                return;
            }
        }
        ADD_FAILURE() << "there is no such button";
    }

    MainWindow window;
};

} // namespace

TEST_F(MainWindowFromFileTest, TheMenuHasTheWindowOnlyWhereThereIsARun) {
    window.show();
    EXPECT_FALSE(action().isVisible());
    window.setTableRun(&tableRun, {});
    EXPECT_TRUE(action().isVisible());
    openAndAsk(table(1, 1));
    action().trigger();
    EXPECT_NE(shown(), nullptr);
    window.setTableRun(nullptr, {});
    EXPECT_EQ(shown(), nullptr);
}

TEST_F(MainWindowFromFileTest, TheMainWindowDoesNotCloseWhileUnitsAreConfigured) {
    window.setTableRun(&tableRun, {});
    window.show();
    addUnits(1, 4);
    openAndAsk(table(1, 4));
    tableRun.apply();
    passUntil([this] { return commands() == 1; });
    window.close();
    EXPECT_TRUE(window.isVisible());
    answerStop();
    settle();
    EXPECT_FALSE(window.isVisible()) << "it closes when the units under way are read back";
    EXPECT_EQ(commands(), 2);
}

TEST_F(MainWindowFromFileTest, TheMainWindowThatIsClosedTwiceWaitsForTheUnitUnderWay) {
    window.setTableRun(&tableRun, {});
    window.show();
    addUnits(1, 4);
    openAndAsk(table(1, 4));
    tableRun.apply();
    passUntil([this] { return commands() == 1; });
    window.close();
    answerStop();
    window.close();
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr) << "it was answered";
    EXPECT_TRUE(window.isVisible());
    settle();
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(commands(), 2);
    EXPECT_FALSE(tableRun.needsALook());
}

TEST_F(MainWindowFromFileTest, AUnitThatNeedsALookKeepsTheMainWindowOpen) {
    window.setTableRun(&tableRun, {});
    window.show();
    addUnits(1, 4);
    unit(1).ignored = "T";
    openAndAsk(table(1, 4));
    tableRun.apply();
    passUntil([this] { return commands() == 1; });
    window.close();
    answerStop();
    settle();
    EXPECT_TRUE(window.isVisible());
    EXPECT_NE(shown(), nullptr);
}

} // namespace kx
