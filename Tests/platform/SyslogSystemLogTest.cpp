// A host whose system log, or whose reader of standard error, does not work.

#include "platform/posix/SyslogSystemLog.h"

#include "StandardError.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/un.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <regex>

namespace kx {

namespace {

// The daemon's end of a log.
class LogSocket {
public:
    explicit LogSocket(const std::string& path)
        : _descriptor(::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0)) {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        path.copy(std::data(address.sun_path), sizeof address.sun_path - 1);
        EXPECT_EQ(::bind(_descriptor.number(), reinterpret_cast<const sockaddr*>(&address),
                         sizeof address),
                  0);
    }

    // The next line; absent when there is none.
    std::optional<std::string> read() {
        std::string line(10000, '\0');
        const ssize_t length = ::recv(_descriptor.number(), line.data(), line.size(), 0);
        if (length < 0) {
            return std::nullopt;
        }
        line.resize(static_cast<std::size_t>(length));
        return line;
    }

private:
    FileDescriptor _descriptor;
};

class SyslogSystemLogFaults : public testing::Test {
protected:
    void TearDown() override { std::filesystem::remove_all(folder); }

    bool readsLine(LogSocket& socket, const std::string& line) const {
        const auto read = socket.read();
        return read.has_value() && read->ends_with(prefix() + line);
    }
    static std::string prefix() { return "kxtests[" + std::to_string(::getpid()) + "]: "; }

    std::string folder = ::mkdtemp(std::string("/tmp/kx-log-XXXXXX").data());
    std::string path = folder + "/log";
    SyslogSystemLog log{"kxtests", path};
};

void fill(int descriptor) {
    const int flags = ::fcntl(descriptor, F_GETFL);
    ::fcntl(descriptor, F_SETFL, flags | O_NONBLOCK);
    const std::string bytes(PIPE_BUF, 'x');
    while (::write(descriptor, bytes.data(), bytes.size()) > 0) {
    }
    ::fcntl(descriptor, F_SETFL, flags);
}

} // namespace

TEST_F(SyslogSystemLogFaults, TheHostsLogGetsALineAsItsDaemonsReadIt) {
    CapturedStandardError captured;
    LogSocket socket(path);
    log.write("a line");
    const auto line = socket.read();
    ASSERT_TRUE(line.has_value());
    const std::regex form("<13>(Jan|Feb|Mar|Apr|May|Jun|Jul|Aug|Sep|Oct|Nov|Dec) "
                          "[ 1-3][0-9] [0-2][0-9]:[0-5][0-9]:[0-6][0-9] "
                          R"(kxtests\[[0-9]+\]: a line)");
    EXPECT_TRUE(std::regex_match(*line, form)) << *line;
    EXPECT_EQ(captured.text(), prefix() + "a line\n");
}

TEST_F(SyslogSystemLogFaults, WithoutALogStandardErrorHasTheLinesAndALogThatComesGetsTheNext) {
    CapturedStandardError captured;
    log.write("first");
    LogSocket socket(path);
    log.write("second");
    EXPECT_TRUE(readsLine(socket, "second"));
    EXPECT_EQ(captured.text(), prefix() + "first\n" + prefix() + "second\n");
}

TEST_F(SyslogSystemLogFaults, ALogThatWasStartedAnewGetsTheNextLine) {
    CapturedStandardError captured;
    std::optional<LogSocket> socket(path);
    log.write("first");
    socket.reset();
    log.write("second");
    std::filesystem::remove(path);
    socket.emplace(path);
    log.write("third");
    EXPECT_TRUE(readsLine(*socket, "third"));
}

TEST_F(SyslogSystemLogFaults, ALogThatNobodyReadsHoldsNobodyUp) {
    CapturedStandardError captured;
    LogSocket socket(path);
    constexpr int written = 2000; // more than any socket keeps; write() must not hang
    for (int i = 0; i < written; ++i) {
        log.write(std::string(1000, 'x'));
    }
    int kept = 0;
    while (socket.read().has_value()) {
        ++kept;
    }
    EXPECT_GT(kept, 0);
    EXPECT_LT(kept, written);
    log.write("once it is read again");
    EXPECT_TRUE(readsLine(socket, "once it is read again"));
}

TEST_F(SyslogSystemLogFaults, WithoutADescriptorStandardErrorHasTheLines) {
    CapturedStandardError captured;
    LogSocket socket(path);
    rlimit before{};
    ASSERT_EQ(::getrlimit(RLIMIT_NOFILE, &before), 0);
    rlimit none = before;
    none.rlim_cur = STDERR_FILENO + 1;
    ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &none), 0);
    SyslogSystemLog poor("kxtests", path);
    poor.write("first");
    ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &before), 0);
    poor.write("second");
    EXPECT_TRUE(readsLine(socket, "second"));
    EXPECT_EQ(captured.text(), prefix() + "first\n" + prefix() + "second\n");
}

TEST_F(SyslogSystemLogFaults, StandardErrorThatNobodyReadsHoldsNobodyUp) {
    LogSocket socket(path);
    Pipe pipe;
    fill(pipe.writingEnd.number());
    {
        const ReplacedStandardError standardError(pipe.writingEnd.number());
        log.write("a line"); // must not hang
        log.write(std::string(std::size_t{5} * PIPE_BUF, 'x'));
    }
    EXPECT_TRUE(readsLine(socket, "a line"));
}

TEST_F(SyslogSystemLogFaults, StandardErrorThatIsGoneEndsNobody) {
    LogSocket socket(path);
    Pipe pipe;
    pipe.readingEnd.close();
    {
        const ReplacedStandardError standardError(pipe.writingEnd.number());
        log.write("a line");
    }
    EXPECT_TRUE(readsLine(socket, "a line"));
}

TEST_F(SyslogSystemLogFaults, AFullDiskUnderStandardErrorIsNoReasonToStop) {
    LogSocket socket(path);
    const FileDescriptor full(::open("/dev/full", O_WRONLY | O_CLOEXEC));
    {
        const ReplacedStandardError standardError(full.number());
        log.write("a line");
    }
    EXPECT_TRUE(readsLine(socket, "a line"));
}

} // namespace kx
