// The keys of the unit registry in ascending order, however many there are: a list of them is ready
// in a fraction of the time that a walk over the registry takes, which lies scattered in memory.
//
// Keys are short texts, compared by their bytes. Any thread, one at a time.

#pragma once

#include "TitleList.h"
#include "UnitParameters.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace kx {

class OrderedSerialNumbers {
public:
    void clear() { _keys.clear(); }

    // A key that was not added before. Contract: "key.size() <= UnitRecord::longestText".
    void add(std::string_view key);

    // Every key once, in ascending order.
    TitleList list();

private:
    class Key {
    public:
        explicit Key(std::string_view text)
            : _length(static_cast<std::uint8_t>(text.copy(_text.data(), _text.size()))) {}

        std::string_view text() const { return {_text.data(), _length}; }
        friend bool operator<(const Key& left, const Key& right) {
            return left.text() < right.text();
        }

    private:
        std::array<char, UnitRecord::longestText> _text{};
        std::uint8_t _length;
    };

    void mergeLast(std::size_t first, std::size_t second);

    // Ascending runs one after the other. As in a binary counter no two have the same length, but
    // for a rest at the end that is no run yet: so each key is moved a few times only, and never
    // many of them at once.
    std::vector<Key> _keys;
};

} // namespace kx
