#include "units/UnitRegistry.h"

#include "units/ParameterNumber.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace kx {

namespace {

using enum UnitParameter;

constexpr std::string_view firstSerial = "01 02 03 04 05 06";
constexpr std::string_view secondSerial = "01 02 03 04 05 07";

UnitRecord recordAt(std::string_view serial, std::string_view address) {
    UnitRecord record;
    record.setValue(serialNumber, serial);
    record.setValue(internalIPAddress, address);
    return record;
}

std::vector<std::string> listedIn(UnitRegistry& registry) {
    const TitleList list = registry.serialNumbers();
    return {list.begin(), list.end()};
}

} // namespace

TEST(UnitRegistry, KnowsNobodyAtFirst) {
    UnitRegistry registry;
    EXPECT_EQ(registry.find(firstSerial), nullptr);
    EXPECT_EQ(registry.lastToldAddress(firstSerial), std::nullopt);
    EXPECT_TRUE(registry.records().empty());
    EXPECT_EQ(registry.serialNumbers().size(), 0U);
}

TEST(UnitRegistry, KeepsEachUnitUnderItsSerialNumber) {
    UnitRegistry registry;
    EXPECT_TRUE(registry.store(recordAt(secondSerial, "192.168.1.11")));
    EXPECT_TRUE(registry.store(recordAt(firstSerial, "192.168.1.10")));
    ASSERT_NE(registry.find(firstSerial), nullptr);
    EXPECT_EQ(*registry.find(firstSerial), recordAt(firstSerial, "192.168.1.10"));
    EXPECT_EQ(*registry.find(secondSerial), recordAt(secondSerial, "192.168.1.11"));
    EXPECT_EQ(registry.find("01 02 03"), nullptr);
}

TEST(UnitRegistry, ReplacesTheWholeRecordOfAUnitThatTellsAgain) {
    UnitRegistry registry;
    registry.store(recordAt(firstSerial, "192.168.1.10"));
    UnitRecord sparse;
    sparse.setValue(serialNumber, firstSerial);
    sparse.setValue(unitID, "42");
    EXPECT_TRUE(registry.store(sparse));
    EXPECT_EQ(*registry.find(firstSerial), sparse) << "nothing of the older record is left";
    EXPECT_EQ(registry.records().size(), 1U);
}

TEST(UnitRegistry, TakesNoRecordWithoutASerialNumber) {
    UnitRegistry registry;
    UnitRecord nameless;
    nameless.setValue(internalIPAddress, "192.168.1.10");
    EXPECT_FALSE(registry.store(nameless));
    EXPECT_TRUE(registry.records().empty());
    EXPECT_EQ(registry.serialNumbers().size(), 0U);
}

TEST(UnitRegistry, ListsEachSerialNumberOnceInAscendingOrder) {
    UnitRegistry registry;
    registry.store(recordAt(secondSerial, "192.168.1.11"));
    registry.store(recordAt(firstSerial, "192.168.1.10"));
    registry.store(recordAt(secondSerial, "192.168.1.12"));
    EXPECT_EQ(listedIn(registry),
              (std::vector<std::string>{std::string(firstSerial), std::string(secondSerial)}));
    EXPECT_EQ(registry.records().size(), 2U);
}

TEST(UnitRegistry, AWithdrawnAddressIsGoneFromTheRecordAndFromNothingElse) {
    UnitRegistry registry;
    UnitRecord expected = recordAt(firstSerial, "192.168.1.10");
    expected.setValue(devicePortNumber, "10000");
    registry.store(expected);
    registry.store(recordAt(secondSerial, "192.168.1.11"));
    registry.withdrawAddress(firstSerial);
    expected.removeValue(internalIPAddress);
    EXPECT_EQ(*registry.find(firstSerial), expected);
    EXPECT_EQ(*registry.find(secondSerial), recordAt(secondSerial, "192.168.1.11"));
}

TEST(UnitRegistry, RemembersAWithdrawnAddressUntilTheUnitTellsAgain) {
    UnitRegistry registry;
    registry.store(recordAt(firstSerial, "192.168.1.10"));
    EXPECT_EQ(registry.lastToldAddress(firstSerial), "192.168.1.10");
    registry.withdrawAddress(firstSerial);
    registry.withdrawAddress(firstSerial); // there is none any more
    EXPECT_EQ(registry.lastToldAddress(firstSerial), "192.168.1.10");

    registry.store(recordAt(firstSerial, "10.0.0.7"));
    EXPECT_EQ(registry.lastToldAddress(firstSerial), "10.0.0.7");
    registry.withdrawAddress(firstSerial);
    UnitRecord withoutAddress;
    withoutAddress.setValue(serialNumber, firstSerial);
    registry.store(withoutAddress);
    EXPECT_EQ(registry.lastToldAddress(firstSerial), std::nullopt);
}

