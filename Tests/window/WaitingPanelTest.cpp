// Waiting with a panel above the window.

#include "platform/qt/WaitingPanel.h"

#include "contracts/WaitingContract.h"
#include "platform/qt/QtRunLoop.h"

#include <qpa/qwindowsysteminterface.h>

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>

namespace kx {

namespace {

using std::chrono::milliseconds;

constexpr auto sentence = "Waiting for administrator rights.";
constexpr int longAfterThePanel = 800;

QDialog* openPanel() {
    auto* const panel = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    return panel != nullptr && panel->isVisible() ? panel : nullptr;
}

void afterAWhile(const std::function<void()>& action) {
    QTimer::singleShot(longAfterThePanel, qApp, action);
}

class WaitingPanelTrait {
public:
    WaitingPanelTrait() { _window.show(); }
    Waiting& waiting() { return _panel; }
    void giveUpInTheNextWait() {
        afterAWhile([] { openPanel()->reject(); });
    }
    void run(const std::function<void()>& test) { test(); }

private:
    QWidget _window;
    WaitingPanel _panel{_window};
};

// The same in an application that is asked to end.
class EndingApplicationTrait {
public:
    EndingApplicationTrait() { _window.show(); }
    Waiting& waiting() { return _panel; }
    void giveUpInTheNextWait() {
        afterAWhile([] { QCoreApplication::exit(0); });
    }
    // Inside the application's own loop, so that a request to end is over afterwards.
    void run(const std::function<void()>& test) {
        QTimer::singleShot(0, qApp, [&] {
            test();
            QCoreApplication::exit(0);
        });
        QCoreApplication::exec();
    }

private:
    QWidget _window;
    WaitingPanel _panel{_window};
};

INSTANTIATE_TYPED_TEST_SUITE_P(Panel, WaitingContract, WaitingPanelTrait);
INSTANTIATE_TYPED_TEST_SUITE_P(EndingApplication, WaitingContract, EndingApplicationTrait);

// A window with a button, and the number of times that it was painted.
class WindowBelow final : public QWidget {
public:
    WindowBelow() {
        auto* const column = new QVBoxLayout(this);
        column->addWidget(&button);
        QObject::connect(&button, &QPushButton::clicked, &button, [this] { ++clicks; });
    }
    int paintings = 0;
    int clicks = 0;
    QPushButton button{"Press"};

protected:
    void paintEvent(QPaintEvent* /*event*/) override { ++paintings; }
};

class WaitingPanelTest : public testing::Test {
protected:
    WaitingPanelTest() {
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
    }

    WindowBelow window;
    WaitingPanel panel{window};
};

} // namespace

TEST_F(WaitingPanelTest, SaysWhatIsWaitedForAndOffersCancel) {
    afterAWhile([] {
        ASSERT_NE(openPanel(), nullptr);
        EXPECT_EQ(openPanel()->windowTitle(), "KXConfig");
        EXPECT_EQ(openPanel()->findChild<QLabel*>()->text(), sentence);
        EXPECT_EQ(openPanel()->accessibleDescription(), sentence);
        auto* const cancel = openPanel()->findChild<QPushButton*>();
        EXPECT_EQ(cancel->text(), "Cancel");
        cancel->click();
    });
    EXPECT_FALSE(panel.until([] { return false; }, sentence));
    EXPECT_EQ(openPanel(), nullptr);
}

TEST_F(WaitingPanelTest, TakesEscapeForCancel) {
    afterAWhile([] { QTest::keyClick(openPanel(), Qt::Key_Escape); });
    EXPECT_FALSE(panel.until([] { return false; }, sentence));
}

TEST_F(WaitingPanelTest, DoesNotShowForAShortWait) {
    const auto end = std::chrono::steady_clock::now() + WaitingPanel::moment / 2;
    bool wasOpen = false;
    EXPECT_TRUE(panel.until(
        [&] {
            wasOpen = wasOpen || openPanel() != nullptr;
            return std::chrono::steady_clock::now() >= end;
        },
        sentence));
    EXPECT_FALSE(wasOpen);
}

TEST_F(WaitingPanelTest, ClosesWhenTheWaitIsOver) {
    bool wasOpen = false;
    EXPECT_TRUE(panel.until(
        [&] {
            wasOpen = wasOpen || openPanel() != nullptr;
            return wasOpen;
        },
        sentence));
    EXPECT_TRUE(wasOpen);
    EXPECT_EQ(openPanel(), nullptr);
}

TEST_F(WaitingPanelTest, TheWindowBelowIsPaintedFromTheBeginning) {
    for (const auto lasts : {WaitingPanel::moment / 2, WaitingPanel::moment * 2}) {
        const int before = window.paintings;
        QTimer::singleShot(lasts / 2, &window, [this] { window.update(); });
        const auto end = std::chrono::steady_clock::now() + lasts;
        panel.until([&] { return std::chrono::steady_clock::now() >= end; }, sentence);
        EXPECT_GT(window.paintings, before);
    }
}

TEST_F(WaitingPanelTest, TheWindowBelowTakesNoInput) {
    afterAWhile([this] {
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, Qt::NoModifier,
                          window.button.geometry().center());
        openPanel()->reject();
    });
    EXPECT_FALSE(panel.until([] { return false; }, sentence));
    EXPECT_EQ(window.clicks, 0);
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, Qt::NoModifier,
                      window.button.geometry().center());
    EXPECT_EQ(window.clicks, 1) << "the click lands on the button when nothing is waited for";
}

