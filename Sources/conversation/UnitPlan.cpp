#include "conversation/UnitPlan.h"

#include "addresses/IPv4Address.h"
#include "conversation/RequestTarget.h"
#include "conversation/RowUnits.h"
#include "conversation/StepOrder.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <unordered_map>
#include <utility>

namespace kx {

namespace {

// A reason names so many others at most. Thousands may tell one address.
constexpr std::size_t mostOthers = 8;

constexpr std::size_t noRow = static_cast<std::size_t>(-1);

const UnitChange* plannedChange(const PlannedRow& row, UnitParameter parameter) {
    const auto found = std::ranges::find_if(row.changes, [parameter](const UnitChange& change) {
        return change.edit.edit.parameter == parameter && change.state == ChangeState::planned;
    });
    return found != row.changes.end() ? &*found : nullptr;
}

bool hasPlannedChange(const PlannedRow& row) {
    return std::ranges::find(row.changes, ChangeState::planned, &UnitChange::state) !=
           row.changes.end();
}

RowReason reasonOfValue(RowObjection objection, UnitParameter parameter, std::string value) {
    RowReason reason;
    reason.objection = objection;
    reason.parameter = parameter;
    reason.value = std::move(value);
    return reason;
}

RowReason reasonOfRow(RowObjection objection, const PlannedRow& other) {
    RowReason reason;
    reason.objection = objection;
    reason.otherLine = other.line;
    return reason;
}

bool isAsSeen(const HeardUnit& unit, const SeenUnit& seen, UnitParameter parameter) {
    if (parameter == UnitParameter::unitID && seen.unitIDBytes && unit.unitIDBytes) {
        return *seen.unitIDBytes == *unit.unitIDBytes;
    }
    const auto value = seen.record.value(parameter);
    return !value.has_value() || unit.record.value(parameter) == value;
}

RowObjection objectionOf(AddressObjection objection) {
    switch (objection) {
    case AddressObjection::isOwn:
        return RowObjection::ownAddress;
    case AddressObjection::isOfNetwork:
        return RowObjection::networkAddress;
    case AddressObjection::isOutside:
        return RowObjection::outsideAddress;
    case AddressObjection::none:
        break;
    }
    return RowObjection::none;
}

class Planner {
public:
    Planner(const std::vector<WantedRow>& wanted, const HeardUnits& heard,
            const PlanNetwork& network)
        : _wanted(wanted)
        , _units(heard)
        , _network(network)
        , _addressesOfMany(addressesOfMany(network.interfaces))
        , _rowOfUnit(_units.units().size(), noRow) {}

    UnitPlan make() {
        findUnits();
        for (std::size_t row = 0; row < _wanted.size(); ++row) {
            lookAt(row);
        }
        refuseWantedTwice();
        for (std::size_t row = 0; row < _plan.rows.size(); ++row) {
            linkToHolders(row);
        }
        putInOrder();
        for (PlannedRow& row : _plan.rows) {
            if (row.state == RowState::refused || row.state == RowState::silent) {
                endRow(row, row.state, std::move(row.reason));
            }
        }
        return std::move(_plan);
    }

private:
    using Reason = std::optional<RowReason>;

    // A refused row keeps its first reason, and its changes as they are until the end: another row
    // may have counted on them.
    static void refuse(PlannedRow& row, RowReason reason) {
        if (row.state == RowState::planned) {
            row.state = RowState::refused;
            row.reason = std::move(reason);
        }
    }

    void findUnits() {
        _meant = unitsOfRows(_wanted, _units);
        for (std::size_t i = 0; i < _wanted.size(); ++i) {
            const WantedRow& wanted = _wanted[i];
            PlannedRow& row = _plan.rows.emplace_back();
            row.line = wanted.line;
            row.serialNumber = wanted.serialNumber;
            if (_meant[i].size() == 1) {
                row.unit = unitOf(i);
            }
            row.changes = changesOfUnit(row.unit.value_or(HeardUnit{}), wanted.edits);
        }
        for (std::size_t i = 0; i < _wanted.size(); ++i) {
            if (_meant[i].size() == 1) {
                claimUnit(i);
            }
        }
    }

    void claimUnit(std::size_t row) {
        std::size_t& owner = _rowOfUnit[_meant[row].front()];
        if (owner == noRow) {
            owner = row;
        } else {
            refuse(_plan.rows[row], reasonOfRow(RowObjection::namedTwice, _plan.rows[owner]));
            refuse(_plan.rows[owner], reasonOfRow(RowObjection::namedTwice, _plan.rows[row]));
        }
    }

    const HeardUnit& unitOf(std::size_t row) const { return *_units.units()[_meant[row].front()]; }

