#include "conversation/HolderState.h"

#include <gtest/gtest.h>

namespace kx {

using namespace std::chrono_literals;

namespace {

HolderState stateOf(NeighbourState state, std::chrono::milliseconds sinceAsked) {
    return holderStateOf(Neighbour{.state = state, .hardwareAddress = "02:4B:58:00:00:01"},
                         sinceAsked);
}

} // namespace

TEST(HolderStateOfEntry, AConfirmedNeighbourHoldsTheAddressAtOnce) {
    EXPECT_EQ(stateOf(NeighbourState::reachable, 0ms), HolderState::held);
}

TEST(HolderStateOfEntry, AFailureCountsWhenItCannotBeAnOldOne) {
    EXPECT_EQ(stateOf(NeighbourState::failed, 999ms), HolderState::unknown);
    EXPECT_EQ(stateOf(NeighbourState::failed, 1000ms), HolderState::free);
}

TEST(HolderStateOfEntry, EverythingElseDecidesNothing) {
    EXPECT_EQ(holderStateOf(std::nullopt, 10s), HolderState::unknown);
    for (const auto state :
         {NeighbourState::asking, NeighbourState::stale, NeighbourState::permanent}) {
        EXPECT_EQ(stateOf(state, 10s), HolderState::unknown);
    }
}

} // namespace kx
