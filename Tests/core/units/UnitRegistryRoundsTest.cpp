// Rounds of asking: who has answered, and what is different from before.

#include "units/UnitRegistry.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace kx {

namespace {

using enum UnitParameter;

constexpr std::string_view firstOfRounds = "01 02 03 04 05 06";
constexpr std::string_view secondOfRounds = "01 02 03 04 05 07";
constexpr std::string_view thirdOfRounds = "01 02 03 04 05 08";

class UnitRegistryRounds : public testing::Test {
protected:
    void tell(std::string_view serial, std::string_view port = "10000",
              std::string_view address = "192.0.2.11", std::string_view hardware = "") {
        UnitRecord record;
        if (!hardware.empty()) {
            record.setValue(internalMACAddress, hardware);
        }
        record.setValue(serialNumber, serial);
        record.setValue(devicePortNumber, port);
        record.setValue(internalIPAddress, address);
        registry.store(record);
    }

    // "answered 2 added 1 changed 0 back 0 silent 1"
    std::string tally() const {
        const RoundTally& round = registry.round();
        return "answered " + std::to_string(round.answered) + " added " +
               std::to_string(round.added.count) + " changed " +
               std::to_string(round.changed.count) + " back " + std::to_string(round.back.count) +
               " silent " + std::to_string(round.silent);
    }

    UnitRegistry registry{3};
};

} // namespace

TEST_F(UnitRegistryRounds, EachUnitCountsOnce) {
    registry.beginRound();
    tell(firstOfRounds);
    tell(firstOfRounds, "4000");
    tell(secondOfRounds);
    EXPECT_EQ(tally(), "answered 2 added 2 changed 0 back 0 silent 0");
    EXPECT_EQ(registry.round().added.latest, secondOfRounds);
}

TEST_F(UnitRegistryRounds, WhoAnsweredInTheRoundBeforeIsSilentUntilItAnswers) {
    tell(firstOfRounds);
    tell(secondOfRounds);
    registry.beginRound();
    EXPECT_EQ(tally(), "answered 0 added 0 changed 0 back 0 silent 2");
    EXPECT_FALSE(registry.hasAnswered(firstOfRounds));
    tell(firstOfRounds);
    EXPECT_EQ(tally(), "answered 1 added 0 changed 0 back 0 silent 1");
    EXPECT_TRUE(registry.hasAnswered(firstOfRounds));
    EXPECT_EQ(registry.silentUnit(), secondOfRounds);
    tell(secondOfRounds);
    EXPECT_EQ(registry.silentUnit(), std::nullopt);
}

TEST_F(UnitRegistryRounds, WhoWasSilentForLongerIsNotCountedAsSilentAndComesBack) {
    tell(firstOfRounds);
    tell(secondOfRounds);
    registry.beginRound();
    tell(secondOfRounds);
    registry.beginRound();
    EXPECT_EQ(tally(), "answered 0 added 0 changed 0 back 0 silent 1");
    EXPECT_EQ(registry.silentUnit(), secondOfRounds);
    tell(firstOfRounds);
    EXPECT_EQ(tally(), "answered 1 added 0 changed 0 back 1 silent 1");
    EXPECT_EQ(registry.round().back.latest, firstOfRounds);
}

TEST_F(UnitRegistryRounds, AnotherValueThanTheLatestIsAChange) {
    tell(firstOfRounds, "10000");
    tell(firstOfRounds, "4000"); // a person has changed it, and has seen that
    registry.beginRound();
    tell(firstOfRounds, "4000");
    EXPECT_EQ(registry.round().changed.count, 0U);
    registry.beginRound();
    tell(firstOfRounds, "4001");
    EXPECT_EQ(registry.round().changed.count, 1U);
    EXPECT_EQ(registry.round().changed.latest, firstOfRounds);
}

TEST_F(UnitRegistryRounds, AUnitThatStaysAtAWithdrawnAddressHasNotChanged) {
    tell(firstOfRounds, "10000", "192.0.2.11");
    registry.withdrawAddress(firstOfRounds);
    registry.beginRound();
    tell(firstOfRounds, "10000", "192.0.2.11");
    EXPECT_EQ(registry.round().changed.count, 0U);
    registry.withdrawAddress(firstOfRounds);
    registry.beginRound();
    tell(firstOfRounds, "10000", "192.0.2.99");
    EXPECT_EQ(registry.round().changed.count, 1U);
}

