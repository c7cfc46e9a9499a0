// What the window looks like: empty states, small and large sizes, dark palettes, the drawer's
// room.

#include "MainWindowFixture.h"
#include "platform/qt/ParameterTableView.h"

#include <QApplication>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <algorithm>
#include <cmath>
#include <map>

namespace kx {

namespace {

double linear(double channel) {
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(QRgb pixel) {
    const QColor color(pixel);
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

// The contrast ratio between the most frequent colour, which is the background, and the pixel that
// differs most from it, which is the core of a letter. The frame is left out.
double contrastOfTextIn(QWidget& widget) {
    const QRect inside = widget.rect().adjusted(4, 4, -4, -4);
    const QImage picture = widget.grab(inside).toImage();
    std::map<QRgb, int> frequency;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            ++frequency[picture.pixel(x, y)];
        }
    }
    const auto background = std::max_element(
        frequency.begin(), frequency.end(),
        [](const auto& one, const auto& other) { return one.second < other.second; });
    double contrast = 1.0;
    for (const auto& [pixel, count] : frequency) {
        const double one = luminance(pixel) + 0.05;
        const double other = luminance(background->first) + 0.05;
        contrast = std::max(contrast, std::max(one, other) / std::min(one, other));
    }
    return contrast;
}

// Sets the application's palette back when the test is over.
class DarkPalette {
public:
    DarkPalette() { QApplication::setPalette(QPalette(QColor(53, 53, 53), QColor(45, 45, 45))); }
    ~DarkPalette() { QApplication::setPalette(_before); }
    DarkPalette(const DarkPalette&) = delete;
    DarkPalette& operator=(const DarkPalette&) = delete;

private:
    QPalette _before = QApplication::palette();
};

} // namespace

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
    for (const char* name : {"unitSelectPopUp", "unitParameterTableView", "editParameterTableView",
                             "interfacePopUp"}) {
        EXPECT_GE(contrastOfTextIn(control<QWidget>(name)), 3.0) << name;
    }
}

TEST_F(MainWindowTest, TextsAreReadableInLightAndDarkPalettes) {
    launchWithTwoUnits();
    clickCell("unitParameterTableView", 3, 0);
    click("logDrawerButton");
    ASSERT_TRUE(drawerComesToRest());
    const auto expectReadable = [&](const char* palette) {
        for (const char* name :
             {"interfacePopUp", "udpPortPopUp", "unitSelectPopUp", "unitIDField",
              "unitParameterTableView", "editParameterTableView", "optionCommandPopUp",
              "optionCommandField", "logTextView", "interfaceLabel", "unitLabel", "discoverButton",
              "reloadButton", "applyButton", "quietLine", "sendOptionButton", "restoreButton",
              "logDrawerButton"}) {
            EXPECT_GE(contrastOfTextIn(control<QWidget>(name)), 4.5) << name << ", " << palette;
        }
    };
    expectReadable("light");
    const DarkPalette dark;
    QTest::qWait(10);
    EXPECT_LT(luminance(window.grab().toImage().pixel(2, window.height() / 2)), 0.2);
    expectReadable("dark");
}

TEST_F(MainWindowTest, EmptyStatesAreReadableInADarkPalette) {
    const DarkPalette dark;
    launch();
    for (const char* name : {"unitSelectPopUp", "unitParameterTableView", "editParameterTableView",
                             "interfacePopUp"}) {
        EXPECT_GE(contrastOfTextIn(control<QWidget>(name)), 3.0) << name;
    }
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
