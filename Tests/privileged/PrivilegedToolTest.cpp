// The program itself, started as a stranger could start it. It runs in the tests' own view of the
// file systems (in_namespaces.sh), where another tool stands in the place of the ARP tool.

#include "linux/ReplacedFile.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using Words = std::vector<std::string>;
using kx::ReplacedFile;

constexpr auto arpTool = "/usr/sbin/arp";
constexpr mode_t executable = 0755;

// Says how it was called, on standard error, which is the only stream that reaches the caller.
constexpr auto sayingAll = "#!/bin/sh\n"
                           "{ for word in \"$0\" \"$@\"; do printf '<%s>' \"$word\"; done\n"
                           "printf ' env:'; /usr/bin/tr '\\0' ' ' </proc/$$/environ\n"
                           "printf ' fds:'; echo /proc/$$/fd/*\n"
                           "read line && printf ' read:%s' \"$line\"; } >&2\n"
                           "echo said on standard output\n"
                           "exit 9\n";

struct Ended {
    int status = -1;
    std::string error; // what was said on standard error
    std::string output;
};

std::string contentOf(const std::string& path) {
    std::ifstream file(path);
    std::stringstream text;
    text << file.rdbuf();
    return text.str();
}

class PrivilegedTool : public testing::Test {
protected:
    PrivilegedTool() {
        std::array<char, 32> name{"/tmp/kxarp-test-XXXXXX"};
        _folder = ::mkdtemp(name.data());
    }
    ~PrivilegedTool() override { std::system(("rm -rf " + _folder).c_str()); }

    // Runs the tool with these words behind its name. `closed` lists the standard descriptors that
    // the caller has closed.
    Ended run(const Words& words, const std::vector<int>& closed = {}, bool hasName = true) const {
        const std::string error = _folder + "/error";
        const std::string output = _folder + "/output";
        const pid_t child = ::fork();
        if (child == 0) {
            std::freopen(output.c_str(), "w", stdout);
            std::freopen(error.c_str(), "w", stderr);
            ::dup2(::open("/etc/passwd", O_RDONLY), STDIN_FILENO);
            ::dup2(STDIN_FILENO, 77); // a descriptor that a caller hands on
            for (const int descriptor : closed) {
                ::close(descriptor);
            }
            std::vector<char*> pointers;
            if (hasName) {
                pointers.push_back(const_cast<char*>("kxarp"));
            }
            for (const auto& word : words) {
                pointers.push_back(const_cast<char*>(word.c_str()));
            }
            pointers.push_back(nullptr);
            const char* const environment[] = {"PATH=/tmp", "LD_PRELOAD_X=1", "LANG=de_DE.UTF-8",
                                               nullptr};
            ::execve(KX_TOOL, pointers.data(), const_cast<char* const*>(environment));
            ::_exit(99);
        }
        int status = 0;
        ::waitpid(child, &status, 0);
        return {WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status), contentOf(error),
                contentOf(output)};
    }

private:
    std::string _folder;
};

} // namespace

TEST_F(PrivilegedTool, BecomesTheARPToolWithExactlyTheWordsAndNothingElseOfItsCaller) {
    const ReplacedFile tool(arpTool, sayingAll, executable);
    const Ended ended = run({"-s", "192.0.2.7", "02:4B:58:00:00:01"});
    EXPECT_EQ(ended.status, 9);
    EXPECT_TRUE(
        ended.error.starts_with("</usr/sbin/arp><-s><192.0.2.7><02:4B:58:00:00:01> env: fds:"))
        << ended.error;
    EXPECT_EQ(ended.error.find("/fd/77"), std::string::npos) << ended.error;
    EXPECT_EQ(ended.error.find("read:"), std::string::npos) << "it read a file of its caller";
    EXPECT_EQ(ended.output, "");
}

TEST_F(PrivilegedTool, RunsAlikeWhenItsCallerHasClosedTheStandardDescriptors) {
    const ReplacedFile tool(arpTool, sayingAll, executable);
    const std::string whole = run({"-s", "192.0.2.7", "02:4B:58:00:00:01"}).error;
    const auto known = [](const std::string& text) { return text.substr(0, text.find(" fds:")); };
    for (const auto& closed : {std::vector{0}, {1}, {0, 1}}) {
        EXPECT_EQ(known(run({"-s", "192.0.2.7", "02:4B:58:00:00:01"}, closed).error), known(whole));
    }
    const Ended mute = run({"-s", "192.0.2.7", "02:4B:58:00:00:01"}, {0, 1, 2});
    EXPECT_EQ(mute.status, 9);
    EXPECT_EQ(mute.error, "");
    EXPECT_EQ(run({"-x"}, {0, 1, 2}).status, 64);
}

