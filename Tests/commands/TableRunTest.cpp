#include "CommandFixture.h"

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace kx {

namespace {

// apply, plan and revert, with files in a folder of the test's own.
class TableRunTest : public CommandTest {
protected:
    static constexpr auto otherHardware = "00:1A:2B:3C:4D:77";

    TableRunTest() {
        std::string name = "/tmp/kx-table-run-XXXXXX";
        folder = ::mkdtemp(name.data());
    }
    ~TableRunTest() override { std::filesystem::remove_all(folder); }

    // Unit ID, destination port, device port and address, as a unit takes them.
    static void obeyAll(SampleUnit& unit, std::string_view command) {
        if (command.starts_with("^^IdU")) {
            unit.unitID = {'A', 'B', 0, 0, 0, 0};
        } else if (command.starts_with("^^IdT")) {
            unit.destinationPort = {0x0D, 0xC1};
        } else if (command.starts_with("^^IdI")) {
            unit.internalIP.back() = 50;
        }
    }

    PlayedUnit& playSecond(PlayedUnit unit) {
        unit.unit = secondSampleUnit();
        return play(std::move(unit));
    }

    void write(const std::string& text) const { std::ofstream(folder + "/rack.csv") << text; }
    void writeTwoRows() const {
        write("serial,unit-id,destination-port\n010203040506,AB,3521\n010203040507,AB,\n");
    }

    // The words of an apply, with a journal of its own.
    Words apply(const Words& more = {"--yes", "--json"}) {
        Words words{"apply", folder + "/rack.csv", "--journal", journal()};
        words.insert(words.end(), more.begin(), more.end());
        return words;
    }
    std::string journal() { return folder + "/run-" + std::to_string(++journals) + ".jsonl"; }

    Words states() const {
        Words found;
        const Json read = document();
        for (const Json& row : read["rows"]) {
            found.push_back(row["state"].get<std::string>());
        }
        return found;
    }
    std::string message() const { return document()["error"]["message"].get<std::string>(); }

    void setHolder(NeighbourState state, const std::string& hardware = {}) {
        neighbours.entries[0xC0A80132U] = {.state = state, .hardwareAddress = hardware};
    }

    std::string folder;
    int journals = 0;
};

} // namespace

TEST_F(TableRunTest, ChangesEveryUnitUnderTheLock) {
    play({.obey = obeyAll});
    playSecond({.obey = obeyAll});
    writeTwoRows();
    EXPECT_EQ(run(apply()), 0) << console.output;
    EXPECT_EQ(states(), (Words{"done", "done"}));
    EXPECT_EQ(runLock.taken, 1);
    command.reset();
    EXPECT_EQ(runLock.held, 0) << "the end gives it back";
}

TEST_F(TableRunTest, ASecondRunIsKeptOutBeforeAnythingIsSent) {
    play({.obey = obeyAll});
    writeTwoRows();
    runLock.refusal = RunLockRefusal{.holder = 77};
    EXPECT_EQ(run(apply()), 3);
    EXPECT_EQ(errorCode(), "busy");
    EXPECT_NE(message().find("77"), std::string::npos);
    runLock.refusal = RunLockRefusal{};
    EXPECT_EQ(run(apply()), 3);
    EXPECT_EQ(message(), "Another run changes units from this host.");
    runLock.refusal = RunLockRefusal{.error = posixError(EMFILE)};
    EXPECT_EQ(run(apply()), 3);
    EXPECT_EQ(errorCode(), "socket");
    EXPECT_TRUE(systemCalls.sentDatagrams().empty());
}

TEST_F(TableRunTest, APlanNeedsNoLock) {
    play({.obey = obeyAll});
    writeTwoRows();
    runLock.refusal = RunLockRefusal{.holder = 77};
    EXPECT_EQ(run({"plan", folder + "/rack.csv", "--json"}), 1);
    EXPECT_EQ(states(), (Words{"planned", "silent"}));
    EXPECT_EQ(commandsSent(), Words{});
}

TEST_F(TableRunTest, APlanTellsWhoHoldsANewAddressAndSendsRequestsOnly) {
    play({.obey = obeyAll});
    write("serial,internal-ip\n010203040506,192.168.1.50\n");
    setHolder(NeighbourState::reachable, otherHardware);
    EXPECT_EQ(run({"plan", folder + "/rack.csv", "--json"}), 1);
    EXPECT_EQ(errorCode(), "held");
    EXPECT_EQ(states(), Words{"refused"});
    EXPECT_NE(message().find(otherHardware), std::string::npos);
    setHolder(NeighbourState::failed);
    EXPECT_EQ(run({"plan", folder + "/rack.csv", "--json"}), 0);
    EXPECT_EQ(states(), Words{"planned"});
    EXPECT_EQ(commandsSent(), Words{});
    EXPECT_TRUE(bindings.calls.empty());
}

TEST_F(TableRunTest, APersonIsNotAskedWhenSomebodyHoldsANewAddress) {
    play({.obey = obeyAll});
    write("serial,internal-ip\n010203040506,192.168.1.50\n");
    setHolder(NeighbourState::reachable, otherHardware);
    console.isTerminal = console.hasInputTerminal = true;
    console.answers = {"y"};
    EXPECT_EQ(run(apply({"--json"})), 1);
    EXPECT_EQ(errorCode(), "held");
    EXPECT_EQ(console.answers.size(), 1U);
    EXPECT_EQ(commandsSent(), Words{});
}

TEST_F(TableRunTest, APersonSeesThePlanAndMaySayNo) {
    play({.obey = obeyAll});
    playSecond({.obey = obeyAll});
    writeTwoRows();
    console.isTerminal = console.hasInputTerminal = true;
    console.answers = {"n"};
    EXPECT_EQ(run(apply({"--json"})), 1);
    EXPECT_EQ(errorCode(), "unchanged");
    EXPECT_EQ(states(), (Words{"untouched", "untouched"}));
    EXPECT_NE(console.notes.find("Change 2 units, 3 parameters in all?"), std::string::npos);
    EXPECT_EQ(commandsSent(), Words{});
    console.answers = {"yes"};
    EXPECT_EQ(run(apply({"--json"})), 0);
}

TEST_F(TableRunTest, ASignalFinishesTheUnitUnderWayAndBeginsNoOther) {
    play({.late = 30ms, .obey = obeyAll});
    playSecond({.late = 30ms, .obey = obeyAll});
    writeTwoRows();
    interruptAfter(100ms); // the first command is under way
    EXPECT_EQ(run(apply()), 130);
    EXPECT_EQ(states(), (Words{"done", "untouched"}));
}

TEST_F(TableRunTest, ASignalDuringTheSearchSendsNoCommandAndCallsNobodySilent) {
    play({.obey = obeyAll});
    writeTwoRows();
    interruptAfter(500ms);
    EXPECT_EQ(run(apply()), 130);
    EXPECT_EQ(states(), (Words{"untouched", "untouched"}));
    interruptAfter(500ms);
    EXPECT_EQ(run({"plan", folder + "/rack.csv", "--json"}), 130);
    EXPECT_EQ(states(), Words{});
    EXPECT_EQ(commandsSent(), Words{});
}

TEST_F(TableRunTest, AUnitThatMissesTheFirstDiscoveryIsNotSilent) {
    PlayedUnit& unit = play({.hearsBroadcasts = false, .obey = obeyAll});
    write("serial,unit-id\n010203040506,AB\n");
    at(2100ms, [&unit] { unit.hearsBroadcasts = true; });
    EXPECT_EQ(run(apply()), 0);
    EXPECT_EQ(states(), Words{"done"});
}

TEST_F(TableRunTest, AReportThatCannotBeWrittenInTheEndIsToldAfterTheUnits) {
    play({.late = 30ms, .obey = obeyAll});
    playSecond({.late = 30ms});
    write("serial,unit-id\n010203040506,AB\n");
    std::filesystem::create_directory(folder + "/reports");
    const Words report{"--yes", "--json", "--report", folder + "/reports/report.csv"};
    at(100ms, [this] { std::filesystem::remove(folder + "/reports"); });
    EXPECT_EQ(run(apply(report)), 3);
    EXPECT_EQ(errorCode(), "file");
    EXPECT_EQ(states(), Words{"done"});
    // A unit that did not take its value weighs more, and the report is a warning.
    write("serial,unit-id\n010203040507,AB\n");
    std::filesystem::create_directory(folder + "/reports");
    at(100ms, [this] { std::filesystem::remove(folder + "/reports"); });
    EXPECT_EQ(run(apply(report)), 1);
    EXPECT_EQ(errorCode(), "unchanged");
    EXPECT_EQ(document()["warnings"][0]["code"], "file");
}

TEST_F(TableRunTest, ARevertBringsTheOldValuesBackAndTellsWhatNoCommandBrings) {
    play({.obey = obeyAll});
    write("serial,unit-id\n010203040506,AB\n");
    ASSERT_EQ(run(apply()), 0);
    units.front()->obey = [](SampleUnit& unit, std::string_view) {
        unit.unitID = {0, 0, 0, 0, 0, 42};
    };
    EXPECT_EQ(run({"revert", folder + "/run-1.jsonl", "--yes", "--json", "--journal", journal()}),
              0)
        << console.output;
    EXPECT_EQ(document()["rows"][0]["changes"][0]["to"], "42");
    EXPECT_TRUE(document()["warnings"].empty());
}

TEST_F(TableRunTest, AnEntryThatCannotBeTakenOutAgainIsTold) {
    play({.obey = obeyAll});
    write("serial,internal-ip\n010203040506,192.168.1.50\n");
    setHolder(NeighbourState::failed);
    bindings.answerToRelease = {.state = ARPEntryState::rightsNotGiven};
    run(apply());
    const Json read = document();
    EXPECT_TRUE(std::ranges::any_of(read["warnings"], [](const Json& warning) {
        return warning["code"] == "arp-entry";
    })) << console.output;
}

} // namespace kx
