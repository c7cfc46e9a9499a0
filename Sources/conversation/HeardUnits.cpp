#include "conversation/HeardUnits.h"

#include "conversation/UnitDestination.h"
#include "units/IdentityText.h"
#include "units/ParameterEdit.h"

#include <algorithm>
#include <utility>

namespace kx {

namespace {

// That a unit has this internal IP address.
struct AddressClaim {
    std::string_view address;
    std::string_view serialNumber;

    friend auto operator<=>(const AddressClaim&, const AddressClaim&) = default;
};

std::string_view textOf(const UnitRecord& record, UnitParameter parameter) {
    return record.value(parameter).value_or(std::string_view());
}

} // namespace

std::string_view HeardUnit::serialNumber() const {
    return textOf(record, UnitParameter::serialNumber);
}

std::string_view HeardUnit::hardwareAddress() const {
    return textOf(record, UnitParameter::internalMACAddress);
}

UnitTarget HeardUnit::target() const {
    const UnitDestination destination = destinationOfUnit(&record, {.address = sender});
    return {.address = destination.address, .port = destination.port, .link = link};
}

UnitIdentity identityOf(const HeardUnit& unit) {
    return {.serialNumber = std::string(unit.serialNumber()),
            .hardwareAddress = std::string(unit.hardwareAddress())};
}

void HeardUnits::add(const HeardUnit& unit) {
    const auto known = _units.find(unit.serialNumber());
    if (known != _units.end()) {
        const auto same = std::ranges::find_if(known->second, [&unit](const HeardUnit& other) {
            return other.hardwareAddress() == unit.hardwareAddress();
        });
        if (same != known->second.end()) {
            *same = unit;
            return;
        }
    }
    if (_count == _limit) {
        _isIncomplete = true;
        return;
    }
    auto& sameNumber =
        known != _units.end() ? known->second : _units[std::string(unit.serialNumber())];
    sameNumber.push_back(unit);
    ++_count;
}

std::vector<const HeardUnit*> HeardUnits::all() const {
    std::vector<const HeardUnit*> units;
    units.reserve(_count);
    for (const auto& [number, sameNumber] : _units) {
        for (const HeardUnit& unit : sameNumber) {
            units.push_back(&unit);
        }
    }
    return units;
}

std::vector<const HeardUnit*> HeardUnits::named(const UnitName& name) const {
    std::vector<const HeardUnit*> found;
    if (const auto* const serial = std::get_if<SerialNumberOfUnit>(&name)) {
        const auto sameNumber = _units.find(serial->text);
        if (sameNumber != _units.end()) {
            for (const HeardUnit& unit : sameNumber->second) {
                found.push_back(&unit);
            }
        }
        return found;
    }
    const std::string& unitID = std::get<UnitIDOfUnit>(name).text;
    for (const HeardUnit* const unit : all()) {
        if (unitIDText(unit->record) == unitID) {
            found.push_back(unit);
        }
    }
    return found;
}

std::vector<DuplicateAddress> HeardUnits::duplicateAddresses() const {
    std::vector<AddressClaim> claims;
    claims.reserve(_count);
    for (const HeardUnit* const unit : all()) {
        if (const auto address = unit->record.value(UnitParameter::internalIPAddress)) {
            claims.push_back({.address = *address, .serialNumber = unit->serialNumber()});
        }
    }
    std::ranges::sort(claims);
    const auto same = std::ranges::unique(claims); // hosts with one serial number
    claims.erase(same.begin(), same.end());
    std::vector<DuplicateAddress> duplicates;
    for (std::size_t index = 1; index < claims.size(); ++index) {
        if (claims[index].address != claims[index - 1].address) {
            continue;
        }
        if (duplicates.empty() || duplicates.back().address != claims[index].address) {
            duplicates.push_back({.address = std::string(claims[index].address),
                                  .serialNumbers = {std::string(claims[index - 1].serialNumber)}});
        }
        duplicates.back().serialNumbers.emplace_back(claims[index].serialNumber);
    }
    return duplicates;
}

std::vector<DuplicateSerialNumber> HeardUnits::duplicateSerialNumbers() const {
    std::vector<DuplicateSerialNumber> duplicates;
    for (const auto& [number, sameNumber] : _units) {
        if (sameNumber.size() > 1) {
            DuplicateSerialNumber duplicate{number, {}};
            for (const HeardUnit& unit : sameNumber) {
                duplicate.hardwareAddresses.emplace_back(unit.hardwareAddress());
            }
            duplicates.push_back(std::move(duplicate));
        }
    }
    return duplicates;
}

bool HeardUnits::isDuplicated(const HeardUnit& unit) const {
    const auto address = unit.record.value(UnitParameter::internalIPAddress);
    return std::ranges::any_of(all(), [&](const HeardUnit* other) {
        return identityOf(*other) != identityOf(unit) &&
               (other->serialNumber() == unit.serialNumber() ||
                (address.has_value() &&
                 other->record.value(UnitParameter::internalIPAddress) == address));
    });
}

std::optional<std::string_view> unitIDText(const UnitRecord& record) {
    const auto text = record.value(UnitParameter::unitID);
    return text.has_value() ? std::optional(withoutTrailingZeroBytes(*text)) : std::nullopt;
}

std::optional<std::string> shownText(const UnitRecord& record,
                                     const std::optional<UnitIDBytes>& unitIDBytes,
                                     UnitParameter parameter) {
    const auto text =
        parameter == UnitParameter::unitID ? unitIDText(record) : record.value(parameter);
    if (text.has_value()) {
        return std::string(*text);
    }
    return parameter == UnitParameter::unitID && unitIDBytes.has_value()
               ? std::optional(hexStringForData(*unitIDBytes, ""))
               : std::nullopt;
}

} // namespace kx
