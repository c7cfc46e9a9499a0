// Files of the first version of every format, which later programs must be able to read. The files
// are never written again; a later version gets files and tests of its own.

#include "files/JournalText.h"
#include "files/KeptPlan.h"
#include "files/SavedDiscovery.h"
#include "files/UnitTableReader.h"
#include "files/WholeFile.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <variant>

namespace kx {

namespace {

std::string firstVersionOf(const std::string& name) {
    auto contents =
        contentsOfFile(KX_SOURCE_DIR "/Tests/core/files/first-version/" + name, 1'000'000);
    auto* const text = std::get_if<std::string>(&contents);
    EXPECT_NE(text, nullptr) << name;
    return text != nullptr ? std::move(*text) : std::string();
}

// The text with a bit of each of its bytes changed, one after the other, and each of its
// beginnings.
void forEachDamage(const std::string& whole, const std::function<void(std::string_view)>& look) {
    for (std::size_t place = 0; place < whole.size(); ++place) {
        look(std::string_view(whole).substr(0, place));
        for (const unsigned bit : {0U, 2U, 4U, 5U, 7U}) {
            std::string text = whole;
            text[place] = static_cast<char>(static_cast<unsigned char>(text[place]) ^ (1U << bit));
            look(text);
        }
    }
}

std::string replacedIn(std::string text, const std::string& part, const std::string& other) {
    const auto place = text.find(part);
    EXPECT_NE(place, std::string::npos) << part;
    return text.replace(place, part.size(), other);
}

} // namespace

TEST(FirstVersions, ASavedDiscoveryIsRead) {
    const auto read = readSavedDiscovery(firstVersionOf("discovery.json"));
    const auto* const discovery = std::get_if<SavedDiscovery>(&read);
    ASSERT_NE(discovery, nullptr);
    EXPECT_TRUE(discovery->isComplete);
    ASSERT_EQ(discovery->units.size(), 3U);
    const SavedUnit& unit = discovery->units[1];
    EXPECT_EQ(unit.record.value(UnitParameter::serialNumber), "4B 58 00 00 00 02");
    EXPECT_EQ(unit.unitIDBytes, (UnitIDBytes{'R', '7', 'A', 0, 0, 0}));
    EXPECT_EQ(unit.record.value(UnitParameter::internalIPAddress), "192.0.2.12");
    EXPECT_EQ(unit.record.value(UnitParameter::devicePortNumber), "10000");
    EXPECT_EQ(unit.interface, "kx0");
}

TEST(FirstVersions, ADamagedDiscoveryIsReadOrRefused) {
    const std::string whole = firstVersionOf("discovery.json");
    forEachDamage(whole, [&whole](std::string_view text) {
        const auto read = readSavedDiscovery(text);
        if (text.size() + 1 < whole.size()) {
            EXPECT_TRUE(std::holds_alternative<SavedDiscoveryFault>(read)) << text;
        }
    });
    EXPECT_EQ(std::get<SavedDiscoveryFault>(
                  readSavedDiscovery(replacedIn(whole, "\"schema\":1", "\"schema\":2"))),
              SavedDiscoveryFault::otherVersion);
}

TEST(FirstVersions, AKeptPlanIsRead) {
    const auto read = readKeptPlan(firstVersionOf("plan.json"));
    const auto* const table = std::get_if<UnitTable>(&read);
    ASSERT_NE(table, nullptr);
    EXPECT_TRUE(table->complaints.empty());
    ASSERT_EQ(table->rows.size(), 3U);
    const WantedRow& row = table->rows[0];
    EXPECT_EQ(row.line, 2U);
    ASSERT_EQ(row.edits.size(), 4U);
    EXPECT_EQ(row.edits[0].edit.command, "^^IdU5241434B3741");
    ASSERT_TRUE(row.seen.has_value());
    EXPECT_EQ(row.seen->record.value(UnitParameter::internalIPAddress), "192.0.2.11");
    EXPECT_EQ(row.seen->unitIDBytes, (UnitIDBytes{0, 0, 0, 0, 0, 1}));
    EXPECT_FALSE(table->rows[2].seen.has_value());
}

TEST(FirstVersions, ADamagedPlanIsRefused) {
    std::string whole = firstVersionOf("plan.json");
    whole.pop_back(); // the line break, which says nothing
    std::size_t line = 0;
    forEachDamage(whole, [&line](std::string_view text) {
        const auto read = readKeptPlan(text);
        const auto* const fault = std::get_if<DocumentFault>(&read);
        // A digit of an escape means the same in either case, and a line break the same as a blank.
        if (fault == nullptr) {
            ++line;
            EXPECT_EQ(std::get<UnitTable>(read).rows.size(), 3U);
        } else {
            EXPECT_EQ(*fault, DocumentFault::damaged) << text;
        }
    });
    EXPECT_LE(line, 6U);
}

TEST(FirstVersions, AJournalIsRead) {
    const auto read = readJournal(firstVersionOf("journal.jsonl"));
    const auto* const journal = std::get_if<Journal>(&read);
    ASSERT_NE(journal, nullptr);
    EXPECT_EQ(journal->head.started, "2026-11-22T18:30:05Z");
    EXPECT_EQ(journal->head.source, "rack-7.csv");
    EXPECT_TRUE(journal->hasEnded);
    ASSERT_EQ(journal->entries.size(), 8U);
    const auto& command = std::get<JournalledCommand>(journal->entries[3]);
    EXPECT_EQ(command.unit.line, 2U);
    EXPECT_EQ(command.unit.hardwareAddress, "02:4B:58:00:00:01");
    EXPECT_EQ(command.parameter, UnitParameter::internalIPAddress);
    EXPECT_EQ(command.from, "192.0.2.11");
    EXPECT_TRUE(std::get<JournalledBinding>(journal->entries[2]).isMade);
    EXPECT_FALSE(std::get<JournalledBinding>(journal->entries[5]).isMade);
    EXPECT_EQ(std::get<JournalledOutcome>(journal->entries[7]).state, ChangeState::silent);
}

TEST(FirstVersions, ADamagedJournalIsRefusedAndACutOneIsRead) {
    const std::string whole = firstVersionOf("journal.jsonl");
    forEachDamage(whole, [&whole](std::string_view text) {
        const auto read = readJournal(text);
        if (text.size() < whole.size()) { // a beginning
            EXPECT_EQ(std::holds_alternative<Journal>(read), text.find('\n') != text.npos) << text;
        } else if (text.ends_with('\n')) {
            EXPECT_TRUE(std::holds_alternative<JournalFault>(read)) << text;
        }
    });
}

TEST(FirstVersions, AReportIsReadAsATable) {
    const UnitTable table = readUnitTable(firstVersionOf("report.csv"));
    EXPECT_TRUE(table.complaints.empty());
    ASSERT_EQ(table.rows.size(), 3U);
    EXPECT_EQ(table.rows[1].serialNumber, "4B 58 00 00 00 02");
    EXPECT_EQ(table.rows[1].edits.size(), 3U);
    EXPECT_EQ(table.records[1].fields[6], "done");
}

TEST(FirstVersions, ADamagedReportIsReadOrRefusedByItsLine) {
    const std::string whole = firstVersionOf("report.csv");
    forEachDamage(whole, [](std::string_view text) {
        const UnitTable table = readUnitTable(text);
        const auto lines = static_cast<std::size_t>(std::ranges::count(text, '\n') +
                                                    std::ranges::count(text, '\r'));
        for (const TableComplaint& complaint : table.complaints) {
            EXPECT_GE(complaint.line, 1U);
            EXPECT_LE(complaint.line, lines + 1);
        }
    });
}

} // namespace kx
