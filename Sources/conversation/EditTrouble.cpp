#include "conversation/EditTrouble.h"

#include "addresses/HardwareAddress.h"
#include "addresses/IPv4Address.h"
#include "conversation/RequestTarget.h"

#include <algorithm>

namespace kx {

namespace {

// In a subnet of one or two addresses each address is a host's. Where no mask is known, the address
// of the subnet would be 0.0.0.0, which is of many.
bool isAddressOfSubnet(std::uint32_t address, const InterfaceAddress& subnet) {
    return broadcastAddressOf(subnet).has_value() && address == (subnet.address & subnet.mask);
}

bool isOutside(std::uint32_t address, const std::vector<InterfaceAddress>& subnets) {
    const auto isUnknown = [](const InterfaceAddress& subnet) {
        return subnet.address == 0 || subnet.mask == 0;
    };
    const auto isInside = [address](const InterfaceAddress& subnet) {
        return (address & subnet.mask) == (subnet.address & subnet.mask);
    };
    return !std::ranges::all_of(subnets, isUnknown) && std::ranges::none_of(subnets, isInside);
}

EditTrouble troubleOfAddress(std::uint32_t address, const KnownNetwork& known) {
    if (std::ranges::find(known.own, address, &InterfaceAddress::address) != known.own.end()) {
        return EditTrouble::ownAddress;
    }
    if (known.isHeldByAnotherUnit) {
        return EditTrouble::addressOfAnotherUnit;
    }
    if (isAddressOfMany(address, broadcastAddressesOf(known.subnets))) {
        return EditTrouble::addressOfMany;
    }
    const auto isItsSubnet = [address](const InterfaceAddress& subnet) {
        return isAddressOfSubnet(address, subnet);
    };
    if (std::ranges::any_of(known.subnets, isItsSubnet)) {
        return EditTrouble::addressOfSubnet;
    }
    return isOutside(address, known.subnets) ? EditTrouble::outsideSubnet : EditTrouble::none;
}

// The lowest bit of the first byte is that of a group (IEEE 802); broadcast is one.
bool isHardwareAddressOfMany(std::string_view digits) {
    constexpr std::string_view odd = "13579BDFbdf";
    return digits.size() > 1 && odd.find(digits[1]) != odd.npos;
}

} // namespace

EditTrouble troubleOfEdit(const ParameterEdit& edit, const KnownNetwork& known) {
    if (edit.parameter == UnitParameter::internalIPAddress) {
        return edit.change == ValueChange::none ? troubleOfAddress(ipForString(edit.value), known)
                                                : EditTrouble::none;
    }
    const bool isWhole =
        edit.change != ValueChange::notHexadecimal && edit.change != ValueChange::wrongLength;
    return edit.parameter == UnitParameter::internalMACAddress && isWhole &&
                   isHardwareAddressOfMany(edit.value)
               ? EditTrouble::hardwareAddressOfMany
               : EditTrouble::none;
}

void ListedHolder::seek(const UnitRegistry& units, std::uint32_t address,
                        const std::optional<std::string>& except) {
    const std::string text = stringForIP(address);
    if (text == _address && except == _except) {
        return;
    }
    _address = text;
    _except = except;
    const UnitRecord* const record = except.has_value() ? units.find(*except) : nullptr;
    _exceptRecord = record != nullptr ? std::optional(*record) : std::nullopt;
    _holder = units.lowestWhere([this](const UnitRecord& unit) {
        return tellsIt(unit, unit.value(UnitParameter::serialNumber).value_or(""));
    });
}

void ListedHolder::unitDidTell(const UnitRecord& record) {
    const auto serial = record.value(UnitParameter::serialNumber);
    if (!serial.has_value() || _address.empty()) {
        return;
    }
    if (*serial == _except) {
        // The holder may be the same unit, known by another hardware address until now.
        if (!_exceptRecord.has_value() || !record.hasHardwareAddressOf(*_exceptRecord)) {
            _holder.reset();
        }
        _exceptRecord = record;
    } else if (tellsIt(record, *serial)) {
        _holder = *serial;
    } else if (_holder == *serial) {
        _holder.reset();
    }
}

bool ListedHolder::tellsIt(const UnitRecord& record, std::string_view serial) const {
    const bool isItself = serial == _except || (_exceptRecord.has_value() &&
                                                record.hasHardwareAddressOf(*_exceptRecord));
    return !isItself && record.value(UnitParameter::internalIPAddress) == _address;
}

} // namespace kx
