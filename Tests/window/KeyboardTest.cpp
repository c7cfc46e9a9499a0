// Every function can be used with the keyboard alone, and the keyboard focus never gets stuck.

#include "MainWindowFixture.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <algorithm>
#include <map>
#include <set>

namespace kx {

namespace {

using Texts = std::vector<std::string>;

const Texts controlsInOrder = {"interfacePopUp",
                               "udpPortPopUp",
                               "discoverButton",
                               "unitSelectPopUp",
                               "unitIDField",
                               "reloadButton",
                               "unitParameterTableView",
                               "editParameterTableView",
                               "applyButton",
                               "optionCommandPopUp",
                               "optionCommandField",
                               "sendOptionButton",
                               "restoreButton",
                               "logDrawerButton",
                               "helpButton"};

class KeyboardTest : public MainWindowTest {
protected:
    std::string focused() { return window.focusWidget()->objectName().toStdString(); }

    // The control that has the keyboard before each of `steps` presses of the key.
    Texts visitedBy(Qt::Key key, Qt::KeyboardModifiers modifiers, std::size_t steps) {
        Texts visited;
        for (std::size_t step = 0; step < steps; ++step) {
            visited.push_back(focused());
            press(key, modifiers);
        }
        return visited;
    }

    void openLog() {
        press(Qt::Key_L, Qt::ControlModifier);
        ASSERT_TRUE(drawerComesToRest());
    }

    QLineEdit* editor() {
        auto* const found =
            control<QTableView>("editParameterTableView").viewport()->findChild<QLineEdit*>();
        return found != nullptr && found->isVisible() ? found : nullptr;
    }

    // Opens the menu with one letter, and chooses the item with the other.
    void chooseFromMenu(Qt::Key menuKey, const char* itemKey) {
        press(menuKey, Qt::AltModifier);
        ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::activePopupWidget() != nullptr; }));
        type(itemKey);
        EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << itemKey;
    }
};

char mnemonicOf(const QString& text) {
    const QKeySequence keys = QKeySequence::mnemonic(text);
    return keys.isEmpty() ? '\0' : static_cast<char>(keys[0].key());
}

} // namespace

TEST_F(KeyboardTest, TabGoesThroughEveryControlInOrderAndRound) {
    launchWithTwoUnits();
    control<QWidget>("interfacePopUp").setFocus();
    EXPECT_EQ(visitedBy(Qt::Key_Tab, {}, controlsInOrder.size()), controlsInOrder);
    EXPECT_EQ(focused(), controlsInOrder.front());
}

TEST_F(KeyboardTest, ShiftTabGoesTheSameWayBack) {
    launchWithTwoUnits();
    Texts backwards = controlsInOrder;
    std::reverse(backwards.begin(), backwards.end());
    control<QWidget>("helpButton").setFocus();
    EXPECT_EQ(visitedBy(Qt::Key_Backtab, Qt::ShiftModifier, backwards.size()), backwards);
    EXPECT_EQ(focused(), backwards.front());
}

TEST_F(KeyboardTest, TabLeavesTablesLogAndFindBarInBothDirections) {
    launchWithTwoUnits();
    openLog();
    press(Qt::Key_F, Qt::ControlModifier);
    const Texts below = {"logTextView", "logFindField", "logFindPreviousButton",
                         "logFindNextButton", "logFindCloseButton"};
    control<QWidget>("logTextView").setFocus();
    EXPECT_EQ(visitedBy(Qt::Key_Tab, {}, below.size()), below);
    EXPECT_EQ(focused(), "interfacePopUp");
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(focused(), "logFindCloseButton");

    control<QWidget>("unitParameterTableView").setFocus();
    press(Qt::Key_Down);
    press(Qt::Key_Tab);
    EXPECT_EQ(focused(), "editParameterTableView");
    press(Qt::Key_Tab);
    EXPECT_EQ(focused(), "applyButton");
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(focused(), "unitParameterTableView");
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(focused(), "reloadButton");
}

TEST_F(KeyboardTest, TheKeyboardIsSomewhereFromTheStart) {
    launch();
    ASSERT_NE(window.focusWidget(), nullptr);
    press(Qt::Key_Tab);
    EXPECT_TRUE(std::count(controlsInOrder.begin(), controlsInOrder.end(), focused()) == 1)
        << focused();
}

