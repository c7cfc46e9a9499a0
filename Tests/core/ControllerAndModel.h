// The controller on doubles and its plain model, side by side: a step is done to both, and
// everything that can be seen of them is compared.

#pragma once

#include "KXConfigAppDelegate.h"
#include "RegistryRecords.h"
#include "doubles/FixedWallClock.h"
#include "doubles/ManualRunLoop.h"
#include "doubles/RecordedOutlets.h"
#include "doubles/RecordedSystemLog.h"
#include "doubles/ScriptedAuthorizationService.h"
#include "doubles/ScriptedHostResolver.h"
#include "doubles/ScriptedNetworkInterfaces.h"
#include "doubles/ScriptedSystemCalls.h"
#include "model/PlainController.h"
#include "model/SeenState.h"

#include <fcntl.h>

#include <chrono>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace kx {

class ControllerAndModel {
public:
    using Operation = ScriptedSystemCalls::Operation;
    using Text = std::optional<std::string>;

    struct Date {
        int month;
        int day;
        int hour;
        int minute;
    };

    explicit ControllerAndModel(const Date& date)
        : wallClock(2023, date.month, date.day, date.hour, date.minute, 0) {
        for (const int number : {date.month, date.day, date.hour, date.minute}) {
            plain.dateInOptions += (number < 10 ? "0" : "") + std::to_string(number);
        }
        plain.portPopUp.add(window.udpPortPopUp.titles());
        window.editParameterTableView.setDataSource(&controller);
    }

    void setOptions(const std::vector<std::string>& titles) {
        window.optionCommandPopUp.removeAllItems();
        window.optionCommandPopUp.addItemsWithTitles(titles);
        plain.optionPopUp.add(titles);
    }

    // Adds an interface to the list. Its service tells nothing before setService(), and the kernel
    // tells nothing of it, so that only the service counts.
    void addInterface(const std::string& title) {
        const std::string name = model::PlainInterfaces::nameInTitle(title);
        interfaces.addTitle(title, "service of " + name);
        interfaces.setState(name, std::nullopt);
        systemCalls.addLink(name, 2);
        plain.interfaces.titles.push_back(title);
    }

    // Gives an interface a service with an address and a mask, which may be absent.
    void setService(const std::string& name, const Text& address, const Text& mask) {
        interfaces.setService(name, "service of " + name);
        for (const auto& [key, text] : {std::pair("Addresses", address), {"SubnetMasks", mask}}) {
            interfaces.setData("service of " + name, "IPv4", key,
                               text.has_value() ? PropertyList{*text} : PropertyList());
        }
        plain.interfaces.services[name] = {address, mask};
    }

    // The next call of a kind fails. `call` is its first word in the model.
    void failNext(const std::string& call, int error) {
        static const std::map<std::string, Operation> operations{
            {"socket", Operation::socket},
            {"bind", Operation::bind},
            {"flags", Operation::statusFlags},
            {"unblock", Operation::setStatusFlags},
            {"send", Operation::sendTo},
            {"receive", Operation::receiveFrom},
            {"broadcasts", Operation::enableBroadcast},
        };
        systemCalls.failNext(operations.at(call), error);
        plain.network.failures[call].push_back(error);
    }

    bool isListening() const { return plain.listener == model::PlainController::Listener::running; }

    // A datagram waits, and the run loop turns; or its reading fails, when that has been said. Only
    // while there is a listener.
    void receive(const Bytes& datagram) {
        if (plain.network.failures["receive"].empty()) {
            systemCalls.queueDatagram(datagram,
                                      {16, 2, 0x0D, 0xC0, 192, 168, 1, 10, 0, 0, 0, 0, 0, 0, 0, 0});
        }
        runLoop.makeReadable(systemCalls.lastDescriptor());
        plain.receive(datagram);
    }

    void pass(int milliseconds) {
        runLoop.advanceBy(std::chrono::milliseconds(milliseconds));
        plain.clock.pass(milliseconds);
    }

