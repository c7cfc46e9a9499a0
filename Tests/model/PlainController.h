// A plain model of the window's controller (see PlainText.h).
//
// It is written from the requirements alone. Where they leave the choice to the system, or the
// system goes further, it follows the documents of the project:
//
//   - the unit pop-up lists serial numbers in ascending order
//   - a listener that could not start stays; sending through it is a send that fails
//   - a command that is not ASCII is neither logged nor sent; nobody is asked for rights for a tool
//     whose arguments are not ASCII, and it is not run
//   - zero bytes at the end of a unit ID are kept, logged and compared, but not shown in the window
//   - of the acknowledgements of one second, the first twenty are followed by a request each, and
//     all others by one request at its end
//
// An operation has the name of the action that it stands for.

#pragma once

#include "PlainHost.h"
#include "PlainUnit.h"
#include "PlainWindow.h"

#include <cerrno>
#include <utility>

namespace kx::model {

class PlainController : public PlainWindow {
public:
    enum class Listener { none, stopped, running };

    PlainClock clock;
    PlainNetwork network;
    PlainAuthority authority;
    PlainInterfaces interfaces;
    std::vector<std::string> systemLog; // the beginning of each line
    std::map<std::string, PlainRecord> registry;
    Text selectedUnit;
    Listener listener = Listener::none;

    // --- Life ---

    void launch() {
        interfacePopUp.removeAll();
        interfacePopUp.add(interfaces.titles.empty()
                               ? std::vector<std::string>{"No configured interfaces"}
                               : interfaces.titles);
        interfacesCanBeChosen = !interfaces.titles.empty();
        if (drawer.state != PlainDrawer::closed) {
            drawer.state = PlainDrawer::closing;
        }
        discover();
        optionChosen();
    }

    void terminate() {
        log.clear();
        stopListener();
        registry.clear();
        selectedUnit.reset();
        edit = {};
        clock.due.clear();
    }

    void interfaceChosen() {
        const auto service = interfaces.serviceOfTitle(interfacePopUp.chosen.value_or(""));
        _localAddress = addressOf(service.address.value_or(""));
        _localMask = addressOf(service.mask.value_or(""));
    }

    // --- Discovery and selection ---

    void discover() {
        log.clear();
        logView.clear();
        isEndOfLogVisible = false;
        append("[Begin Discover]");
        unitPopUp.removeAll();
        stopListener();
        startListener(integerOf(portPopUp.chosen.value_or("")));
        clock.after(2000, [this] { completeDiscovery(); });
    }

    void completeDiscovery() {
        std::vector<std::string> serials;
        for (const auto& unit : registry) {
            serials.push_back(unit.first);
        }
        unitPopUp.add(serials);
        if (selectedUnit.has_value()) {
            unitPopUp.choose(*selectedUnit);
        } else {
            unitPopUp.chooseFirst();
        }
        unitChosen();
    }

    void unitChosen() {
        selectedUnit = unitPopUp.chosen;
        unitIDField = withoutZerosAtEnd(selectedText("unit ID").value_or(""));
        rows.clear();
        for (const auto& [name, value] : selectedRecord()) { // their order ignores case already
            rows.push_back({name, withoutZerosAtEnd(value)});
        }
        if (selectedRow >= static_cast<int>(rows.size())) {
            selectedRow = -1;
        }
    }

    void rowChosen() {
        if (selectedRow >= 0) {
            edit = rows[static_cast<std::size_t>(selectedRow)];
            shownEdit = edit;
        }
    }

    // --- Requests and commands ---

    void requestParameters() { sendRequest("^^IdX", requestAddress(), unitPort()); }

    void restoreDefaults() {
        sendRequest("^^IdZ", requestAddress(), unitPort());
        clock.after(1000, [this] { requestParameters(); });
    }

    bool sendCommand(const Text& command) {
        return sendCommandTo(command, selectedText("internal IP address"));
    }

    bool sendCommandTo(const Text& command, const Text& address) {
        if (!command.has_value() || listener == Listener::none || !address.has_value() ||
            !isASCII(*command)) {
            return false;
        }
        append("\nSend to: " + *address + " command: " + *command);
        send(*command, addressOf(*address), unitPort());
        return true;
    }

    void sendOption() { sendCommand("^^Id" + optionField + "\r"); }

