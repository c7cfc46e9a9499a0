#include "EditReport.h"

#include "CommandProtocol.h"
#include "EditNotes.h"
#include "IdentityText.h"
#include "addresses/CharacterClass.h"
#include "addresses/IPv4Address.h"
#include "support/AuthorizationService.h"
#include "support/LocalizedText.h"
#include "support/TextEncoding.h"

#include <algorithm>
#include <utility>

namespace kx {

namespace {

constexpr std::int32_t highestPort = 65535;

// The six bytes of twelve hexadecimal digits; absent for anything else.
std::optional<Bytes> sixBytesOfDigits(std::string_view digits) {
    if (digits.size() != 2 * identityLength ||
        !std::all_of(digits.begin(), digits.end(), isHexDigit)) {
        return std::nullopt;
    }
    Bytes bytes;
    for (std::size_t i = 0; i < digits.size(); i += 2) {
        bytes.push_back(static_cast<std::uint8_t>(hexDigitValue(digits[i]) << 4U |
                                                  hexDigitValue(digits[i + 1])));
    }
    return bytes;
}

std::optional<std::string> joinedPairs(std::string_view digits, std::string_view separator) {
    const auto bytes = sixBytesOfDigits(digits);
    return bytes.has_value() ? std::optional(hexStringForData(*bytes, separator)) : std::nullopt;
}

std::optional<std::string> shownDevicePort(std::string_view typed) {
    const std::int32_t port = integerValue(typed);
    return port >= 0 && port <= highestPort ? std::optional(std::to_string(port)) : std::nullopt;
}

// Units fill a short unit ID up with zero bytes.
std::string withoutZeroBytesAtTheEnd(std::string_view text) {
    const std::size_t last = text.find_last_not_of('\0');
    return std::string(text.substr(0, last == std::string_view::npos ? 0 : last + 1));
}

std::optional<std::string> shownUnitID(std::string_view typed) {
    if (typed.empty() || !isDigit(typed.front())) {
        return withoutZeroBytesAtTheEnd(typed);
    }
    const auto bytes = sixBytesOfDigits(unitIDArgument(typed).value_or(""));
    const auto text = bytes.has_value() ? unitIDforData(*bytes) : std::nullopt;
    return text.has_value() ? std::optional(withoutZeroBytesAtTheEnd(*text)) : std::nullopt;
}

} // namespace

std::optional<std::string> shownValueOfEdit(UnitParameter parameter, std::string_view typed) {
    switch (parameter) {
    case UnitParameter::internalMACAddress:
    case UnitParameter::destinationMACAddress:
        return joinedPairs(macAddressArgument(typed), ":");
    case UnitParameter::internalIPAddress:
    case UnitParameter::destinationIPAddress:
        return stringForIP(ipForString(typed));
    case UnitParameter::destinationPortNumber:
        return std::to_string(destinationPortForText(typed));
    case UnitParameter::devicePortNumber:
        return shownDevicePort(typed);
    case UnitParameter::serialNumber:
        return joinedPairs(serialNumberArgument(typed), " ");
    case UnitParameter::unitID:
        break;
    }
    return shownUnitID(typed);
}

EditReport::EditReport(Edit edit)
    : _edit(std::move(edit))
    , _command(shownInNote(editCommand(_edit.parameter, _edit.typed).value_or("")))
    , _expected(shownValueOfEdit(_edit.parameter, _edit.typed))
    , _outcome(localizedText("Sent %@. The unit has not answered yet.", {_command})) {}

bool EditReport::isAbout(std::string_view key) const {
    return key == _edit.unit ||
           (_edit.parameter == UnitParameter::serialNumber && key == _expected);
}

void EditReport::sendDidFail(std::string_view reason) {
    _outcome = noteOfFailedSend(reason);
}

void EditReport::unitDidAccept() {
    if (_unitHasAccepted) {
        return; // a duplicate
    }
    _unitHasAccepted = true;
    if (_edit.parameter == UnitParameter::devicePortNumber && _expected != _edit.valueBefore) {
        _outcome = localizedText("The unit accepted %@ and was asked for its parameters. Discover "
                                 "finds it on its new port.",
                                 {_command});
    } else {
        _outcome =
            localizedText("The unit accepted %@ and was asked for its parameters.", {_command});
    }
}

void EditReport::unitDidReply(const UnitRecord& record) {
    _outcome = textOfReply(record);
}

std::string EditReport::textOfReply(const UnitRecord& record) const {
    const std::string name = localizedText(nameOfUnitParameter(_edit.parameter));
    const auto found = record.value(_edit.parameter);
    if (!found.has_value()) {
        return localizedText("The unit's parameters hold no %@.", {name});
    }
    const std::string value = withoutZeroBytesAtTheEnd(*found);
    const std::string shown = shownInNote(value);
    if (value == _expected) {
        return _edit.parameter == UnitParameter::serialNumber && value != _edit.unit
                   ? localizedText("The unit now shows %@ as its serial number. Discover lists it "
                                   "under that.",
                                   {shown})
                   : localizedText("The unit now shows %@ as its %@.", {shown, name});
    }
    if (found == _edit.valueBefore) {
        return localizedText("The unit still shows %@ as its %@.", {shown, name});
    }
    return localizedText("The unit now shows %@ as its %@, which is not what was sent.",
                         {shown, name});
}

void EditReport::arpEntryDidGive(std::optional<std::int32_t> result) {
    const std::string address = shownInNote(_edit.typed);
    if (!result.has_value()) {
        _arpFailure = localizedText(
            "No ARP entry was made for %@: administrator rights were not given.", {address});
        return;
    }
    switch (*result) {
    case errAuthorizationSuccess:
        _arpFailure.clear();
        return;
    case errAuthorizationDenied:
        _arpFailure = localizedText(
            "No ARP entry was made for %@: running the ARP tool was refused.", {address});
        return;
    case errAuthorizationCanceled:
        _arpFailure = localizedText(
            "No ARP entry was made for %@: the question for administrator rights was dismissed.",
            {address});
        return;
    case errAuthorizationToolExecuteFailure:
        _arpFailure =
            localizedText("No ARP entry was made for %@: the ARP tool cannot be run.", {address});
        return;
    case -1: // never too many arguments here
        _arpFailure = localizedText(
            "No ARP entry was made for %@: it can hold ASCII characters only.", {address});
        return;
    default:
        _arpFailure = localizedText(
            "No ARP entry was made for %@: the ARP tool was not started (%d).", {address, *result});
    }
}

void EditReport::arpToolDidEnd(std::string_view address, int status) {
    const bool isMine =
        _edit.parameter == UnitParameter::internalIPAddress && address == _edit.typed;
    if (isMine && status != 0) {
        _arpFailure =
            localizedText("No ARP entry was made for %@: the ARP tool ended with status %d.",
                          {shownInNote(address), status});
    }
}

std::string EditReport::text() const {
    return _arpFailure.empty() ? _outcome : _outcome + ' ' + _arpFailure;
}

} // namespace kx
