#include "conversation/RunHistory.h"

#include <algorithm>
#include <map>
#include <optional>
#include <type_traits>
#include <unordered_map>
#include <utility>

namespace kx {

namespace {

bool isName(UnitParameter parameter) {
    return parameter == UnitParameter::serialNumber ||
           parameter == UnitParameter::internalMACAddress;
}

UnitIdentity identityOf(const JournalledUnit& unit) {
    return {.serialNumber = unit.serialNumber, .hardwareAddress = unit.hardwareAddress};
}

// The identities that one unit may have, as its entries follow each other.
class UnitTrack {
public:
    const std::vector<UnitIdentity>& identities() const { return _identities; }

    bool mayBe(const UnitIdentity& other) const {
        return std::ranges::any_of(_identities, [&other](const UnitIdentity& each) {
            return each.serialNumber == other.serialNumber &&
                   (each.hardwareAddress.empty() || other.hardwareAddress.empty() ||
                    each.hardwareAddress == other.hardwareAddress);
        });
    }

    // The unit has its old name or its new one from now on.
    void note(const JournalledCommand& command) {
        _identities = {identityOf(command.unit)};
        _announced = command.parameter;
        if (isName(command.parameter)) {
            UnitIdentity after = _identities.front();
            (command.parameter == UnitParameter::serialNumber ? after.serialNumber
                                                              : after.hardwareAddress) = command.to;
            _identities.push_back(std::move(after));
        }
    }

    void note(const JournalledOutcome& outcome) {
        if (outcome.parameter != _announced || !isName(outcome.parameter)) {
            return;
        }
        if (outcome.state == ChangeState::done) {
            _identities = {identityOf(outcome.unit)};
        } else if (outcome.state == ChangeState::refused) {
            _identities.resize(1);
        }
    }

private:
    std::vector<UnitIdentity> _identities;
    UnitParameter _announced = UnitParameter::end;
};

// The value of a parameter before the first command that may have changed it.
struct OldValue {
    std::optional<std::string> text;
    std::optional<UnitIDBytes> unitID;
    bool isAnnounced = false; // a command has no outcome so far; it may have been sent
    bool isSent = false;

    bool mayBeChanged() const { return isAnnounced || isSent; }
};

struct ChangedUnit {
    std::size_t line = 0;
    UnitTrack track = {};
    std::map<UnitParameter, OldValue> values = {};
};

class ChangedUnits {
public:
    void add(const JournalledCommand& command) {
        ChangedUnit& unit = unitOf(command.unit);
        OldValue& value = unit.values[command.parameter];
        if (!value.mayBeChanged()) {
            value.text = command.from;
            value.unitID = command.fromUnitID;
        }
        value.isAnnounced = true;
        unit.track.note(command);
        if (command.parameter == UnitParameter::serialNumber) {
            _places[command.to].push_back(static_cast<std::size_t>(&unit - _units.data()));
        }
    }

    void add(const JournalledOutcome& outcome) {
        if (ChangedUnit* const unit = find(identityOf(outcome.unit))) {
            OldValue& value = unit->values[outcome.parameter];
            value.isAnnounced = false;
            value.isSent = value.isSent || outcome.state != ChangeState::refused;
            unit->track.note(outcome);
        }
    }

    void add(const JournalledBinding& /*binding*/) {}

    const std::vector<ChangedUnit>& all() const { return _units; }

private:
    // Null when no entry so far is about the unit.
    ChangedUnit* find(const UnitIdentity& identity) {
        for (const std::size_t place : _places[identity.serialNumber]) {
            if (_units[place].track.mayBe(identity)) {
                return &_units[place];
            }
        }
        return nullptr;
    }

    ChangedUnit& unitOf(const JournalledUnit& unit) {
        if (ChangedUnit* const known = find(identityOf(unit))) {
            return *known;
        }
        _places[unit.serialNumber].push_back(_units.size());
        return _units.emplace_back(ChangedUnit{.line = unit.line});
    }