TEST(UnitRegistry, AReplyOfAnotherUnitLeavesAWithdrawnAddressRemembered) {
    UnitRegistry registry;
    registry.store(recordAt(firstSerial, "192.168.1.10"));
    registry.withdrawAddress(firstSerial);
    registry.store(recordAt(secondSerial, "192.168.1.11"));
    EXPECT_EQ(registry.lastToldAddress(firstSerial), "192.168.1.10");
    EXPECT_EQ(registry.lastToldAddress(secondSerial), "192.168.1.11");
}

TEST(UnitRegistry, RemembersTheLinkOnWhichAUnitWasHeardLast) {
    UnitRegistry registry;
    UnitRecord record = recordAt(firstSerial, "192.168.1.10");
    record.setLink(3);
    registry.store(record);
    EXPECT_EQ(registry.find(firstSerial)->link(), 3U);
    registry.setLink(firstSerial, 4);
    EXPECT_EQ(registry.find(firstSerial)->link(), 4U);
    registry.setLink(firstSerial, 0);
    EXPECT_EQ(registry.find(firstSerial)->link(), 4U) << "0 tells nothing";
    registry.withdrawAddress(firstSerial);
    EXPECT_EQ(registry.find(firstSerial)->link(), 4U);
    registry.setLink(secondSerial, 3);
    EXPECT_EQ(registry.find(secondSerial), nullptr);
}

TEST(UnitRegistry, WithdrawsNothingOfAUnitThatItDoesNotKnow) {
    UnitRegistry registry;
    registry.withdrawAddress(firstSerial);
    EXPECT_TRUE(registry.records().empty());
    EXPECT_EQ(registry.lastToldAddress(firstSerial), std::nullopt);
}

TEST(UnitRegistry, ForgetsEverythingWhenItIsCleared) {
    UnitRegistry registry;
    registry.store(recordAt(firstSerial, "192.168.1.10"));
    registry.withdrawAddress(firstSerial);
    registry.clear();
    EXPECT_TRUE(registry.records().empty());
    EXPECT_EQ(registry.serialNumbers().size(), 0U);
    EXPECT_EQ(registry.lastToldAddress(firstSerial), std::nullopt);

    UnitRecord withoutAddress;
    withoutAddress.setValue(serialNumber, firstSerial);
    registry.store(withoutAddress);
    EXPECT_EQ(registry.lastToldAddress(firstSerial), std::nullopt);
    EXPECT_EQ(listedIn(registry), std::vector<std::string>{std::string(firstSerial)});
}

// --- The limit ---

namespace {

std::string serialOf(int number) {
    return textOfSixBytes(static_cast<std::uint64_t>(number), " ");
}

void tell(UnitRegistry& registry, int number) {
    registry.store(recordAt(serialOf(number), "192.168.1.10"));
}

} // namespace

TEST(UnitRegistry, OneUnitTooManyTakesThePlaceOfTheOneNotHeardForLongest) {
    UnitRegistry registry(3);
    tell(registry, 1);
    tell(registry, 2);
    tell(registry, 3);
    EXPECT_EQ(registry.forgottenUnits(), 0U);
    tell(registry, 1); // heard again
    tell(registry, 4);
    EXPECT_EQ(listedIn(registry), (std::vector{serialOf(1), serialOf(3), serialOf(4)}));
    EXPECT_EQ(registry.find(serialOf(2)), nullptr);
    EXPECT_EQ(registry.forgottenUnits(), 1U);
    tell(registry, 2); // comes back
    EXPECT_EQ(listedIn(registry), (std::vector{serialOf(1), serialOf(2), serialOf(4)}));
    EXPECT_EQ(registry.forgottenUnits(), 2U);
}

TEST(UnitRegistry, TheKeptUnitNeverMakesRoom) {
    UnitRegistry registry(3);
    tell(registry, 1);
    registry.keep(serialOf(1));
    for (int number = 2; number < 100; ++number) {
        tell(registry, number);
    }
    EXPECT_EQ(listedIn(registry), (std::vector{serialOf(1), serialOf(98), serialOf(99)}));
    registry.keep(std::nullopt);
    tell(registry, 100);
    EXPECT_EQ(registry.find(serialOf(1)), nullptr);
}

