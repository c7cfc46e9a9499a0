#include "files/KeptPlan.h"

#include "files/JournalText.h"

#include <gtest/gtest.h>

#include <string>

namespace kx {

namespace {

const std::string plannedTable = "serial;unit-id;internal-ip;note\r\n"
                                 "4B 58 00 00 00 01;RACK7A;192.0.2.41;\"door; side \u00e9\"\r\n\r\n"
                                 "4B 58 00 00 00 02;RACK7B;;\r\n";

SeenUnit seenUnit() {
    SeenUnit unit;
    unit.record.setValue(UnitParameter::serialNumber, "4B 58 00 00 00 01");
    unit.record.setValue(UnitParameter::unitID, std::string_view("U1\0\0\0\0", 6));
    unit.record.setValue(UnitParameter::internalIPAddress, "192.0.2.11");
    unit.record.setValue(UnitParameter::destinationPortNumber, "3520");
    unit.unitIDBytes = UnitIDBytes{'U', '1', 0, 0, 0, 0};
    return unit;
}

// The plan of the table above, whose second unit was silent.
std::string keptText() {
    auto rows = readUnitTable(plannedTable).rows;
    rows.front().seen = seenUnit();
    return textOfKeptPlan(plannedTable, rows);
}

std::optional<DocumentFault> faultOfPlan(std::string_view text) {
    const auto read = readKeptPlan(text);
    const auto* const fault = std::get_if<DocumentFault>(&read);
    return fault != nullptr ? std::optional(*fault) : std::nullopt;
}

UnitTable planIn(std::string_view text) {
    auto read = readKeptPlan(text);
    auto* const table = std::get_if<UnitTable>(&read);
    EXPECT_NE(table, nullptr) << text;
    return table != nullptr ? std::move(*table) : UnitTable();
}

// A plan that was written with other values.
std::string sealedPlan(const std::string& table, const std::string& seen) {
    return sealedText(R"({"kind":"plan","schema":1,"table":)" + table + R"(,"seen":)" + seen + "}");
}

} // namespace

TEST(KeptPlan, GivesTheTableBackWithTheValuesThatWereSeen) {
    const UnitTable table = planIn(keptText());
    EXPECT_TRUE(table.complaints.empty());
    ASSERT_EQ(table.rows.size(), 2U);
    EXPECT_EQ(table.rows[0].line, 2U);
    EXPECT_EQ(table.rows[0].serialNumber, "4B 58 00 00 00 01");
    ASSERT_EQ(table.rows[0].edits.size(), 2U);
    EXPECT_EQ(table.rows[0].edits[1].edit.command, "^^IdIC0000229");
    ASSERT_TRUE(table.rows[0].seen.has_value());
    EXPECT_EQ(table.rows[0].seen->record, seenUnit().record);
    EXPECT_EQ(table.rows[0].seen->unitIDBytes, seenUnit().unitIDBytes);
    EXPECT_EQ(table.rows[1].line, 4U);
    EXPECT_FALSE(table.rows[1].seen.has_value()) << "it did not answer";
    ASSERT_EQ(table.records.size(), 4U) << "a report has the notes, too";
    EXPECT_EQ(table.records[1].fields[3], "door; side \u00e9");
}

TEST(KeptPlan, AUnitIDThatIsNoTextIsKeptByItsBytes) {
    auto rows = readUnitTable(plannedTable).rows;
    rows.front().seen = seenUnit();
    rows.front().seen->record.removeValue(UnitParameter::unitID);
    rows.front().seen->unitIDBytes = UnitIDBytes{0xFF, 0, '"', '\n', 0x80, 1};
    const UnitTable table = planIn(textOfKeptPlan(plannedTable, rows));
    EXPECT_EQ(table.rows.at(0).seen->unitIDBytes, rows.front().seen->unitIDBytes);
    EXPECT_FALSE(table.rows.at(0).seen->record.value(UnitParameter::unitID).has_value());
}

TEST(KeptPlan, EachUnitThatWasSeenStandsOnALineOfItsOwn) {
    auto rows = readUnitTable(plannedTable).rows;
    rows[0].seen = seenUnit();
    rows[1].seen = seenUnit();
    rows[1].seen->record.setValue(UnitParameter::serialNumber, "4B 58 00 00 00 02");
    const std::string text = textOfKeptPlan(plannedTable, rows);
    EXPECT_EQ(std::ranges::count(text, '\n'), 4);
    EXPECT_EQ(planIn(text).rows[1].seen->record.value(UnitParameter::serialNumber),
              "4B 58 00 00 00 02");
}

TEST(KeptPlan, IsToldApartFromATable) {
    EXPECT_TRUE(looksLikeKeptPlan(keptText()));
    EXPECT_TRUE(looksLikeKeptPlan(" \r\n{"));
    EXPECT_FALSE(looksLikeKeptPlan(plannedTable));
    EXPECT_FALSE(looksLikeKeptPlan(""));
    EXPECT_FALSE(looksLikeKeptPlan("\xEF\xBB\xBFserial\n"));
}

TEST(KeptPlan, IsDamagedWhereverItWasCutOrChanged) {
    const std::string whole = keptText();
    const std::size_t end = whole.size() - 1; // the line break says nothing
    for (std::size_t place = 0; place < end; ++place) {
        EXPECT_EQ(faultOfPlan(whole.substr(0, place)), DocumentFault::damaged) << place;
        std::string text = whole;
        text[place] = static_cast<char>(text[place] ^ 0x04);
        EXPECT_EQ(faultOfPlan(text), DocumentFault::damaged) << text;
    }
}

TEST(KeptPlan, AnotherVersionAndAnotherKindAreToldByTheirNames) {
    EXPECT_EQ(faultOfPlan(sealedText(R"({"kind":"plan","schema":2,"steps":[]})")),
              DocumentFault::otherVersion);
    EXPECT_EQ(faultOfPlan(sealedText(R"({"kind":"journal","schema":1})")),
              DocumentFault::otherKind);
    EXPECT_EQ(faultOfPlan(R"({"schema":1,"command":"plan","rows":[]})"), DocumentFault::otherKind)
        << "the document of the command is not the plan";
    const std::string journal = JournalLines::head({.started = "", .source = ""});
    EXPECT_EQ(faultOfPlan(journal + JournalLines().end()), DocumentFault::otherKind);
}

TEST(KeptPlan, AValueThatTheFormatDoesNotAllowIsDamage) {
    const std::string unit = R"({"line":2,"serial":"4B 58 00 00 00 01","unit_id":null,)"
                             R"("unit_id_bytes":null,"internal_ip":null,"internal_mac":null,)"
                             R"("destination_ip":null,"destination_mac":null,)"
                             R"("destination_port":null,"device_port":null})";
    const auto with = [&unit](const std::string& part, const std::string& other) {
        std::string text = unit;
        return text.replace(text.find(part), part.size(), other);
    };
    EXPECT_EQ(faultOfPlan(sealedPlan("\"serial\\n\"", "[" + unit + "]")), std::nullopt);
    for (const std::string& seen :
         {std::string("{}"), std::string("7"), std::string("[7]"), std::string("[[]]"),
          "[" + with(R"("line":2)", R"("line":-2)") + "]", "[" + with(R"("line":2,)", "") + "]",
          "[" + with(R"("4B 58 00 00 00 01")", "null") + "]",
          "[" + with(R"("internal_ip":null)", R"("internal_ip":"192.0.2.300")") + "]",
          "[" + with(R"("device_port":null)", R"("device_port":65536)") + "]",
          "[" + with(R"("unit_id_bytes":null)", R"("unit_id_bytes":"55")") + "]"}) {
        EXPECT_EQ(faultOfPlan(sealedPlan("\"serial\\n\"", seen)), DocumentFault::damaged) << seen;
    }
    EXPECT_EQ(faultOfPlan(sealedPlan("7", "[]")), DocumentFault::damaged);
    EXPECT_EQ(faultOfPlan(sealedPlan("null", "[]")), DocumentFault::damaged);
    EXPECT_EQ(faultOfPlan(sealedText(R"({"kind":"plan","schema":1,"seen":[]})")),
              DocumentFault::damaged);
}

TEST(KeptPlan, AKeyThatIsNotKnownIsPassedOver) {
    EXPECT_EQ(
        faultOfPlan(sealedText(
            R"({"kind":"plan","schema":1,"made_by":"a later one","table":"serial\n","seen":[]})")),
        std::nullopt);
}

TEST(KeptPlan, ATableThatALaterReaderRefusesKeepsItsComplaints) {
    const UnitTable table = planIn(sealedPlan(R"("serial,unit-id\n1,A\n")", "[]"));
    ASSERT_EQ(table.complaints.size(), 1U);
    EXPECT_EQ(table.complaints[0].fault, TableFault::lostZeros);
}

} // namespace kx
