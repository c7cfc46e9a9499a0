#include "words/HolderText.h"

#include <gtest/gtest.h>

namespace kx {

namespace {

AddressHolders holders(HolderState state) {
    return {.address = 0xC000020DU, .state = state, .holders = {}};
}

} // namespace

TEST(HolderText, NamesTheHolderAndTheUnitThatItIs) {
    AddressHolders held = holders(HolderState::held);
    held.holders.push_back({.hardwareAddress = "02:4B:58:00:00:03", .serialNumber = {}});
    EXPECT_EQ(textOfHolders(held), "192.0.2.13 is held by 02:4B:58:00:00:03.");
    held.holders[0].serialNumber = "4B 58 00 00 00 03";
    EXPECT_EQ(textOfHolders(held),
              "192.0.2.13 is held by 02:4B:58:00:00:03, unit 4B 58 00 00 00 03.");
}

TEST(HolderText, SaysThatAnAddressIsFree) {
    EXPECT_EQ(textOfHolders(holders(HolderState::free)),
              "192.0.2.13 is free: nobody answers for it.");
}

TEST(HolderText, SaysThatItDoesNotKnow) {
    EXPECT_EQ(textOfHolders(holders(HolderState::unknown)),
              "Whether somebody holds 192.0.2.13 could not be found out.");
}

} // namespace kx
