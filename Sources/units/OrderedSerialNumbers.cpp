#include "units/OrderedSerialNumbers.h"

#include "support/Require.h"
#include "support/SlowGrowth.h"

#include <algorithm>
#include <bit>
#include <iterator>
#include <utility>

namespace kx {

namespace {

constexpr std::size_t shortestRun = 64;

} // namespace

void OrderedSerialNumbers::Runs::add(Number number) {
    makeRoomForOneMore(numbers);
    numbers.push_back(number);
    if (numbers.size() % shortestRun != 0) {
        return;
    }
    std::sort(numbers.end() - shortestRun, numbers.end());
    for (std::size_t run = shortestRun; numbers.size() % (2 * run) == 0; run *= 2) {
        mergeLast(run, run);
    }
}

// The lengths of the runs are the binary digits of their sum.
std::size_t OrderedSerialNumbers::Runs::lengthOfFirst() const {
    return std::bit_floor(numbers.size() - numbers.size() % shortestRun);
}

// The runs are merged into one, from the shortest one on; this leaves the order of each run intact.
void OrderedSerialNumbers::Runs::sortRest() {
    const std::size_t first = lengthOfFirst();
    std::size_t merged = numbers.size() % shortestRun;
    std::size_t rest = numbers.size() - merged;
    std::sort(numbers.begin() + static_cast<std::ptrdiff_t>(rest), numbers.end());
    while (rest != first) {
        const std::size_t run = rest & (~rest + 1);
        mergeLast(run, merged);
        merged += run;
        rest -= run;
    }
}

void OrderedSerialNumbers::Runs::sort() {
    sortRest();
    mergeLast(lengthOfFirst(), numbers.size() - lengthOfFirst());
}

// Merges the last two runs, of `first` and of `second` numbers.
void OrderedSerialNumbers::Runs::mergeLast(std::size_t first, std::size_t second) {
    const auto middle = numbers.end() - static_cast<std::ptrdiff_t>(second);
    std::inplace_merge(middle - static_cast<std::ptrdiff_t>(first), middle, numbers.end());
}

void OrderedSerialNumbers::clear() {
    _added.numbers.clear();
    _removed.numbers.clear();
}

void OrderedSerialNumbers::add(std::string_view number) {
    require(number.size() <= UnitRecord::longestText, "number.size() <= UnitRecord::longestText",
            "Sources/units/OrderedSerialNumbers");
    _added.add(Number(number));
}

// The removed ones are taken out when they are half of all, so each costs a few moves.
void OrderedSerialNumbers::remove(std::string_view number) {
    _removed.add(Number(number));
    if (_removed.numbers.size() > _added.numbers.size() / 2) {
        takeOutRemoved();
    }
}

void OrderedSerialNumbers::takeOutRemoved() {
    if (_removed.numbers.empty()) {
        return;
    }
    _added.sort();
    _removed.sort();
    std::vector<Number> left;
    left.reserve(_added.numbers.size() - _removed.numbers.size());
    std::ranges::set_difference(_added.numbers, _removed.numbers, std::back_inserter(left), {},
                                &Number::text, &Number::text);
    _added.numbers = std::move(left);
    _removed.numbers.clear();
}

// The longest run, which usually holds most of the numbers, is not touched.
TitleList OrderedSerialNumbers::list() {
    takeOutRemoved();
    _added.sortRest();
    TitleList texts;
    texts.reserve(_added.numbers.size(), _added.numbers.size() * UnitRecord::longestText);
    auto left = _added.numbers.cbegin();
    const auto middle = left + static_cast<std::ptrdiff_t>(_added.lengthOfFirst());
    auto right = middle;
    while (left != middle || right != _added.numbers.cend()) {
        const bool takesLeft = right == _added.numbers.cend() || (left != middle && *left < *right);
        texts.push_back((takesLeft ? left++ : right++)->text());
    }
    return texts;
}

} // namespace kx
