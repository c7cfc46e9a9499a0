#include "units/OrderedSerialNumbers.h"

#include "support/Require.h"

#include <algorithm>
#include <bit>

namespace kx {

namespace {

constexpr std::size_t shortestRun = 64;

} // namespace

void OrderedSerialNumbers::add(std::string_view key) {
    require(key.size() <= UnitRecord::longestText, "key.size() <= UnitRecord::longestText",
            "Sources/OrderedSerialNumbers");
    _keys.emplace_back(key);
    if (_keys.size() % shortestRun != 0) {
        return;
    }
    std::sort(_keys.end() - shortestRun, _keys.end());
    for (std::size_t run = shortestRun; _keys.size() % (2 * run) == 0; run *= 2) {
        mergeLast(run, run);
    }
}

// The lengths of the runs are the binary digits of their sum. From the shortest one on they become
// one, which is as well the runs that it was. The longest one, mostly by far, is not touched.
TitleList OrderedSerialNumbers::list() {
    std::size_t merged = _keys.size() % shortestRun;
    std::size_t rest = _keys.size() - merged;
    std::sort(_keys.begin() + static_cast<std::ptrdiff_t>(rest), _keys.end());
    while (!std::has_single_bit(rest) && rest != 0) {
        const std::size_t run = rest & (~rest + 1);
        mergeLast(run, merged);
        merged += run;
        rest -= run;
    }

    TitleList texts;
    texts.reserve(_keys.size(), _keys.size() * UnitRecord::longestText);
    auto left = _keys.cbegin();
    const auto middle = left + static_cast<std::ptrdiff_t>(rest);
    auto right = middle;
    while (left != middle || right != _keys.cend()) {
        const bool takesLeft = right == _keys.cend() || (left != middle && *left < *right);
        texts.push_back((takesLeft ? left++ : right++)->text());
    }
    return texts;
}

// The last keys are a run of `first` and one of `second`.
void OrderedSerialNumbers::mergeLast(std::size_t first, std::size_t second) {
    const auto middle = _keys.end() - static_cast<std::ptrdiff_t>(second);
    std::inplace_merge(middle - static_cast<std::ptrdiff_t>(first), middle, _keys.end());
}

} // namespace kx
