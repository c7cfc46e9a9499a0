#include "support/NumberIndex.h"

#include <random>
#include <utility>

namespace kx {

namespace {

constexpr std::size_t fewestSlots = 16;

struct Secrets {
    std::uint64_t summand = 0;
    std::uint64_t firstFactor = 0; // factors are odd, so no two keys become one
    std::uint64_t secondFactor = 0;
};

const Secrets& secretsOfProcess() {
    static const Secrets secrets = [] {
        std::random_device source;
        const auto number = [&source] { return std::uint64_t{source()} << 32U | source(); };
        return Secrets{
            .summand = number(), .firstFactor = number() | 1U, .secondFactor = number() | 1U};
    }();
    return secrets;
}

// Different keys stay different. The upper bits of the result depend on all bits of the key.
std::uint64_t mixed(std::uint64_t key) {
    const Secrets& secrets = secretsOfProcess();
    key = (key + secrets.summand) * secrets.firstFactor;
    key = (key ^ key >> 32U) * secrets.secondFactor;
    return key;
}

} // namespace

std::uint64_t NumberIndex::keyOf(std::uint64_t first, std::uint64_t second) {
    return mixed(first) ^ second;
}

std::uint32_t NumberIndex::hashOf(std::uint64_t key) {
    return static_cast<std::uint32_t>(mixed(key) >> 32U);
}

void NumberIndex::clear() {
    *this = {};
}

void NumberIndex::add(std::uint64_t key, std::uint32_t number) {
    if (_slots.size() - _slots.size() / 5 <= _size) {
        grow();
    }
    enter({.hash = hashOf(key), .number = number});
    ++_size;
}

void NumberIndex::enter(Slot slot) {
    std::size_t place = homeOf(slot.hash);
    while (_slots[place].number != nothing) {
        place = behind(place);
    }
    _slots[place] = slot;
}

void NumberIndex::grow() {
    const std::vector<Slot> before = std::move(_slots);
    _slots.assign(before.empty() ? fewestSlots : before.size() * 2, {});
    for (const Slot& slot : before) {
        if (slot.number != nothing) {
            enter(slot);
        }
    }
}

std::size_t NumberIndex::placeOf(std::uint64_t key, std::uint32_t number) const {
    std::size_t place = homeOf(hashOf(key));
    while (_slots[place].number != number) {
        place = behind(place);
    }
    return place;
}

// Those behind it that could not have their own places move up.
void NumberIndex::remove(std::uint64_t key, std::uint32_t number) {
    std::size_t gap = placeOf(key, number);
    for (std::size_t next = behind(gap); _slots[next].number != nothing; next = behind(next)) {
        const std::size_t mask = _slots.size() - 1;
        const std::size_t fromHome = (next - homeOf(_slots[next].hash)) & mask;
        const std::size_t fromGap = (next - gap) & mask;
        if (fromHome >= fromGap) {
            _slots[gap] = _slots[next];
            gap = next;
        }
    }
    _slots[gap] = {};
    --_size;
}

void NumberIndex::renumber(std::uint64_t key, std::uint32_t before, std::uint32_t after) {
    _slots[placeOf(key, before)].number = after;
}

} // namespace kx
