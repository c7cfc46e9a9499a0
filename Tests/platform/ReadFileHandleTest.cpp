#include "System Configuration/SystemCallWrappers.h"
#include "doubles/NoMemory.h"
#include "support/Pipe.h"
#include "support/TaskSupport.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/time.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <string>

namespace kx {

namespace {

int alarmDescriptor = -1;
volatile std::sig_atomic_t alarmCount = 0;

void ringSoon() {
    itimerval timer = {};
    timer.it_value.tv_usec = 2000;
    ::setitimer(ITIMER_REAL, &timer, nullptr);
}

// The first alarm only interrupts. The second one writes the awaited bytes.
void interruptThenWrite(int /*signal*/) {
    alarmCount = alarmCount + 1;
    if (alarmCount == 1) {
        ringSoon();
        return;
    }
    static_cast<void>(::write(alarmDescriptor, "x", 1) == 1);
}

// While this object lives, the process may open as many descriptors as the system allows.
class MoreDescriptors {
public:
    MoreDescriptors() {
        EXPECT_EQ(::getrlimit(RLIMIT_NOFILE, &_before), 0);
        const rlimit most{_before.rlim_max, _before.rlim_max};
        EXPECT_EQ(::setrlimit(RLIMIT_NOFILE, &most), 0);
    }
    ~MoreDescriptors() { ::setrlimit(RLIMIT_NOFILE, &_before); }
    MoreDescriptors(const MoreDescriptors&) = delete;
    MoreDescriptors& operator=(const MoreDescriptors&) = delete;

private:
    rlimit _before{};
};

class ReadFileHandle : public testing::Test {
protected:
    // After this, a read gives the bytes of one write and no more.
    void makePacketPipe() {
        std::array<int, 2> ends{};
        ASSERT_EQ(::pipe2(ends.data(), O_CLOEXEC | O_DIRECT), 0);
        pipe.readingEnd = FileDescriptor(ends[0]);
        pipe.writingEnd = FileDescriptor(ends[1]);
    }

    void write(const std::string& bytes) {
        ASSERT_EQ(Write(pipe.writingEnd.number(), bytes.data(), bytes.size()),
                  static_cast<ssize_t>(bytes.size()));
    }

    // Reads once into a fresh object.
    std::int32_t read() {
        data.reset();
        return readFileHandle(pipe.readingEnd.number(), &data);
    }

    std::string text() const {
        return data.has_value() ? std::string(data->begin(), data->end()) : "(no data)";
    }

