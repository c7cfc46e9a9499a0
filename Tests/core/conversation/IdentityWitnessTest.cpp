#include "conversation/IdentityWitness.h"

#include "addresses/IPv4Address.h"
#include "units/ParameterNumber.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

namespace kx {

namespace {

using enum UnitParameter;

// Tells of units that each have an address of their own.
class IdentityWitnessTest : public testing::Test {
protected:
    static std::string serialOf(std::uint32_t unit) { return textOfSixBytes(unit, " "); }
    static std::uint32_t addressOf(std::uint32_t unit) { return 0x0A000001U + unit; }

    // The number of new findings.
    std::size_t tell(std::uint32_t unit, std::uint32_t address, std::uint32_t sender) {
        UnitRecord record;
        record.setValue(serialNumber, serialOf(unit));
        record.setValue(internalIPAddress, stringForIP(address));
        const std::size_t before = findings.size();
        witness.unitDidTell(record, {.sender = sender, .link = 1}, findings);
        return findings.size() - before;
    }
    std::size_t tell(std::uint32_t unit) { return tell(unit, addressOf(unit), addressOf(unit)); }

    IdentityWitness witness;
    std::vector<Finding> findings;
};

} // namespace

TEST_F(IdentityWitnessTest, RemembersTheFirstSerialNumbersAndIgnoresTheOthers) {
    constexpr auto most = static_cast<std::uint32_t>(IdentityWitness::mostSerials);
    for (std::uint32_t unit = 0; unit < most + 2; ++unit) {
        ASSERT_EQ(tell(unit), 0U);
    }
    const std::uint32_t elsewhere = 0xC0A80163;
    EXPECT_EQ(tell(most, elsewhere, elsewhere), 0U) << "it came after the others";
    EXPECT_EQ(tell(most - 1, elsewhere, elsewhere), 1U);
    EXPECT_EQ(tell(0, elsewhere + 1, elsewhere + 1), 1U);
    EXPECT_EQ(findings.back(), Finding(TwoHostsOfOneSerial{serialOf(0), stringForIP(addressOf(0)),
                                                           stringForIP(elsewhere + 1)}));
}

TEST_F(IdentityWitnessTest, OneUnitThatMayChangeLeavesTheOthersRemembered) {
    for (const std::uint32_t changing : {0U, 5U, 9U}) {
        witness.expectChanges();
        for (std::uint32_t unit = 0; unit < 10; ++unit) {
            tell(unit);
        }
        witness.expectChange(serialOf(changing));
        for (std::uint32_t unit = 0; unit < 10; ++unit) {
            const std::uint32_t now = 0x0A010001U + unit;
            EXPECT_EQ(tell(unit, now, now), unit == changing ? 0U : 1U) << unit;
        }
        // Its former address is nobody's, those of the others are still theirs.
        EXPECT_EQ(tell(100, addressOf(changing), addressOf(changing)), 0U);
        const std::uint32_t another = addressOf(changing == 9 ? 8 : 9);
        EXPECT_EQ(tell(101, another, another), 1U);
    }
}

TEST_F(IdentityWitnessTest, RemembersTheFirstAddressesAndIgnoresTheOthers) {
    constexpr auto most = static_cast<std::uint32_t>(IdentityWitness::mostSerials);
    for (std::uint32_t count = 0; count <= most; ++count) {
        tell(0, addressOf(count), addressOf(0)); // one unit claims them all
    }
    EXPECT_EQ(tell(1, addressOf(most), addressOf(most)), 0U) << "it came after the others";
    EXPECT_EQ(tell(2, addressOf(most - 1), addressOf(most - 1)), 1U);
}

TEST_F(IdentityWitnessTest, OfTwoUnitsThatShareAnAddressEitherMayGiveItUp) {
    for (const std::uint32_t changing : {1U, 2U}) {
        witness.expectChanges();
        const std::uint32_t shared = addressOf(1);
        tell(1, shared, shared);
        EXPECT_EQ(tell(2, shared, shared), 1U);
        witness.expectChange(serialOf(changing));
        EXPECT_EQ(tell(3 - changing, shared, shared), 0U);
        EXPECT_EQ(tell(3, shared, shared), 1U);
    }
}

TEST_F(IdentityWitnessTest, AUnitThatNobodyHeardMayChangeToo) {
    tell(1);
    witness.expectChange(serialOf(2));
    EXPECT_EQ(tell(1, 0xC0A80163, 0xC0A80163), 1U);
}

} // namespace kx
