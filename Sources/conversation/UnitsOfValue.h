// For each value that units tell, such as an address, the units that tell it, the one that was
// heard last first. Units stand for themselves by their numbers (AllUnits).
//
// A value type; any thread, one at a time. Every operation but a walk takes the same short time,
// however many units tell one value.

#pragma once

#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <vector>

namespace kx {

class UnitsOfValue {
public:
    static constexpr std::uint32_t nobody = 0xFFFFFFFF;

    void clear();

    // The unit, which tells no value yet, tells this one.
    void add(std::uint64_t value, std::uint32_t unit);

    // The unit, which tells this value, tells it no longer.
    void remove(std::uint64_t value, std::uint32_t unit);

    // The unit that tells the value and was added last; `nobody` when none does.
    std::uint32_t first(std::uint64_t value) const;

    // The unit of the same value that was added before this one; `nobody` behind the last.
    std::uint32_t next(std::uint32_t unit) const { return _neighbours[unit].next; }

    // Whether another unit tells the value of this one. False for a unit that tells none.
    bool isShared(std::uint32_t unit) const {
        return unit < _neighbours.size() &&
               (_neighbours[unit].next != nobody || _neighbours[unit].previous != nobody);
    }

private:
    struct Neighbours {
        std::uint32_t previous = nobody;
        std::uint32_t next = nobody;
    };

    std::unordered_map<std::uint64_t, std::uint32_t> _first; // by value
    std::vector<Neighbours> _neighbours;                     // by unit
};

} // namespace kx
