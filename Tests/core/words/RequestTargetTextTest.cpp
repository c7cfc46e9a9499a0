#include "words/RequestTargetText.h"

#include "doubles/MarkedLocalizedText.h"

#include <gtest/gtest.h>

namespace kx {

namespace {

using enum RequestReach;

constexpr RequestTarget unitAt{.reach = oneUnit, .address = 0xC0A8010AU};

} // namespace

TEST(RequestTargetText, WarnsOfNothingWhenItIsOneUnit) {
    EXPECT_EQ(warningOfTarget(unitAt), "");
    EXPECT_EQ(descriptionOfReload(unitAt), "Asks the unit at 192.168.1.10 for its parameters.");
    EXPECT_EQ(descriptionOfRestore(unitAt),
              "Resets the unit at 192.168.1.10 to its factory settings.");
}

TEST(RequestTargetText, SaysThatEveryUnitIsReachedAndWhy) {
    const std::string everybody =
        ": Restore Defaults, like Reload, reaches every unit that hears it.";
    EXPECT_EQ(warningOfTarget({.reach = everybodyWithoutUnit}), "No unit is selected" + everybody);
    EXPECT_EQ(warningOfTarget({.reach = everybodyWithoutAddress}),
              "The address of this unit is not known" + everybody);
    EXPECT_EQ(warningOfTarget({.reach = everybodyAtItsAddress}),
              "This unit tells an address of many as its own: Restore Defaults, like Reload, Apply "
              "and Send, reaches every unit that hears it.");
    for (const auto reach :
         {everybodyWithoutUnit, everybodyWithoutAddress, everybodyAtItsAddress}) {
        EXPECT_EQ(descriptionOfReload({.reach = reach}),
                  "Asks every unit that hears it for its parameters.");
        EXPECT_EQ(descriptionOfRestore({.reach = reach}),
                  "Resets every unit that hears it to its factory settings.");
    }
}

TEST(RequestTargetText, IsLookedUpAsAWhole) {
    const MarkedLocalizedText marked;
    EXPECT_TRUE(warningOfTarget({}).starts_with("<No unit is selected: "));
    EXPECT_EQ(descriptionOfReload(unitAt), "<Asks the unit at 192.168.1.10 for its parameters.>");
}

} // namespace kx
