// The controller and a simulated unit, which exchange only bytes.

#pragma once

#include "KXConfigAppDelegate.h"
#include "SimulatedLink.h"
#include "Simulator/FactorySettings.h"
#include "doubles/FixedWallClock.h"
#include "doubles/ManualRunLoop.h"
#include "doubles/RecordedOutlets.h"
#include "doubles/RecordedSystemLog.h"
#include "doubles/ScriptedAuthorizationService.h"
#include "doubles/ScriptedHostResolver.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <string>

namespace kx {

class WireTest : public ::testing::Test {
protected:
    WireTest() {
        window.editParameterTableView.setDataSource(&controller);
        link.setARPCache([this](std::uint32_t address) { return arpCacheLeadsToUnit(address); });
        controller.applicationDidFinishLaunching();
        converse();
        runLoop.advanceBy(std::chrono::seconds(2));
    }

    const simulator::UnitSettings& settings() { return link.unit().settings(); }

    // Delivers every reply of the unit to the controller, including replies to requests that the
    // controller sends meanwhile.
    void converse() {
        while (link.holdsReply()) {
            runLoop.makeReadable(link.descriptor());
        }
    }

    void discover() {
        controller.discoverButton();
        converse();
        runLoop.advanceBy(std::chrono::seconds(2));
        converse();
    }

    void apply(UnitParameter parameter, const std::string& value) {
        window.editParameterTableView.typeIntoCell(0, "parameterName",
                                                   std::string(nameOfUnitParameter(parameter)));
        window.editParameterTableView.typeIntoCell(0, "parameterValue", value);
        controller.applyEditParameterButton();
    }

    // The command that reached the unit; "(nothing)" when none did.
    std::string receivedFor(UnitParameter parameter, const std::string& value) {
        const std::size_t before = link.commandCount();
        apply(parameter, value);
        std::string received =
            link.commandCount() > before ? link.lastCommand() : std::string("(nothing)");
        converse();
        return received;
    }

    std::string shown(UnitParameter parameter) {
        for (const auto& row : window.unitParameterTableView.rows()) {
            if (row.at("parameterName") == nameOfUnitParameter(parameter)) {
                return row.at("parameterValue");
            }
        }
        return "(absent)";
    }

    RecordedSystemLog systemLog;
    ManualRunLoop runLoop;
    ScriptedHostResolver hostResolver;
    SimulatedLink link{simulator::factorySettings(1, {.base = 0xC000'0200, .prefixLength = 24})};
    FixedWallClock wallClock{2023, 11, 15, 23, 47, 0};
    RecordedApplication application;
    ScriptedAuthorizationService authority;
    RecordedMainWindow window;
    KXConfigAppDelegate controller{
        window.outlets(),
        {runLoop, hostResolver, link, wallClock, application, nullptr, {}, &authority}};

private:
    // Uses the entries for which the tool was run, the latest first.
    bool arpCacheLeadsToUnit(std::uint32_t address) {
        const auto& runs = authority.runs();
        const auto entry = std::find_if(runs.rbegin(), runs.rend(), [&](const auto& run) {
            return run.arguments.at(1) == stringForIP(address);
        });
        return entry != runs.rend() && entry->arguments.at(2) == hardwareAddressText();
    }

    std::string hardwareAddressText() {
        std::string text;
        for (const std::uint8_t octet : settings().hardwareAddress) {
            constexpr std::string_view digits = "0123456789ABCDEF";
            text += text.empty() ? "" : ":";
            text += digits[octet / 16];
            text += digits[octet % 16];
        }
        return text;
    }
};

} // namespace kx
