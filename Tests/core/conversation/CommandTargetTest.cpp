#include "conversation/CommandTarget.h"

#include <gtest/gtest.h>

namespace kx {

namespace {

const CommandTarget knownUnit{.unitIsSelected = true, .address = "192.168.1.10"};

} // namespace

TEST(CommandTarget, ACommandIsRefusedForTheFirstReasonThatAPersonCanMend) {
    EXPECT_EQ(refusalOfCommand("^^IdV\r", knownUnit), std::nullopt);
    EXPECT_EQ(refusalOfCommand("^^IdÄ\r", knownUnit), CommandRefusal::notASCII);
    EXPECT_EQ(refusalOfCommand("^^IdÄ\r", {}), CommandRefusal::noUnit);
    EXPECT_EQ(refusalOfCommand("^^IdÄ\r", {.unitIsSelected = true}), CommandRefusal::notASCII);
    EXPECT_EQ(refusalOfCommand("^^IdV\r", {.unitIsSelected = true}), CommandRefusal::noAddress);
}

} // namespace kx
