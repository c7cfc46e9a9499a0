// One unit's parameters as texts, and the link on which the unit was heard.
//
// A plain value without heap storage: copying one copies its bytes. Any thread, one at a time.

#pragma once

#include "units/UnitParameter.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace kx {

class UnitRecord {
public:
    // The longest value text in bytes, that of a hardware address or a serial number.
    static constexpr std::size_t longestText = 17;

    // The text of a parameter, absent when the record has none. It is a view of the record and
    // lives until the record is changed or destroyed.
    std::optional<std::string_view> value(UnitParameter parameter) const {
        const Slot& slot = _slots[indexOf(parameter)];
        return slot.isPresent ? std::optional(std::string_view(slot.text.data(), slot.length))
                              : std::nullopt;
    }

    // Sets or replaces a text of at most `longestText` bytes. Contract: "text.size() <=
    // longestText".
    void setValue(UnitParameter parameter, std::string_view text);

    void removeValue(UnitParameter parameter) { _slots[indexOf(parameter)] = Slot{}; }

    // Whether both tell the same internal MAC address: then they are of one unit, also under two
    // serial numbers.
    bool hasHardwareAddressOf(const UnitRecord& other) const {
        const auto address = value(UnitParameter::internalMACAddress);
        return address.has_value() && address == other.value(UnitParameter::internalMACAddress);
    }

    // The index of the interface by which the unit was heard last; 0 when it is not known.
    std::uint32_t link() const { return _link; }
    void setLink(std::uint32_t link) { _link = link; }

    // Whether both have the same parameters with the same texts. The link does not count.
    friend bool operator==(const UnitRecord& left, const UnitRecord& right);

private:
    struct Slot {
        std::array<char, longestText> text{};
        std::uint8_t length = 0;
        bool isPresent = false;
    };

    std::array<Slot, unitParameterCount> _slots;
    std::uint32_t _link = 0;
};

} // namespace kx
