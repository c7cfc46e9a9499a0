#include "CommandFixture.h"

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace kx {

namespace {

class DiscoverCommandTest : public CommandTest {
protected:
    DiscoverCommandTest() {
        std::string name = "/tmp/kx-discover-XXXXXX";
        folder = ::mkdtemp(name.data());
        file = folder + "/saved";
    }
    ~DiscoverCommandTest() override { std::filesystem::remove_all(folder); }

    std::string savedText() const {
        std::ostringstream text;
        text << std::ifstream(file).rdbuf();
        return text.str();
    }

    std::string folder;
    std::string file;
};

} // namespace

TEST_F(DiscoverCommandTest, ListsWhoAnswers) {
    play({});
    play({.unit = secondSampleUnit()});
    EXPECT_EQ(run({"discover", "--json"}), 0);
    EXPECT_EQ(document()["units"].size(), 2U);
    EXPECT_TRUE(document()["complete"].get<bool>());
    EXPECT_EQ(systemCalls.sentDatagrams().size(), 2U);
}

TEST_F(DiscoverCommandTest, AnInterfaceThatRefusesToSendLeavesTheOthersAndIsTold) {
    addInterface("kx2", secondLink, 0x0A000001U);
    play({.link = secondLink});
    systemCalls.failNext(Operation::sendTo, ENETUNREACH);
    EXPECT_EQ(run({"discover", "-i", "all", "--json"}), 0);
    EXPECT_EQ(document()["units"].size(), 1U);
    EXPECT_FALSE(document()["complete"].get<bool>());
    EXPECT_EQ(document()["warnings"][0]["code"], "socket");
}

TEST_F(DiscoverCommandTest, TwoHostsWithEverythingInCommonButTheirAddressAreAWarning) {
    play({});
    play({.late = 5ms}).unit.internalIP.back() = 77;
    EXPECT_EQ(run({"discover", "--json"}), 0);
    EXPECT_EQ(document()["units"].size(), 1U);
    ASSERT_EQ(document()["warnings"].size(), 1U);
    EXPECT_EQ(document()["warnings"][0]["code"], "ambiguous");
    EXPECT_EQ(document()["warnings"][0]["message"],
              "Two hosts answer as the unit 01 02 03 04 05 06: 192.168.1.10 and 192.168.1.77.");
}

TEST_F(DiscoverCommandTest, ASerialNumberUnderTwoHardwareAddressesIsOneWarning) {
    play({});
    PlayedUnit& twin = play({});
    twin.unit.internalIP.back() = 77;
    twin.unit.internalMAC.back() = 0x77;
    EXPECT_EQ(run({"discover", "--json"}), 0);
    EXPECT_EQ(document()["units"].size(), 2U);
    EXPECT_EQ(document()["warnings"].size(), 1U);
    EXPECT_EQ(document()["warnings"][0]["code"], "ambiguous");
}

TEST_F(DiscoverCommandTest, AUnitThatIsHeardOnTwoInterfacesIsAWarning) {
    addInterface("kx2", secondLink, 0xC0A80102U);
    play({});
    play({.link = secondLink});
    EXPECT_EQ(run({"discover", "-i", "all", "--json"}), 0);
    EXPECT_EQ(document()["units"].size(), 1U);
    ASSERT_EQ(document()["warnings"].size(), 1U);
    EXPECT_EQ(document()["warnings"][0]["code"], "interfaces");
    EXPECT_NE(console.notes.find("kx0 and kx2"), std::string::npos) << console.notes;
}

TEST_F(DiscoverCommandTest, WhereNothingCanBeSentItCannotAsk) {
    systemCalls.failNext(Operation::sendTo, ENETUNREACH);
    EXPECT_EQ(run({"discover", "--json"}), 3);
    EXPECT_EQ(errorCode(), "socket");
}

TEST_F(DiscoverCommandTest, RequestsThatFollowTooCloselyAreRefused) {
    EXPECT_EQ(run({"discover", "--wait", "0.5", "--tries", "51", "--json"}), 2);
    EXPECT_EQ(errorCode(), "usage");
    EXPECT_TRUE(systemCalls.sentDatagrams().empty());
    EXPECT_EQ(run({"discover", "--wait", "0.5", "--tries", "50", "--json"}), 1);
    EXPECT_EQ(systemCalls.sentDatagrams().size(), 50U);
}

TEST_F(DiscoverCommandTest, ASignalListsWhoHasAnsweredByThen) {
    play({});
    for (const Words& words : {Words{"discover", "--json"}, Words{"show", "--all", "--json"}}) {
        interruptAfter(100ms);
        EXPECT_EQ(run(words), 130);
        EXPECT_EQ(document()["units"].size(), 1U) << words.front();
    }
}

TEST_F(DiscoverCommandTest, WhatIsSavedIsWhatIsPrinted) {
    play({});
    EXPECT_EQ(run({"discover", "--json", "--save", file}), 0);
    EXPECT_EQ(savedText(), console.output);
    interruptAfter(100ms);
    EXPECT_EQ(run({"discover", "--json", "--save", file}), 130);
    EXPECT_EQ(savedText(), console.output);
    EXPECT_EQ(Json::parse(savedText())["error"]["code"], "interrupted");
}

TEST_F(DiscoverCommandTest, AFileThatCannotBeWrittenIsToldBeforeAnythingElse) {
    interfaces.interfaces.clear(); // which would be a failure too
    for (const char* option : {"--save", "--capture"}) {
        EXPECT_EQ(run({"discover", "--json", option, "/nowhere/file"}), 2);
        EXPECT_EQ(errorCode(), "file");
    }
    EXPECT_TRUE(systemCalls.sentDatagrams().empty());
}

TEST_F(DiscoverCommandTest, ACommandThatCannotAskLeavesNoFile) {
    interfaces.interfaces.clear();
    for (const char* option : {"--save", "--capture"}) {
        EXPECT_EQ(run({"discover", "--json", option, file}), 3);
        EXPECT_FALSE(std::filesystem::exists(file)) << option;
    }
}

TEST_F(DiscoverCommandTest, ADocumentThatCannotBeSavedIsAFailure) {
    play({});
    EXPECT_EQ(run({"discover", "--json", "--save", "/dev/full"}), 3);
    EXPECT_EQ(errorCode(), "file");
}

TEST_F(DiscoverCommandTest, AnEmptyResultReplacesNoFile) {
    play({});
    ASSERT_EQ(run({"discover", "--json", "--save", file}), 0);
    const std::string before = savedText();
    units.clear();
    EXPECT_EQ(run({"discover", "--json", "--save", file}), 1);
    EXPECT_EQ(errorCode(), "not-found");
    EXPECT_EQ(document()["warnings"][0]["code"], "kept");
    EXPECT_EQ(savedText(), before);
    interruptAfter(100ms);
    EXPECT_EQ(run({"discover", "--json", "--save", file}), 130);
    EXPECT_EQ(savedText(), before);
    for (const bool isThere : {false, true}) {
        std::filesystem::remove(file);
        if (isThere) {
            std::ofstream{file};
        }
        EXPECT_EQ(run({"discover", "--json", "--save", file}), 1);
        EXPECT_EQ(savedText(), console.output) << "there is nothing to keep";
    }
}

TEST_F(DiscoverCommandTest, ASavedFileIsReplacedAtOnce) {
    play({});
    std::ofstream(file) << "old contents";
    std::ifstream reader(file);
    std::string word;
    reader >> word;
    ASSERT_EQ(run({"discover", "--json", "--save", file}), 0);
    std::string rest;
    std::getline(reader, rest);
    EXPECT_EQ(word + rest, "old contents") << "who reads it meanwhile reads the old one";
    EXPECT_EQ(savedText(), console.output);
}

TEST_F(DiscoverCommandTest, WhileAnotherProgramAsksAtTheTerminalNothingIsWrittenOverItsQuestion) {
    console.isTerminal = true;
    at(250ms, [this] { console.isLent = true; });
    at(750ms, [this] { console.isLent = false; });
    EXPECT_EQ(run({"discover", "--wait", "1", "--expect", "2"}), 1);
    for (const char* shown : {"0.2 s", "0.8 s"}) {
        EXPECT_NE(console.notes.find(shown), std::string::npos) << shown;
    }
    for (const char* hidden : {"0.3 s", "0.7 s"}) {
        EXPECT_EQ(console.notes.find(hidden), std::string::npos) << hidden;
    }
}

TEST_F(DiscoverCommandTest, ATerminalShowsTheCountAndTheTimeThoughNothingArrives) {
    console.isTerminal = true;
    play({});
    EXPECT_EQ(run({"discover", "--wait", "1", "--expect", "2"}), 1);
    for (const char* shown : {"\r\x1b[K1  0.1 s", "\r\x1b[K1  0.5 s", "\r\x1b[K1  0.9 s"}) {
        EXPECT_NE(console.notes.find(shown), std::string::npos) << shown;
    }
    EXPECT_EQ(run({"discover", "--wait", "1", "--quiet"}), 0);
    EXPECT_EQ(console.notes, "");
    console.isTerminal = false;
    EXPECT_EQ(run({"discover", "--wait", "1"}), 0);
    EXPECT_EQ(console.notes, "");
}

} // namespace kx