TEST_F(KeyboardTest, TheLetterOfALabelLeadsToItsControl) {
    launchWithTwoUnits();
    const std::map<Qt::Key, std::string> controls = {
        {Qt::Key_I, "interfacePopUp"},     {Qt::Key_P, "udpPortPopUp"},
        {Qt::Key_N, "unitSelectPopUp"},    {Qt::Key_D, "unitIDField"},
        {Qt::Key_O, "optionCommandPopUp"}, {Qt::Key_C, "optionCommandField"},
    };
    for (const auto& [key, name] : controls) {
        press(key, Qt::AltModifier);
        EXPECT_EQ(focused(), name);
    }
}

TEST_F(KeyboardTest, NoLetterStandsForTwoThings) {
    std::multiset<char> letters;
    for (const QLabel* label : window.findChildren<QLabel*>()) {
        if (label->buddy() != nullptr && label->objectName().endsWith("Label")) {
            letters.insert(mnemonicOf(label->text()));
        }
    }
    for (const QAction* menu : window.menuBar()->actions()) {
        letters.insert(mnemonicOf(menu->text()));
        std::multiset<char> ofItems;
        for (const QAction* item : menu->menu()->actions()) {
            if (!item->isSeparator()) {
                ofItems.insert(mnemonicOf(item->text()));
            }
        }
        EXPECT_EQ(ofItems.count('\0'), 0U) << qPrintable(menu->text());
        EXPECT_EQ(std::set<char>(ofItems.begin(), ofItems.end()).size(), ofItems.size())
            << qPrintable(menu->text());
    }
    EXPECT_EQ(letters.size(), 11U);
    EXPECT_EQ(letters.count('\0'), 0U);
    EXPECT_EQ(std::set<char>(letters.begin(), letters.end()).size(), letters.size());
}

TEST_F(KeyboardTest, EveryButtonHasAMenuItem) {
    launchWithTwoUnits();
    newlySent();
    chooseFromMenu(Qt::Key_U, "r");
    EXPECT_EQ(newlySent(), Texts{"^^IdX"});
    clickParameter(UnitParameter::devicePortNumber);
    chooseFromMenu(Qt::Key_U, "a");
    EXPECT_EQ(newlySent(), Texts{"^^IdP2710"});
    chooseFromMenu(Qt::Key_U, "s");
    EXPECT_EQ(newlySent(), Texts{"^^IdV\r"});
    chooseFromMenu(Qt::Key_U, "f");
    EXPECT_EQ(newlySent(), Texts{"^^IdZ"});
    chooseFromMenu(Qt::Key_V, "e");
    EXPECT_EQ(window.outlets().eventLogDrawer->state(), DrawerState::opening);
    chooseFromMenu(Qt::Key_H, "h");
    EXPECT_EQ(helpAnchors, Texts{"index"});
    chooseFromMenu(Qt::Key_U, "d");
    EXPECT_EQ(newlySent(), Texts{"^^IdX"});
    EXPECT_EQ(selected("unitSelectPopUp"), "(none)");
}

TEST_F(KeyboardTest, APopUpOpensWithSpaceAndClosesWithEscapeAsItWas) {
    launchWithTwoUnits();
    control<QWidget>("unitSelectPopUp").setFocus();
    const QAbstractItemView& list = *control<QComboBox>("unitSelectPopUp").view();
    press(Qt::Key_Space);
    ASSERT_TRUE(QTest::qWaitFor([&] { return list.isVisible(); }));
    press(Qt::Key_Down);
    press(Qt::Key_Escape);
    EXPECT_FALSE(list.isVisible());
    EXPECT_EQ(selected("unitSelectPopUp"), "01 02 03 04 05 06");
    EXPECT_EQ(focused(), "unitSelectPopUp");
}

TEST_F(KeyboardTest, AnOpenListIsChosenFromWithArrowAndReturn) {
    launchWithTwoUnits();
    newlySent();
    control<QWidget>("unitSelectPopUp").setFocus();
    press(Qt::Key_Space);
    const QAbstractItemView& list = *control<QComboBox>("unitSelectPopUp").view();
    ASSERT_TRUE(QTest::qWaitFor([&] { return list.isVisible(); }));
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_FALSE(list.isVisible());
    EXPECT_EQ(selected("unitSelectPopUp"), "01 02 03 04 05 07");
    EXPECT_EQ(control<QLineEdit>("unitIDField").text(), "43");
    EXPECT_EQ(newlySent(), Texts{}); // Return must not press a button behind the list
}

