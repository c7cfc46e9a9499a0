// What has become of an edit: whether it was sent, whether the unit accepted a command since, and
// what the unit shows.
//
// A unit tells what it made of a command only by its parameters, so what they show is compared with
// what was sent, in the form in which units show it. Every reply counts anew: the outcome is always
// that of the latest one. An acknowledgement names no command, so it says no more than that the
// unit accepted one.
//
// A value type, pure; any thread, one at a time. Texts are UTF-8.

#pragma once

#include "conversation/ARPEntry.h"
#include "conversation/UnitSession.h"
#include "units/ParameterEdit.h"
#include "units/UnitRecord.h"

#include <optional>
#include <string>
#include <string_view>

namespace kx {

enum class EditState {
    notSent,   // the network refused the command
    pending,   // sent, and nothing heard since
    accepted,  // the unit accepted a command
    shown,     // the unit shows the value
    unchanged, // the unit shows the value that it had
    different, // the unit shows neither
    untold,    // the unit's parameters do not hold this one
};

class EditOutcome {
public:
    // The unit as it was when the edit was made; nothing of it is known without a unit.
    struct Unit {
        std::optional<std::string> serialNumber = {};
        std::optional<std::string> hardwareAddress = {};
        std::optional<std::string> valueBefore = {}; // of the parameter

        // Another unit has told the serial number that this one is to have.
        bool newSerialNumberIsTaken = false;
    };

    // The command was handed to the network, which refused it if `failure` says so.
    EditOutcome(ParameterEdit edit, Unit unit, std::optional<SendFailure> failure = {});

    const ParameterEdit& edit() const { return _edit; }
    const std::optional<std::string>& unit() const { return _unit.serialNumber; }
    const std::optional<std::string>& valueBefore() const { return _unit.valueBefore; }

    EditState state() const { return _state; }

    // Why the network refused the command; absent in every state but notSent.
    const std::optional<SendFailure>& failure() const { return _failure; }

    // What the unit showed last; absent before it has, and when it does not tell the parameter. A
    // unit ID comes without zero bytes at its end.
    const std::optional<std::string>& shownValue() const { return _shownValue; }

    // Why the unit could not be asked for its parameters when it had accepted a command; absent
    // when it was asked.
    const std::optional<SendFailure>& requestFailure() const { return _requestFailure; }

    const ARPEntry& arpEntry() const { return _arpEntry; }
    void setARPEntry(ARPEntry entry) { _arpEntry = entry; }

    // A unit accepted a command and was asked for its parameters, or could not be. False, and
    // nothing has changed, for another unit, for an edit that was not sent, and for a second time.
    bool unitDidAccept(std::string_view serialNumber, std::optional<SendFailure> requestFailure);

    // A unit told its parameters. False, and nothing has changed, for another unit and for an edit
    // that was not sent. A unit whose serial number was edited speaks under the new one: it is
    // known by its hardware address, or, where that is not known, by a number that nobody else had.
    bool unitDidTell(std::string_view serialNumber, const UnitRecord& record);

private:
    bool isFromUnit(std::string_view serialNumber, const UnitRecord& record) const;

    ParameterEdit _edit;
    Unit _unit;
    EditState _state = EditState::pending;
    std::optional<SendFailure> _failure;
    std::optional<SendFailure> _requestFailure;
    std::optional<std::string> _shownValue;
    ARPEntry _arpEntry;
    bool _hasAccepted = false;
};

} // namespace kx