    Pipe pipe;
    std::optional<MutableData> data;
};

} // namespace

TEST_F(ReadFileHandle, AThousandBytesAreReadAs512And488AndThenTheEnd) {
    std::string bytes;
    for (int i = 0; i < 1000; ++i) {
        bytes += static_cast<char>(i % 251);
    }
    write(bytes);
    pipe.writingEnd.close();
    EXPECT_EQ(read(), 512);
    EXPECT_EQ(text(), bytes.substr(0, 512));
    EXPECT_EQ(read(), 488);
    EXPECT_EQ(text(), bytes.substr(512));
    EXPECT_EQ(read(), -1);
    EXPECT_FALSE(data.has_value());
    EXPECT_EQ(read(), -1);
}

TEST_F(ReadFileHandle, WhatHasArrivedIsReturnedThoughTheWriterGoesOn) {
    write("first");
    EXPECT_EQ(read(), 5);
    EXPECT_EQ(text(), "first");
    write("second");
    EXPECT_EQ(read(), 6);
    EXPECT_EQ(text(), "second");
}

TEST_F(ReadFileHandle, ExactlyOneChunkNeedsNoMore) {
    write(std::string(512, 'x'));
    EXPECT_EQ(read(), 512);
    write("y");
    EXPECT_EQ(read(), 1);
    EXPECT_EQ(text(), "y");
}

TEST_F(ReadFileHandle, TheEndBehindSomethingIsLeftToTheNextCall) {
    write("last");
    pipe.writingEnd.close();
    EXPECT_EQ(read(), 4);
    EXPECT_EQ(text(), "last");
    EXPECT_EQ(read(), -1);
}

TEST_F(ReadFileHandle, WithoutAPlaceForTheDataNothingIsRead) {
    write("kept");
    EXPECT_EQ(readFileHandle(pipe.readingEnd.number(), nullptr), -1);
    EXPECT_EQ(read(), 4);
}

TEST_F(ReadFileHandle, DataThatIsThereAlreadyIsNotReplaced) {
    write("kept");
    data.emplace();
    EXPECT_EQ(readFileHandle(pipe.readingEnd.number(), &data), -1);
    EXPECT_EQ(text(), "");
    EXPECT_EQ(read(), 4);
}

TEST_F(ReadFileHandle, WithoutMemoryNothingIsRead) {
    write("kept");
    {
        const NoMemory noMemory;
        EXPECT_EQ(read(), -1);
        EXPECT_FALSE(data.has_value());
    }
    EXPECT_EQ(read(), 4);
}

TEST_F(ReadFileHandle, AnErrorIsTold) {
    EXPECT_EQ(readFileHandle(-1, &data), -1);
    EXPECT_EQ(errno, EBADF);
    EXPECT_FALSE(data.has_value());
    ASSERT_EQ(::fcntl(pipe.readingEnd.number(), F_SETFL, O_NONBLOCK), 0);
    EXPECT_EQ(read(), -1);
    EXPECT_EQ(errno, EAGAIN);
    EXPECT_FALSE(data.has_value());
}

TEST_F(ReadFileHandle, ASignalDoesNotEndTheWait) {
    alarmCount = 0;
    alarmDescriptor = pipe.writingEnd.number();
    const SignalHandler before = Signal(SIGALRM, interruptThenWrite);
    ringSoon();
    EXPECT_EQ(read(), 1);
    EXPECT_EQ(text(), "x");
    EXPECT_EQ(alarmCount, 2);
    Signal(SIGALRM, before);
}

TEST_F(ReadFileHandle, WhatArrivesInPiecesIsReadOnWhileThereIsRoom) {
    makePacketPipe();
    write("first");
    write("second");
    EXPECT_EQ(read(), 11);
    EXPECT_EQ(text(), "firstsecond");

    write(std::string(500, 'x'));
    write("twelve bytes"); // fills the remaining room
    write("rest");
    EXPECT_EQ(read(), 512);
    EXPECT_EQ(text(), std::string(500, 'x') + "twelve bytes");
    EXPECT_EQ(read(), 4);
}

// The shortest of several waits counts, because this process may be kept from running.
TEST_F(ReadFileHandle, MoreIsWaitedForNoLongerThanAMoment) {
    using Clock = std::chrono::steady_clock;
    auto shortest = Clock::duration::max();
    for (int i = 0; i < 20; ++i) {
        write("x");
        const auto start = Clock::now();
        EXPECT_EQ(read(), 1);
        shortest = std::min(shortest, Clock::now() - start);
    }
    EXPECT_LT(shortest, std::chrono::milliseconds(5));
}

TEST_F(ReadFileHandle, ADescriptorBeyondTheReachOfSelectIsReadPieceByPiece) {
    const MoreDescriptors more;
    makePacketPipe();
    for (const int number : {FD_SETSIZE, FD_SETSIZE + 1}) {
        const FileDescriptor high(::fcntl(pipe.readingEnd.number(), F_DUPFD_CLOEXEC, number));
        ASSERT_EQ(high.number(), number);
        write("first");
        write("second");
        data.reset();
        ASSERT_EQ(readFileHandle(high.number(), &data), 5);
        EXPECT_EQ(text(), "first");
        data.reset();
        EXPECT_EQ(readFileHandle(high.number(), &data), 6);
        EXPECT_EQ(text(), "second");
    }
    const FileDescriptor high(::fcntl(pipe.readingEnd.number(), F_DUPFD_CLOEXEC, FD_SETSIZE));
    pipe.writingEnd.close();
    data.reset();
    EXPECT_EQ(readFileHandle(high.number(), &data), -1);
}

TEST_F(ReadFileHandle, TheLastDescriptorWithinTheReachOfSelectIsReadLikeAnyOther) {
    const MoreDescriptors more;
    makePacketPipe();
    const FileDescriptor last(::fcntl(pipe.readingEnd.number(), F_DUPFD_CLOEXEC, FD_SETSIZE - 1));
    ASSERT_EQ(last.number(), FD_SETSIZE - 1);
    write("first");
    write("second");
    EXPECT_EQ(readFileHandle(last.number(), &data), 11);
    EXPECT_EQ(text(), "firstsecond");
}

} // namespace kx
