// The units that have answered, each with the place from which its answer came.
//
// Plain values; any thread, one at a time. Addresses and ports are in host byte order.

#pragma once

#include "units/ParameterList.h"
#include "units/UnitName.h"
#include "units/UnitRecord.h"

#include <chrono>
#include <compare>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kx {

// A place to which a datagram goes.
struct UnitTarget {
    std::uint32_t address = 0;
    std::uint16_t port = 0;
    std::uint32_t link = 0; // index of the interface by which it leaves; 0: the routes decide

    friend bool operator==(const UnitTarget&, const UnitTarget&) = default;
};

struct HeardUnit {
    UnitRecord record; // has a serial number
    std::optional<UnitIDBytes> unitIDBytes = {};
    std::uint32_t sender = 0; // address from which the answer came
    std::uint32_t link = 0;   // index of the interface by which it came; 0 when it is not known
    std::chrono::milliseconds answered{0}; // time from the latest request to the answer
    int request =
        0; // the number of the request of a discovery that was the latest; 0 outside of one

    std::string_view serialNumber() const;

    // Empty when the unit does not tell it.
    std::string_view hardwareAddress() const;

    // Its internal IP address, or the sender's address when it does not tell one, at its device
    // port, by the link on which it answered. A unit may tell an address of many: whoever sends a
    // command looks at that first (RequestTarget.h).
    UnitTarget target() const;
};

// What tells one unit from another: two answers are one unit's when both texts are the same.
struct UnitIdentity {
    std::string serialNumber;
    std::string hardwareAddress; // empty when the unit does not tell it

    friend auto operator<=>(const UnitIdentity&, const UnitIdentity&) = default;
};
UnitIdentity identityOf(const HeardUnit& unit);

// Two units that cannot be told apart in one respect.
struct DuplicateAddress {
    std::string address; // internal IP address
    std::vector<std::string> serialNumbers;
};
struct DuplicateSerialNumber {
    std::string serialNumber;
    std::vector<std::string> hardwareAddresses;
};

// Any host on the network can invent units, so there is a limit.
class HeardUnits {
public:
    // More than any network has, and small enough for a computer's memory.
    static constexpr std::size_t defaultLimit = 1'048'576;

    explicit HeardUnits(std::size_t limit = defaultLimit)
        : _limit(limit) {}

    // Adds an answer. It replaces an earlier one of the same serial number and hardware address. A
    // new unit beyond the limit is left out.
    void add(const HeardUnit& unit);

    // Units have been left out.
    bool isIncomplete() const { return _isIncomplete; }

    // One for each serial number and hardware address, in the order of serial numbers.
    std::vector<const HeardUnit*> all() const;
    std::size_t count() const { return _count; }

    // Every unit that the name stands for; more than one means that the name is ambiguous.
    std::vector<const HeardUnit*> named(const UnitName& name) const;

    std::vector<DuplicateAddress> duplicateAddresses() const;
    std::vector<DuplicateSerialNumber> duplicateSerialNumbers() const;

    // Whether another unit has this unit's serial number or its internal IP address.
    bool isDuplicated(const HeardUnit& unit) const;

private:
    std::map<std::string, std::vector<HeardUnit>, std::less<>> _units; // by serial number
    std::size_t _limit;
    std::size_t _count = 0;
    bool _isIncomplete = false;
};

// The text of the unit ID without zero bytes at its end; absent when the unit does not tell it, and
// when it is no text.
std::optional<std::string_view> unitIDText(const UnitRecord& record);

// A value as a text for a person; absent when the unit does not tell it. A unit ID that is no text
// is told by its six bytes: "FFFE00000001".
std::optional<std::string> shownText(const UnitRecord& record,
                                     const std::optional<UnitIDBytes>& unitIDBytes,
                                     UnitParameter parameter);

} // namespace kx
