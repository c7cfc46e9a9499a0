// The controller with recorded controls, a scripted network and a manual clock.

#pragma once

#include "KXConfigAppDelegate.h"
#include "SentDatagrams.h"
#include "UnitReplies.h"
#include "addresses/IPv4Address.h"
#include "addresses/SocketAddressRecord.h"
#include "doubles/FixedWallClock.h"
#include "doubles/ManualRunLoop.h"
#include "doubles/QuietLineText.h"
#include "doubles/RecordedOutlets.h"
#include "doubles/RecordedSystemLog.h"
#include "doubles/ScriptedAuthorizationService.h"
#include "doubles/ScriptedHostResolver.h"
#include "doubles/ScriptedNeighbours.h"
#include "doubles/ScriptedNetworkInterfaces.h"
#include "doubles/ScriptedReceiveBufferControl.h"
#include "doubles/ScriptedSystemCalls.h"
#include "files/CapturingSystemCalls.h"
#include "files/SessionRecord.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <map>
#include <regex>
#include <string>
#include <vector>

namespace kx {

using namespace std::chrono_literals;

using Lines = std::vector<std::string>;
using Titles = std::vector<std::string>;

inline Lines linesOf(const std::string& text) {
    Lines lines{""};
    for (const char character : text) {
        if (character == '\n') {
            lines.emplace_back();
        } else {
            lines.back() += character;
        }
    }
    return lines;
}

// Rows as "name = value", in order.
inline Lines linesOf(const std::vector<RecordedTableView::Row>& rows) {
    Lines lines;
    for (const auto& row : rows) {
        lines.push_back(row.at("parameterName") + " = " + row.at("parameterValue"));
    }
    return lines;
}

class ControllerTest : public ::testing::Test {
protected:
    using Operation = ScriptedSystemCalls::Operation;

    ControllerTest() {
        window.editParameterTableView.setDataSource(&controller);
        systemCalls.addLink("eth0", 2);
        systemCalls.addLink("wlan0", 3);
    }

    void launch() { controller.applicationDidFinishLaunching(); }

    // A datagram of an honest unit arrives at the listener's socket.
    void receive(const Bytes& datagram) {
        systemCalls.queueDatagram(datagram, dataForAddress(addressToldIn(datagram), 3520));
        runLoop.makeReadable(systemCalls.lastDescriptor());
    }

    // A unit answers a discovery, which is then completed and selects the first unit.
    void discover(const std::vector<SampleUnit>& units) {
        controller.discoverButton();
        for (const auto& unit : units) {
            receive(unit.reply());
        }
        runLoop.advanceBy(2000ms);
    }

    // Both units answer; the sample unit, the first by its number, is selected.
    void discoverTwo() { discover({SampleUnit(), secondSampleUnit()}); }

    // A discovery whose listener cannot start; a unit that is selected stays so.
    void discoverInVain() {
        systemCalls.failNext(Operation::bind, EADDRINUSE);
        discover({});
    }

    void selectUnit(const std::string& serial) {
        window.unitSelectPopUp.selectItemWithTitle(serial);
        controller.unitSelectPopUp();
    }

    // Chooses the row of a parameter that the selected unit has told.
    void selectRow(UnitParameter parameter) {
        const auto& rows = window.unitParameterTableView.rows();
        const auto isItsRow = [name = nameOfUnitParameter(parameter)](const auto& row) {
            return row.at("parameterName") == name;
        };
        const auto found = std::ranges::find_if(rows, isItsRow);
        ASSERT_NE(found, rows.end()) << nameOfUnitParameter(parameter);
        window.unitParameterTableView.selectRow(static_cast<int>(found - rows.begin()));
        controller.tableViewSelectionDidChange();
    }

    // Types a value into the edit row and leaves its editor.
    void store(const std::string& value) {
        window.editParameterTableView.typeIntoCell(0, "parameterValue", value);
    }

    // The same for both columns, without a row of the parameter table.
    void fillEditRow(const std::string& name, const std::string& value) {
        window.editParameterTableView.typeIntoCell(0, "parameterName", name);
        store(value);
    }

