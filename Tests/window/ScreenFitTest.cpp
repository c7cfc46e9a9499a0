// The window and its frame on a screen that may be too small for its content. Runs on the test's
// usual screen, and once more on small ones.

#include "platform/qt/ScreenFit.h"

#include "AllUnitsFixture.h"
#include "InLanguage.h"
#include "MainWindowFixture.h"

#include <QScreen>
#include <QScrollArea>

namespace kx {

namespace {

class ScreenFitTest : public ::testing::WithParamInterface<const char*>,
                      private InLanguage,
                      public MainWindowTest {
public:
    ScreenFitTest()
        : InLanguage(GetParam()) {}

protected:
    bool isInSight(const char* name) {
        auto& area = control<QScrollArea>("contentArea");
        auto& widget = control<QWidget>(name);
        const QRect place(widget.mapTo(area.viewport(), QPoint(0, 0)), widget.size());
        const QRect onScreen(area.viewport()->mapToGlobal(place.topLeft()), place.size());
        return area.viewport()->rect().contains(place) &&
               window.screen()->availableGeometry().contains(onScreen);
    }
};

class AllUnitsScreenFit : public AllUnitsWindowTest {};

} // namespace

TEST_P(ScreenFitTest, TheWindowAndItsFrameAreOnTheScreen) {
    launchWithTwoUnits();
    const QRect screen = window.screen()->availableGeometry();
    EXPECT_TRUE(screen.contains(window.frameGeometry())) << window.frameGeometry().height();
    EXPECT_GT(window.frameGeometry().height(), window.height());
}

TEST_P(ScreenFitTest, TheKeyboardScrollsTheLastButtonsIntoSight) {
    launchWithTwoUnits();
    for (const char* name : {"restoreButton", "logDrawerButton", "helpButton"}) {
        for (int keys = 0; keys < 30 && !control<QWidget>(name).hasFocus(); ++keys) {
            press(Qt::Key_Tab);
        }
        ASSERT_TRUE(control<QWidget>(name).hasFocus()) << name;
        EXPECT_TRUE(isInSight(name)) << name;
    }
}

TEST_P(ScreenFitTest, WithTheEventLogOpenTheWindowStaysOnTheScreen) {
    launchWithTwoUnits();
    click("logDrawerButton");
    ASSERT_TRUE(drawerComesToRest());
    QTest::qWait(10);
    EXPECT_TRUE(window.screen()->availableGeometry().contains(window.frameGeometry()));
    EXPECT_GE(control<LogTextView>("logTextView").linesInSight(), 3);
}

TEST(ScreenFit, AWindowBeyondTheEdgeComesBackAndASmallOneStays) {
    QWidget window;
    const QRect screen = window.screen()->availableGeometry();
    (new ScreenFit(window))->resize(QSize(200, 100));
    window.move(screen.bottomRight() - QPoint(50, 20));
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    QTest::qWait(10);
    EXPECT_TRUE(screen.contains(window.frameGeometry()));
    EXPECT_EQ(window.size(), QSize(200, 100));
    window.move(screen.bottomRight() - QPoint(50, 20)); // afterwards the place is the person's own
    QTest::qWait(10);
    EXPECT_FALSE(screen.contains(window.frameGeometry()));
}

TEST_F(AllUnitsScreenFit, TheWindowAndItsFrameAreOnTheScreen) {
    hearFour();
    open();
    QTest::qWait(10);
    const QRect screen = window.screen()->availableGeometry();
    EXPECT_TRUE(screen.contains(window.frameGeometry())) << window.frameGeometry().height();
    EXPECT_GT(window.frameGeometry().height(), window.height());
}

INSTANTIATE_TEST_SUITE_P(Every, ScreenFitTest, ::testing::Values("en", "de", "es", "fr", "ja"),
                         [](const auto& each) { return std::string(each.param); });

} // namespace kx
