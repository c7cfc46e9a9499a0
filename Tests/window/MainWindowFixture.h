// The real window and the real controller, with a scripted network and a manual clock.

#pragma once

#include "KXConfigAppDelegate.h"
#include "addresses/IPv4Address.h"
#include "addresses/SocketAddressRecord.h"
#include "core/UnitReplies.h"
#include "doubles/FixedWallClock.h"
#include "doubles/ManualRunLoop.h"
#include "doubles/QuietLineText.h"
#include "doubles/RecordedOutlets.h"
#include "doubles/RecordedSystemLog.h"
#include "doubles/ScriptedAuthorizationService.h"
#include "doubles/ScriptedHostResolver.h"
#include "doubles/ScriptedNeighbours.h"
#include "doubles/ScriptedNetworkInterfaces.h"
#include "doubles/ScriptedSystemCalls.h"
#include "platform/qt/LogTextView.h"
#include "platform/qt/MainWindow.h"
#include "units/UnitParameter.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <cstdlib>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace kx {

class MainWindowTest : public ::testing::Test {
public:
    MainWindowTest() {
        window.connectActions(controller);
        systemCalls.addLink("eth0", 2);
        systemCalls.addLink("wlan0", 3);
    }
    ~MainWindowTest() override { window.disconnectActions(); }

protected:
    void launch() {
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        controller.applicationDidFinishLaunching();
    }

    void launchWithInterface() {
        interfaces.addService("Ethernet", "eth0", "192.168.1.20", "255.255.255.0");
        launch();
    }

    // Two units answer a discovery, which is then completed.
    void launchWithTwoUnits() {
        launchWithInterface();
        SampleUnit second = secondSampleUnit();
        second.unitID.back() = 43;
        receive(SampleUnit().reply());
        receive(second.reply());
        runLoop.advanceBy(std::chrono::seconds(2));
    }

    // By the interface with the index `link`; 0 when the system does not tell it.
    void receive(const Bytes& datagram, std::uint32_t link = 0) {
        systemCalls.queueDatagram(datagram, dataForAddress(addressToldIn(datagram), 3520), link);
        runLoop.makeReadable(systemCalls.lastDescriptor());
    }

    template<class Control>
    Control& control(const char* objectName) {
        auto* const found = window.findChild<Control*>(objectName);
        if (found == nullptr) {
            ADD_FAILURE() << "there is no control " << objectName;
            std::abort(); // the test cannot go on
        }
        return *found;
    }

    void click(const char* button) {
        QTest::mouseClick(&control<QPushButton>(button), Qt::LeftButton);
    }
    // Sends a key to the control or the open list that has the keyboard, as the window system does
    // it, so that shortcuts take part.
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void type(const char* asciiText);
    void clickCell(const char* table, int row, int column) {
        auto& view = control<QTableView>(table);
        QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::NoModifier,
                          view.visualRect(view.model()->index(row, column)).center());
    }

    // Clicks in the row of a parameter, which the table shows by its English name. Column 0 has the
    // name and column 1 the value.
    void clickParameter(UnitParameter parameter, int column = 1) {
        const int rows = control<QTableView>("unitParameterTableView").model()->rowCount();
        for (int row = 0; row < rows; ++row) {
            if (cell("unitParameterTableView", row, 0) == nameOfUnitParameter(parameter)) {
                clickCell("unitParameterTableView", row, column);
                return;
            }
        }
        ADD_FAILURE() << "the table has no row " << nameOfUnitParameter(parameter);
    }

    // The selected title; "(none)" when nothing is selected.
    std::string selected(const char* popUp) {
        const auto& comboBox = control<QComboBox>(popUp);
        return comboBox.currentIndex() < 0 ? "(none)" : comboBox.currentText().toStdString();
    }
    std::string cell(const char* table, int row, int column) {
        return control<QTableView>(table)
            .model()
            ->index(row, column)
            .data()
            .toString()
            .toStdString();
    }
    // Without the warning in front of it.
    std::string quietLine() {
        const auto& line = control<QLabel>("quietLine");
        return line.isVisible() ? withoutWarning(line.text().toStdString()) : "(hidden)";
    }

    // The commands sent since the last call, without their addresses.
    std::vector<std::string> newlySent() {
        std::vector<std::string> texts;
        const auto sent = systemCalls.sentDatagrams();
        for (; _sentBefore < sent.size(); ++_sentBefore) {
            const Bytes& data = sent[_sentBefore].data;
            texts.emplace_back(data.begin(), data.end());
        }
        return texts;
    }

    bool drawerComesToRest() {
        return QTest::qWaitFor([this] {
            const DrawerState state = window.outlets().eventLogDrawer->state();
            return state == DrawerState::open || state == DrawerState::closed;
        });
    }

    RecordedSystemLog systemLog;
    ManualRunLoop runLoop;
    ScriptedHostResolver hostResolver;
    ScriptedSystemCalls systemCalls;
    FixedWallClock wallClock{2023, 11, 15, 23, 47, 0};
    RecordedApplication application;
    ScriptedNetworkInterfaces interfaces;
    std::vector<std::string> helpAnchors;
    std::function<bool()> openHelp = [] { return true; }; // result of opening the help
    bool helpIsThere = true;
    ScriptedAuthorizationService authority;
    ScriptedNeighbours neighbours;
    SessionRecord sessionRecord;
    std::map<std::string, std::string> files; // that were saved
    MainWindow window;
    KXConfigAppDelegate controller{
        window.outlets(),
        {.runLoop = runLoop,
         .hostResolver = hostResolver,
         .systemCalls = systemCalls,
         .wallClock = wallClock,
         .application = application,
         .networkInterfaces = &interfaces,
         .openHelpAnchor =
             [this](std::string_view anchor) {
                 helpAnchors.emplace_back(anchor);
                 return openHelp();
             },
         .authorizationService = &authority,
         .hasHelpPage = [this](std::string_view) { return helpIsThere; },
         .neighbours = &neighbours,
         .saving = {.record = &sessionRecord,
                    .application = "KXConfig 9.9",
                    .counts = [] { return CaptureCounts(); },
                    .now = [] { return CaptureTime(8); },
                    .writeFile =
                        [this](const std::string& path, std::string_view text) {
                            files[path] = text;
                            return std::optional<Error>();
                        }}}};

private:
    QWindow* windowWithKeyboard();

    std::size_t _sentBefore = 0;
};

} // namespace kx