    void lookAt(std::size_t place) {
        PlannedRow& row = _plan.rows[place];
        if (auto reason = objectionToNewAddress(row)) {
            refuse(row, std::move(*reason));
        } else if (_meant[place].empty()) {
            row.state = RowState::silent;
            row.reason.objection = RowObjection::notHeard;
        } else if (auto twins = objectionToSerialNumber(place)) {
            refuse(row, std::move(*twins));
        } else if (row.state == RowState::planned && !hasPlannedChange(row)) {
            row.state = RowState::unchanged;
        } else if (auto unreachable = objectionToReach(place)) {
            refuse(row, std::move(*unreachable));
        } else if (auto outOfDate = objectionToAge(place)) {
            refuse(row, std::move(*outOfDate));
        }
    }

    // Where several interfaces are asked, only the answer tells on which one the unit is.
    const std::vector<HostInterface>& interfacesFor(const PlannedRow& row) {
        if (!row.unit.has_value()) {
            return _network.asked;
        }
        const std::uint32_t link = row.unit->link;
        const auto [known, isNew] = _interfaces.try_emplace(link);
        if (isNew) {
            std::ranges::copy_if(_network.interfaces, std::back_inserter(known->second),
                                 [link](const HostInterface& each) { return each.link == link; });
        }
        return known->second.empty() ? _network.asked : known->second;
    }

    Reason objectionToNewAddress(const PlannedRow& row) {
        const UnitChange* const move = plannedChange(row, UnitParameter::internalIPAddress);
        if (move == nullptr) {
            return std::nullopt;
        }
        const auto objection = objectionOf(objectionToAddress(
            ipForString(move->edit.edit.typed), _network.interfaces, interfacesFor(row)));
        return objection != RowObjection::none
                   ? Reason(reasonOfValue(objection, UnitParameter::internalIPAddress, move->to))
                   : std::nullopt;
    }

    Reason objectionToSerialNumber(std::size_t row) const {
        const auto& same = _meant[row].size() > 1 ? _meant[row]
                                                  : _units.telling(UnitParameter::serialNumber,
                                                                   unitOf(row).serialNumber());
        if (same.size() == 1) {
            return std::nullopt;
        }
        RowReason reason;
        reason.objection = RowObjection::ambiguousSerialNumber;
        for (std::size_t i = 0; i < std::min(same.size(), mostOthers); ++i) {
            reason.others.emplace_back(_units.units()[same[i]]->hardwareAddress());
        }
        return reason;
    }

    // A command could reach another unit, or none.
    Reason objectionToReach(std::size_t row) const {
        const HeardUnit& unit = unitOf(row);
        const auto address = unit.record.value(UnitParameter::internalIPAddress).value_or("");
        if (targetOfRequest(true, &unit.record, _addressesOfMany).reach ==
            RequestReach::everybodyAtItsAddress) {
            return reasonOfValue(RowObjection::addressOfMany, UnitParameter::internalIPAddress,
                                 std::string(address));
        }
        const auto& same = _units.telling(UnitParameter::internalIPAddress, address);
        if (same.size() > 1) {
            auto reason = reasonOfValue(RowObjection::ambiguousAddress,
                                        UnitParameter::internalIPAddress, std::string(address));
            reason.others = otherSerialNumbers(same, _meant[row].front());
            return reason;
        }
        if (unit.hardwareAddress().empty() &&
            plannedChange(_plan.rows[row], UnitParameter::internalIPAddress) != nullptr) {
            return RowReason{.objection = RowObjection::noHardwareAddress};
        }
        return std::nullopt;
    }

    // A value that is the wanted one already is not out of date: a run before may have given it.
    Reason objectionToAge(std::size_t row) const {
        const WantedRow& wanted = _wanted[row];
        if (!wanted.seen.has_value()) {
            return std::nullopt;
        }
        const HeardUnit& unit = unitOf(row);
        for (const UnitParameter parameter : allUnitParameters) {
            const bool isWanted = std::ranges::any_of(wanted.edits, [&](const ExactEdit& edit) {
                return edit.edit.parameter == parameter &&
                       edit.isShownBy(unit.record, unit.unitIDBytes);
            });
            if (!isWanted && !isAsSeen(unit, *wanted.seen, parameter)) {
                auto reason = reasonOfValue(
                    RowObjection::outOfDate, parameter,
                    shownText(wanted.seen->record, wanted.seen->unitIDBytes, parameter)
                        .value_or(""));
                reason.shown = shownText(unit.record, unit.unitIDBytes, parameter).value_or("");
                return reason;
            }
        }
        return std::nullopt;
    }

