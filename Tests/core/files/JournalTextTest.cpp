#include "files/JournalText.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kx {

namespace {

const JournalHead sampleHead{.started = "2026-11-22T18:30:05Z", .source = "rack 7/r\u00e4ck.csv"};

const JournalledUnit sampleUnit{.line = 2,
                                .rowSerialNumber = "4B 58 00 00 00 01",
                                .serialNumber = "4B 58 00 00 00 09",
                                .hardwareAddress = "02:4B:58:00:00:01"};

JournalledCommand sampleCommand() {
    JournalledCommand command;
    command.unit = sampleUnit;
    command.parameter = UnitParameter::unitID;
    command.from = "U1";
    command.fromUnitID = UnitIDBytes{'U', '1', 0, 0, 0, 0};
    command.to = "RACK7A";
    command.command = "^^IdU5241434B3741";
    return command;
}

const JournalledOutcome sampleOutcome{.unit = sampleUnit,
                                      .parameter = UnitParameter::internalIPAddress,
                                      .state = ChangeState::different,
                                      .shown = "192.0.2.13"};

const JournalledBinding sampleBinding{
    .address = "192.0.2.41", .hardwareAddress = "02:4B:58:00:00:01", .isMade = true};

// A run that began with a command and an entry of the ARP cache, and ended.
std::vector<std::string> sampleLines() {
    JournalLines lines;
    return {JournalLines::head(sampleHead), lines.entry(sampleCommand()),
            lines.entry(sampleBinding), lines.entry(sampleOutcome), lines.end()};
}

std::string allLines(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) {
        text += line;
    }
    return text;
}

Journal journalIn(std::string_view text) {
    auto read = readJournal(text);
    if (const auto* const fault = std::get_if<JournalFault>(&read)) {
        ADD_FAILURE() << "line " << fault->line << " of " << text;
        return {};
    }
    return std::get<Journal>(std::move(read));
}

// The line and the fault, or 0 and nothing.
std::pair<std::size_t, std::optional<DocumentFault>> faultOfJournal(std::string_view text) {
    const auto read = readJournal(text);
    const auto* const fault = std::get_if<JournalFault>(&read);
    return fault != nullptr ? std::pair(fault->line, std::optional(fault->fault))
                            : std::pair(std::size_t{0}, std::optional<DocumentFault>());
}

// A line with these keys behind the number of the entry.
std::string sealedLine(int number, const std::string& keys) {
    return sealedText("{\"entry\":" + std::to_string(number) + keys + "}");
}

constexpr auto damagedIn = [](std::size_t line) {
    return std::pair(line, std::optional(DocumentFault::damaged));
};

void expectSameUnit(const JournalledUnit& left, const JournalledUnit& right) {
    EXPECT_EQ(left.line, right.line);
    EXPECT_EQ(left.rowSerialNumber, right.rowSerialNumber);
    EXPECT_EQ(left.serialNumber, right.serialNumber);
    EXPECT_EQ(left.hardwareAddress, right.hardwareAddress);
}

} // namespace

TEST(JournalText, TellsEverythingOfARun) {
    const Journal journal = journalIn(allLines(sampleLines()));
    EXPECT_EQ(journal.head.started, sampleHead.started);
    EXPECT_EQ(journal.head.source, sampleHead.source);
    EXPECT_TRUE(journal.hasEnded);
    EXPECT_FALSE(journal.isCut);
    ASSERT_EQ(journal.entries.size(), 3U);

    const auto& command = std::get<JournalledCommand>(journal.entries[0]);
    expectSameUnit(command.unit, sampleUnit);
    EXPECT_EQ(command.parameter, UnitParameter::unitID);
    EXPECT_EQ(command.from, "U1");
    EXPECT_EQ(command.fromUnitID, sampleCommand().fromUnitID);
    EXPECT_EQ(command.to, "RACK7A");
    EXPECT_EQ(command.command, "^^IdU5241434B3741");

    const auto& binding = std::get<JournalledBinding>(journal.entries[1]);
    EXPECT_EQ(binding.address, "192.0.2.41");
    EXPECT_EQ(binding.hardwareAddress, "02:4B:58:00:00:01");
    EXPECT_TRUE(binding.isMade);

    const auto& outcome = std::get<JournalledOutcome>(journal.entries[2]);
    expectSameUnit(outcome.unit, sampleUnit);
    EXPECT_EQ(outcome.parameter, UnitParameter::internalIPAddress);
    EXPECT_EQ(outcome.state, ChangeState::different);
    EXPECT_EQ(outcome.shown, "192.0.2.13");
}