// Before the panel opens, too.
TEST_F(WaitingPanelTest, TheWindowBelowGetsWhatIsTypedInTheFirstMomentWhenTheWaitIsOver) {
    const auto end = std::chrono::steady_clock::now() + WaitingPanel::moment / 2;
    window.button.setFocus();
    QWindowSystemInterface::handleKeyEvent<QWindowSystemInterface::AsynchronousDelivery>(
        window.windowHandle(), QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier);
    QWindowSystemInterface::handleKeyEvent<QWindowSystemInterface::AsynchronousDelivery>(
        window.windowHandle(), QEvent::KeyRelease, Qt::Key_Space, Qt::NoModifier);
    EXPECT_TRUE(panel.until([&] { return std::chrono::steady_clock::now() >= end; }, sentence));
    EXPECT_EQ(window.clicks, 0);
    EXPECT_TRUE(QTest::qWaitFor([this] { return window.clicks == 1; }));
}

TEST_F(WaitingPanelTest, AHeldRunLoopCallsNothingMeanwhile) {
    QtRunLoop loop;
    int calls = 0;
    const auto call = loop.callOnceAfter(milliseconds(0), [&] { ++calls; });
    auto hold = loop.holdCallbacks();
    const auto end = std::chrono::steady_clock::now() + 2 * WaitingPanel::moment;
    panel.until([&] { return std::chrono::steady_clock::now() >= end; }, sentence);
    EXPECT_EQ(calls, 0);
    hold.reset();
    EXPECT_TRUE(QTest::qWaitFor([&] { return calls == 1; }));
}

TEST_F(WaitingPanelTest, IsGivenUpWhenTheApplicationIsAskedToEnd) {
    bool isDone = true;
    QTimer::singleShot(0, qApp, [&] {
        afterAWhile([] { QCoreApplication::exit(0); });
        isDone = panel.until([] { return false; }, sentence);
    });
    QCoreApplication::exec();
    EXPECT_FALSE(isDone);
}

TEST(WaitingPanelGivenUp, TheWaitsUnderWayAreOverAndLaterOnesAreNot) {
    QWidget window;
    window.show();
    WaitingPanel panel(window);
    QTimer::singleShot(10, qApp, [&] { panel.giveUp(); });
    EXPECT_FALSE(panel.until([] { return false; }, sentence)) << "before the panel is there";
    afterAWhile([&] { panel.giveUp(); });
    EXPECT_FALSE(panel.until([] { return false; }, sentence));
    EXPECT_EQ(openPanel(), nullptr);
    bool isDone = false;
    QTimer::singleShot(10, qApp, [&] { isDone = true; });
    EXPECT_TRUE(panel.until([&] { return isDone; }, sentence));
}

TEST(WaitingPanelAbove, ThePanelStandsAboveTheWindowInWhichThePersonWorks) {
    QWidget window;
    window.show();
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    WaitingPanel panel(window);
    const QWidget* above = nullptr;
    afterAWhile([&] {
        above = openPanel()->parentWidget();
        openPanel()->reject();
    });
    EXPECT_FALSE(panel.until([] { return false; }, sentence));
    EXPECT_EQ(above, &other);
}

} // namespace kx
