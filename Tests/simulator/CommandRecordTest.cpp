#include "Simulator/CommandRecord.h"

#include "Simulator/FactorySettings.h"
#include "simulator/Literals.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <system_error>

namespace kx::simulator {
namespace {

constexpr Network unitNetwork{.base = 0xC0000200, .prefixLength = 24};

class CommandRecordTest : public testing::Test {
protected:
    void TearDown() override { std::filesystem::remove(_path); }

    std::string text() const {
        std::ostringstream contents;
        contents << std::ifstream(_path).rdbuf();
        return contents.str();
    }

    const std::string _path = testing::TempDir() + "a record with blanks";
    SimulatedUnit _unit{factorySettings(2, unitNetwork)};
};

TEST_F(CommandRecordTest, CommandIsALineOfSerialDestinationAndBytes) {
    CommandRecord record(_path);
    record.addCommand(_unit, {.source = {{}, 0xC0000201, 3521},
                              .destination = {{}, 0xC0000232, 10000},
                              .payload = bytesOfText("^^IdX\r")});
    EXPECT_EQ(text(), "");
    record.flush();
    EXPECT_EQ(text(), "4B5800000002 192.0.2.50 10000 5E5E4964580D\n");
}

TEST_F(CommandRecordTest, FinalStateIsALineOfEverySetting) {
    CommandRecord record(_path);
    record.addState(_unit);
    _unit.answer(bytesOfText("^^Id-Z03051407\r"));
    record.addState(_unit);
    record.flush();
    const std::string settings =
        "state 4B5800000002 hardware=02:4B:58:00:00:02 address=192.0.2.12 destination=192.0.2.1 "
        "destination-port=3520 device-port=10000 unit-id=553030303032 "
        "destination-hardware=02:00:00:00:00:01 clock=";
    EXPECT_EQ(text(), settings + "-\n" + settings + "03051407\n");
}

TEST_F(CommandRecordTest, LinesFollowThoseThatAreThere) {
    std::ofstream(_path) << "there\n";
    CommandRecord record(_path);
    record.addCommand(_unit, {.source = {}, .destination = {}, .payload = {}});
    record.flush();
    EXPECT_EQ(text(), "there\n4B5800000002 0.0.0.0 0 \n");
}

namespace {

// A folder that ends with the test, with rights as for chmod(2).
class Folder {
public:
    explicit Folder(mode_t mode) {
        char path[] = "/tmp/kx-record-XXXXXX";
        _path = ::mkdtemp(path);
        EXPECT_EQ(::chmod(path, mode), 0);
    }
    ~Folder() { std::filesystem::remove_all(_path); }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    std::string file(const std::string& name) const { return (_path / name).string(); }

private:
    std::filesystem::path _path;
};

int refusalOf(const std::string& path) {
    try {
        const CommandRecord record(path);
    } catch (const std::system_error& error) {
        return error.code().value();
    }
    return 0;
}

} // namespace

TEST(CommandRecord, ALinkInAFolderThatEverybodyMayWriteToIsNotFollowed) {
    for (const mode_t mode : {0777U, 01777U}) {
        const Folder folder(mode);
        const std::string victim = folder.file("victim");
        std::ofstream(victim) << "as it was";
        std::filesystem::create_symlink(victim, folder.file("link"));
        std::filesystem::create_symlink(folder.file("missing"), folder.file("dangling"));
        EXPECT_EQ(refusalOf(folder.file("link")), ELOOP);
        EXPECT_EQ(refusalOf(folder.file("dangling")), ELOOP);
        EXPECT_FALSE(std::filesystem::exists(folder.file("missing")));
    }
}

TEST(CommandRecord, ASecondNameOfAFileAndAPipeAreNotTakenThereEither) {
    const Folder folder(01777);
    std::ofstream(folder.file("victim")) << "as it was";
    std::filesystem::create_hard_link(folder.file("victim"), folder.file("second"));
    EXPECT_EQ(refusalOf(folder.file("second")), EPERM);
    ASSERT_EQ(::mkfifo(folder.file("pipe").c_str(), 0600), 0);
    EXPECT_NE(refusalOf(folder.file("pipe")), 0) << "and it does not wait for a reader";
}

TEST(CommandRecord, AFileOfSomebodyElseIsNotTakenThereEither) {
    if (::geteuid() != 0) {
        GTEST_SKIP() << "only root can make a file for somebody else";
    }
    const Folder folder(0777);
    std::ofstream(folder.file("theirs")) << "as it was";
    ASSERT_EQ(::chown(folder.file("theirs").c_str(), 12345, 12345), 0);
    EXPECT_EQ(refusalOf(folder.file("theirs")), EPERM);
}

// A stranger can lay links in a folder of their own too, for example in one below /tmp.
TEST(CommandRecord, ALinkInAFolderOfSomebodyElseIsNotFollowedAndAFileOfTheirsIsTaken) {
    if (::geteuid() != 0) {
        GTEST_SKIP() << "only root can make a folder for somebody else";
    }
    const Folder folder(0755);
    const Folder elsewhere(0755);
    const std::string victim = elsewhere.file("victim");
    std::ofstream(victim) << "as it was";
    std::filesystem::create_symlink(victim, folder.file("link"));
    std::filesystem::create_hard_link(victim, folder.file("second"));
    std::ofstream(folder.file("theirs")) << "as it was";
    for (const std::string& path : {folder.file("theirs"), folder.file("")}) {
        ASSERT_EQ(::chown(path.c_str(), 12345, 12345), 0);
    }
    EXPECT_EQ(refusalOf(folder.file("link")), ELOOP);
    EXPECT_EQ(refusalOf(folder.file("second")), EPERM);
    EXPECT_EQ(refusalOf(folder.file("theirs")), 0);
    EXPECT_EQ(refusalOf(folder.file("new")), 0);
    ASSERT_EQ(::chown(folder.file("theirs").c_str(), 54321, 54321), 0);
    EXPECT_EQ(refusalOf(folder.file("theirs")), EPERM) << "it is a third user's";
}

TEST(CommandRecord, AnOwnFileIsTakenThereAndALinkInAnOwnFolderIsFollowed) {
    const Folder open(01777);
    EXPECT_EQ(refusalOf(open.file("own")), 0);
    EXPECT_EQ(refusalOf(open.file("own")), 0) << "again";
    const Folder own(0755);
    std::filesystem::create_symlink(own.file("target"), own.file("link"));
    EXPECT_EQ(refusalOf(own.file("link")), 0);
    EXPECT_TRUE(std::filesystem::exists(own.file("target")));
}

TEST(CommandRecord, AFileThatCannotBeOpenedIsAFailure) {
    EXPECT_THROW(CommandRecord("/nonexistent/record"), std::system_error);
}

} // namespace
} // namespace kx::simulator