TEST_F(PrivilegedTool, EndsWithAStatusAndOneSentenceAndRunsNothing) {
    const ReplacedFile tool(arpTool, sayingAll, executable);
    const auto expect = [this](const Words& words, int status, const std::string& beginning) {
        const Ended ended = run(words);
        EXPECT_EQ(ended.status, status) << testing::PrintToString(words);
        EXPECT_TRUE(ended.error.starts_with(beginning)) << ended.error;
        EXPECT_EQ(std::ranges::count(ended.error, '\n'), 1) << ended.error;
        EXPECT_EQ(ended.output, "");
    };
    expect({}, 64, "The ARP tool gets one address and one hardware address only.");
    expect({"-v", "-f", "/etc/shadow"}, 64, "The ARP tool gets");
    expect({"-s", "-v", "-f", "/etc/shadow"}, 64, "The ARP tool gets");
    expect({"-s", "192.0.2.7", "02:4B:58:00:00:01", "-f"}, 64, "The ARP tool gets");
    expect({"-s", "192.0.2.010", "02:4B:58:00:00:01"}, 65, "An address is four decimal numbers");
    expect({"-s", "unit.example", "02:4B:58:00:00:01"}, 65, "An address is four decimal numbers");
    expect({"-s", "192.0.2.7", "03:4B:58:00:00:01"}, 66, "A hardware address is six pairs");
    expect({"-d", "192.0.2.7", "-f"}, 66, "A hardware address is six pairs");
    EXPECT_EQ(run({}, {}, false).status, 64) << "without even a name";
}

namespace {

void shell(const std::string& command) {
    if (std::system(command.c_str()) != 0) {
        throw std::runtime_error(command);
    }
}

// Two links with entries of the real table.
class PrivilegedToolOnLinks : public PrivilegedTool {
protected:
    static void SetUpTestSuite() {
        for (const std::string link : {"kx8", "kx9"}) {
            shell("ip link add " + link + " type veth peer name p-" + link);
            shell("ip link set " + link + " up && ip link set p-" + link + " up");
            shell("ip address add 10." + link.substr(2) + ".0.1/24 dev " + link);
        }
        shell("ip neigh add 10.9.0.7 lladdr 02:4b:58:00:00:01 nud stale dev kx8");
        shell("ip neigh add 10.9.0.7 lladdr 02:4b:58:00:00:01 nud permanent dev kx9");
        shell("ip neigh add 10.9.0.8 lladdr 02:4b:58:00:00:01 nud stale dev kx9");
        shell("ip neigh add 10.9.0.9 lladdr 02:4b:58:00:00:02 nud permanent dev kx9");
    }
    static void TearDownTestSuite() { shell("ip link del kx8 && ip link del kx9"); }
};

} // namespace

TEST_F(PrivilegedToolOnLinks, TakesOutTheFixedEntryOfBothAddressesFromItsInterface) {
    const ReplacedFile tool(arpTool, sayingAll, executable);
    const Ended ended = run({"-d", "10.9.0.7", "02:4B:58:00:00:01"});
    EXPECT_EQ(ended.status, 9);
    EXPECT_TRUE(ended.error.starts_with("</usr/sbin/arp><-i><kx9><-d><10.9.0.7> env:"))
        << ended.error;
}

TEST_F(PrivilegedToolOnLinks, TakesOutNoOtherEntry) {
    const ReplacedFile tool(arpTool, sayingAll, executable);
    for (const Words& words : {Words{"-d", "10.9.0.8", "02:4B:58:00:00:01"},
                               {"-d", "10.9.0.9", "02:4B:58:00:00:01"},
                               {"-d", "10.9.0.10", "02:4B:58:00:00:01"}}) {
        const Ended ended = run(words);
        EXPECT_EQ(ended.status, 67);
        EXPECT_EQ(ended.error,
                  "The ARP cache has no fixed entry with this address and this hardware "
                  "address.\n");
    }
}

TEST_F(PrivilegedToolOnLinks, HasTheRealToolTakeTheEntryOut) {
    shell("ip neigh add 10.9.0.77 lladdr 02:4b:58:00:00:01 nud permanent dev kx9");
    EXPECT_EQ(run({"-d", "10.9.0.77", "02:4B:58:00:00:01"}).status, 0);
    EXPECT_NE(std::system("ip neigh show 10.9.0.77 nud permanent | grep -q ."), 0);
    EXPECT_EQ(run({"-s", "10.9.0.77", "02:4B:58:00:00:01"}).status, 0);
    EXPECT_EQ(std::system("ip neigh show 10.9.0.77 nud permanent | grep -q 02:4b:58:00:00:01"), 0);
}

TEST_F(PrivilegedTool, SaysThatTheTableOrTheToolIsMissing) {
    const ReplacedFile tool(arpTool, "no program", 0644);
    const Ended ended = run({"-s", "192.0.2.7", "02:4B:58:00:00:01"});
    EXPECT_EQ(ended.status, 69);
    EXPECT_EQ(ended.error, "The ARP tool cannot be run.\n");
    // In the view of the replaced file. Without root only an empty folder can be put there.
    ASSERT_TRUE(::mount("proc", "/proc", "proc", 0, "subset=pid") == 0 ||
                ::mount("none", "/proc", "tmpfs", 0, nullptr) == 0);
    EXPECT_EQ(run({"-d", "192.0.2.7", "02:4B:58:00:00:01"}).status, 68);
    ::umount2("/proc", MNT_DETACH);
}
