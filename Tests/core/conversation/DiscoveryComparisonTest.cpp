#include "conversation/DiscoveryComparison.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kx {

namespace {

using enum UnitParameter;
using Names = std::vector<std::string>;

constexpr std::string_view one = "4B 58 00 00 00 01";
constexpr std::string_view two = "4B 58 00 00 00 02";
constexpr std::string_view three = "4B 58 00 00 00 03";

HeardUnit unitOf(std::string_view serial, std::string_view hardware = "02:4B:58:00:00:01") {
    HeardUnit unit;
    unit.record.setValue(serialNumber, serial);
    unit.record.setValue(internalMACAddress, hardware);
    unit.record.setValue(internalIPAddress, "192.0.2.11");
    return unit;
}

HeardUnits discoveryOf(std::initializer_list<HeardUnit> units) {
    HeardUnits discovery;
    for (const HeardUnit& unit : units) {
        discovery.add(unit);
    }
    return discovery;
}

Names namesOf(const std::vector<const HeardUnit*>& units) {
    Names names;
    for (const HeardUnit* const unit : units) {
        names.push_back(std::string(unit->serialNumber()) + " " +
                        std::string(unit->hardwareAddress()));
    }
    return names;
}

// "4B 58 00 00 00 01 device-port 10000 -> 4000"; "(none)" for a value that is not told.
Names linesOf(const DiscoveryComparison& comparison) {
    Names lines;
    for (const ParameterDifference& each : comparison.differences) {
        const auto text = [&each](const HeardUnit* unit) {
            return std::string(unit->record.value(each.parameter).value_or("(none)"));
        };
        lines.push_back(std::string(each.now->serialNumber()) + " " +
                        std::string(descriptionOf(each.parameter).identifier) + " " +
                        text(each.before) + " -> " + text(each.now));
    }
    return lines;
}

} // namespace

TEST(DiscoveryComparison, TwoEmptyDiscoveriesAreEqual) {
    const HeardUnits none;
    const auto comparison = compareDiscoveries(none, none);
    EXPECT_TRUE(comparison.areEqual());
    EXPECT_EQ(comparison.same, 0U);
}

TEST(DiscoveryComparison, UnitsThatTellTheSameAreCounted) {
    const HeardUnits before = discoveryOf({unitOf(one), unitOf(two)});
    HeardUnit elsewhere = unitOf(one);
    elsewhere.sender = 0xC0000263U;
    elsewhere.link = 7;
    elsewhere.answered = std::chrono::milliseconds(99);
    const HeardUnits now = discoveryOf({elsewhere, unitOf(two)});
    const auto comparison = compareDiscoveries(before, now);
    EXPECT_TRUE(comparison.areEqual()) << "time, sender and interface do not count";
    EXPECT_EQ(comparison.same, 2U);
    EXPECT_EQ(comparison.changed, 0U);
}

TEST(DiscoveryComparison, NewAndMissingUnitsAreListedInTheOrderOfSerialNumbers) {
    const HeardUnits before = discoveryOf({unitOf(two), unitOf(one)});
    const HeardUnits now = discoveryOf({unitOf(three)});
    const auto comparison = compareDiscoveries(before, now);
    EXPECT_EQ(namesOf(comparison.missing), (Names{std::string(one) + " 02:4B:58:00:00:01",
                                                  std::string(two) + " 02:4B:58:00:00:01"}));
    EXPECT_EQ(namesOf(comparison.added), Names{std::string(three) + " 02:4B:58:00:00:01"});
    EXPECT_FALSE(comparison.areEqual());
    EXPECT_EQ(comparison.same, 0U);
}

