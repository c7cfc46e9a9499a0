// The looks of the window: empty states, small and large sizes, the drawer's room.

#include "MainWindowFixture.h"
#include "platform/qt/ParameterTableView.h"

#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>

namespace kx {

TEST_F(MainWindowTest, WithoutInterfacesThePopUpSaysSoAndIsDisabled) {
    launch();
    EXPECT_EQ(selected("interfacePopUp"), "No configured interfaces");
    EXPECT_FALSE(control<QComboBox>("interfacePopUp").isEnabled());
}

TEST_F(MainWindowTest, BeforeAUnitAnsweredEveryEmptyControlSaysSo) {
    launch();
    EXPECT_EQ(selected("unitSelectPopUp"), "(none)");
    EXPECT_EQ(control<QComboBox>("unitSelectPopUp").placeholderText(), "No units listed");
    EXPECT_EQ(control<QLineEdit>("unitIDField").text(), "");
    auto& parameters = control<ParameterTableView>("unitParameterTableView");
    auto& editRow = control<ParameterTableView>("editParameterTableView");
    EXPECT_TRUE(parameters.showsPlaceholder());
    EXPECT_EQ(parameters.placeholderText(), "No unit is selected");
    EXPECT_TRUE(editRow.showsPlaceholder());
    EXPECT_EQ(editRow.placeholderText(), "Select a parameter to edit it");
}

TEST_F(MainWindowTest, AtItsFirstSizeEveryParameterIsInSight) {
    launchWithTwoUnits();
    const auto& parameters = control<QTableView>("unitParameterTableView");
    EXPECT_EQ(parameters.verticalScrollBar()->maximum(), 0);
    EXPECT_EQ(control<QScrollArea>("contentArea").verticalScrollBar()->maximum(), 0);
}

TEST_F(MainWindowTest, EveryControlFitsIntoASmallWindow) {
    launchWithTwoUnits();
    window.resize(420, 480);
    QTest::qWait(10);
    EXPECT_EQ(window.size(), QSize(420, 480));
    for (const char* name : {"interfacePopUp", "discoverButton", "applyButton", "sendOptionButton",
                             "restoreButton", "helpButton"}) {
        auto& widget = control<QWidget>(name);
        const QRect place(widget.mapTo(&window, QPoint(0, 0)), widget.size());
        EXPECT_TRUE(window.rect().contains(place)) << name;
        EXPECT_GE(widget.height(), widget.minimumSizeHint().height()) << name;
    }
}

TEST_F(MainWindowTest, AWindowTooLowForItsContentScrolls) {
    launchWithTwoUnits();
    window.resize(420, 250);
    QTest::qWait(10);
    const auto& area = control<QScrollArea>("contentArea");
    EXPECT_GT(area.verticalScrollBar()->maximum(), 0);
    EXPECT_EQ(area.horizontalScrollBar()->maximum(), 0);
}

TEST_F(MainWindowTest, TheTableTakesTheRoomOfALargeWindow) {
    launchWithTwoUnits();
    const int before = control<QWidget>("unitParameterTableView").height();
    window.resize(window.width() + 500, window.height() + 200);
    QTest::qWait(10);
    EXPECT_EQ(control<QWidget>("unitParameterTableView").height(), before + 200);
}

TEST_F(MainWindowTest, TheDrawerMakesTheWindowGrowAndGivesTheRoomBack) {
    launch();
    const int contentBefore = control<QWidget>("contentArea").height();
    const QSize before = window.size();
    click("logDrawerButton");
    ASSERT_TRUE(drawerComesToRest());
    EXPECT_GT(window.height(), before.height());
    EXPECT_EQ(control<QWidget>("contentArea").height(), contentBefore);
    EXPECT_GE(control<QWidget>("eventLogDrawer").height(), 100);
    click("logDrawerButton");
    ASSERT_TRUE(drawerComesToRest());
    EXPECT_EQ(window.size(), before);
}

TEST_F(MainWindowTest, AMaximizedWindowMakesRoomInsideItself) {
    launch();
    window.showMaximized();
    QTest::qWait(10);
    const QSize before = window.size();
    click("logDrawerButton");
    ASSERT_TRUE(drawerComesToRest());
    EXPECT_EQ(window.size(), before);
    EXPECT_TRUE(control<LogTextView>("logTextView").isVisible());
    EXPECT_GE(control<QWidget>("eventLogDrawer").height(), 100);
}

TEST_F(MainWindowTest, AWindowAtTheScreensEdgeKeepsItsButtonsInSight) {
    launch();
    window.resize(window.width(), window.screen()->availableGeometry().height() - 60);
    QTest::qWait(10);
    click("logDrawerButton");
    ASSERT_TRUE(drawerComesToRest());
    EXPECT_EQ(control<QScrollArea>("contentArea").verticalScrollBar()->maximum(), 0);
}

TEST_F(MainWindowTest, ClosingTheDrawerGivesTheKeyboardBackToItsButton) {
    launch();
    click("logDrawerButton");
    ASSERT_TRUE(drawerComesToRest());
    control<QWidget>("logTextView").setFocus();
    press(Qt::Key_L, Qt::ControlModifier);
    ASSERT_TRUE(drawerComesToRest());
    EXPECT_EQ(window.focusWidget(), &control<QWidget>("logDrawerButton"));
}

} // namespace kx