TEST(JournalText, WhatIsNotKnownIsAbsent) {
    JournalledCommand command = sampleCommand();
    command.unit.hardwareAddress.clear();
    command.from.reset();
    command.fromUnitID.reset();
    JournalledOutcome outcome = sampleOutcome;
    outcome.shown.reset();
    JournalLines lines;
    std::string text = JournalLines::head(sampleHead);
    text += lines.entry(command);
    text += lines.entry(outcome);
    const Journal journal = journalIn(text);
    ASSERT_EQ(journal.entries.size(), 2U);
    const auto& read = std::get<JournalledCommand>(journal.entries[0]);
    EXPECT_EQ(read.unit.hardwareAddress, "");
    EXPECT_EQ(read.from, std::nullopt);
    EXPECT_EQ(read.fromUnitID, std::nullopt);
    EXPECT_EQ(std::get<JournalledOutcome>(journal.entries[1]).shown, std::nullopt);
    EXPECT_FALSE(journal.hasEnded);
}

TEST(JournalText, EveryParameterAndEveryStateIsReadBack) {
    JournalLines lines;
    std::string text = JournalLines::head(sampleHead);
    std::vector<JournalledOutcome> written;
    for (const UnitParameter parameter : allUnitParameters) {
        for (const ChangeState state : {ChangeState::done, ChangeState::different,
                                        ChangeState::silent, ChangeState::refused}) {
            written.push_back({sampleUnit, parameter, state, "x"});
            text += lines.entry(written.back());
        }
    }
    const Journal journal = journalIn(text);
    ASSERT_EQ(journal.entries.size(), written.size());
    for (std::size_t i = 0; i < written.size(); ++i) {
        const auto& read = std::get<JournalledOutcome>(journal.entries[i]);
        EXPECT_EQ(read.parameter, written[i].parameter);
        EXPECT_EQ(read.state, written[i].state);
    }
}

TEST(JournalText, AForeignTextStaysOnItsLine) {
    JournalledCommand command = sampleCommand();
    command.from = "a\nb\"\\\u2028\u00e9";
    JournalLines lines;
    const std::string line = lines.entry(command);
    EXPECT_EQ(line.find('\n'), line.size() - 1);
    const Journal journal = journalIn(JournalLines::head(sampleHead) + line);
    EXPECT_EQ(std::get<JournalledCommand>(journal.entries.at(0)).from, command.from);
}

TEST(JournalText, ARunThatWasKilledLeavesTheEntriesBeforeItsLastLine) {
    const auto lines = sampleLines();
    std::string text = lines[0];
    for (std::size_t whole = 1; whole < lines.size(); ++whole) {
        for (std::size_t length = 0; length < lines[whole].size(); ++length) {
            const Journal journal = journalIn(text + lines[whole].substr(0, length));
            EXPECT_EQ(journal.isCut, length > 0) << whole << ' ' << length;
            EXPECT_EQ(journal.entries.size(), whole - 1);
            EXPECT_FALSE(journal.hasEnded);
        }
        text += lines[whole];
    }
}

TEST(JournalText, AJournalOfAKilledRunIsCarriedOn) {
    const auto lines = sampleLines();
    const std::string killed = lines[0] + lines[1] + lines[2];
    JournalLines further(journalIn(killed + lines[3].substr(0, 7)).entries.size());
    const Journal journal = journalIn(killed + further.entry(sampleOutcome));
    EXPECT_EQ(journal.entries.size(), 3U);
}

TEST(JournalText, ABlockOfZerosAtTheEndIsACutLine) {
    const Journal journal = journalIn(JournalLines::head(sampleHead) + std::string(512, '\0'));
    EXPECT_TRUE(journal.isCut);
    EXPECT_TRUE(journal.entries.empty());
}

TEST(JournalText, AFirstLineThatWasCutIsNoJournal) {
    const std::string head = JournalLines::head(sampleHead);
    for (std::size_t length = 0; length < head.size(); ++length) {
        EXPECT_EQ(faultOfJournal(head.substr(0, length)), damagedIn(1)) << length;
    }
}