    // --- Editing ---

    void apply() {
        const std::string name = edit.name.value_or("");
        const std::string value = edit.value.value_or("");
        const auto number = static_cast<std::uint32_t>(integerOf(value));
        if (value.empty()) {
            return;
        }
        if (name == "internal MAC address") {
            sendCommand("^^IdM" + without(value, ':'));
        } else if (name == "internal IP address") {
            moveTo(value);
        } else if (name == "destination IP address") {
            sendCommand("^^IdD" + upperHex(addressOf(value), 8));
        } else if (name == "destination Port number") {
            const bool isAllowed = number >= 3520 && number <= 3523;
            sendCommand("^^IdT" + upperHex(isAllowed ? number : 3520, 4));
        } else if (name == "device Port number") {
            sendCommand("^^IdP" + upperHex(number, 4));
        } else if (name == "unit ID") {
            giveUnitID(value);
        } else if (name == "destination MAC address") {
            sendCommand("^^IdC" + without(value, ':'));
        } else if (name == "serial number") {
            sendCommand("^^IdS" + without(value, ' '));
        }
    }

    // --- What comes from outside ---

    // One turn in which a datagram waits.
    void receive(const Octets& datagram) {
        const int failure = network.call("receive");
        const int error = failure == 0 && datagram.empty() ? EPIPE : failure;
        if (error != 0) {
            receiveErrorTold(error);
            return;
        }
        append("\nUDP listener did receive data. Length: " + std::to_string(datagram.size()));
        try {
            take(datagram);
        } catch (const CutShort&) {
            systemLog.emplace_back("Exception during echo:didReceiveData:fromAddress: ");
        }
    }

    void receiveErrorTold(int error) { appendError("\nUDP did receive error.", error); }
    void sendFailureTold(int error) { appendError("\nUDP failed to send data.", error); }
    void stopTold(int error) { appendError("\nUDP did stop with error.", error); }

    // `address` is empty for one of another family than IPv4.
    void startTold(const std::string& address) {
        append("\nUDP listener did start. ");
        if (!address.empty()) {
            append(address);
        }
        const int error = network.call("broadcasts");
        if (error != 0) {
            append("\nError setting SO_BROADCAST " + PlainNetwork::textOf(error));
            return;
        }
        sendRequest("^^IdX", broadcastAddress(), 3520);
    }

private:
    void appendError(const std::string& entry, int error) {
        append(entry);
        append("\n  " + PlainNetwork::textOf(error));
    }

    static std::string withoutZerosAtEnd(std::string text) {
        while (!text.empty() && text.back() == '\0') {
            text.pop_back();
        }
        return text;
    }

    PlainRecord selectedRecord() const {
        const auto found = registry.find(selectedUnit.value_or(""));
        return found != registry.end() ? found->second : PlainRecord();
    }

    Text selectedText(const std::string& name) const {
        const PlainRecord record = selectedRecord();
        const auto found = record.find(name);
        return found != record.end() ? Text(found->second) : std::nullopt;
    }

    std::uint32_t broadcastAddress() const {
        return _localAddress != 0 ? _localAddress | ~_localMask : 0xFFFFFFFF;
    }

    std::uint32_t requestAddress() const {
        const Text address = selectedText("internal IP address");
        return address.has_value() ? addressOf(*address) : broadcastAddress();
    }

    std::uint16_t unitPort() const {
        const std::string port = selectedText("device Port number").value_or("");
        return static_cast<std::uint16_t>(port.empty() ? 3520 : integerOf(port));
    }

    void sendRequest(const std::string& command, std::uint32_t address, std::uint16_t port) {
        append("\nRequest unit parameters with address: " + dotted(address));
        send(command, address, port);
    }

    void send(const std::string& data, std::uint32_t address, std::uint16_t port) {
        if (listener == Listener::stopped) {
            append("\nUDP failed to send data.");
            append("\n  The UDP listener is not running.");
        } else if (listener == Listener::running) {
            const int failure = network.call("send to " + dotted(address) + ':' +
                                             std::to_string(port) + ": " + data);
            const int error = failure == 0 && data.empty() ? EPIPE : failure;
            if (error != 0) {
                sendFailureTold(error);
            } else {
                append("\nUDP server did send data.");
            }
        }
    }