TEST_F(UnitRegistryRounds, AForgottenUnitIsNeitherSilentNorOneThatAnswered) {
    tell(firstOfRounds);
    registry.beginRound();
    tell(secondOfRounds);
    tell(thirdOfRounds);
    EXPECT_EQ(tally(), "answered 2 added 2 changed 0 back 0 silent 1");
    tell("01 02 03 04 05 09");
    EXPECT_EQ(tally(), "answered 3 added 3 changed 0 back 0 silent 0");
    tell("01 02 03 04 05 0A");
    EXPECT_EQ(registry.round().answered, 3U) << "the second one is forgotten";
    EXPECT_FALSE(registry.hasAnswered(secondOfRounds));
}

TEST_F(UnitRegistryRounds, AUnitThatTakesTheExpectedSerialNumberStaysTheSameUnit) {
    const auto tellAs = [this](std::string_view serial) {
        tell(serial, "10000", "192.0.2.11", "02:00:00:00:00:01");
    };
    registry.beginRound();
    tellAs(firstOfRounds);
    registry.expectSerialNumber(firstOfRounds, secondOfRounds);
    tellAs(secondOfRounds);
    EXPECT_EQ(tally(), "answered 1 added 1 changed 0 back 0 silent 0");
    EXPECT_EQ(registry.round().renamed, 1U);
    registry.beginRound();
    EXPECT_EQ(tally(), "answered 0 added 0 changed 0 back 0 silent 1");
    EXPECT_EQ(registry.silentUnit(), secondOfRounds) << "the other number is nobody's";
    tellAs(secondOfRounds);
    EXPECT_EQ(tally(), "answered 1 added 0 changed 0 back 0 silent 0");
    registry.expectSerialNumber(secondOfRounds, firstOfRounds);
    tellAs(firstOfRounds);
    EXPECT_EQ(tally(), "answered 1 added 0 changed 0 back 0 silent 0") << "and back again";
    EXPECT_EQ(registry.round().renamed, 0U) << "the number was known";
}

TEST_F(UnitRegistryRounds, AUnitIsTheSameUnitAlsoWhenItsNumberBeforeIsForgottenAtOnce) {
    const auto tellAs = [this](std::string_view serial) {
        tell(serial, "10000", "192.0.2.11", "02:00:00:00:00:01");
    };
    registry.beginRound();
    tellAs(firstOfRounds);
    tell(secondOfRounds);
    tell(thirdOfRounds);
    registry.expectSerialNumber(firstOfRounds, "01 02 03 04 05 09");
    tellAs("01 02 03 04 05 09");
    EXPECT_EQ(registry.forgottenUnits(), 1U);
    EXPECT_EQ(registry.find(firstOfRounds), nullptr);
    EXPECT_TRUE(registry.hasAnswered("01 02 03 04 05 09"));
    EXPECT_EQ(tally(), "answered 3 added 3 changed 0 back 0 silent 0");
    registry.beginRound();
    EXPECT_EQ(registry.silentUnit(), secondOfRounds) << "the order is that of hearing";
}

TEST_F(UnitRegistryRounds, WhoseNumberWasTakenBeforeTheFirstRoundIsNotSilent) {
    const auto tellAs = [this](std::string_view serial) {
        tell(serial, "10000", "192.0.2.11", "02:00:00:00:00:01");
    };
    tellAs(firstOfRounds);
    registry.expectSerialNumber(firstOfRounds, secondOfRounds);
    tellAs(secondOfRounds);
    tellAs(firstOfRounds);
    EXPECT_EQ(tally(), "answered 2 added 1 changed 0 back 1 silent 0");
}

TEST_F(UnitRegistryRounds, ANewSerialNumberOfAnotherHardwareAddressIsAnotherUnit) {
    registry.beginRound();
    tell(firstOfRounds, "10000", "192.0.2.11", "02:00:00:00:00:01");
    registry.expectSerialNumber(firstOfRounds, secondOfRounds);
    tell(secondOfRounds, "10000", "192.0.2.11", "02:00:00:00:00:02");
    EXPECT_EQ(tally(), "answered 2 added 2 changed 0 back 0 silent 0");
    EXPECT_EQ(registry.round().renamed, 0U);
}

TEST_F(UnitRegistryRounds, WhoIsNotKnownHasNotAnswered) {
    EXPECT_FALSE(registry.hasAnswered(firstOfRounds));
    tell(firstOfRounds);
    registry.clear();
    EXPECT_FALSE(registry.hasAnswered(firstOfRounds));
    EXPECT_EQ(tally(), "answered 0 added 0 changed 0 back 0 silent 0");
}

} // namespace kx
