// The interface pop-up as a person opens it.

#include "MainWindowFixture.h"

#include <QAbstractItemView>

namespace kx {

namespace {

class MainWindowInterfaces : public MainWindowTest {
protected:
    QComboBox& popUp() { return control<QComboBox>("interfacePopUp"); }

    std::vector<std::string> titles() {
        std::vector<std::string> result;
        result.reserve(static_cast<std::size_t>(popUp().count()));
        for (int index = 0; index < popUp().count(); ++index) {
            result.push_back(popUp().itemText(index).toStdString());
        }
        return result;
    }
    void addWiFi() { interfaces.addService("Wi-Fi", "wlan0", "10.0.0.5", "255.0.0.0"); }

    // Clicks through the window system's events.
    void clickPopUp() {
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, Qt::NoModifier,
                          popUp().mapTo(&window, popUp().rect().center()));
    }
    bool listIsOpen() {
        return QTest::qWaitFor([this] { return popUp().view()->isVisible(); }, 1000);
    }
};

using Titles = std::vector<std::string>;

} // namespace

TEST_F(MainWindowInterfaces, AClickListsTheInterfacesAsTheyAreThen) {
    launchWithInterface();
    addWiFi();
    clickPopUp();
    EXPECT_TRUE(listIsOpen());
    EXPECT_EQ(titles(), (Titles{"Ethernet (eth0)", "Wi-Fi (wlan0)"}));
    EXPECT_EQ(selected("interfacePopUp"), "Ethernet (eth0)");
}

TEST_F(MainWindowInterfaces, TheKeyboardListsThemToo) {
    launchWithInterface();
    addWiFi();
    popUp().setFocus();
    press(Qt::Key_Space);
    EXPECT_TRUE(listIsOpen());
    EXPECT_EQ(titles(), (Titles{"Ethernet (eth0)", "Wi-Fi (wlan0)"}));
}

TEST_F(MainWindowInterfaces, AnInterfaceThatCameLaterCanBeChosen) {
    launchWithInterface();
    addWiFi();
    clickPopUp();
    ASSERT_TRUE(listIsOpen());
    QTest::keyClick(popUp().view(), Qt::Key_End);
    QTest::keyClick(popUp().view(), Qt::Key_Return);
    EXPECT_EQ(selected("interfacePopUp"), "Wi-Fi (wlan0)");
    click("discoverButton");
    EXPECT_NE(controller.eventLog().find("with address: 10.255.255.255"), std::string::npos);
}

TEST_F(MainWindowInterfaces, AChosenInterfaceThatIsGoneLeavesAWordInItsPlace) {
    launchWithInterface();
    clickPopUp();
    ASSERT_TRUE(listIsOpen());
    QTest::keyClick(popUp().view(), Qt::Key_Return);
    interfaces.clear();
    addWiFi();
    clickPopUp();
    ASSERT_TRUE(listIsOpen());
    EXPECT_EQ(selected("interfacePopUp"), "(none)");
    EXPECT_EQ(popUp().placeholderText(), "No interface is chosen");
}

TEST_F(MainWindowInterfaces, AClickOnNoConfiguredInterfacesOpensTheRealOnes) {
    launch();
    ASSERT_FALSE(popUp().isEnabled());
    addWiFi();
    clickPopUp();
    EXPECT_TRUE(popUp().isEnabled());
    EXPECT_TRUE(listIsOpen());
    EXPECT_EQ(titles(), Titles{"Wi-Fi (wlan0)"});
}

TEST_F(MainWindowInterfaces, AClickOnNoConfiguredInterfacesOpensNothingWhileThereAreNone) {
    launch();
    clickPopUp();
    EXPECT_FALSE(popUp().view()->isVisible());
    EXPECT_FALSE(popUp().isEnabled());
    EXPECT_EQ(titles(), Titles{"No configured interfaces"});
}

TEST_F(MainWindowInterfaces, AListWhoseInterfacesAreAllGoneDoesNotOpen) {
    launchWithInterface();
    interfaces.clear();
    clickPopUp();
    EXPECT_FALSE(popUp().view()->isVisible());
    EXPECT_FALSE(popUp().isEnabled());
}

TEST_F(MainWindowInterfaces, ComingBackToTheWindowFindsTheFirstInterface) {
    launch();
    addWiFi();
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    EXPECT_FALSE(popUp().isEnabled());
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    EXPECT_TRUE(popUp().isEnabled());
    EXPECT_EQ(titles(), Titles{"Wi-Fi (wlan0)"});
}

TEST_F(MainWindowInterfaces, ComingBackToTheWindowLeavesAListAlone) {
    launchWithInterface();
    addWiFi();
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    EXPECT_EQ(titles(), Titles{"Ethernet (eth0)"});
}

} // namespace kx