    std::vector<std::string> otherSerialNumbers(const UnitsByValue::Places& places,
                                                std::size_t except) const {
        std::vector<std::string> serials;
        for (const std::size_t place : places) {
            if (place != except && serials.size() < mostOthers) {
                serials.emplace_back(_units.units()[place]->serialNumber());
            }
        }
        return serials;
    }

    void refuseWantedTwice() {
        for (const UnitParameter parameter : exclusiveParameters) {
            std::unordered_map<std::string_view, std::size_t> first; // rows by value
            for (std::size_t i = 0; i < _plan.rows.size(); ++i) {
                PlannedRow& row = _plan.rows[i];
                const UnitChange* const change = plannedChange(row, parameter);
                if (change == nullptr || !row.unit.has_value()) {
                    continue;
                }
                const auto [known, isNew] = first.emplace(change->to, i);
                if (!isNew) {
                    PlannedRow& other = _plan.rows[known->second];
                    for (const auto& [one, two] : {std::pair(&row, &other), {&other, &row}}) {
                        auto reason =
                            reasonOfValue(RowObjection::wantedTwice, parameter, change->to);
                        reason.otherLine = two->line;
                        refuse(*one, std::move(reason));
                    }
                }
            }
        }
    }

    // The row waits for the rows that give up what it takes. Its unit shows none of that yet.
    void linkToHolders(std::size_t row) {
        for (const UnitParameter parameter : exclusiveParameters) {
            const PlannedRow& planned = _plan.rows[row];
            const UnitChange* const change = plannedChange(planned, parameter);
            if (planned.state != RowState::planned || change == nullptr) {
                continue;
            }
            for (const std::size_t holder : _units.telling(parameter, change->to)) {
                linkToHolder(row, *change, holder);
            }
        }
    }

    void linkToHolder(std::size_t row, const UnitChange& change, std::size_t holder) {
        const UnitParameter parameter = change.edit.edit.parameter;
        const std::size_t other = _rowOfUnit[holder];
        PlannedRow& planned = _plan.rows[row];
        // Late answers of two units that tell no hardware address look the same.
        const bool canBeConfused = parameter == UnitParameter::serialNumber &&
                                   (unitOf(row).hardwareAddress().empty() ||
                                    _units.units()[holder]->hardwareAddress().empty());
        if (other == noRow || plannedChange(_plan.rows[other], parameter) == nullptr ||
            canBeConfused) {
            auto reason = reasonOfValue(RowObjection::heldByUnit, parameter, change.to);
            reason.others.emplace_back(_units.units()[holder]->serialNumber());
            refuse(planned, std::move(reason));
        } else {
            planned.after.push_back({.row = other, .parameter = parameter});
            _plan.rows[other].waiting.push_back(row);
        }
    }

    void putInOrder() {
        StepsBefore before(_plan.rows.size());
        for (std::size_t i = 0; i < before.size(); ++i) {
            for (const RowDependency& dependency : _plan.rows[i].after) {
                before[i].push_back(dependency.row);
            }
        }
        const StepOrder order = orderOfSteps(before);
        for (std::size_t i = 0; i < before.size(); ++i) {
            if (order.rings[i] != 0) {
                refuseInRing(i, order.rings);
            }
        }
        for (std::size_t i = 0; i < before.size(); ++i) {
            if (_plan.rows[i].state != RowState::planned) {
                refuseWaiting(_plan, i);
            }
        }
        std::ranges::copy_if(order.steps, std::back_inserter(_plan.order), [this](std::size_t row) {
            return _plan.rows[row].state == RowState::planned;
        });
    }

    void refuseInRing(std::size_t place, const std::vector<std::size_t>& rings) {
        PlannedRow& row = _plan.rows[place];
        const auto next = std::ranges::find_if(row.after, [&](const RowDependency& dependency) {
            return rings[dependency.row] == rings[place];
        });
        const UnitChange* const change = plannedChange(row, next->parameter);
        auto reason = reasonOfValue(RowObjection::ring, next->parameter, change->to);
        reason.otherLine = _plan.rows[next->row].line;
        refuse(row, std::move(reason));
    }

    const std::vector<WantedRow>& _wanted;
    UnitsByValue _units;
    const PlanNetwork& _network;
    std::vector<std::uint32_t> _addressesOfMany;
    std::map<std::uint32_t, std::vector<HostInterface>> _interfaces; // by link
    std::vector<UnitsByValue::Places> _meant;                        // by row
    std::vector<std::size_t> _rowOfUnit;
    UnitPlan _plan;
};

} // namespace

UnitPlan planOfRows(const std::vector<WantedRow>& rows, const HeardUnits& heard,
                    const PlanNetwork& network) {
    return Planner(rows, heard, network).make();
}

} // namespace kx
