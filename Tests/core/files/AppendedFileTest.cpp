#include "files/AppendedFile.h"

#include "doubles/FileSizeLimit.h"
#include "files/WholeFile.h"
#include "support/Pipe.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <system_error>
#include <variant>

namespace kx {

namespace {

class AppendedFileTest : public testing::Test {
protected:
    AppendedFileTest() {
        std::string name = "/tmp/kx-appended-XXXXXX";
        folder = ::mkdtemp(name.data());
    }
    ~AppendedFileTest() override { std::filesystem::remove_all(folder); }

    std::string contents(const std::string& name = "journal") const {
        const auto read = contentsOfFile(folder + "/" + name, 1000);
        return std::holds_alternative<Error>(read) ? "(none)" : std::get<std::string>(read);
    }

    // The descriptor by which this process has the file open; -1 without one.
    static int descriptorOf(const std::filesystem::path& path) {
        for (const auto& each : std::filesystem::directory_iterator("/proc/self/fd")) {
            std::error_code isClosed; // the one for this walk, in the end
            if (std::filesystem::read_symlink(each, isClosed) == path) {
                return std::stoi(each.path().filename());
            }
        }
        return -1;
    }

    std::string folder;
    AppendedFile file;
};

} // namespace

TEST_F(AppendedFileTest, BeginsWithATextAndGrows) {
    EXPECT_EQ(file.begin(folder + "/journal", "one\n"), std::nullopt);
    EXPECT_EQ(contents(), "one\n");
    EXPECT_EQ(file.append("two\n"), std::nullopt);
    EXPECT_EQ(file.append("three\n"), std::nullopt);
    EXPECT_EQ(contents(), "one\ntwo\nthree\n");
}

TEST_F(AppendedFileTest, ReplacesWhatTheFileHadBefore) {
    EXPECT_EQ(replaceFile(folder + "/journal", "old, and much longer"), std::nullopt);
    EXPECT_EQ(file.begin(folder + "/journal", "new\n"), std::nullopt);
    EXPECT_EQ(contents(), "new\n");
}

TEST_F(AppendedFileTest, AFileThatWasNotBegunTakesNothing) {
    EXPECT_EQ(file.append("one\n"), posixError(EBADF));
    EXPECT_EQ(file.begin(folder + "/none/journal", "one\n"), posixError(ENOENT));
}

TEST_F(AppendedFileTest, NothingIsAddedAfterAFailure) {
    EXPECT_EQ(file.begin(folder + "/journal", "one\n"), std::nullopt);
    {
        const FileSizeLimit limit(10);
        EXPECT_EQ(file.append("a long line\n"), posixError(EFBIG));
    }
    EXPECT_EQ(contents(), "one\na long");
    EXPECT_EQ(file.append("two\n"), posixError(EFBIG));
    EXPECT_EQ(contents(), "one\na long");
}

// A pipe takes the text, and the system cannot put it on a disk.
TEST_F(AppendedFileTest, ATextThatDoesNotReachTheDiskIsAFailure) {
    EXPECT_EQ(file.begin(folder + "/journal", "one\n"), std::nullopt);
    const Pipe pipe;
    ASSERT_NE(::dup2(pipe.writingEnd.number(), descriptorOf(folder + "/journal")), -1);
    EXPECT_EQ(file.append("two\n"), posixError(EINVAL));
    EXPECT_EQ(file.append("three\n"), posixError(EINVAL));
}

} // namespace kx
