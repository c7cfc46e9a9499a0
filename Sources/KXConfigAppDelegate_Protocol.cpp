#include "CommandProtocol.h"
#include "KXConfigAppDelegate.h"
#include "addresses/IPv4Address.h"
#include "addresses/SocketAddressRecord.h"
#include "support/LocalizedText.h"
#include "support/SystemLog.h"
#include "support/TextEncoding.h"

#include <utility>

namespace kx {

bool KXConfigAppDelegate::sendCommandToAddress(const std::optional<std::string>& command,
                                               const std::optional<std::string>& address) {
    return sendCommandToAddressOnPort(command, address, unitRequestPort());
}

bool KXConfigAppDelegate::sendCommandToAddressOnPort(const std::optional<std::string>& command,
                                                     const std::optional<std::string>& address,
                                                     std::uint16_t port) {
    if (!command.has_value() || _udpListener == nullptr || !address.has_value()) {
        return false;
    }
    const auto data = asciiBytes(*command);
    if (!data.has_value()) {
        return false;
    }
    appendMessage("\nSend to: %@ command: %@", {*address, *command});
    sendThroughListener(*data, dataForAddress(ipForString(*address), port));
    return true;
}

bool KXConfigAppDelegate::sendCommand(const std::optional<std::string>& command) {
    return sendCommandToAddress(command, selectedText(UnitParameter::internalIPAddress));
}

const UnitRecord* KXConfigAppDelegate::selectedRecord() const {
    const auto found = _selectedUnit.has_value() ? _devicesD.find(*_selectedUnit) : _devicesD.end();
    return found != _devicesD.end() ? &found->second : nullptr;
}

std::optional<std::string_view> KXConfigAppDelegate::selectedValue(UnitParameter parameter) const {
    const UnitRecord* const record = selectedRecord();
    return record != nullptr ? record->value(parameter) : std::nullopt;
}

std::optional<std::string> KXConfigAppDelegate::selectedText(UnitParameter parameter) const {
    const auto value = selectedValue(parameter);
    return value.has_value() ? std::optional<std::string>(*value) : std::nullopt;
}

std::uint32_t KXConfigAppDelegate::unitRequestAddress() const {
    const auto address = selectedValue(UnitParameter::internalIPAddress);
    return address.has_value() ? ipForString(*address) : directedBroadcastAddress();
}

std::uint16_t KXConfigAppDelegate::unitRequestPort() const {
    return unitPortForText(selectedValue(UnitParameter::devicePortNumber));
}

void KXConfigAppDelegate::sendRequest(std::string_view command, std::uint32_t target,
                                      std::uint16_t port) {
    appendMessage("\nRequest unit parameters with address: %@", {stringForIP(target)});
    sendThroughListener(Bytes(command.begin(), command.end()), dataForAddress(target, port));
}

// A listener that failed to start stays where it is until the next restart. Sending through it is
// what a person asked for, not a broken contract, so it fails like any other send.
void KXConfigAppDelegate::sendThroughListener(const Bytes& data, const Bytes& address) {
    _sendFailure.reset();
    if (_udpListener == nullptr) {
        return;
    }
    if (_udpListener->port() == 0) {
        sendDidFail(localizedText("The UDP listener is not running."));
        return;
    }
    _udpListener->_sendDataToAddress(data, address);
}

void KXConfigAppDelegate::echoDidReceiveDataFromAddress(UDPEcho& echo, const Bytes& data,
                                                        const Bytes& address) {
    if (&echo != _udpListener.get()) {
        return; // an endpoint from before a restart
    }
    countDropsSoon();
    appendMessage("\nUDP listener did receive data. Length: %d",
                  {static_cast<long long>(data.size())});
    try {
        didReceiveDataFromAddress(data, address);
    } catch (const PlatformException& exception) {
        logToSystem(filledText("Exception during echo:didReceiveData:fromAddress: %@",
                               {exception.reason()}));
    }
}

void KXConfigAppDelegate::didReceiveDataFromAddress(ByteView data, const Bytes& /*address*/) {
    switch (packetKindOfDatagram(data)) {
    case PacketKind::tooShort:
        appendMessage("\nIgnoring short packet");
        return;
    case PacketKind::unknown:
        appendMessage("\nIgnoring unknown packet, prefix != ^^");
        return;
    case PacketKind::reply:
        break;
    }

    const Reply reply = replyFromDatagram(data);
    std::optional<std::string> cidString = "";
    switch (reply.payloadKind) {
    case PayloadKind::none:
        break;
    case PayloadKind::parameterList:
        cidString = unitParameters(reply.payload);
        break;
    case PayloadKind::acknowledgement:
        requestParametersOfUnit();
        unitDidAccept(reply.serialNumber);
        break;
    case PayloadKind::other:
        cidString = textFromUTF8(reply.payload);
        break;
    }

    if (reply.unitID.has_value() && reply.serialNumber.has_value()) {
        appendMessage("\nReceived command: ^^%@ unit:%@ serial:%@ cidString:%@",
                      {reply.tag, reply.unitID, reply.serialNumber, cidString});
    } else {
        appendMessage("\nReceived command: ^^%@", {reply.tag});
    }
}

std::string KXConfigAppDelegate::unitParameters(ByteView list) {
    DecodedUnitParameters decoded = decodeUnitParameters(list, &_parameterNamesInLog);
    const auto serial = decoded.record.value(UnitParameter::serialNumber);
    if (serial.has_value()) {
        const auto [unit, isNew] = _devicesD.insert_or_assign(std::string(*serial), decoded.record);
        if (isNew) {
            _serials.add(unit->first);
        }
        if (serial == _selectedUnit) {
            showSelectedUnit();
        }
        unitDidReply(std::string(*serial), decoded.record);
    }
    return std::move(decoded.displayText);
}

} // namespace kx