    std::vector<ChangedUnit> _units;
    std::unordered_map<std::string, std::vector<std::size_t>> _places; // by serial number
};

// Absent when no command brings the value back.
std::optional<ExactEdit> editBackTo(UnitParameter parameter, const OldValue& value) {
    if (parameter == UnitParameter::unitID && value.unitID.has_value()) {
        return exactEditOfUnitID(*value.unitID);
    }
    const auto edit = exactEdit(parameter, value.text.value_or(""));
    const auto* const exact = std::get_if<ExactEdit>(&edit);
    return exact != nullptr && !exact->isChanged ? std::optional(*exact) : std::nullopt;
}

void revertUnit(const ChangedUnit& unit, RevertedRows& reverted) {
    WantedRow row{.line = unit.line,
                  .serialNumber = unit.track.identities().back().serialNumber,
                  .edits = {},
                  .identities = unit.track.identities()};
    for (const auto& [parameter, value] : unit.values) {
        if (!value.mayBeChanged()) {
            continue;
        }
        if (auto edit = editBackTo(parameter, value)) {
            row.edits.push_back(std::move(*edit));
        } else {
            reverted.lost.push_back({.line = unit.line,
                                     .serialNumber = row.serialNumber,
                                     .parameter = parameter,
                                     .value = value.text});
        }
    }
    if (!row.edits.empty()) {
        reverted.rows.push_back(std::move(row));
    }
}

const ExactEdit* editOf(const WantedRow& row, UnitParameter parameter) {
    const auto found = std::ranges::find_if(
        row.edits, [parameter](const ExactEdit& edit) { return edit.edit.parameter == parameter; });
    return found != row.edits.end() ? &*found : nullptr;
}

// The row would send this command.
bool isOfRow(const JournalledCommand& command, const WantedRow& row) {
    const ExactEdit* const edit = editOf(row, command.parameter);
    return edit != nullptr && edit->edit.command == command.command;
}

bool isOfRow(const JournalledOutcome& outcome, const WantedRow& row) {
    return editOf(row, outcome.parameter) != nullptr;
}

} // namespace

std::vector<WantedRow> resumedRows(std::vector<WantedRow> rows,
                                   std::span<const JournalEntry> journal) {
    std::unordered_map<std::string, std::size_t> places; // of the rows
    for (std::size_t i = 0; i < rows.size(); ++i) {
        places.emplace(rows[i].serialNumber, i);
    }
    std::vector<UnitTrack> tracks(rows.size());
    for (const JournalEntry& entry : journal) {
        std::visit(
            [&](const auto& each) {
                if constexpr (!std::is_same_v<std::decay_t<decltype(each)>, JournalledBinding>) {
                    const auto place = places.find(each.unit.rowSerialNumber);
                    if (place != places.end() && isOfRow(each, rows[place->second])) {
                        tracks[place->second].note(each);
                    }
                }
            },
            entry);
    }
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const bool isFoundByName =
            !rows[i].identities.empty() || editOf(rows[i], UnitParameter::serialNumber) != nullptr;
        if (isFoundByName && !tracks[i].identities().empty()) {
            rows[i].identities = tracks[i].identities();
        }
    }
    return rows;
}

RevertedRows revertedRows(std::span<const JournalEntry> journal) {
    ChangedUnits units;
    for (const JournalEntry& entry : journal) {
        std::visit([&units](const auto& each) { units.add(each); }, entry);
    }
    RevertedRows reverted;
    for (const ChangedUnit& unit : units.all()) {
        revertUnit(unit, reverted);
    }
    return reverted;
}

std::vector<JournalledBinding> bindingsLeft(std::span<const JournalEntry> journal) {
    std::vector<JournalledBinding> left;
    for (const JournalEntry& entry : journal) {
        const auto* const binding = std::get_if<JournalledBinding>(&entry);
        if (binding == nullptr) {
            continue;
        }
        std::erase_if(left, [binding](const JournalledBinding& other) {
            return other.address == binding->address &&
                   other.hardwareAddress == binding->hardwareAddress;
        });
        if (binding->isMade) {
            left.push_back(*binding);
        }
    }
    return left;
}

} // namespace kx