    void stopListener() {
        if (listener == Listener::running) {
            network.call("close");
        }
        listener = Listener::none;
    }

    void startListener(int port) {
        listener = Listener::stopped;
        int error = network.call("socket");
        const bool hasSocket = error == 0;
        for (const std::string& call : {"bind 0.0.0.0:" + std::to_string(port),
                                        std::string("flags"), std::string("unblock")}) {
            error = error == 0 ? network.call(call) : error;
        }
        if (error != 0) {
            if (hasSocket) {
                network.call("close");
            }
            stopTold(error);
            return;
        }
        listener = Listener::running;
        startTold("0.0.0.0:" + std::to_string(port));
    }

    void giveUnitID(const std::string& value) {
        if (!textOf(octetsOf(value)).has_value()) {
            append("\nUnit ID could not be converted to 6-byte UTF-8 string");
            return;
        }
        const bool isNumber = value[0] >= '0' && value[0] <= '9';
        sendCommand("^^IdU" + (isNumber ? upperHex(static_cast<std::uint32_t>(integerOf(value)), 12)
                                        : hexPairs(octetsOf(value), "")));
    }

    void moveTo(const std::string& value) {
        writeARPEntry(selectedText("internal MAC address"), value);
        if (selectedUnit.has_value()) {
            registry[*selectedUnit].erase("internal IP address");
        }
        sendCommandTo("^^IdI" + upperHex(addressOf(value), 8), value);
    }

    void writeARPEntry(const Text& hardware, const std::string& address) {
        const std::string tool = "/usr/sbin/arp -s " + address +
                                 (hardware.has_value() ? ' ' + *hardware : std::string());
        int result = -1;
        if (!authority.isAbsent && !isASCII(tool)) {
            systemLog.emplace_back("Character conversion exception: ");
        } else if (authority.gives()) {
            authority.runs.push_back(tool);
            result = authority.startStatus;
        } else {
            ++alerts;
            return;
        }
        append(result == 0 ? "\nStuff ARP cache with MAC " + hardware.value_or("(null)") +
                                 " for IP " + address
                           : "\nStuff ARP cache result: " + std::to_string(result));
    }

    void take(const Octets& datagram) {
        if (datagram.size() <= 4) {
            append("\nIgnoring short packet");
            return;
        }
        if (datagram[0] != '^') {
            append("\nIgnoring unknown packet, prefix != ^^");
            return;
        }
        const PlainHeader header = plainHeader(datagram);
        Text payload = "";
        if (textAt(datagram, 20, 1) == "$") {
            const std::string tag = textAt(datagram, 21, 3).value_or("");
            if (tag == "<M>") {
                payload = takeList(wholePart(datagram, 21, datagram.size() - 21));
            } else if (tag.rfind("ok", 0) == 0) {
                takeAcknowledgement();
            } else {
                payload = textAt(datagram, 20, datagram.size() - 20);
            }
        }
        append("\nReceived command: ^^" + header.tag.value_or("(null)") +
               (header.unitID.has_value() && header.serial.has_value()
                    ? " unit:" + *header.unitID + " serial:" + *header.serial +
                          " cidString:" + payload.value_or("(null)")
                    : std::string()));
    }

    std::string takeList(const Octets& bytes) {
        const PlainList list = plainList(bytes);
        if (const auto serial = list.record.find("serial number"); serial != list.record.end()) {
            registry[serial->second] = list.record;
            if (selectedUnit == serial->second) {
                unitChosen();
            }
        }
        return list.lines;
    }

    void takeAcknowledgement() {
        if (_requestsOfSecond < 0) {
            _requestsOfSecond = 0;
            clock.after(1000, [this] { endSecond(); });
        }
        if (_requestsOfSecond < 20) {
            ++_requestsOfSecond;
            requestParameters();
        } else {
            _owesRequest = true;
        }
    }

    void endSecond() {
        _requestsOfSecond = -1;
        if (std::exchange(_owesRequest, false)) {
            requestParameters();
        }
    }

    std::uint32_t _localAddress = 0; // in host byte order; 0 before an interface is chosen
    std::uint32_t _localMask = 0;
    int _requestsOfSecond = -1; // that followed acknowledgements; -1 between seconds
    bool _owesRequest = false;
};

} // namespace kx::model
