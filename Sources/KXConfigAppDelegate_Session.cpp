#include "KXConfigAppDelegate.h"
#include "addresses/IPv4Address.h"
#include "addresses/SocketAddressRecord.h"
#include "conversation/SenderAddress.h"
#include "support/TextEncoding.h"
#include "units/UnitCommand.h"
#include "words/EventLogEntries.h"
#include "words/RequestOutcomeText.h"

#include <cerrno>
#include <utility>

namespace kx {

// --- Sending ---

bool KXConfigAppDelegate::sendCommandToAddress(const std::optional<std::string>& command,
                                               const std::optional<std::string>& address) {
    if (!command.has_value() || _udpListener == nullptr || !address.has_value() ||
        !asciiBytes(*command).has_value()) {
        return false;
    }
    appendString(entryOfCommand(*command, *address));
    commentNextSend(entryOfCommand(*command, *address));
    lookAtTarget();
    const std::uint32_t destination = ipForString(*address);
    if (isAddressOfMany(destination, _broadcastAddresses)) {
        expectChangeOf(std::nullopt);
    } else if (_selectedUnit.has_value()) {
        expectChangeOf(_selectedUnit);
    }
    _sendFailure =
        sendTo(*command, {.address = destination,
                          .port = unitDestination().port,
                          .link = linkToAddress(destination, everybody(), linkOfSelectedUnit())});
    return true;
}

bool KXConfigAppDelegate::sendCommand(const std::optional<std::string>& command) {
    return sendCommandToAddress(command, selectedText(UnitParameter::internalIPAddress));
}

void KXConfigAppDelegate::expectChangeOf(const std::optional<std::string>& serial) {
    if (serial.has_value()) {
        _findings.expectChange(*serial);
        _allUnits.expectChange(*serial);
    } else {
        _findings.expectChanges();
        _allUnits.expectChanges();
    }
}

std::optional<SendFailure> KXConfigAppDelegate::sendRequest(std::string_view command,
                                                            UnitDestination destination) {
    appendString(entryOfRequest(destination.address));
    commentNextSend(entryOfRequest(destination.address));
    _allUnits.requestDidLeave();
    return sendTo(command, destination);
}

std::optional<SendFailure> KXConfigAppDelegate::sendTo(std::string_view command,
                                                       UnitDestination destination) {
    if (destination.address == broadcastAddress() && !broadcastCanLeave()) {
        return _session.failToSend(posixError(ENETUNREACH));
    }
    return _session.send(command, destination.address, destination.port, destination.link);
}

// The chosen interface may have lost the address that it had when it was chosen.
bool KXConfigAppDelegate::broadcastCanLeave() const {
    const auto chosen = chosenInterface();
    return !chosen.has_value() || _services.networkInterfaces == nullptr ||
           kx::broadcastCanLeave(*_services.networkInterfaces, chosen->name, broadcastAddress());
}

std::optional<SendFailure> KXConfigAppDelegate::requestParametersOfUnit() {
    return sendRequest(parameterRequestCommand, unitDestination());
}

// --- The selected unit ---

const UnitRecord* KXConfigAppDelegate::selectedRecord() const {
    return _selectedUnit.has_value() ? _devicesD.find(*_selectedUnit) : nullptr;
}

std::optional<std::string> KXConfigAppDelegate::selectedText(UnitParameter parameter) const {
    const UnitRecord* const record = selectedRecord();
    const auto value = record != nullptr ? record->value(parameter) : std::nullopt;
    return value.has_value() ? std::optional<std::string>(*value) : std::nullopt;
}

std::optional<std::string> KXConfigAppDelegate::shownValue(UnitParameter parameter) const {
    const auto text = selectedText(parameter);
    return text.has_value() ? std::optional(std::string(withoutTrailingZeroBytes(*text)))
                            : std::nullopt;
}

UnitDestination KXConfigAppDelegate::unitDestination() {
    return destinationOfUnit(selectedRecord(), everybody());
}

std::uint32_t KXConfigAppDelegate::linkOfSelectedUnit() const {
    const UnitRecord* const record = selectedRecord();
    return record != nullptr ? record->link() : 0;
}

// --- The session's events ---

void KXConfigAppDelegate::sessionDidStart(const Bytes& address) {
    didStartListenerWithAddress(address);
}

void KXConfigAppDelegate::didStartListenerWithAddress(const Bytes& address) {
    appendString(entryOfStart());
    std::uint32_t host = 0;
    IPv6Octets unused{};
    std::uint16_t port = 0;
    if (addressForData(address, host, unused, &port) == addressFamilyIPv4) {
        appendString(addressInEntry(host, port));
    }
}

void KXConfigAppDelegate::sessionCanBroadcast() {
    const Everybody all = everybody();
    const auto failure =
        sendRequest(parameterRequestCommand,
                    {.address = all.address, .port = defaultUnitPort, .link = all.link});
    if (!failure.has_value()) {
        _allUnits.everybodyWasAsked(all.link);
    }
    discoveryDidAsk(all, failure);
}

void KXConfigAppDelegate::sessionCannotBroadcast(const std::string& reason) {
    _discovery.requestFailure = reason;
    appendString(entryOfRefusedBroadcast(reason));
}

void KXConfigAppDelegate::sessionDidStop(const Error& error) {
    _discovery.listenerError = error;
    appendString(entryOfStop());
    appendString(reasonInEntry(error));
}

void KXConfigAppDelegate::sessionDidReceiveDatagram(std::size_t length,
                                                    const DatagramOrigin& /*origin*/) {
    appendString(entryOfDatagram(length));
}

void KXConfigAppDelegate::sessionDidIgnoreDatagram(PacketKind kind,
                                                   const DatagramOrigin& /*origin*/) {
    appendString(entryOfIgnoredDatagram(kind));
}

void KXConfigAppDelegate::unitDidTellParameters(const Reply& reply,
                                                const DecodedUnitParameters& parameters,
                                                const DatagramOrigin& origin) {
    const bool areNew = _findings.unitDidTell(parameters.record, origin);
    if (_findings.setForgottenUnits(_devicesD.forgottenUnits()) || areNew) {
        showDiscoveryLine();
    }
    const std::size_t answered = _devicesD.round().answered;
    if (answered != std::exchange(_answeredBefore, answered)) {
        showDiscoveryLineSoon();
    }
    compareReply(reply, origin);
    rememberUnit(parameters, origin);
    appendString(entryOfReply(reply, unitParameters(parameters, origin)));
}

void KXConfigAppDelegate::compareReply(const Reply& reply, const DatagramOrigin& origin) {
    if (reply.serialNumber.has_value() && _findings.replyDidCome(*reply.serialNumber, origin)) {
        showDiscoveryLine();
    }
}

// Shows what a unit told, and returns its text for the event log.
std::string KXConfigAppDelegate::unitParameters(const DecodedUnitParameters& parameters,
                                                const DatagramOrigin& origin) {
    if (const auto serial = parameters.record.value(UnitParameter::serialNumber)) {
        _listedHolder.unitDidTell(parameters.record);
        if (serial == _selectedUnit) {
            showSelectedUnit();
        } else {
            refreshForecast(); // another unit may have the serial number that is typed
        }
        _quietLine.unitDidTell(*serial, parameters.record, addressOfSender(origin));
    }
    return linesOfParameters(parameters.items, _lineStarts);
}

// The log has the request before the acknowledgement. When too many acknowledgements come at once,
// one request follows them later.
void KXConfigAppDelegate::unitDidAccept(const Reply& reply, const DatagramOrigin& origin) {
    compareReply(reply, origin);
    rememberAnswer(reply, origin);
    if (_requestPace.admits()) {
        const auto failure = requestParametersOfUnit();
        if (reply.serialNumber.has_value()) {
            _quietLine.unitDidAccept(*reply.serialNumber, failure, addressOfSender(origin));
        }
    } else if (reply.serialNumber.has_value() && reply.serialNumber != _selectedUnit) {
        _quietLine.unitDidAccept(*reply.serialNumber, std::nullopt, addressOfSender(origin));
    } else if (reply.serialNumber == _selectedUnit) {
        _acceptedSince = reply.serialNumber;
    }
    appendString(entryOfReply(reply, ""));
}

void KXConfigAppDelegate::requestParametersOwed() {
    const auto failure = requestParametersOfUnit();
    if (const auto accepted = std::exchange(_acceptedSince, std::nullopt)) {
        _quietLine.unitDidAccept(*accepted, failure);
    }
}

void KXConfigAppDelegate::unitDidSendOtherReply(const Reply& reply, const DatagramOrigin& origin) {
    compareReply(reply, origin);
    rememberAnswer(reply, origin);
    const auto text = textFromUTF8(reply.payload);
    if (reply.serialNumber.has_value() && text.has_value()) {
        _quietLine.unitDidAnswer(*reply.serialNumber, addressOfSender(origin), textOfAnswer(*text));
    }
    appendString(entryOfOtherReply(reply));
}

void KXConfigAppDelegate::sessionDidReceiveError(const Error& error) {
    appendString(entryOfReceiveError());
    appendString(reasonInEntry(error));
}

void KXConfigAppDelegate::sessionDidSend() {
    appendString(entryOfSend());
}

void KXConfigAppDelegate::sessionDidFailToSend(const SendFailure& failure) {
    commentNextSend("");
    appendString(entryOfSendFailure());
    appendString(reasonInEntry(failure));
}

void KXConfigAppDelegate::sessionDidDrop(std::uint32_t datagrams) {
    _findings.setDropped(datagrams);
    showDiscoveryLine();
}

// --- The endpoint's events ---

void KXConfigAppDelegate::echoDidReceiveDataFromAddress(UDPEcho& echo, const Bytes& data,
                                                        const Bytes& address) {
    _session.echoDidReceiveDataFromAddress(echo, data, address);
}

void KXConfigAppDelegate::echoDidReceiveError(UDPEcho& echo, const Error& error) {
    _session.echoDidReceiveError(echo, error);
}

void KXConfigAppDelegate::echoDidSendDataToAddress(UDPEcho& echo, const Bytes& data,
                                                   const Bytes& address) {
    _session.echoDidSendDataToAddress(echo, data, address);
}

void KXConfigAppDelegate::echoDidFailToSendDataToAddressError(UDPEcho& echo, const Bytes& data,
                                                              const Bytes& address,
                                                              const Error& error) {
    _session.echoDidFailToSendDataToAddressError(echo, data, address, error);
}

void KXConfigAppDelegate::echoDidStartWithAddress(UDPEcho& echo, const Bytes& address) {
    _session.echoDidStartWithAddress(echo, address);
}

void KXConfigAppDelegate::echoDidStopWithError(UDPEcho& echo, const Error& error) {
    _session.echoDidStopWithError(echo, error);
}

} // namespace kx
