#include "files/StateNames.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace kx {

namespace {

// In the order of the enumerations.
constexpr std::array<std::string_view, 6> namesOfChanges{"planned", "done",      "unchanged",
                                                         "refused", "different", "silent"};
constexpr std::array<std::string_view, rowStateCount> namesOfRows{
    "planned", "unchanged", "refused", "silent", "done", "untouched", "half"};

static_assert(static_cast<std::size_t>(ChangeState::silent) + 1 == namesOfChanges.size());
static_assert(static_cast<std::size_t>(RowState::half) + 1 == namesOfRows.size());

} // namespace

std::string_view nameOfState(ChangeState state) {
    return namesOfChanges.at(static_cast<std::size_t>(state));
}

std::string_view nameOfState(RowState state) {
    return namesOfRows.at(static_cast<std::size_t>(state));
}

std::optional<ChangeState> changeStateNamed(std::string_view name) {
    const auto* const found = std::ranges::find(namesOfChanges, name);
    return found != namesOfChanges.end()
               ? std::optional(static_cast<ChangeState>(found - namesOfChanges.begin()))
               : std::nullopt;
}

} // namespace kx
