#include "files/WholeFile.h"

#include "doubles/FileSizeLimit.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

namespace kx {

namespace {

class WholeFileTest : public testing::Test {
protected:
    WholeFileTest() {
        std::string name = "/tmp/kx-whole-XXXXXX";
        folder = ::mkdtemp(name.data());
    }
    ~WholeFileTest() override { std::filesystem::remove_all(folder); }

    std::string path(const std::string& name) const { return folder + "/" + name; }

    void put(const std::string& name, const std::string& text) const {
        std::ofstream(path(name)) << text;
    }

    // The contents; the system's text for the error where there are none.
    static std::string contentsOf(const std::string& path, std::size_t mostBytes = 1000) {
        const auto contents = contentsOfFile(path, mostBytes);
        const auto* const error = std::get_if<Error>(&contents);
        return error != nullptr ? error->localizedDescription() : std::get<std::string>(contents);
    }

    std::size_t filesInFolder() const {
        const std::filesystem::directory_iterator files(folder);
        return static_cast<std::size_t>(std::distance(begin(files), end(files)));
    }

    static mode_t permissionsOf(const std::string& path) {
        struct stat status {};
        ::stat(path.c_str(), &status);
        return status.st_mode & 07777;
    }

    std::string folder;
};

} // namespace

TEST_F(WholeFileTest, IsReadWhole) {
    const std::string text = std::string(200'000, 'x') + std::string("\0end", 4);
    put("file", text);
    EXPECT_EQ(contentsOf(path("file"), text.size()), text);
    EXPECT_EQ(contentsOf(path("file"), text.size() - 1), posixErrorText(EFBIG));
    put("empty", "");
    EXPECT_EQ(contentsOf(path("empty")), "");
}

TEST_F(WholeFileTest, WhatIsNoFileIsNotRead) {
    EXPECT_EQ(contentsOf(path("nothing")), posixErrorText(ENOENT));
    EXPECT_EQ(contentsOf(""), posixErrorText(ENOENT));
    EXPECT_EQ(contentsOf(folder), posixErrorText(EISDIR));
    EXPECT_EQ(contentsOf("/dev/zero"), posixErrorText(ENOTSUP)) << "it has no end";
}

TEST_F(WholeFileTest, APipeThatNobodyWritesIsNotWaitedFor) {
    ASSERT_EQ(::mkfifo(path("pipe").c_str(), 0600), 0);
    EXPECT_EQ(contentsOf(path("pipe")), posixErrorText(ENOTSUP));
}

TEST_F(WholeFileTest, IsMadeAndReplaced) {
    EXPECT_EQ(objectionToReplacing(path("file")), std::nullopt);
    EXPECT_FALSE(std::filesystem::exists(path("file"))) << "looking makes nothing";
    EXPECT_EQ(replaceFile(path("file"), "one"), std::nullopt);
    EXPECT_EQ(contentsOf(path("file")), "one");
    EXPECT_EQ(objectionToReplacing(path("file")), std::nullopt);
    EXPECT_EQ(replaceFile(path("file"), "second"), std::nullopt);
    EXPECT_EQ(contentsOf(path("file")), "second");
    EXPECT_EQ(filesInFolder(), 1U);
}

TEST_F(WholeFileTest, WhoReadsTheOldContentsReadsThemToTheirEnd) {
    put("file", "the old contents");
    std::ifstream reader(path("file"));
    std::string word;
    reader >> word;
    ASSERT_EQ(replaceFile(path("file"), "new"), std::nullopt);
    std::string rest;
    std::getline(reader, rest);
    EXPECT_EQ(word + rest, "the old contents");
}

TEST_F(WholeFileTest, AFailureLeavesTheOldContentsAndNothingBesides) {
    put("file", "old");
    {
        const FileSizeLimit limit(10);
        EXPECT_EQ(replaceFile(path("file"), std::string(100, 'x')), posixError(EFBIG));
        EXPECT_EQ(replaceFile(path("fresh"), std::string(100, 'x')), posixError(EFBIG));
    }
    EXPECT_EQ(contentsOf(path("file")), "old");
    EXPECT_EQ(filesInFolder(), 1U);
}

TEST_F(WholeFileTest, ItsPermissionsStay) {
    put("file", "old");
    ::chmod(path("file").c_str(), 0640);
    ASSERT_EQ(replaceFile(path("file"), "new"), std::nullopt);
    EXPECT_EQ(permissionsOf(path("file")), 0640U);
    const mode_t mask = ::umask(0027);
    EXPECT_EQ(replaceFile(path("fresh"), "new"), std::nullopt);
    ::umask(mask);
    EXPECT_EQ(permissionsOf(path("fresh")), 0640U) << "a new one is as the person wants them";
}

TEST_F(WholeFileTest, ASymbolicLinkStaysAndItsFileIsReplaced) {
    std::filesystem::create_directory(path("elsewhere"));
    put("elsewhere/file", "old");
    std::filesystem::create_symlink("elsewhere/file", path("link"));
    EXPECT_EQ(objectionToReplacing(path("link")), std::nullopt);
    ASSERT_EQ(replaceFile(path("link"), "new"), std::nullopt);
    EXPECT_TRUE(std::filesystem::is_symlink(path("link")));
    EXPECT_EQ(contentsOf(path("elsewhere/file")), "new");
}

TEST_F(WholeFileTest, WhereNoFileCanBeReplacedIsSeenBefore) {
    EXPECT_EQ(objectionToReplacing("/nowhere/file"), posixError(ENOENT));
    EXPECT_EQ(objectionToReplacing(""), posixError(ENOENT));
    EXPECT_EQ(objectionToReplacing(folder), posixError(EISDIR));
    EXPECT_EQ(objectionToReplacing("/dev/null"), posixError(ENOTSUP));
    EXPECT_EQ(objectionToReplacing("/dev/null/file"), posixError(ENOTDIR));
    EXPECT_EQ(replaceFile("/nowhere/file", "new"), posixError(ENOENT));
}

TEST_F(WholeFileTest, AFileThatWasLeftBehindIsNotTakenForItsOwn) {
    const std::string left = ".kxnew-" + std::to_string(::getpid()) + "-0";
    put(left, "of a process that was killed");
    for (const char* text : {"made", "replaced"}) {
        ASSERT_EQ(replaceFile(path("file"), text), std::nullopt);
        EXPECT_EQ(contentsOf(path("file")), text);
    }
    EXPECT_EQ(contentsOf(path(left)), "of a process that was killed");
    EXPECT_EQ(filesInFolder(), 2U);
}

// The system kills the child when its file grows beyond the limit.
TEST_F(WholeFileTest, AProcessThatIsKilledWhileItWritesLeavesNothing) {
    put("file", "old");
    for (const char* name : {"file", "fresh"}) {
        const pid_t child = ::fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            const rlimit limit{10, 10};
            const rlimit noCore{0, 0};
            ::setrlimit(RLIMIT_FSIZE, &limit);
            ::setrlimit(RLIMIT_CORE, &noCore);
            replaceFile(path(name), std::string(100, 'x'));
            ::_exit(0);
        }
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGXFSZ) << status;
    }
    EXPECT_EQ(contentsOf(path("file")), "old");
    EXPECT_EQ(filesInFolder(), 1U);
}

} // namespace kx
