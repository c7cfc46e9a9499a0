#include "conversation/RunHistory.h"

#include <algorithm>
#include <map>
#include <optional>
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

void addTo(std::vector<UnitIdentity>& identities, const std::vector<UnitIdentity>& more) {
    for (const UnitIdentity& identity : more) {
        if (std::ranges::find(identities, identity) == identities.end()) {
            identities.push_back(identity);
        }
    }
}

// The identities that one unit may have, as its entries follow each other.
class UnitTrack {
public:
    explicit UnitTrack(std::vector<UnitIdentity> identities = {})
        : _identities(std::move(identities)) {}

    const std::vector<UnitIdentity>& identities() const { return _identities; }

    // Those that it had before.
    const std::vector<UnitIdentity>& formerIdentities() const { return _former; }

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
        if (isName(command.parameter)) {
            addTo(_former, _identities);
            UnitIdentity after = _identities.front();
            (command.parameter == UnitParameter::serialNumber ? after.serialNumber
                                                              : after.hardwareAddress) = command.to;
            _identities.push_back(std::move(after));
        }
    }

    // The outcome of the latest command.
    void note(const JournalledOutcome& outcome) {
        if (!isName(outcome.parameter)) {
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
    std::vector<UnitIdentity> _former;
};

// The tracks of many units, each of which is found by the names that it may have.
class UnitTracks {
public:
    const UnitTrack& operator[](std::size_t place) const { return _tracks[place]; }

    // Gives the place of the new track.
    std::size_t add(std::vector<UnitIdentity> identities = {}) {
        _tracks.emplace_back(std::move(identities));
        enter(_tracks.size() - 1);
        return _tracks.size() - 1;
    }

    std::optional<std::size_t> find(const UnitIdentity& identity) const {
        const auto known = _places.find(identity.serialNumber);
        if (known != _places.end()) {
            for (const std::size_t place : known->second) {
                if (_tracks[place].mayBe(identity)) {
                    return place;
                }
            }
        }
        return std::nullopt;
    }

    template<class Entry>
    void note(std::size_t place, const Entry& entry) {
        _tracks[place].note(entry);
        enter(place);
    }

private:
    void enter(std::size_t place) {
        for (const UnitIdentity& identity : _tracks[place].identities()) {
            auto& places = _places[identity.serialNumber];
            if (std::ranges::find(places, place) == places.end()) {
                places.push_back(place);
            }
        }
    }

    std::vector<UnitTrack> _tracks;
    std::unordered_map<std::string, std::vector<std::size_t>> _places; // by serial number
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
    std::map<UnitParameter, OldValue> values = {};
};

class ChangedUnits {
public:
    void add(const JournalledCommand& command) {
        const std::size_t place = placeOf(command.unit);
        OldValue& value = _units[place].values[command.parameter];
        if (!value.mayBeChanged()) {
            value.text = command.from;
            value.unitID = command.fromUnitID;
        }
        value.isAnnounced = true;
        _tracks.note(place, command);
    }

    void add(const JournalledOutcome& outcome) {
        if (const auto place = _tracks.find(identityOf(outcome.unit))) {
            OldValue& value = _units[*place].values[outcome.parameter];
            value.isAnnounced = false;
            value.isSent = value.isSent || outcome.state != ChangeState::refused;
            _tracks.note(*place, outcome);
        }
    }

    void add(const JournalledBinding& /*binding*/) {}

    RevertedRows reverted() const {
        RevertedRows reverted;
        for (std::size_t place = 0; place < _units.size(); ++place) {
            revertUnit(_units[place], _tracks[place], reverted);
        }
        return reverted;
    }

private:
    std::size_t placeOf(const JournalledUnit& unit) {
        if (const auto known = _tracks.find(identityOf(unit))) {
            return *known;
        }
        _units.push_back({.line = unit.line});
        return _tracks.add();
    }

    static void revertUnit(const ChangedUnit& unit, const UnitTrack& track, RevertedRows& reverted);

    std::vector<ChangedUnit> _units;
    UnitTracks _tracks; // of the units, in the same order
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

void addEditBack(UnitParameter parameter, const OldValue& value, WantedRow& row,
                 RevertedRows& reverted) {
    const auto edit = editBackTo(parameter, value);
    if (edit.has_value()) {
        row.edits.push_back(*edit);
    } else {
        reverted.lost.push_back({.line = row.line,
                                 .serialNumber = row.serialNumber,
                                 .parameter = parameter,
                                 .value = value.text});
    }
}

void ChangedUnits::revertUnit(const ChangedUnit& unit, const UnitTrack& track,
                              RevertedRows& reverted) {
    WantedRow row{.line = unit.line,
                  .serialNumber = track.identities().back().serialNumber,
                  .edits = {},
                  .identities = track.identities(),
                  .formerIdentities = track.formerIdentities()};
    for (const auto& [parameter, value] : unit.values) {
        if (value.mayBeChanged()) {
            addEditBack(parameter, value, row, reverted);
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

// The units of rows, followed from the first command that a row would send itself.
class RowTracks {
public:
    explicit RowTracks(const std::vector<WantedRow>& rows)
        : _rows(rows) {
        for (std::size_t i = 0; i < rows.size(); ++i) {
            _tracks.add(rows[i].identities);
            if (isFoundByName(rows[i])) {
                _places.emplace(rows[i].serialNumber, i);
            }
        }
    }

    void add(const JournalledCommand& command) {
        auto place = _tracks.find(identityOf(command.unit));
        const auto row = _places.find(command.unit.rowSerialNumber);
        if (!place.has_value() && row != _places.end() && isOfRow(command, _rows[row->second])) {
            place = row->second;
        }
        if (place.has_value()) {
            _tracks.note(*place, command);
        }
    }

    void add(const JournalledOutcome& outcome) {
        if (const auto place = _tracks.find(identityOf(outcome.unit))) {
            _tracks.note(*place, outcome);
        }
    }

    void add(const JournalledBinding& /*binding*/) {}

    const UnitTrack& operator[](std::size_t row) const { return _tracks[row]; }

private:
    // The serial number alone does not tell the unit all the time.
    static bool isFoundByName(const WantedRow& row) {
        return !row.identities.empty() || editOf(row, UnitParameter::serialNumber) != nullptr;
    }

    const std::vector<WantedRow>& _rows;
    UnitTracks _tracks;                                   // of the rows, in the same order
    std::unordered_map<std::string, std::size_t> _places; // of rows, by the serial number there
};

} // namespace

std::vector<WantedRow> resumedRows(std::vector<WantedRow> rows,
                                   std::span<const JournalEntry> journal) {
    RowTracks tracks(rows);
    for (const JournalEntry& entry : journal) {
        std::visit([&tracks](const auto& each) { tracks.add(each); }, entry);
    }
    for (std::size_t i = 0; i < rows.size(); ++i) {
        WantedRow& row = rows[i];
        addTo(row.formerIdentities, row.identities);
        addTo(row.formerIdentities, tracks[i].formerIdentities());
        row.identities = tracks[i].identities();
    }
    return rows;
}

RevertedRows revertedRows(std::span<const JournalEntry> journal) {
    ChangedUnits units;
    for (const JournalEntry& entry : journal) {
        std::visit([&units](const auto& each) { units.add(each); }, entry);
    }
    return units.reverted();
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
