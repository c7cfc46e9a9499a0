// Entries that are found by a number of their own, which they tell by `std::uint64_t key() const`.
// They lie side by side, and each takes ten to twenty bytes more than itself for the index. The key
// of an entry must not change while it is there.
//
// A value type; any thread, one at a time. Pointers to entries are valid until one is added or
// removed.

#pragma once

#include "support/NumberIndex.h"
#include "support/SlowGrowth.h"

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace kx {

template<class Entry>
class KeyedEntries {
public:
    std::size_t size() const { return _entries.size(); }

    // The entry of this key; null without one.
    Entry* find(std::uint64_t key) {
        const std::uint32_t place = placeOf(key);
        return place != NumberIndex::nothing ? &_entries[place] : nullptr;
    }

    // Adds an entry whose key no other has.
    Entry& add(Entry entry) {
        makeRoomForOneMore(_entries);
        _index.add(entry.key(), static_cast<std::uint32_t>(_entries.size()));
        return _entries.emplace_back(std::move(entry));
    }

    // Removes the entry of this key, if there is one.
    void remove(std::uint64_t key) {
        const std::uint32_t place = placeOf(key);
        if (place == NumberIndex::nothing) {
            return;
        }
        _index.remove(key, place);
        const auto last = static_cast<std::uint32_t>(_entries.size() - 1);
        if (place != last) {
            _index.renumber(_entries[last].key(), last, place);
            _entries[place] = std::move(_entries[last]);
        }
        _entries.pop_back();
    }

private:
    std::uint32_t placeOf(std::uint64_t key) const {
        return _index.find(
            key, [this, key](std::uint32_t place) { return _entries[place].key() == key; });
    }

    std::vector<Entry> _entries;
    NumberIndex _index; // of places
};

} // namespace kx