    // Where the program and the model differ; empty when they do not. The calls to the system count
    // from the comparison before.
    std::string difference() {
        const std::string text = model::differenceOf(seenOfProgram(), seenOfModel());
        plain.network.calls.clear();
        _seenCalls = systemCalls.calls().size();
        return text;
    }

    RecordedSystemLog systemLog;
    ManualRunLoop runLoop;
    ScriptedHostResolver hostResolver;
    ScriptedSystemCalls systemCalls;
    FixedWallClock wallClock;
    RecordedApplication application;
    ScriptedNetworkInterfaces interfaces;
    ScriptedAuthorizationService authority;
    RecordedMainWindow window;
    KXConfigAppDelegate controller{window.outlets(),
                                   {.runLoop = runLoop,
                                    .hostResolver = hostResolver,
                                    .systemCalls = systemCalls,
                                    .wallClock = wallClock,
                                    .application = application,
                                    .networkInterfaces = &interfaces,
                                    .authorizationService = &authority}};

    // An endpoint that is not the controller's.
    std::shared_ptr<UDPEcho> foreignEndpoint = UDPEcho::make(runLoop, hostResolver, systemCalls);

    model::PlainController plain;

private:
    using Lines = std::vector<std::string>;

    static std::string inLines(const Lines& lines) { return model::joinedTexts(lines, "\n"); }
    static std::string shown(const Text& text) { return text.value_or("(absent)"); }

    // An IPv4 record as "192.168.1.10:3520".
    static std::string endpointIn(const Bytes& record) {
        std::string text;
        for (std::size_t i = 4; i < 8; ++i) {
            text += (i > 4 ? "." : "") + std::to_string(record.at(i));
        }
        return text + ':' + std::to_string(record.at(2) * 256 + record.at(3));
    }

    // In the words of the model; empty for a call that the model does not have.
    static std::string wordsOf(const ScriptedSystemCalls::Call& call) {
        switch (call.operation) {
        case Operation::socket:
            return "socket";
        case Operation::bind:
            return "bind " + endpointIn(call.address);
        case Operation::statusFlags:
            return "flags";
        case Operation::setStatusFlags:
            return (call.flags & O_NONBLOCK) != 0 ? "unblock" : "block";
        case Operation::enableBroadcast:
            return "broadcasts";
        case Operation::sendTo:
            return "send to " + endpointIn(call.address) + ": " +
                   std::string(call.data.begin(), call.data.end());
        case Operation::close:
            return "close";
        default:
            return "";
        }
    }

    Lines systemCallsSince(std::size_t first) const {
        Lines lines;
        for (std::size_t i = first; i < systemCalls.calls().size(); ++i) {
            if (const auto words = wordsOf(systemCalls.calls()[i]); !words.empty()) {
                lines.push_back(words);
            }
        }
        return lines;
    }

    // The reason behind the first colon and blank is the program's own.
    Lines systemLogWithoutReasons() const {
        Lines lines;
        for (const std::string& line : systemLog.lines()) {
            lines.push_back(line.substr(0, line.find(": ") + 2));
        }
        return lines;
    }

    Lines toolRuns() const {
        Lines lines;
        for (const auto& run : authority.runs()) {
            lines.push_back(run.toolPath);
            for (const std::string& argument : run.arguments) {
                lines.back() += ' ' + argument;
            }
        }
        return lines;
    }

    Lines alertsOfProgram() const {
        Lines lines;
        for (const auto& alert : window.alert.shown()) {
            lines.push_back(alert.title + '|' + alert.message + '|' + alert.button);
        }
        return lines;
    }

    std::string registryOfProgram() const {
        Lines lines;
        for (const auto& [serial, record] : recordsBySerialNumber(controller.devices())) {
            lines.push_back(serial);
            for (const UnitParameter parameter : allUnitParameters) {
                if (const auto value = record.value(parameter)) {
                    lines.push_back(std::string(nameOfUnitParameter(parameter)) + '=' +
                                    std::string(*value));
                }
            }
        }
        return inLines(lines);
    }

    std::string registryOfModel() const {
        Lines lines;
        for (const auto& [serial, record] : plain.registry) {
            lines.push_back(serial);
            for (const auto& [name, value] : record) {
                lines.push_back(name + '=' + value);
            }
        }
        return inLines(lines);
    }

