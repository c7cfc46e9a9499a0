// A unit's parameters: the flat record that holds them as texts, and the decoder of the tagged list
// that a unit sends.
//
// A list is a run of items without count, length bytes or terminator; it ends where its bytes end.
// An item is a tag of three bytes and a value whose length the tag fixes, numbers in network byte
// order:
//
//   tag   value   parameter                   text
//   <M>   6       internal MAC address        00:1A:2B:3C:4D:5E
//   <I>   4       internal IP address         192.168.1.10
//   <D>   4       destination IP address      192.168.1.1
//   <T>   2       destination Port number     3520
//   <P>   2       device Port number          10000
//   <U>   6       unit ID                     see unitIDforData()
//   <C>   6       destination MAC address     00:0A:0B:0C:0D:0E
//   <O>   6       none: shown, not kept       01:02:03:04:05:06
//   <S>   6       serial number               01 02 03 04 05 06
//
// Everything here is pure and may be called from any thread. A record is a plain value without heap
// storage: copying one copies its bytes.

#pragma once

#include "support/ByteRange.h"
#include "support/LocalizedText.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kx {

// In the order in which people see them: by name, without regard to case.
enum class UnitParameter : std::uint8_t {
    destinationIPAddress,
    destinationMACAddress,
    destinationPortNumber,
    devicePortNumber,
    internalIPAddress,
    internalMACAddress,
    serialNumber,
    unitID,
};

inline constexpr std::size_t unitParameterCount = 8;

inline constexpr std::array<UnitParameter, unitParameterCount> allUnitParameters{
    UnitParameter::destinationIPAddress,  UnitParameter::destinationMACAddress,
    UnitParameter::destinationPortNumber, UnitParameter::devicePortNumber,
    UnitParameter::internalIPAddress,     UnitParameter::internalMACAddress,
    UnitParameter::serialNumber,          UnitParameter::unitID,
};

// The name that a parameter has in records, and the key of the text that people see for it.
constexpr std::string_view nameOfUnitParameter(UnitParameter parameter) {
    constexpr std::array<std::string_view, unitParameterCount> names{
        localizedKey("destination IP address"),  localizedKey("destination MAC address"),
        localizedKey("destination Port number"), localizedKey("device Port number"),
        localizedKey("internal IP address"),     localizedKey("internal MAC address"),
        localizedKey("serial number"),           localizedKey("unit ID"),
    };
    return names[static_cast<std::size_t>(parameter)];
}

// What people see for each parameter, in the order of UnitParameter.
using ShownParameterNames = std::array<std::string, unitParameterCount>;

// The parameter with exactly this name, case included; absent when there is none.
std::optional<UnitParameter> unitParameterForName(std::string_view name);

class UnitRecord {
public:
    // The longest value text in bytes, that of a hardware address or a serial number.
    static constexpr std::size_t longestText = 17;

    // The text of a parameter, absent when the record has none. It looks into the record and lives
    // until the record is changed or destroyed.
    std::optional<std::string_view> value(UnitParameter parameter) const {
        const Slot& slot = _slots[static_cast<std::size_t>(parameter)];
        return slot.isPresent ? std::optional(std::string_view(slot.text.data(), slot.length))
                              : std::nullopt;
    }

    // Sets or replaces a text of at most `longestText` bytes. Contract: "text.size() <=
    // longestText".
    void setValue(UnitParameter parameter, std::string_view text);

    void removeValue(UnitParameter parameter) {
        _slots[static_cast<std::size_t>(parameter)] = Slot{};
    }

    // Whether both have the same parameters with the same texts.
    friend bool operator==(const UnitRecord& left, const UnitRecord& right);

private:
    struct Slot {
        std::array<char, longestText> text{};
        std::uint8_t length = 0;
        bool isPresent = false;
    };

    std::array<Slot, unitParameterCount> _slots;
};

struct DecodedUnitParameters {
    UnitRecord record;
    std::string displayText; // one line for each item, "\n\tNAME: TEXT", in the order of the list
};

// Decodes a list. It ends quietly, with what came before, at a tag that is not in the table or is
// cut short. A later item of a tag replaces an earlier one in the record; both have their line. A
// unit ID that is not UTF-8 leaves the record without one and shows as "(null)". Throws
// RangeFailure for an item whose value is cut short. The display text has the names of the records,
// or those of `names` where they are given.
DecodedUnitParameters decodeUnitParameters(ByteView list,
                                           const ShownParameterNames* names = nullptr);

} // namespace kx