// As on Wayland: the key is announced to the list, which it closes, and then comes to the pop-up.
TEST_F(KeyboardTest, TheKeyThatClosesTheListOfAPopUpDoesNothingMoreUntilItIsReleased) {
    launchWithTwoUnits();
    newlySent();
    auto& units = control<QComboBox>("unitSelectPopUp");
    const auto send = [](QObject& receiver, QEvent::Type type, Qt::Key key, bool isRepeated) {
        QKeyEvent event(type, key, Qt::NoModifier, QString(), isRepeated);
        QApplication::sendEvent(&receiver, &event);
    };
    units.setFocus();
    units.showPopup();
    units.view()->setCurrentIndex(units.model()->index(1, 0));
    send(*units.view(), QEvent::ShortcutOverride, Qt::Key_Return, false);
    send(units, QEvent::KeyPress, Qt::Key_Return, false);
    send(units, QEvent::KeyRelease, Qt::Key_Return, true);
    send(units, QEvent::KeyPress, Qt::Key_Return, true);
    EXPECT_EQ(selected("unitSelectPopUp"), "01 02 03 04 05 07");
    EXPECT_EQ(newlySent(), Texts{});
    send(units, QEvent::KeyRelease, Qt::Key_Return, false);

    units.showPopup();
    send(*units.view(), QEvent::ShortcutOverride, Qt::Key_F4, false);
    send(units, QEvent::KeyPress, Qt::Key_F4, false);
    send(units, QEvent::KeyRelease, Qt::Key_F4, false);
    EXPECT_FALSE(units.view()->isVisible());

    send(units, QEvent::KeyPress, Qt::Key_Return, false);
    EXPECT_EQ(newlySent(), Texts{"^^IdX"});
}

TEST_F(KeyboardTest, TheKeyThatClosedAListCountsAgainOnceItWasReleased) {
    launchWithTwoUnits();
    auto& units = control<QComboBox>("unitSelectPopUp");
    const auto hearReturn = [](QObject& receiver, QEvent::Type type) {
        QKeyEvent event(type, Qt::Key_Return, Qt::NoModifier);
        QApplication::sendEvent(&receiver, &event);
    };
    units.setFocus();
    units.showPopup();
    hearReturn(*units.view(), QEvent::ShortcutOverride);
    newlySent();
    hearReturn(units, QEvent::KeyPress);
    EXPECT_EQ(newlySent(), Texts{});
    hearReturn(units, QEvent::KeyRelease);
    hearReturn(units, QEvent::KeyPress);
    EXPECT_EQ(newlySent(), Texts{"^^IdX"});
}

TEST_F(KeyboardTest, APopUpThatLosesTheKeyboardIsPaintedAnew) {
    class PaintCount final : public QObject {
    public:
        int count = 0;

    protected:
        bool eventFilter(QObject* /*watched*/, QEvent* event) override {
            count += event->type() == QEvent::Paint ? 1 : 0;
            return false;
        }
    };
    launchWithTwoUnits();
    auto& units = control<QComboBox>("unitSelectPopUp");
    units.setFocus();
    QCoreApplication::processEvents();
    PaintCount paints;
    units.installEventFilter(&paints);
    control<QWidget>("optionCommandField").setFocus();
    EXPECT_TRUE(QTest::qWaitFor([&] { return paints.count > 0; }, 1000));
}

TEST_F(KeyboardTest, AReleaseInTheListOrAnotherControlEndsTheKeyOfAList) {
    launchWithTwoUnits();
    auto& units = control<QComboBox>("unitSelectPopUp");
    const auto hearReturn = [&](QObject& receiver, QEvent::Type type) {
        QKeyEvent event(type, Qt::Key_Return, Qt::NoModifier);
        QApplication::sendEvent(&receiver, &event);
    };
    units.setFocus();
    units.showPopup();
    hearReturn(*units.view(), QEvent::ShortcutOverride);
    hearReturn(*units.view(), QEvent::KeyRelease);
    newlySent();
    hearReturn(units, QEvent::KeyPress);
    EXPECT_EQ(newlySent(), Texts{"^^IdX"});

    control<QWidget>("udpPortPopUp").setFocus();
    control<QComboBox>("udpPortPopUp").showPopup();
    hearReturn(*control<QComboBox>("udpPortPopUp").view(), QEvent::ShortcutOverride);
    control<QWidget>("optionCommandField").setFocus();
    control<QWidget>("udpPortPopUp").setFocus();
    newlySent();
    hearReturn(control<QObject>("udpPortPopUp"), QEvent::KeyPress);
    EXPECT_EQ(newlySent(), Texts{"^^IdX"});
}

