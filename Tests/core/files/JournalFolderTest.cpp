#include "files/JournalFolder.h"

#include "doubles/FixedWallClock.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace kx {

namespace {

class JournalFolderTest : public testing::Test {
protected:
    JournalFolderTest() {
        std::string name = "/tmp/kx-journals-XXXXXX";
        folder = ::mkdtemp(name.data());
    }
    ~JournalFolderTest() override { std::filesystem::remove_all(folder); }

    std::string write(const std::string& name, const std::string& text) const {
        std::ofstream(folder + '/' + name) << text;
        return folder + '/' + name;
    }
    static std::string journal(int entries, const std::string& time = "18:00:00") {
        JournalLines lines;
        std::string text =
            JournalLines::head({.started = "2026-11-22T" + time + 'Z', .source = "a"});
        for (int entry = 0; entry < entries; ++entry) {
            text += lines.entry(
                JournalledBinding{.address = "192.0.2.1", .hardwareAddress = "02:4B:58:00:00:01"});
        }
        return text;
    }
    static std::vector<std::string> namesOf(const std::vector<KeptJournal>& journals) {
        std::vector<std::string> found;
        for (const KeptJournal& kept : journals) {
            found.push_back(std::filesystem::path(kept.path).filename().string());
        }
        return found;
    }
    std::vector<std::string> names() const { return namesOf(journalsIn(folder)); }

    std::string folder;
    std::tm time = FixedWallClock(2026, 1, 2, 3, 4, 5).localTime();
};

} // namespace

TEST_F(JournalFolderTest, ANewJournalIsNamedByTheLocalTime) {
    EXPECT_EQ(newJournalPath(folder, time), folder + "/kxctl-journal-20260102-030405.jsonl");
    EXPECT_EQ(newJournalPath("", time), "kxctl-journal-20260102-030405.jsonl");
}

TEST_F(JournalFolderTest, TwoRunsOfOneSecondHaveTwoNames) {
    write("kxctl-journal-20260102-030405.jsonl", "");
    EXPECT_EQ(newJournalPath(folder, time), folder + "/kxctl-journal-20260102-030405-2.jsonl");
    write("kxctl-journal-20260102-030405-2.jsonl", "");
    EXPECT_EQ(newJournalPath(folder, time), folder + "/kxctl-journal-20260102-030405-3.jsonl");
}

TEST_F(JournalFolderTest, TheJournalsOfAFolderComeTheOldestFirstAndOtherFilesArePassedOver) {
    write("kxctl-journal-20260103-000000.jsonl", journal(1));
    write("kxctl-journal-20260102-000000.jsonl", journal(2));
    write("kxctl-journal-20260101-000000.jsonl", "no journal\n");
    write("other.jsonl", journal(1));
    write("kxctl-journal-20260104-000000.txt", journal(1));
    EXPECT_EQ(names(), (std::vector<std::string>{"kxctl-journal-20260102-000000.jsonl",
                                                 "kxctl-journal-20260103-000000.jsonl"}));
    ASSERT_EQ(journalsIn(folder).size(), 2U);
    EXPECT_EQ(journalsIn(folder).front().journal.entries.size(), 2U);
}

TEST_F(JournalFolderTest, TheRunsOfOneSecondComeInTheirOrder) {
    const std::string begun = "kxctl-journal-20260102-030405";
    for (const char* end : {"-10.jsonl", "-2.jsonl", ".jsonl", "-9.jsonl"}) {
        write(begun + end, journal(1));
    }
    EXPECT_EQ(names(), (std::vector<std::string>{begun + ".jsonl", begun + "-2.jsonl",
                                                 begun + "-9.jsonl", begun + "-10.jsonl"}));
}

TEST_F(JournalFolderTest, ARunAfterTheClockWasSetBackIsTheLaterOneAllTheSame) {
    write("kxctl-journal-20261025-025900.jsonl", journal(1, "00:59:00"));
    write("kxctl-journal-20261025-020100.jsonl", journal(1, "01:01:00")); // an hour was repeated
    EXPECT_EQ(names(), (std::vector<std::string>{"kxctl-journal-20261025-025900.jsonl",
                                                 "kxctl-journal-20261025-020100.jsonl"}));
}

TEST_F(JournalFolderTest, TheJournalsOfTwoFoldersComeInTheOrderOfTheirRuns) {
    std::filesystem::create_directory(folder + "/state");
    write("kxctl-journal-20261122-190000.jsonl", journal(1, "18:00:00"));
    write("state/kxctl-journal-20261122-180000.jsonl", journal(1, "17:00:00"));
    write("state/kxctl-journal-20261122-200000.jsonl", journal(1, "19:00:00"));
    EXPECT_EQ(namesOf(journalsOfFolders({folder, folder + "/state"})),
              (std::vector<std::string>{"kxctl-journal-20261122-180000.jsonl",
                                        "kxctl-journal-20261122-190000.jsonl",
                                        "kxctl-journal-20261122-200000.jsonl"}));
}

TEST_F(JournalFolderTest, AFolderThatIsNamedTwiceCountsOnceAndOneWithoutANameNotAtAll) {
    write("kxctl-journal-20261122-190000.jsonl", journal(1));
    EXPECT_EQ(journalsOfFolders({folder, folder + "/.", folder + "/none", ""}).size(), 1U);
}

TEST_F(JournalFolderTest, AFolderThatIsNotThereHasNoJournals) {
    EXPECT_TRUE(journalsIn(folder + "/none").empty());
}

TEST_F(JournalFolderTest, ANamedPipeIsNotWaitedFor) {
    const std::string path = folder + "/kxctl-journal-20260101-000000.jsonl";
    ASSERT_EQ(std::system(("mkfifo " + path).c_str()), 0);
    EXPECT_TRUE(names().empty());
}

TEST_F(JournalFolderTest, WhyAFileIsNoJournalIsTold) {
    const auto missing = readKeptJournal(folder + "/none");
    EXPECT_TRUE(std::holds_alternative<Error>(std::get<JournalFileFault>(missing)));
    const auto other = readKeptJournal(write("table.csv", "serial\n"));
    EXPECT_TRUE(std::holds_alternative<JournalFault>(std::get<JournalFileFault>(other)));
}

TEST_F(JournalFolderTest, APartOfALineAtTheEndDoesNotCount) {
    EXPECT_EQ(wholeLinesOfJournal("one\ntwo\nthr"), "one\ntwo\n");
    EXPECT_EQ(wholeLinesOfJournal("one\n"), "one\n");
    EXPECT_EQ(wholeLinesOfJournal("one"), "");
    EXPECT_EQ(wholeLinesOfJournal(""), "");
}

} // namespace kx
