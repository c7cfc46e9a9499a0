#include "conversation/HolderState.h"

namespace kx {

using namespace std::chrono_literals;

namespace {

// A failure that stood in the table before is an old one: what is sent begins a new search.
constexpr auto timeOfOldFailure = 1000ms;

} // namespace

HolderState holderStateOf(const std::optional<Neighbour>& entry,
                          std::chrono::milliseconds sinceAsked) {
    if (!entry.has_value()) {
        return HolderState::unknown;
    }
    if (entry->state == NeighbourState::reachable) {
        return HolderState::held;
    }
    return entry->state == NeighbourState::failed && sinceAsked >= timeOfOldFailure
               ? HolderState::free
               : HolderState::unknown;
}

} // namespace kx
