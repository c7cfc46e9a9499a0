#include "System Configuration/SystemCallWrappers.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/time.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>

namespace kx {

namespace {

// The descriptor to which the alarm's handler writes, so that the interrupted call can end.
int alarmDescriptor = -1;
volatile std::sig_atomic_t alarmCount = 0;

void ringOnce() {
    itimerval timer = {};
    timer.it_value.tv_usec = 2000;
    ASSERT_EQ(::setitimer(ITIMER_REAL, &timer, nullptr), 0);
}

// The first alarm only interrupts. The second one lets the call succeed.
void interruptThenWrite(int /*signal*/) {
    alarmCount = alarmCount + 1;
    if (alarmCount == 1) {
        itimerval timer = {};
        timer.it_value.tv_usec = 2000;
        ::setitimer(ITIMER_REAL, &timer, nullptr);
        return;
    }
    const char byte = 'x';
    static_cast<void>(::write(alarmDescriptor, &byte, 1) == 1);
}

void interruptThenDrain(int /*signal*/) {
    alarmCount = alarmCount + 1;
    if (alarmCount == 1) {
        itimerval timer = {};
        timer.it_value.tv_usec = 2000;
        ::setitimer(ITIMER_REAL, &timer, nullptr);
        return;
    }
    std::array<char, 65536> bytes{};
    static_cast<void>(::read(alarmDescriptor, bytes.data(), bytes.size()) > 0);
}

void doNothing(int /*signal*/) {}
void doNothingEither(int /*signal*/) {}

class SystemCallWrappers : public testing::Test {
protected:
    SystemCallWrappers() {
        EXPECT_EQ(::pipe(_ends), 0);
        alarmCount = 0;
    }
    void TearDown() override {
        ::close(readingEnd());
        ::close(writingEnd());
        if (_previous != SIG_ERR) {
            Signal(SIGALRM, _previous);
        }
    }

    int readingEnd() const { return _ends[0]; }
    int writingEnd() const { return _ends[1]; }

    // Two alarms, each of which interrupts a system call.
    void alarmTwice(SignalHandler handler, int descriptor) {
        alarmDescriptor = descriptor;
        _previous = Signal(SIGALRM, handler);
        ASSERT_NE(_previous, SIG_ERR);
        ringOnce();
    }

private:
    int _ends[2] = {-1, -1};
    SignalHandler _previous = SIG_ERR;
};

struct sigaction installedAction(int signalNumber) {
    struct sigaction action = {};
    EXPECT_EQ(::sigaction(signalNumber, nullptr, &action), 0);
    return action;
}

} // namespace

TEST_F(SystemCallWrappers, ReadGoesOnAfterAnInterruption) {
    alarmTwice(interruptThenWrite, writingEnd());
    char byte = 0;
    EXPECT_EQ(Read(readingEnd(), &byte, 1), 1);
    EXPECT_EQ(byte, 'x');
    EXPECT_EQ(alarmCount, 2);
}

TEST_F(SystemCallWrappers, SelectGoesOnAfterAnInterruption) {
    alarmTwice(interruptThenWrite, writingEnd());
    fd_set readable;
    FD_ZERO(&readable);
    FD_SET(readingEnd(), &readable);
    timeval timeout = {10, 0};
    EXPECT_EQ(Select(readingEnd() + 1, &readable, nullptr, nullptr, &timeout), 1);
    EXPECT_EQ(alarmCount, 2);
}

TEST_F(SystemCallWrappers, WriteGoesOnAfterAnInterruption) {
    ASSERT_EQ(::fcntl(writingEnd(), F_SETFL, O_NONBLOCK), 0);
    const std::array<char, 4096> block{};
    while (::write(writingEnd(), block.data(), block.size()) > 0) {
    }
    ASSERT_EQ(::fcntl(writingEnd(), F_SETFL, 0), 0);
    alarmTwice(interruptThenDrain, readingEnd());
    EXPECT_EQ(Write(writingEnd(), block.data(), block.size()), static_cast<ssize_t>(block.size()));
    EXPECT_EQ(alarmCount, 2);
}

TEST_F(SystemCallWrappers, OtherFailuresAndTheEndAreReturnedAtOnce) {
    char byte = 0;
    errno = 0;
    EXPECT_EQ(Read(-1, &byte, 1), -1);
    EXPECT_EQ(errno, EBADF);
    EXPECT_EQ(Write(-1, &byte, 1), -1);
    EXPECT_EQ(errno, EBADF);
    EXPECT_EQ(Close(-1), -1);
    EXPECT_EQ(errno, EBADF);
    timeval noTime = {0, 0};
    EXPECT_EQ(Select(0, nullptr, nullptr, nullptr, &noTime), 0);
    EXPECT_EQ(Select(-1, nullptr, nullptr, nullptr, &noTime), -1);
    EXPECT_EQ(errno, EINVAL);
}

TEST_F(SystemCallWrappers, CloseClosesTheDescriptor) {
    const int descriptor = ::dup(readingEnd());
    EXPECT_EQ(Close(descriptor), 0);
    EXPECT_EQ(::fcntl(descriptor, F_GETFD), -1);
    EXPECT_EQ(errno, EBADF);
}

TEST(Signal, InstallsAHandlerThatRestartsSystemCallsAndBlocksNothing) {
    const SignalHandler previous = Signal(SIGUSR1, doNothing);
    ASSERT_NE(previous, SIG_ERR);
    const auto action = installedAction(SIGUSR1);
    EXPECT_EQ(action.sa_handler, doNothing);
    EXPECT_NE(action.sa_flags & SA_RESTART, 0);
    EXPECT_EQ(sigismember(&action.sa_mask, SIGUSR2), 0);
    EXPECT_EQ(Signal(SIGUSR1, previous), doNothing) << "the previous handler is returned";
}

TEST(Signal, EachHandlerIsReturnedByTheInstallationOfTheNext) {
    const SignalHandler atFirst = installedAction(SIGUSR1).sa_handler;
    EXPECT_EQ(Signal(SIGUSR1, doNothing), atFirst);
    EXPECT_EQ(Signal(SIGUSR1, doNothingEither), doNothing);
    EXPECT_EQ(Signal(SIGUSR1, atFirst), doNothingEither);
    EXPECT_EQ(installedAction(SIGUSR1).sa_handler, atFirst);
}

TEST(Signal, AnAlarmInterruptsSystemCalls) {
    const SignalHandler previous = Signal(SIGALRM, doNothing);
    ASSERT_NE(previous, SIG_ERR);
    EXPECT_EQ(installedAction(SIGALRM).sa_flags & SA_RESTART, 0);
    Signal(SIGALRM, previous);
}

TEST(Signal, WhatTheSystemRefusesIsAnError) {
    EXPECT_EQ(Signal(SIGKILL, doNothing), SIG_ERR);
    EXPECT_EQ(Signal(-1, doNothing), SIG_ERR);
}

} // namespace kx
