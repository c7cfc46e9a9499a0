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

TEST(CommandTarget, AnEditThatIsNoneIsRefusedForItsOwnReason) {
    EXPECT_EQ(refusalOfEdit(EditRefusal::notEditable, knownUnit), CommandRefusal::notEditable);
    EXPECT_EQ(refusalOfEdit(EditRefusal::emptyValue, {}), CommandRefusal::emptyValue);
    EXPECT_EQ(refusalOfEdit(EditRefusal::notUTF8, {}), CommandRefusal::notUTF8);
}

TEST(CommandTarget, AnEditIsRefusedAsItsCommandIs) {
    EXPECT_EQ(refusalOfEdit(editOfParameter(UnitParameter::unitID, "7"), knownUnit), std::nullopt);
    EXPECT_EQ(refusalOfEdit(editOfParameter(UnitParameter::unitID, "7"), {}),
              CommandRefusal::noUnit);
    EXPECT_EQ(refusalOfEdit(editOfParameter(UnitParameter::serialNumber, "№5"), knownUnit),
              CommandRefusal::notASCII);
}

// It goes to the typed address.
TEST(CommandTarget, AMoveNeedsNeitherAUnitNorItsAddress) {
    EXPECT_EQ(refusalOfEdit(editOfParameter(UnitParameter::internalIPAddress, "10.0.0.7"), {}),
              std::nullopt);
}

} // namespace kx
