// The values of one unit in as many bytes as they have in a reply, without their texts.
//
// A plain value without heap storage; any thread, one at a time.

#pragma once

#include "units/UnitParameter.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace kx {

class PackedValues {
public:
    // Whether a value has been set.
    bool has(UnitParameter parameter) const { return (_set >> indexOf(parameter) & 1U) != 0; }

    // The value as units/ParameterNumber.h has it, for the unit ID that of its bytes. 0 when it is
    // not set.
    std::uint64_t number(UnitParameter parameter) const {
        std::uint64_t number = 0;
        for (std::size_t place = begins[indexOf(parameter)]; place < begins[indexOf(parameter) + 1];
             ++place) {
            number = number << 8U | _bytes[place];
        }
        return number;
    }

    // Of `number` only as many bytes count as the value has in a reply.
    void set(UnitParameter parameter, std::uint64_t number) {
        for (std::size_t place = begins[indexOf(parameter) + 1]; place > begins[indexOf(parameter)];
             number >>= 8U) {
            _bytes[--place] = static_cast<std::uint8_t>(number);
        }
        _set = static_cast<std::uint8_t>(_set | 1U << indexOf(parameter));
    }

private:
    // Where each value begins, and behind the last one the end.
    static constexpr std::array<std::size_t, unitParameterCount + 1> begins = [] {
        std::array<std::size_t, unitParameterCount + 1> places{};
        for (std::size_t i = 0; i < unitParameterCount; ++i) {
            places[i + 1] = places[i] + lengthOfValue(parameterTable[i].form);
        }
        return places;
    }();

    std::array<std::uint8_t, begins.back()> _bytes{}; // most significant byte first
    std::uint8_t _set = 0;                            // a bit for each parameter
    static_assert(unitParameterCount <= 8);
};

} // namespace kx
