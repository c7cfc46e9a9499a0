#include "commands/OutputFile.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace kx {

namespace {

class OutputFileTest : public testing::Test {
protected:
    OutputFileTest() {
        std::string name = "/tmp/kx-output-XXXXXX";
        folder = ::mkdtemp(name.data());
    }
    ~OutputFileTest() override { std::filesystem::remove_all(folder); }

    std::string path(const std::string& name) const { return folder + "/" + name; }

    static std::string contentsOf(const std::string& path) {
        std::ostringstream text;
        text << std::ifstream(path).rdbuf();
        return text.str();
    }

    std::string folder;
};

} // namespace

TEST_F(OutputFileTest, LookingMakesAndChangesNothing) {
    OutputFile fresh(path("new"));
    EXPECT_EQ(fresh.look(), std::nullopt);
    EXPECT_FALSE(std::filesystem::exists(path("new")));
    std::ofstream(path("old")) << "old";
    OutputFile old(path("old"));
    EXPECT_EQ(old.look(), std::nullopt);
    EXPECT_EQ(contentsOf(path("old")), "old");
}

TEST_F(OutputFileTest, WritesWholeAndInTheirOrder) {
    std::ofstream(path("file")) << "what was there before";
    OutputFile file(path("file"));
    EXPECT_EQ(file.write("one "), std::nullopt);
    EXPECT_EQ(file.write("two"), std::nullopt);
    EXPECT_EQ(contentsOf(path("file")), "one two");
}

TEST_F(OutputFileTest, AReplacementIsTheWholeContents) {
    OutputFile file(path("file"));
    EXPECT_FALSE(file.isFilled());
    EXPECT_EQ(file.lookForReplacement(), std::nullopt);
    EXPECT_EQ(file.replaceBy("one"), std::nullopt);
    EXPECT_TRUE(file.isFilled());
    EXPECT_EQ(file.replaceBy("two"), std::nullopt);
    EXPECT_EQ(contentsOf(path("file")), "two");
}

TEST_F(OutputFileTest, ADeviceIsWrittenToAndNotReplaced) {
    OutputFile full("/dev/full");
    EXPECT_EQ(full.lookForReplacement(), std::nullopt);
    EXPECT_FALSE(full.isFilled());
    EXPECT_EQ(full.replaceBy("text"), posixError(ENOSPC));
    EXPECT_EQ(OutputFile("/dev/null").replaceBy("text"), std::nullopt);
    EXPECT_TRUE(std::filesystem::is_character_file("/dev/null"));
}

TEST_F(OutputFileTest, APlaceThatCannotBeReplacedIsSeenByLooking) {
    EXPECT_EQ(OutputFile("/nowhere/file").lookForReplacement(), posixError(ENOENT));
    EXPECT_EQ(OutputFile("").lookForReplacement(), posixError(ENOENT));
    EXPECT_EQ(OutputFile(folder).lookForReplacement(), posixError(EISDIR));
    EXPECT_EQ(OutputFile("/dev/null/file").lookForReplacement(), posixError(ENOTDIR));
}

TEST_F(OutputFileTest, APlaceThatCannotBeWrittenIsSeenByLooking) {
    EXPECT_EQ(OutputFile("/nowhere/file").look(), posixError(ENOENT));
    EXPECT_EQ(OutputFile("").look(), posixError(ENOENT));
    EXPECT_EQ(OutputFile(folder).look(), posixError(EISDIR));
    EXPECT_EQ(OutputFile("/dev/null/file").look(), posixError(ENOTDIR));
}

TEST_F(OutputFileTest, AFullDiskIsKeptInMind) {
    OutputFile file("/dev/full");
    EXPECT_EQ(file.look(), std::nullopt);
    EXPECT_EQ(file.write("text"), posixError(ENOSPC));
    EXPECT_EQ(file.error(), posixError(ENOSPC));
}

TEST_F(OutputFileTest, APipeThatNobodyReadsIsNotWaitedFor) {
    ASSERT_EQ(::mkfifo(path("pipe").c_str(), 0600), 0);
    EXPECT_EQ(OutputFile(path("pipe")).look(), posixError(ENXIO));
}

TEST_F(OutputFileTest, APipeIsOpenedOnceForItsReader) {
    ASSERT_EQ(::mkfifo(path("pipe").c_str(), 0600), 0);
    const int reader = ::open(path("pipe").c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    {
        OutputFile file(path("pipe"));
        EXPECT_EQ(file.look(), std::nullopt);
        std::array<char, 8> buffer{};
        EXPECT_EQ(::read(reader, buffer.data(), buffer.size()), -1) << "the pipe has ended";
        EXPECT_EQ(file.write("text"), std::nullopt);
        EXPECT_EQ(::read(reader, buffer.data(), buffer.size()), 4);
    }
    ::close(reader);
}

} // namespace kx
