#include "files/AppendedFile.h"

#include "doubles/FileSizeLimit.h"
#include "files/WholeFile.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
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

} // namespace kx
