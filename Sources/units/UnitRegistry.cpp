#include "units/UnitRegistry.h"

namespace kx {

void UnitRegistry::clear() {
    _records.clear();
    _serialNumbers.clear();
    _withdrawnAddresses.clear();
}

bool UnitRegistry::store(const UnitRecord& record) {
    const auto serial = record.value(UnitParameter::serialNumber);
    if (!serial.has_value()) {
        return false;
    }
    const auto [unit, isNew] = _records.insert_or_assign(std::string(*serial), record);
    if (isNew) {
        _serialNumbers.add(unit->first);
    }
    if (!_withdrawnAddresses.empty()) {
        _withdrawnAddresses.erase(unit->first);
    }
    return true;
}

const UnitRecord* UnitRegistry::find(std::string_view serial) const {
    const auto found = _records.find(serial);
    return found != _records.end() ? &found->second : nullptr;
}

void UnitRegistry::withdrawAddress(std::string_view serial) {
    const auto found = _records.find(serial);
    if (found == _records.end()) {
        return;
    }
    const auto address = found->second.value(UnitParameter::internalIPAddress);
    if (address.has_value()) {
        _withdrawnAddresses.insert_or_assign(found->first, std::string(*address));
        found->second.removeValue(UnitParameter::internalIPAddress);
    }
}

void UnitRegistry::setLink(std::string_view serial, std::uint32_t link) {
    const auto found = _records.find(serial);
    if (found != _records.end() && link != 0) {
        found->second.setLink(link);
    }
}

std::optional<std::string_view> UnitRegistry::lastToldAddress(std::string_view serial) const {
    const auto withdrawn = _withdrawnAddresses.find(serial);
    if (withdrawn != _withdrawnAddresses.end()) {
        return withdrawn->second;
    }
    const UnitRecord* const record = find(serial);
    return record != nullptr ? record->value(UnitParameter::internalIPAddress) : std::nullopt;
}

} // namespace kx
