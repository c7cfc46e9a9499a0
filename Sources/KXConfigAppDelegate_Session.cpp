#include "KXConfigAppDelegate.h"
#include "addresses/IPv4Address.h"
#include "support/QuotedLines.h"
#include "support/TextEncoding.h"
#include "units/UnitCommand.h"
#include "words/DroppedDatagramsText.h"
#include "words/EventLogEntries.h"
#include "words/ForgottenUnitsText.h"

#include <utility>

namespace kx {

// --- Sending ---

bool KXConfigAppDelegate::sendCommandToAddress(const std::optional<std::string>& command,
                                               const std::optional<std::string>& address) {
    return handOver(command, address).has_value();
}

bool KXConfigAppDelegate::sendCommand(const std::optional<std::string>& command) {
    return sendCommandToAddress(command, selectedText(UnitParameter::internalIPAddress));
}

std::optional<KXConfigAppDelegate::HandedOver>
KXConfigAppDelegate::handOver(const std::optional<std::string>& command,
                              const std::optional<std::string>& address) {
    if (!command.has_value() || _session.listener() == nullptr || !address.has_value() ||
        !asciiBytes(*command).has_value()) {
        return std::nullopt;
    }
    appendString(entryOfCommand(*command, *address));
    return HandedOver{_session.send(*command, ipForString(*address), unitDestination().port, 0)};
}

std::optional<SendFailure> KXConfigAppDelegate::sendRequest(std::string_view command,
                                                            UnitDestination destination) {
    appendString(entryOfRequest(destination.address));
    return _session.send(command, destination.address, destination.port, 0);
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

UnitDestination KXConfigAppDelegate::unitDestination() const {
    return destinationOfUnit(selectedRecord(), broadcastAddress());
}

// --- The session's events ---

void KXConfigAppDelegate::sessionDidStart(const Bytes& address) {
    appendString(entryOfStart(address));
}

void KXConfigAppDelegate::sessionCanBroadcast() {
    sendRequest(parameterRequestCommand, {.address = broadcastAddress(), .port = defaultUnitPort});
}

void KXConfigAppDelegate::sessionCannotBroadcast(const std::string& reason) {
    appendString(entryOfRefusedBroadcast(reason));
}

void KXConfigAppDelegate::sessionDidStop(const Error& error) {
    appendString(entryOfStop(error));
}

void KXConfigAppDelegate::sessionDidReceiveDatagram(std::size_t length) {
    appendString(entryOfDatagram(length));
}

void KXConfigAppDelegate::sessionDidIgnoreDatagram(PacketKind kind) {
    appendString(entryOfIgnoredDatagram(kind));
}

void KXConfigAppDelegate::unitDidTellParameters(const Reply& reply,
                                                const DecodedUnitParameters& parameters,
                                                const DatagramOrigin& /*origin*/) {
    if (_devicesD.forgottenUnits() != _forgottenUnitsAtDiscovery && !_saysForgottenUnits) {
        showMissing();
    }
    if (const auto serial = parameters.record.value(UnitParameter::serialNumber)) {
        if (serial == _selectedUnit) {
            showSelectedUnit();
        } else {
            refreshForecast(); // another unit may have the serial number that is typed
        }
        _quietLine.unitDidTell(*serial, parameters.record);
    }
    appendString(entryOfReply(reply, parameters.displayText));
}

// The log has the request before the acknowledgement.
void KXConfigAppDelegate::unitDidAccept(const Reply& reply, const DatagramOrigin& /*origin*/) {
    const auto failure = requestParametersOfUnit();
    if (reply.serialNumber.has_value()) {
        _quietLine.unitDidAccept(*reply.serialNumber, failure);
    }
    appendString(entryOfReply(reply, ""));
}

void KXConfigAppDelegate::unitDidSendOtherReply(const Reply& reply,
                                                const DatagramOrigin& /*origin*/) {
    auto text = textFromUTF8(reply.payload);
    if (text.has_value()) {
        text = quotedLines(*text);
    }
    appendString(entryOfReply(reply, text));
}

void KXConfigAppDelegate::sessionDidReceiveError(const Error& error) {
    appendString(entryOfReceiveError(error));
}

void KXConfigAppDelegate::sessionDidSend() {
    appendString(entryOfSend());
}

void KXConfigAppDelegate::sessionDidFailToSend(const SendFailure& failure) {
    appendString(entryOfSendFailure(failure));
}

void KXConfigAppDelegate::sessionDidDrop(std::uint32_t datagrams) {
    _droppedDatagrams = datagrams;
    showMissing();
}

// --- The line under Discover ---

void KXConfigAppDelegate::showMissing() {
    _saysForgottenUnits = _devicesD.forgottenUnits() != _forgottenUnitsAtDiscovery;
    const std::string dropped = textOfDroppedDatagrams(_droppedDatagrams);
    const std::string forgotten = textOfForgottenUnits(_saysForgottenUnits);
    const bool areBoth = !dropped.empty() && !forgotten.empty();
    _outlets.dropLine->setStringValue(dropped + (areBoth ? " " : "") + forgotten);
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
