// The outcome of an edit: whether it was sent, whether the unit has accepted a command since, and
// what the unit shows.
//
// A unit tells the result of a command only through its parameters. So the value that it shows is
// compared with the value that was sent, in the form in which units show it. Each reply replaces
// the outcome of the one before it. An acknowledgement names no command, so it says only that the
// unit accepted some command.
//
// A value type, pure; any thread, one at a time. Texts are UTF-8.

#pragma once

#include "conversation/ARPEntry.h"
#include "conversation/UnitSession.h"
#include "units/ParameterEdit.h"
#include "units/UnitRecord.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace kx {

enum class EditState {
    notSent,     // the network refused the command
    pending,     // sent, and nothing heard since
    accepted,    // the unit accepted a command
    shown,       // the unit shows the value
    unchanged,   // the unit shows the value that it had
    different,   // the unit shows another value
    notReported, // the unit's parameters do not include this one
};

class EditOutcome {
public:
    // The unit at the time of the edit. Without a unit every text is absent.
    struct Unit {
        std::optional<std::string> serialNumber = {};
        std::optional<std::string> hardwareAddress = {};
        std::optional<std::string> valueBefore = {}; // value of the parameter before the edit

        // Another unit has already told the serial number that this unit is to get.
        bool newSerialNumberIsTaken = false;

        // The address to which the command was sent, in host byte order; 0 when it is not known.
        std::uint32_t address = 0;
    };

    // The command was handed to the network. `failure`, when present, says why the network refused
    // it.
    EditOutcome(ParameterEdit edit, Unit unit, std::optional<SendFailure> failure = {});

    const ParameterEdit& edit() const { return _edit; }
    const std::optional<std::string>& unit() const { return _unit.serialNumber; }
    const std::optional<std::string>& valueBefore() const { return _unit.valueBefore; }

    EditState state() const { return _state; }

    // Why the network refused the command; absent in every state but notSent.
    const std::optional<SendFailure>& failure() const { return _failure; }

    // The value that the unit showed last; absent before the first one, and when the unit does not
    // tell the parameter. Zero bytes at the end of a unit ID are removed.
    const std::optional<std::string>& shownValue() const { return _shownValue; }

    // Why the unit could not be asked for its parameters after it had accepted a command; absent
    // when it was asked.
    const std::optional<SendFailure>& requestFailure() const { return _requestFailure; }

    const ARPEntry& arpEntry() const { return _arpEntry; }
    void setARPEntry(ARPEntry entry) { _arpEntry = std::move(entry); }

    // A unit accepted a command and was then asked for its parameters; `requestFailure` says why it
    // could not be asked. Returns false and changes nothing for another unit, for an edit that was
    // not sent, and for a second acceptance, unless the unit could be asked only after that one.
    bool unitDidAccept(std::string_view serialNumber, std::optional<SendFailure> requestFailure);

    // Another unit accepted a command: its acknowledgement came from `sender`, the address to which
    // the edit was sent, so that unit took it. Returns false and changes nothing when it came from
    // another address, for the edited unit itself, for an edit that was not sent, and for a unit
    // that was told already.
    bool otherUnitDidAccept(std::string_view serialNumber, std::uint32_t sender);

    // The serial number of the other unit that accepted a command last; absent when none has.
    const std::optional<std::string>& otherUnit() const { return _otherUnit; }
    std::uint32_t address() const { return _unit.address; }

    // The unit had enough time for an answer, or it is given time once more. Each returns whether
    // that changes the outcome.
    bool patienceDidEnd() { return setPatienceIsOver(true); }
    bool patienceDidBegin() { return setPatienceIsOver(false); }
    bool isPatienceOver() const { return _isPatienceOver; }

    // A unit told its parameters. Returns false and changes nothing for another unit and for an
    // edit that was not sent. A unit whose serial number was edited answers under the new one. It
    // is recognised by its hardware address or, when that is not known, by a number that no other
    // unit had.
    bool unitDidTell(std::string_view serialNumber, const UnitRecord& record);

private:
    bool isFromUnit(std::string_view serialNumber, const UnitRecord& record) const;
    bool setPatienceIsOver(bool isOver);

    ParameterEdit _edit;
    Unit _unit;
    EditState _state = EditState::pending;
    std::optional<SendFailure> _failure;
    std::optional<SendFailure> _requestFailure;
    std::optional<std::string> _shownValue;
    ARPEntry _arpEntry;
    bool _hasAccepted = false;
    std::optional<std::string> _otherUnit;
    bool _isPatienceOver = false;
};

} // namespace kx
