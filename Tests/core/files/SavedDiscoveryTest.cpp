#include "files/SavedDiscovery.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace kx {

namespace {

using enum UnitParameter;

const std::string unitText =
    R"({"serial":"4B 58 00 00 00 01","unit_id":"U1","unit_id_bytes":"553100000000",)"
    R"("internal_ip":"192.0.2.11","internal_mac":"02:4B:58:00:00:01",)"
    R"("destination_ip":"0.0.0.0","destination_mac":"02:00:00:00:00:01",)"
    R"("destination_port":3520,"device_port":10000,"source_ip":"192.0.2.12",)"
    R"("interface":"kx0","answered_ms":3})";

std::string documentOf(const std::string& units) {
    return R"({"schema":1,"command":"discover","exit":0,"error":null,"warnings":[],)"
           R"("interface":"kx0","port":3520,"units":[)" +
           units + R"(],"duplicates":[],"dropped":0,"rejected":0,"complete":true})";
}

// The text with one part replaced by another.
std::string with(std::string text, const std::string& part, const std::string& other) {
    const auto place = text.find(part);
    EXPECT_NE(place, std::string::npos) << part;
    return text.replace(place, part.size(), other);
}

SavedDiscovery discoveryIn(const std::string& text) {
    auto read = readSavedDiscovery(text);
    if (const auto* const fault = std::get_if<SavedDiscoveryFault>(&read)) {
        ADD_FAILURE() << "fault " << static_cast<int>(*fault) << " of " << text;
        return {};
    }
    return std::get<SavedDiscovery>(std::move(read));
}

// Absent when the text can be read.
std::optional<SavedDiscoveryFault> faultOf(const std::string& text) {
    const auto read = readSavedDiscovery(text);
    const auto* const fault = std::get_if<SavedDiscoveryFault>(&read);
    return fault != nullptr ? std::optional(*fault) : std::nullopt;
}

} // namespace

TEST(SavedDiscovery, TellsEverythingOfAUnit) {
    const SavedDiscovery discovery = discoveryIn(documentOf(unitText));
    EXPECT_TRUE(discovery.isComplete);
    ASSERT_EQ(discovery.units.size(), 1U);
    const SavedUnit& unit = discovery.units.front();
    EXPECT_EQ(unit.record.value(serialNumber), "4B 58 00 00 00 01");
    EXPECT_EQ(unit.record.value(unitID), std::string_view("U1\0\0\0\0", 6))
        << "as a unit tells it, from its bytes";
    EXPECT_EQ(unit.unitIDBytes, (UnitIDBytes{'U', '1', 0, 0, 0, 0}));
    EXPECT_EQ(unit.record.value(internalIPAddress), "192.0.2.11");
    EXPECT_EQ(unit.record.value(internalMACAddress), "02:4B:58:00:00:01");
    EXPECT_EQ(unit.record.value(destinationIPAddress), "0.0.0.0");
    EXPECT_EQ(unit.record.value(destinationMACAddress), "02:00:00:00:00:01");
    EXPECT_EQ(unit.record.value(destinationPortNumber), "3520");
    EXPECT_EQ(unit.record.value(devicePortNumber), "10000");
    EXPECT_EQ(unit.sender, 0xC000020CU);
    EXPECT_EQ(unit.interface, "kx0");
    EXPECT_EQ(unit.answered, std::chrono::milliseconds(3));
}

TEST(SavedDiscovery, WhatAUnitDidNotTellIsAbsent) {
    std::string text = unitText;
    for (const char* part :
         {R"("U1")", R"("553100000000")", R"("192.0.2.11")", R"("02:4B:58:00:00:01")",
          R"("0.0.0.0")", R"("02:00:00:00:00:01")", R"(3520)", R"(10000)", R"("kx0")"}) {
        text = with(text, part, "null");
    }
    const SavedDiscovery discovery = discoveryIn(documentOf(text));
    ASSERT_EQ(discovery.units.size(), 1U);
    const SavedUnit& unit = discovery.units.front();
    for (const UnitParameter parameter : allUnitParameters) {
        EXPECT_EQ(unit.record.value(parameter).has_value(), parameter == serialNumber);
    }
    EXPECT_EQ(unit.unitIDBytes, std::nullopt);
    EXPECT_EQ(unit.interface, std::nullopt);
}

TEST(SavedDiscovery, LettersOfDigitsAreTakenInEitherCase) {
    const std::string lower = with(with(unitText, "4B 58", "4b 58"), "02:4B", "02:4b");
    const SavedDiscovery discovery = discoveryIn(documentOf(lower));
    ASSERT_EQ(discovery.units.size(), 1U);
    EXPECT_EQ(discovery.units.front().record.value(serialNumber), "4B 58 00 00 00 01");
    EXPECT_EQ(discovery.units.front().record.value(internalMACAddress), "02:4B:58:00:00:01");
}

TEST(SavedDiscovery, KeysThatAreNotKnownAreIgnored) {
    const std::string more =
        with(with(documentOf(unitText), R"("exit":0)", R"("exit":0,"a":{"b":[]})"),
             R"("answered_ms":3)", R"("answered_ms":3,"firmware":"2")");
    EXPECT_EQ(discoveryIn(more).units.size(), 1U);
}