TEST_F(KeyboardTest, ArrowsChooseInAClosedPopUp) {
    launchWithTwoUnits();
    control<QWidget>("optionCommandPopUp").setFocus();
    press(Qt::Key_Down);
    EXPECT_EQ(selected("optionCommandPopUp"), "-Z  Set clock");
    press(Qt::Key_Up);
    EXPECT_EQ(selected("optionCommandPopUp"), "V  Version");
}

TEST_F(KeyboardTest, ArrowsHomeAndEndMoveInTheTable) {
    launchWithTwoUnits();
    control<QWidget>("unitParameterTableView").setFocus();
    press(Qt::Key_Down);
    EXPECT_EQ(cell("editParameterTableView", 0, 0), "destination MAC address");
    press(Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(cell("editParameterTableView", 0, 0), "unit ID");
    press(Qt::Key_Home, Qt::ControlModifier);
    EXPECT_EQ(cell("editParameterTableView", 0, 0), "destination IP address");
    press(Qt::Key_Up);
    EXPECT_EQ(focused(), "unitParameterTableView");
}

TEST_F(KeyboardTest, TheFirstRowCanBeChosenToo) {
    launchWithTwoUnits();
    control<QWidget>("unitParameterTableView").setFocus();
    press(Qt::Key_Space);
    EXPECT_EQ(cell("editParameterTableView", 0, 0), "destination IP address");
}

TEST_F(KeyboardTest, EscapeGivesAnEditUpAndLeavesTheKeyboardInTheEditRow) {
    launchWithTwoUnits();
    clickParameter(UnitParameter::devicePortNumber);
    press(Qt::Key_Return);
    type("1");
    press(Qt::Key_Escape);
    EXPECT_TRUE(QTest::qWaitFor([this] { return editor() == nullptr; }));
    EXPECT_EQ(cell("editParameterTableView", 0, 1), "10000");
    EXPECT_EQ(focused(), "editParameterTableView");
    press(Qt::Key_Tab);
    EXPECT_EQ(focused(), "applyButton");
}

TEST_F(KeyboardTest, ReturnKeepsAnEditAndPressesNoButton) {
    launchWithTwoUnits();
    clickParameter(UnitParameter::devicePortNumber);
    press(Qt::Key_Return);
    type("1");
    newlySent();
    press(Qt::Key_Return);
    EXPECT_TRUE(QTest::qWaitFor([this] { return editor() == nullptr; }));
    EXPECT_EQ(cell("editParameterTableView", 0, 1), "1");
    EXPECT_EQ(newlySent(), Texts{});
    EXPECT_EQ(focused(), "editParameterTableView");
}

TEST_F(KeyboardTest, TabAndShiftTabLeaveAnOpenEditForItsNeighbours) {
    launchWithTwoUnits();
    clickParameter(UnitParameter::devicePortNumber);
    press(Qt::Key_Return);
    press(Qt::Key_Tab);
    EXPECT_TRUE(QTest::qWaitFor([this] { return editor() == nullptr; }));
    EXPECT_EQ(focused(), "applyButton");
    control<QWidget>("editParameterTableView").setFocus();
    press(Qt::Key_F2);
    ASSERT_NE(editor(), nullptr);
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return editor() == nullptr; }));
    EXPECT_EQ(focused(), "unitParameterTableView");
}

TEST_F(KeyboardTest, SpacePressesEveryButton) {
    launchWithTwoUnits();
    clickParameter(UnitParameter::devicePortNumber);
    newlySent();
    const std::map<const char*, std::string> sends = {{"reloadButton", "^^IdX"},
                                                      {"applyButton", "^^IdP2710"},
                                                      {"sendOptionButton", "^^IdV\r"},
                                                      {"restoreButton", "^^IdZ"}};
    for (const auto& [name, command] : sends) {
        control<QWidget>(name).setFocus();
        press(Qt::Key_Space);
        EXPECT_EQ(newlySent(), Texts{command}) << name;
    }
    control<QWidget>("helpButton").setFocus();
    press(Qt::Key_Space);
    EXPECT_EQ(helpAnchors, Texts{"index"});
    control<QWidget>("discoverButton").setFocus();
    press(Qt::Key_Space);
    EXPECT_EQ(newlySent(), Texts{"^^IdX"});
}

TEST_F(KeyboardTest, ReturnInTheUnitIDPressesTheDefaultButton) {
    launchWithTwoUnits();
    newlySent();
    control<QWidget>("unitIDField").setFocus();
    press(Qt::Key_Return);
    EXPECT_EQ(newlySent(), Texts{"^^IdX"});
    EXPECT_EQ(selected("unitSelectPopUp"), "(none)");
}

} // namespace kx
