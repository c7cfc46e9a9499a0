// Finds things by a key that the things themselves hold. The index keeps their numbers alone, such
// as their places in a vector, and a part of the hash of each key: ten to twenty bytes for each
// thing. Each number is there once at most.
//
// The hash depends on secrets of the process, so a stranger who chooses the keys has no practical
// way to give many of them the same place. The first use of all asks the system for the secrets,
// and throws the exception of std::random_device when it has none. Open addressing with linear
// probing.
//
// A value type; any thread, one at a time.

#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace kx {

class NumberIndex {
public:
    // Not the number of any thing.
    static constexpr std::uint32_t nothing = 0xFFFFFFFF;

    // One key made of two.
    static std::uint64_t keyOf(std::uint64_t first, std::uint64_t second);

    std::size_t size() const { return _size; }
    void clear();

    // The number of the thing that has this key and that `isIt` says is the one; `nothing` without
    // one. `isIt` takes a number, and has to compare the key of that thing: a few others may come
    // before it.
    template<class IsIt>
    std::uint32_t find(std::uint64_t key, const IsIt& isIt) const {
        if (_slots.empty()) {
            return nothing;
        }
        const std::uint32_t hash = hashOf(key);
        std::size_t place = homeOf(hash);
        while (_slots[place].number != nothing &&
               (_slots[place].hash != hash || !isIt(_slots[place].number))) {
            place = behind(place);
        }
        return _slots[place].number;
    }

    // Adds a thing that is not there.
    void add(std::uint64_t key, std::uint32_t number);

    // Removes a thing. It must be there with this key.
    void remove(std::uint64_t key, std::uint32_t number);

    // A thing that is there with this key has another number from now on.
    void renumber(std::uint64_t key, std::uint32_t before, std::uint32_t after);

private:
    struct Slot {
        std::uint32_t hash = 0;
        std::uint32_t number = nothing;
    };

    static std::uint32_t hashOf(std::uint64_t key);
    std::size_t homeOf(std::uint32_t hash) const { return hash & (_slots.size() - 1); }
    std::size_t behind(std::size_t place) const { return (place + 1) & (_slots.size() - 1); }
    std::size_t placeOf(std::uint64_t key, std::uint32_t number) const;
    void enter(Slot slot);
    void grow();

    // As many as a power of two, and at least three sixteenths of them free. Every search ends at a
    // free one.
    std::vector<Slot> _slots;
    std::size_t _size = 0;
};

} // namespace kx