TEST(JournalText, AByteThatHasChangedIsToldByItsLine) {
    const auto lines = sampleLines();
    const std::string whole = allLines(lines);
    std::size_t line = 1;
    for (std::size_t place = 0; place + 1 < whole.size(); ++place) {
        std::string text = whole;
        text[place] = static_cast<char>(text[place] ^ 0x10);
        const auto fault = faultOfJournal(text);
        EXPECT_EQ(fault, damagedIn(line)) << text;
        line += whole[place] == '\n' ? 1U : 0U;
    }
    EXPECT_EQ(line, lines.size());
}

TEST(JournalText, ALineThatIsMissingOrStandsTwiceIsDamage) {
    const auto lines = sampleLines();
    EXPECT_EQ(faultOfJournal(lines[0] + lines[2]), damagedIn(2));
    EXPECT_EQ(faultOfJournal(lines[0] + lines[1] + lines[1]), damagedIn(3));
    EXPECT_EQ(faultOfJournal(lines[0] + "\n" + lines[1]), damagedIn(2));
    EXPECT_EQ(faultOfJournal(allLines(lines) + lines[4]), damagedIn(6))
        << "nothing follows the end";
}

TEST(JournalText, AnotherVersionAndAnotherKindAreToldByTheirNames) {
    using Fault = std::pair<std::size_t, std::optional<DocumentFault>>;
    EXPECT_EQ(faultOfJournal(sealedText(R"({"kind":"journal","schema":2})") + "anything\n"),
              (Fault{1, DocumentFault::otherVersion}));
    EXPECT_EQ(faultOfJournal(sealedText(R"({"kind":"plan","schema":1})")),
              (Fault{1, DocumentFault::otherKind}));
    EXPECT_EQ(faultOfJournal("{\"schema\":1,\"command\":\"apply\"}\n"),
              (Fault{1, DocumentFault::otherKind}));
    EXPECT_EQ(faultOfJournal(sealedText("{\"kind\":\"plan\",\n\"schema\":1}")),
              (Fault{1, DocumentFault::otherKind}))
        << "a document of several lines";
    EXPECT_EQ(faultOfJournal("serial,unit-id\n4B 58 00 00 00 01,A\n"),
              (Fault{1, DocumentFault::otherKind}));
}

TEST(JournalText, AValueThatTheFormatDoesNotAllowIsDamage) {
    const std::string head = JournalLines::head(sampleHead);
    const std::string unit = R"(,"line":2,"row_serial":"4B 58 00 00 00 01",)"
                             R"("serial":"4B 58 00 00 00 01","internal_mac":null)";
    const std::string outcome =
        R"(,"event":"outcome")" + unit + R"(,"parameter":"unit-id","state":"done","shown":null)";
    EXPECT_EQ(faultOfJournal(head + sealedLine(1, outcome)).second, std::nullopt);
    const auto with = [](std::string text, const std::string& part, const std::string& other) {
        return text.replace(text.find(part), part.size(), other);
    };
    for (const std::string& keys :
         {std::string(R"(,"event":"dance")"), std::string(R"(,"event":7)"), std::string(),
          with(outcome, "done", "Done"), with(outcome, "unit-id", "rack"),
          with(outcome, R"("line":2)", R"("line":"2")"), with(outcome, "4B 58", "4B58"),
          with(outcome, R"("internal_mac":null)", R"("internal_mac":"02")"),
          with(outcome, R"(,"shown":null)", ""),
          with(outcome, R"("state":"done")", R"("state":null)"),
          std::string(R"(,"event":"arp-entry","address":"192.0.2","hardware_address":)"
                      R"("02:4B:58:00:00:01","is_made":true)"),
          std::string(R"(,"event":"arp-entry","address":"192.0.2.41","hardware_address":)"
                      R"("02:4B:58:00:00:01","is_made":"yes")"),
          R"(,"event":"command")" + unit +
              R"(,"parameter":"unit-id","from":null,"from_bytes":"00","to":"A","command":"^")",
          R"(,"event":"command")" + unit +
              R"(,"parameter":"unit-id","from":null,"from_bytes":null,"to":null,"command":"^")"}) {
        EXPECT_EQ(faultOfJournal(head + sealedLine(1, keys)), damagedIn(2)) << keys;
    }
    EXPECT_EQ(faultOfJournal(sealedText(R"({"kind":"journal","schema":1,"started":"x"})")),
              damagedIn(1));
}

TEST(JournalText, AKeyThatIsNotKnownIsPassedOver) {
    EXPECT_TRUE(
        journalIn(JournalLines::head(sampleHead) + sealedLine(1, R"(,"event":"end","mood":"good")"))
            .hasEnded);
}

} // namespace kx
