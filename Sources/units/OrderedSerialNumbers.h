// Serial numbers in ascending order, for any number of units. The registry's records are in no
// order, and to sort them for each list would take many times as long.
//
// They are short texts, compared by their bytes. Any thread, one at a time.

#pragma once

#include "support/TitleList.h"
#include "units/UnitRecord.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace kx {

class OrderedSerialNumbers {
public:
    void clear();

    // Adds a number that is not among them. Contract: "number.size() <= UnitRecord::longestText".
    void add(std::string_view number);

    // Removes a number that is among them.
    void remove(std::string_view number);

    // Every number once, in ascending order.
    TitleList list();

private:
    class Number {
    public:
        explicit Number(std::string_view text)
            : _length(static_cast<std::uint8_t>(text.copy(_text.data(), _text.size()))) {}

        std::string_view text() const { return {_text.data(), _length}; }
        friend bool operator<(const Number& left, const Number& right) {
            return left.text() < right.text();
        }

    private:
        std::array<char, UnitRecord::longestText> _text{};
        std::uint8_t _length;
    };

    // Numbers that are added one by one and put in order together. The same number may be there
    // several times.
    class Runs {
    public:
        void add(Number number);
        void sort();     // all of them
        void sortRest(); // all but the longest run, whose length is lengthOfFirst()
        std::size_t lengthOfFirst() const;

        // Ascending runs, one behind the other. Run lengths are distinct powers of two times the
        // shortest run, so a number moves O(log n) times; a single add() may merge all of them. The
        // numbers behind the last run are too few for a run, and not in order. Numbers that are all
        // in order are such runs too.
        std::vector<Number> numbers;

    private:
        void mergeLast(std::size_t first, std::size_t second);
    };

    void takeOutRemoved();

    Runs _added;
    Runs _removed; // each of these cancels one equal number of the added ones
};

} // namespace kx
