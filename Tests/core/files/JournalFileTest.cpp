#include "files/JournalFile.h"

#include "doubles/FileSizeLimit.h"
#include "doubles/ManualRunLoop.h"
#include "files/WholeFile.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <variant>

namespace kx {

namespace {

class JournalFileTest : public testing::Test {
protected:
    JournalFileTest() {
        std::string name = "/tmp/kx-journal-XXXXXX";
        folder = ::mkdtemp(name.data());
        journal = std::make_unique<JournalFile>(runLoop, [](const JournalEntry& entry) {
            return std::get<JournalledBinding>(entry).address + '\n';
        });
    }
    ~JournalFileTest() override { std::filesystem::remove_all(folder); }

    void begin() { EXPECT_EQ(journal->begin(folder + "/journal", "head\n"), std::nullopt); }

    void write(const std::string& text) {
        journal->write(JournalledBinding{.address = text, .hardwareAddress = {}},
                       [this, text](bool isOnDisk) {
                           told.push_back(text + (isOnDisk ? " is on the disk" : " failed"));
                           contentsWhenTold = contents();
                       });
    }

    std::string contents() const {
        const auto read = contentsOfFile(folder + "/journal", 1000);
        return std::holds_alternative<Error>(read) ? "(none)" : std::get<std::string>(read);
    }

    using Lines = std::vector<std::string>;

    std::string folder;
    ManualRunLoop runLoop;
    std::unique_ptr<JournalFile> journal;
    Lines told;
    std::string contentsWhenTold;
};

} // namespace

TEST_F(JournalFileTest, EntriesAreWrittenTogetherInTheNextTurnAndThenTold) {
    begin();
    write("one");
    write("two");
    EXPECT_EQ(contents(), "head\n");
    EXPECT_TRUE(told.empty());
    runLoop.runOneTurn();
    EXPECT_EQ(told, (Lines{"one is on the disk", "two is on the disk"}));
    EXPECT_EQ(contentsWhenTold, "head\none\ntwo\n");
    EXPECT_EQ(runLoop.pendingCallCount(), 0U);
}

TEST_F(JournalFileTest, AnEntryInsideACallIsWrittenInTheTurnAfterIt) {
    begin();
    journal->write(JournalledBinding{.address = "one", .hardwareAddress = {}},
                   [this](bool) { write("two"); });
    runLoop.runOneTurn();
    EXPECT_EQ(contents(), "head\none\n");
    runLoop.runOneTurn();
    EXPECT_EQ(contents(), "head\none\ntwo\n");
    EXPECT_EQ(told, Lines{"two is on the disk"});
}

TEST_F(JournalFileTest, ADiskThatIsFullFailsTheEntryAndEveryOneAfterIt) {
    begin();
    {
        const FileSizeLimit limit(7);
        write("one");
        runLoop.runOneTurn();
    }
    EXPECT_EQ(journal->failure(), posixError(EFBIG));
    write("two");
    runLoop.runOneTurn();
    EXPECT_EQ(told, (Lines{"one failed", "two failed"}));
    EXPECT_EQ(contents(), "head\non");
}

TEST_F(JournalFileTest, WithoutABeginningEveryEntryFails) {
    EXPECT_EQ(journal->begin(folder + "/none/journal", ""), posixError(ENOENT));
    write("one");
    runLoop.runOneTurn();
    EXPECT_EQ(told, Lines{"one failed"});
}

TEST_F(JournalFileTest, TheEndComesBehindAllEntries) {
    begin();
    write("one");
    journal->finish("end\n");
    EXPECT_EQ(told, Lines{"one is on the disk"});
    EXPECT_EQ(contents(), "head\none\nend\n");
    EXPECT_EQ(journal->failure(), std::nullopt);
    EXPECT_EQ(runLoop.pendingCallCount(), 0U);
}

TEST_F(JournalFileTest, AJournalThatIsClosedWritesWhatWaitsAndTellsNobody) {
    begin();
    write("one");
    journal.reset();
    EXPECT_EQ(contents(), "head\none\n");
    runLoop.runOneTurn();
    EXPECT_TRUE(told.empty());
}

} // namespace kx
