#include "units/OrderedSerialNumbers.h"

#include "support/Require.h"

#include <algorithm>
#include <bit>

namespace kx {

namespace {

constexpr std::size_t shortestRun = 64;

} // namespace

void OrderedSerialNumbers::add(std::string_view number) {
    require(number.size() <= UnitRecord::longestText, "number.size() <= UnitRecord::longestText",
            "Sources/units/OrderedSerialNumbers");
    _numbers.emplace_back(number);
    if (_numbers.size() % shortestRun != 0) {
        return;
    }
    std::sort(_numbers.end() - shortestRun, _numbers.end());
    for (std::size_t run = shortestRun; _numbers.size() % (2 * run) == 0; run *= 2) {
        mergeLast(run, run);
    }
}

// The lengths of the runs are the binary digits of their sum. The runs are merged into one, from
// the shortest one on; this leaves the order of each run intact. The longest run, which usually
// holds most of the numbers, is not touched.
TitleList OrderedSerialNumbers::list() {
    std::size_t merged = _numbers.size() % shortestRun;
    std::size_t rest = _numbers.size() - merged;
    std::sort(_numbers.begin() + static_cast<std::ptrdiff_t>(rest), _numbers.end());
    while (!std::has_single_bit(rest) && rest != 0) {
        const std::size_t run = rest & (~rest + 1);
        mergeLast(run, merged);
        merged += run;
        rest -= run;
    }

    TitleList texts;
    texts.reserve(_numbers.size(), _numbers.size() * UnitRecord::longestText);
    auto left = _numbers.cbegin();
    const auto middle = left + static_cast<std::ptrdiff_t>(rest);
    auto right = middle;
    while (left != middle || right != _numbers.cend()) {
        const bool takesLeft = right == _numbers.cend() || (left != middle && *left < *right);
        texts.push_back((takesLeft ? left++ : right++)->text());
    }
    return texts;
}

// Merges the last two runs, of `first` and of `second` numbers.
void OrderedSerialNumbers::mergeLast(std::size_t first, std::size_t second) {
    const auto middle = _numbers.end() - static_cast<std::ptrdiff_t>(second);
    std::inplace_merge(middle - static_cast<std::ptrdiff_t>(first), middle, _numbers.end());
}

} // namespace kx