TEST(SavedDiscovery, WhetherItWasCompleteIsKept) {
    EXPECT_FALSE(
        discoveryIn(with(documentOf(""), R"("complete":true)", R"("complete":false)")).isComplete);
}

TEST(SavedDiscovery, AFileThatWasCutAnywhereIsDamaged) {
    const std::string whole = documentOf(unitText);
    for (std::size_t length = 0; length < whole.size(); ++length) {
        EXPECT_EQ(faultOf(whole.substr(0, length)), SavedDiscoveryFault::damaged) << length;
    }
}

TEST(SavedDiscovery, AMissingKeyIsDamage) {
    for (const std::string key : {"serial", "unit_id_bytes", "internal_ip", "internal_mac",
                                  "destination_ip", "destination_mac", "destination_port",
                                  "device_port", "source_ip", "interface", "answered_ms"}) {
        const std::string text = with(unitText, "\"" + key + "\"", "\"other\"");
        EXPECT_EQ(faultOf(documentOf(text)), SavedDiscoveryFault::damaged) << key;
    }
    for (const std::string key : {"port", "units", "complete"}) {
        const std::string text = with(documentOf(""), "\"" + key + "\"", "\"other\"");
        EXPECT_EQ(faultOf(text), SavedDiscoveryFault::damaged) << key;
    }
}

TEST(SavedDiscovery, AValueThatTheFormatDoesNotAllowIsDamage) {
    const std::vector<std::pair<std::string, std::string>> replacements{
        {R"("4B 58 00 00 00 01")", "null"},
        {R"("4B 58 00 00 00 01")", R"("4B 58 00 00 00")"},
        {R"("4B 58 00 00 00 01")", "17"},
        {R"("553100000000")", R"("5531000000")"},
        {R"("192.0.2.11")", R"("192.0.2.011")"},
        {R"("192.0.2.11")", R"("192.0.2.256")"},
        {R"("192.0.2.11")", R"("")"},
        {R"("192.0.2.11")", R"("a unit")"},
        {R"("02:4B:58:00:00:01")", R"("02:4B:58:00:00:0G")"},
        {"3520", "65536"},
        {"3520", "-1"},
        {"3520", "3520.5"},
        {"3520", R"("3520")"},
        {R"("192.0.2.12")", "null"},
        {R"("kx0")", "0"},
        {R"("answered_ms":3)", R"("answered_ms":86400001)"},
        {R"("answered_ms":3)", R"("answered_ms":null)"},
        {unitText, "1"},
        {unitText, "null"},
        {unitText, "[]"},
    };
    for (const auto& [part, other] : replacements) {
        EXPECT_EQ(faultOf(documentOf(with(unitText, part, other))), SavedDiscoveryFault::damaged)
            << part << " replaced by " << other;
    }
    EXPECT_EQ(faultOf(with(documentOf(""), "[]", "{}")), std::nullopt) << "warnings do not count";
    EXPECT_EQ(faultOf(with(documentOf(""), R"("units":[])", R"("units":{})")),
              SavedDiscoveryFault::damaged);
    EXPECT_EQ(faultOf(with(documentOf(""), "true", "1")), SavedDiscoveryFault::damaged);
    EXPECT_EQ(faultOf(documentOf("") + "x"), SavedDiscoveryFault::damaged);
    EXPECT_EQ(faultOf(with(documentOf(unitText), "kx0", "\xFF")), SavedDiscoveryFault::damaged);
}

TEST(SavedDiscovery, AnotherVersionIsToldApartFromDamage) {
    for (const char* version : {"2", "0", "-1", "99999999999999999999"}) {
        const std::string text =
            with(documentOf(""), R"("schema":1)", std::string(R"("schema":)") + version);
        if (std::string_view(version).size() > 10) {
            EXPECT_EQ(faultOf(text), SavedDiscoveryFault::otherDocument) << "no whole number";
        } else {
            EXPECT_EQ(faultOf(text), SavedDiscoveryFault::otherVersion) << version;
        }
    }
    const std::string later = R"({"schema":2,"command":"discover","entirely":"different"})";
    EXPECT_EQ(faultOf(later), SavedDiscoveryFault::otherVersion);
}

TEST(SavedDiscovery, AnotherDocumentIsToldApartFromDamage) {
    for (const std::string& text :
         {std::string("{}"), std::string("[]"), std::string("1"), std::string("null"),
          std::string("serial,unit-id\n"), with(documentOf(""), R"("discover")", R"("show")"),
          with(documentOf(""), R"("discover")", "null"),
          with(documentOf(""), R"("schema":1)", R"("schema":"1")")}) {
        EXPECT_EQ(faultOf(text), SavedDiscoveryFault::otherDocument) << text;
    }
}

TEST(SavedDiscovery, ADiscoveryThatCouldNotAskIsNone) {
    EXPECT_EQ(faultOf(with(documentOf(""), R"("port":3520)", R"("port":null)")),
              SavedDiscoveryFault::neverAsked);
}

TEST(SavedDiscovery, DeepNestingHarmsNothing) {
    EXPECT_EQ(faultOf(std::string(1'000'000, '[')), SavedDiscoveryFault::damaged);
    EXPECT_EQ(faultOf(std::string(100'000, '[') + std::string(100'000, ']')),
              SavedDiscoveryFault::otherDocument);
}

} // namespace kx
