// For each value that units tell, such as an address, the units that tell it, the one that was
// heard last first. Units stand for themselves by their numbers (AllUnits), and whoever has the
// units says what each of them tells.
//
// Any thread, one at a time. Every operation but a walk takes the same short time, however many
// units tell one value.

#pragma once

#include "support/NumberIndex.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <utility>
#include <vector>

namespace kx {

class UnitsOfValue {
public:
    static constexpr std::uint32_t nobody = NumberIndex::nothing;

    // The value that a unit tells.
    using ValueOf = std::function<std::uint64_t(std::uint32_t unit)>;

    // What `valueOf` says of a unit must not change between its add() and its remove().
    explicit UnitsOfValue(ValueOf valueOf)
        : _valueOf(std::move(valueOf)) {}
    UnitsOfValue(const UnitsOfValue&) = delete; // a copy would ask the same owner
    UnitsOfValue& operator=(const UnitsOfValue&) = delete;

    // Forgets all units.
    void clear();

    // Adds a unit that is not there.
    void add(std::uint32_t unit);

    // Removes a unit that is there.
    void remove(std::uint32_t unit);

    // The unit that tells the value and was added last; `nobody` when none does.
    std::uint32_t first(std::uint64_t value) const;

    // The unit of the same value that was added before this one; `nobody` behind the last.
    std::uint32_t next(std::uint32_t unit) const { return _neighbours[unit].next; }

    // Whether another unit tells the value of this one. False for a unit that is not there.
    bool isShared(std::uint32_t unit) const {
        return unit < _neighbours.size() &&
               (_neighbours[unit].next != nobody || _neighbours[unit].previous != nobody);
    }

private:
    struct Neighbours {
        std::uint32_t previous = nobody;
        std::uint32_t next = nobody;
    };

    ValueOf _valueOf;
    NumberIndex _first;                  // of each value
    std::vector<Neighbours> _neighbours; // by unit
};

} // namespace kx
