#include "conversation/UnitsOfValue.h"

namespace kx {

void UnitsOfValue::clear() {
    *this = {};
}

void UnitsOfValue::add(std::uint64_t value, std::uint32_t unit) {
    if (unit >= _neighbours.size()) {
        _neighbours.resize(unit + std::size_t{1});
    }
    const auto [first, isNew] = _first.try_emplace(value, unit);
    _neighbours[unit] = {};
    if (!isNew) {
        _neighbours[unit].next = first->second;
        _neighbours[first->second].previous = unit;
        first->second = unit;
    }
}

void UnitsOfValue::remove(std::uint64_t value, std::uint32_t unit) {
    const Neighbours neighbours = _neighbours[unit];
    if (neighbours.next != nobody) {
        _neighbours[neighbours.next].previous = neighbours.previous;
    }
    if (neighbours.previous != nobody) {
        _neighbours[neighbours.previous].next = neighbours.next;
    } else if (neighbours.next != nobody) {
        _first[value] = neighbours.next;
    } else {
        _first.erase(value);
    }
    _neighbours[unit] = {};
}

std::uint32_t UnitsOfValue::first(std::uint64_t value) const {
    const auto found = _first.find(value);
    return found != _first.end() ? found->second : nobody;
}

} // namespace kx
