// What speaks against an edit, from what is known before anything is sent.
//
// Pure; any thread. Addresses are in host byte order.

#pragma once

#include "conversation/InterfaceAddress.h"
#include "units/ParameterEdit.h"
#include "units/UnitRegistry.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kx {

enum class EditTrouble {
    none,
    ownAddress,            // this host has the address
    addressOfAnotherUnit,  // a unit that has answered has it
    addressOfMany,         // a broadcast or a multicast address
    addressOfSubnet,       // the first address of a subnet, which stands for the subnet
    outsideSubnet,         // no subnet in which units are reached has it
    hardwareAddressOfMany, // a broadcast or a multicast hardware address
};

// What is known of the network.
struct KnownNetwork {
    std::vector<InterfaceAddress> own;     // the addresses of this host
    std::vector<InterfaceAddress> subnets; // those of the interface by which units are reached
    bool isHeldByAnotherUnit = false;      // ListedHolder found a unit
};

// The weightiest trouble of a unit's new address or hardware address; a part of one has none. A
// destination may be of many, and may be this host, so nothing speaks against that.
EditTrouble troubleOfEdit(const ParameterEdit& edit, const KnownNetwork& known);

// The unit among those that have answered that tells a sought address. A search goes through all
// units once; afterwards it follows what units tell.
class ListedHolder {
public:
    // Seeks the address in records of other units than `except`. A record with the hardware address
    // of that unit is its own, from before its serial number was changed. Does nothing when the
    // address and the unit are those of the search before.
    void seek(const UnitRegistry& units, std::uint32_t address,
              const std::optional<std::string>& except);

    // A unit told its parameters.
    void unitDidTell(const UnitRecord& record);

    // Forgets the address.
    void reset() { *this = {}; }

    // Absent when no unit is known to have the address.
    const std::optional<std::string>& serialNumber() const { return _holder; }

private:
    bool tellsIt(const UnitRecord& record, std::string_view serial) const;

    std::string _address; // empty: none is sought
    std::optional<std::string> _except;
    std::optional<UnitRecord> _exceptRecord;
    std::optional<std::string> _holder;
};

} // namespace kx
