#include "conversation/UnitsOfValue.h"

#include "support/SlowGrowth.h"

namespace kx {

void UnitsOfValue::clear() {
    _first.clear();
    _neighbours.clear();
}

void UnitsOfValue::add(std::uint32_t unit) {
    while (unit >= _neighbours.size()) {
        makeRoomForOneMore(_neighbours);
        _neighbours.emplace_back();
    }
    const std::uint64_t value = _valueOf(unit);
    const std::uint32_t latest = first(value);
    _neighbours[unit] = {.previous = nobody, .next = latest};
    if (latest == nobody) {
        _first.add(value, unit);
    } else {
        _neighbours[latest].previous = unit;
        _first.renumber(value, latest, unit);
    }
}

void UnitsOfValue::remove(std::uint32_t unit) {
    const Neighbours neighbours = _neighbours[unit];
    if (neighbours.next != nobody) {
        _neighbours[neighbours.next].previous = neighbours.previous;
    }
    if (neighbours.previous != nobody) {
        _neighbours[neighbours.previous].next = neighbours.next;
    } else if (neighbours.next != nobody) {
        _first.renumber(_valueOf(unit), unit, neighbours.next);
    } else {
        _first.remove(_valueOf(unit), unit);
    }
    _neighbours[unit] = {};
}

std::uint32_t UnitsOfValue::first(std::uint64_t value) const {
    return _first.find(value,
                       [this, value](std::uint32_t unit) { return _valueOf(unit) == value; });
}

} // namespace kx