TEST(DiscoveryComparison, EachChangedParameterIsADifferenceAndTheUnitCountsOnce) {
    HeardUnit changed = unitOf(one);
    changed.record.setValue(internalIPAddress, "192.0.2.99");
    changed.record.setValue(devicePortNumber, "4000");
    HeardUnit silent = unitOf(two);
    silent.record.removeValue(internalIPAddress);
    const HeardUnits before = discoveryOf({unitOf(one), unitOf(two), unitOf(three)});
    const HeardUnits now = discoveryOf({changed, silent, unitOf(three)});
    const auto comparison = compareDiscoveries(before, now);
    EXPECT_EQ(linesOf(comparison), (Names{"4B 58 00 00 00 01 device-port (none) -> 4000",
                                          "4B 58 00 00 00 01 internal-ip 192.0.2.11 -> 192.0.2.99",
                                          "4B 58 00 00 00 02 internal-ip 192.0.2.11 -> (none)"}));
    EXPECT_EQ(comparison.changed, 2U);
    EXPECT_EQ(comparison.same, 1U);
}

TEST(DiscoveryComparison, UnitIDsAreComparedByTheirBytes) {
    const auto withID = [](std::string_view text, std::optional<UnitIDBytes> bytes) {
        HeardUnit unit = unitOf(one);
        unit.record.setValue(unitID, text);
        unit.unitIDBytes = bytes;
        return unit;
    };
    const auto differ = [](const HeardUnit& left, const HeardUnit& right) {
        return !compareDiscoveries(discoveryOf({left}), discoveryOf({right})).areEqual();
    };
    constexpr UnitIDBytes number{0, 0, 0, 0, 0, 1};
    constexpr UnitIDBytes letter{'1', 0, 0, 0, 0, 0};
    EXPECT_TRUE(differ(withID("1", number), withID("1", letter)));
    EXPECT_FALSE(differ(withID("1", number), withID("another text", number)));
    EXPECT_TRUE(differ(withID("1", std::nullopt), withID("2", number)))
        << "without the bytes of both the texts count";
    EXPECT_FALSE(differ(withID("1", std::nullopt), withID("1", number)));
}

TEST(DiscoveryComparison, AReplacedDeviceOfTheSameSerialNumberHasChanged) {
    const HeardUnits before = discoveryOf({unitOf(one, "02:00:00:00:00:0A")});
    const HeardUnits now = discoveryOf({unitOf(one, "02:00:00:00:00:0B")});
    const auto comparison = compareDiscoveries(before, now);
    EXPECT_EQ(linesOf(comparison),
              Names{"4B 58 00 00 00 01 internal-mac 02:00:00:00:00:0A -> 02:00:00:00:00:0B"});
    EXPECT_TRUE(comparison.added.empty() && comparison.missing.empty());
}

TEST(DiscoveryComparison,
     OfSeveralUnitsWithOneSerialNumberThoseOfOneHardwareAddressBelongTogether) {
    const HeardUnits before =
        discoveryOf({unitOf(one, "02:00:00:00:00:0A"), unitOf(one, "02:00:00:00:00:0B")});
    const HeardUnits one0B = discoveryOf({unitOf(one, "02:00:00:00:00:0B")});
    const auto gone = compareDiscoveries(before, one0B);
    EXPECT_EQ(namesOf(gone.missing), Names{"4B 58 00 00 00 01 02:00:00:00:00:0A"});
    EXPECT_EQ(gone.same, 1U);
    const auto come = compareDiscoveries(one0B, before);
    EXPECT_EQ(namesOf(come.added), Names{"4B 58 00 00 00 01 02:00:00:00:00:0A"});
    EXPECT_TRUE(come.differences.empty());
    const HeardUnits others =
        discoveryOf({unitOf(one, "02:00:00:00:00:0C"), unitOf(one, "02:00:00:00:00:0A"),
                     unitOf(one, "02:00:00:00:00:0D")});
    const auto mixed = compareDiscoveries(before, others);
    EXPECT_EQ(mixed.same, 1U);
    EXPECT_EQ(linesOf(mixed),
              Names{"4B 58 00 00 00 01 internal-mac 02:00:00:00:00:0B -> 02:00:00:00:00:0C"});
    EXPECT_EQ(namesOf(mixed.added), Names{"4B 58 00 00 00 01 02:00:00:00:00:0D"});
}

} // namespace kx
