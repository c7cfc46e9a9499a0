// One unit's parameters as texts, and the link on which the unit was heard.
//
// A plain value without heap storage: copying one copies its bytes. Any thread, one at a time.

#pragma once

#include "units/UnitParameter.h"
#include "units/ValueText.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace kx {

class UnitRecord {
public:
    // The longest value text in bytes.
    static constexpr std::size_t longestText = ValueText::longestText;

    // The text of a parameter, absent when the record has none. It is a view of the record and
    // lives until the record is changed or destroyed.
    std::optional<std::string_view> value(UnitParameter parameter) const {
        return _texts[indexOf(parameter)].view();
    }

    // Sets or replaces a text of at most `longestText` bytes. Contract: "text.size() <=
    // longestText".
    void setValue(UnitParameter parameter, std::string_view text) {
        setValue(parameter, ValueText(text));
    }

    // Sets or replaces a text. None removes it.
    void setValue(UnitParameter parameter, const ValueText& text) {
        _texts[indexOf(parameter)] = text;
    }

    void removeValue(UnitParameter parameter) { setValue(parameter, ValueText()); }

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
    std::array<ValueText, unitParameterCount> _texts;
    std::uint32_t _link = 0;
};

} // namespace kx
