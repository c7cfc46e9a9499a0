#include "units/UnitRegistry.h"

#include <gtest/gtest.h>

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
    std::vector<std::string> keys;
    for (const auto& [serial, record] : registry.records()) {
        keys.push_back(serial);
    }
    EXPECT_EQ(listedIn(registry), keys);
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

} // namespace kx