    static std::string rowsOf(const RecordedTableView& view) {
        Lines lines;
        for (const auto& row : view.rows()) {
            lines.push_back(row.at("parameterName") + '=' + row.at("parameterValue"));
        }
        return inLines(lines);
    }

    static std::string lineOf(const model::PlainWindow::Row& row) {
        return row.name.value_or("") + '=' + row.value.value_or("");
    }

    std::string editRowOfProgram() {
        const auto textIn = [this](const char* column) {
            return controller.tableViewObjectValueForTableColumnRow({column}, 0)->description();
        };
        return textIn("parameterName") + '=' + textIn("parameterValue");
    }

    model::SeenState seenOfProgram() {
        return {
            {"event log", controller.eventLog()},
            {"event log in the drawer", window.logTextView.text()},
            {"end of the event log is in view", std::to_string(window.logTextView.isEndVisible())},
            {"drawer", std::to_string(static_cast<int>(window.eventLogDrawer.state()))},
            {"interface titles", inLines(window.interfacePopUp.titles())},
            {"interface pop-up is enabled", std::to_string(window.interfacePopUp.isEnabled())},
            {"unit titles", inLines(window.unitSelectPopUp.titles())},
            {"chosen unit title", shown(window.unitSelectPopUp.titleOfSelectedItem())},
            {"selected unit", shown(controller.selectedUnit())},
            {"unit ID", window.unitIDField.stringValue()},
            {"parameter table", rowsOf(window.unitParameterTableView)},
            {"selected row", std::to_string(window.unitParameterTableView.selectedRow())},
            {"edit row", editRowOfProgram()},
            {"edit table", rowsOf(window.editParameterTableView)},
            {"option command", window.optionCommandField.stringValue()},
            {"registry", registryOfProgram()},
            {"system calls", inLines(systemCallsSince(_seenCalls))},
            {"open sockets", std::to_string(systemCalls.openDescriptors().size())},
            {"is watched", std::to_string(runLoop.isWatching(systemCalls.lastDescriptor()))},
            {"questions for rights", std::to_string(authority.dialogs())},
            {"tool runs", inLines(toolRuns())},
            {"alerts", inLines(alertsOfProgram())},
            {"system log", inLines(systemLogWithoutReasons())},
        };
    }

    model::SeenState seenOfModel() const {
        Lines rows;
        for (const auto& row : plain.rows) {
            rows.push_back(lineOf(row));
        }
        const std::string alert = "KXConfig|Authentication was not completed, some features may "
                                  "not be available.|OK";
        return {
            {"event log", plain.log},
            {"event log in the drawer", plain.logView},
            {"end of the event log is in view", std::to_string(plain.isEndOfLogVisible)},
            {"drawer", std::to_string(plain.drawer.state)},
            {"interface titles", inLines(plain.interfacePopUp.titles)},
            {"interface pop-up is enabled", std::to_string(plain.interfacesCanBeChosen)},
            {"unit titles", inLines(plain.unitPopUp.titles)},
            {"chosen unit title", shown(plain.unitPopUp.chosen)},
            {"selected unit", shown(plain.selectedUnit)},
            {"unit ID", plain.unitIDField},
            {"parameter table", inLines(rows)},
            {"selected row", std::to_string(plain.selectedRow)},
            {"edit row", lineOf(plain.edit)},
            {"edit table", plain.shownEdit.has_value() ? lineOf(*plain.shownEdit) : ""},
            {"option command", plain.optionField},
            {"registry", registryOfModel()},
            {"system calls", inLines(plain.network.calls)},
            {"open sockets", std::to_string(isListening() ? 1 : 0)},
            {"is watched", std::to_string(isListening())},
            {"questions for rights", std::to_string(plain.authority.questions)},
            {"tool runs", inLines(plain.authority.runs)},
            {"alerts", inLines(Lines(static_cast<std::size_t>(plain.alerts), alert))},
            {"system log", inLines(plain.systemLog)},
        };
    }

    std::size_t _seenCalls = 0;
};

} // namespace kx