    void apply(UnitParameter parameter, const std::string& value) {
        selectRow(parameter);
        store(value);
        controller.applyEditParameterButton();
    }

    // The listener, without const, as its events have it.
    UDPEcho& listener() { return const_cast<UDPEcho&>(*controller.udpListener()); }

    Lines sent() const { return sentThrough(systemCalls); }

    std::string lastSent() const {
        const Lines all = sent();
        return all.empty() ? "(nothing)" : all.back();
    }

    Lines log() const { return linesOf(controller.eventLog()); }

    // The lines logged since the log had `length` bytes, without the first line break.
    Lines logSince(std::size_t length) const {
        const std::string& text = controller.eventLog();
        return length >= text.size() ? Lines{} : linesOf(text.substr(length + 1));
    }

    std::string value(const std::string& serial, UnitParameter parameter) const {
        const UnitRecord* const found = controller.devices().find(serial);
        return found != nullptr ? std::string(found->value(parameter).value_or("(absent)"))
                                : "(no such unit)";
    }

    std::string selectedUnit() const { return controller.selectedUnit().value_or("(none)"); }

    // The warning in front of the quiet line, and the text behind it.
    std::string warning() const { return warningIn(window.quietLine.text()); }
    std::string quietLine() const { return withoutWarning(window.quietLine.text()); }
    std::string discoveryLine() const { return window.discoveryLine.text(); }

    // Whether that line speaks of answers alone, and of nothing that is wrong.
    bool isNothingFound() const {
        static const std::regex answers("(Asking |No unit answered\\.|[0-9]+ units? answered|"
                                        "[0-9]+ of the [0-9]+ listed answered\\.).*");
        return std::regex_match(discoveryLine(), answers);
    }

    Lines parameterRows() const { return linesOf(window.unitParameterTableView.rows()); }
    Lines editRows() const { return linesOf(window.editParameterTableView.rows()); }

    RecordedSystemLog systemLog;
    ManualRunLoop runLoop;
    ScriptedHostResolver hostResolver;
    ScriptedSystemCalls systemCalls;
    FixedWallClock wallClock{2023, 11, 15, 23, 47, 0};
    RecordedApplication application;
    ScriptedNetworkInterfaces interfaces;
    ScriptedAuthorizationService authority;
    ScriptedReceiveBufferControl receiveBuffers;
    ScriptedNeighbours neighbours;
    RecordedMainWindow window;
    std::vector<std::string> helpAnchors;
    bool helpOpens = true;
    bool helpIsThere = true;

    // What is sent and received, as the window keeps it, and the files that it writes.
    SessionRecord sessionRecord;
    CaptureCounts captureCounts;
    CapturingSystemCalls recordedCalls{
        systemCalls,
        {.take = [this](const CapturedDatagram& datagram,
                        ByteView data) { sessionRecord.keep(datagram, data); },
         .now = [] { return CaptureTime(7); },
         .ownAddress = [](std::uint32_t link) { return link != 0 ? 0xC0A80114U : 0U; }}};
    std::map<std::string, std::string> files;
    std::optional<Error> diskFailure;
    KXConfigAppDelegate controller{
        window.outlets(),
        {.runLoop = runLoop,
         .hostResolver = hostResolver,
         .systemCalls = recordedCalls,
         .wallClock = wallClock,
         .application = application,
         .networkInterfaces = &interfaces,
         .openHelpAnchor =
             [this](std::string_view anchor) {
                 helpAnchors.emplace_back(anchor);
                 return helpOpens;
             },
         .authorizationService = &authority,
         .receiveBuffers = &receiveBuffers,
         .hasHelpPage = [this](std::string_view) { return helpIsThere; },
         .neighbours = &neighbours,
         .saving = {.record = &sessionRecord,
                    .application = "KXConfig 9.9",
                    .counts = [this] { return captureCounts; },
                    .now = [] { return CaptureTime(8); },
                    .writeFile =
                        [this](const std::string& path, std::string_view text) {
                            if (!diskFailure.has_value()) {
                                files[path] = text;
                            }
                            return diskFailure;
                        }}}};
};

} // namespace kx