TEST(UnitRegistry, AForgottenUnitsWithdrawnAddressIsForgottenToo) {
    UnitRegistry registry(2);
    tell(registry, 1);
    registry.withdrawAddress(serialOf(1));
    tell(registry, 2);
    tell(registry, 3);
    EXPECT_EQ(registry.lastToldAddress(serialOf(1)), std::nullopt);
}

TEST(UnitRegistry, AClearedRegistryTakesAsManyUnitsAgain) {
    UnitRegistry registry(2);
    tell(registry, 1);
    tell(registry, 2);
    registry.clear();
    tell(registry, 3);
    tell(registry, 4);
    EXPECT_EQ(listedIn(registry), (std::vector{serialOf(3), serialOf(4)}));
    EXPECT_EQ(registry.forgottenUnits(), 0U);
}

namespace {

// A unit as a plain list keeps it, in the order in which units were heard.
struct PlainUnit {
    std::string serial;
    std::string address;
    bool hasAnsweredInRound = false;
};

void expectSame(UnitRegistry& registry, const std::vector<PlainUnit>& heard) {
    std::vector<std::string> serials;
    for (const PlainUnit& unit : heard) {
        const UnitRecord* const record = registry.find(unit.serial);
        ASSERT_NE(record, nullptr) << unit.serial;
        ASSERT_EQ(*record, recordAt(unit.serial, unit.address));
        ASSERT_EQ(registry.hasAnswered(unit.serial), unit.hasAnsweredInRound) << unit.serial;
        serials.push_back(unit.serial);
    }
    std::ranges::sort(serials);
    ASSERT_EQ(listedIn(registry), serials);
    ASSERT_EQ(registry.records().size(), heard.size());
}

} // namespace

TEST(UnitRegistry, AgreesWithAPlainListOverManyRandomReplies) {
    for (const std::size_t most : {2U, 3U, 200U}) {
        UnitRegistry registry(most);
        std::vector<PlainUnit> heard;
        std::string kept;
        std::mt19937 random(1);
        for (int reply = 0; reply < 20'000; ++reply) {
            const std::string serial = serialOf(static_cast<int>(random() % (most * 2)));
            const std::string address = "192.168.1." + std::to_string(random() % 256);
            registry.store(recordAt(serial, address));
            std::erase_if(heard, [&](const PlainUnit& unit) { return unit.serial == serial; });
            heard.push_back({serial, address, true});
            if (heard.size() > most) {
                heard.erase(heard.begin() + (heard.front().serial == kept ? 1 : 0));
            }
            if (random() % 50 == 0) {
                registry.beginRound();
                std::ranges::for_each(heard,
                                      [](PlainUnit& unit) { unit.hasAnsweredInRound = false; });
            }
            if (random() % 50 == 0) {
                kept = heard[random() % heard.size()].serial;
                registry.keep(kept);
            }
            if (most < 10 || reply % 97 == 0) {
                ASSERT_NO_FATAL_FAILURE(expectSame(registry, heard)) << reply;
            }
        }
    }
}

TEST(UnitRegistryDeathTest, NeedsRoomForTwoUnits) {
    EXPECT_DEATH(UnitRegistry(1), "limit >= 2");
}

TEST(UnitRegistry, TheLowestOfSeveralUnitsIsFound) {
    UnitRegistry registry;
    registry.store(recordAt(secondSerial, "192.168.1.10"));
    registry.store(recordAt(firstSerial, "192.168.1.10"));
    registry.store(recordAt("01 02 03 04 05 05", "192.168.1.11"));
    const auto lowestAt = [&registry](std::string_view address) {
        return registry.lowestWhere([address](const UnitRecord& record) {
            return record.value(internalIPAddress) == address;
        });
    };
    EXPECT_EQ(lowestAt("192.168.1.10"), std::string(firstSerial));
    EXPECT_EQ(lowestAt("192.168.1.12"), std::nullopt);
}

TEST(UnitRegistry, KeepsAMillionUnitsAndNoMore) {
    UnitRegistry registry;
    constexpr auto most = static_cast<int>(UnitRegistry::defaultLimit);
    for (int number = 0; number < most + 10; ++number) {
        tell(registry, number);
    }
    EXPECT_EQ(registry.records().size(), 1'048'576U);
    EXPECT_EQ(registry.serialNumbers().size(), 1'048'576U);
    EXPECT_EQ(registry.forgottenUnits(), 10U);
    EXPECT_EQ(registry.find(serialOf(9)), nullptr);
    EXPECT_NE(registry.find(serialOf(10)), nullptr);
}

} // namespace kx
