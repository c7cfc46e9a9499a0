// The probe of a message bus, with a socket of the test in the bus's place.

#include "platform/qtcore/BusProbe.h"

#include "System Configuration/SystemCallWrappers.h"
#include "support/Pipe.h"

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstdlib>
#include <string>
#include <thread>

namespace kx {

namespace {

using namespace std::chrono_literals;

void doNothing(int /*signal*/) {}

class BusProbe : public testing::Test {
protected:
    BusProbe() {
        EXPECT_NE(::mkdtemp(_folder.data()), nullptr);
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        path().copy(std::data(address.sun_path), sizeof address.sun_path - 1);
        EXPECT_EQ(
            ::bind(_socket.number(), reinterpret_cast<const sockaddr*>(&address), sizeof address),
            0);
        EXPECT_EQ(::listen(_socket.number(), 1), 0);
    }
    ~BusProbe() override {
        ::unlink(path().c_str());
        ::rmdir(_folder.c_str());
    }

    std::string address() const { return "unix:path=" + path(); }

    // The bus answers its first caller after this time. The thread blocks signals, because they are
    // for the caller's thread.
    std::thread answerAfter(std::chrono::milliseconds time) const {
        sigset_t all;
        sigset_t before;
        sigfillset(&all);
        ::pthread_sigmask(SIG_BLOCK, &all, &before);
        std::thread bus([this, time] {
            const FileDescriptor caller(::accept(_socket.number(), nullptr, nullptr));
            std::this_thread::sleep_for(time);
            EXPECT_EQ(::send(caller.number(), "OK\r\n", 4, MSG_NOSIGNAL), 4);
        });
        ::pthread_sigmask(SIG_SETMASK, &before, nullptr);
        return bus;
    }

private:
    std::string path() const { return _folder + "/bus"; }

    std::string _folder = testing::TempDir() + "kx-bus-XXXXXX";
    FileDescriptor _socket{::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0)};
};

} // namespace

TEST_F(BusProbe, ABusThatSaysNothingInTimeDoesNotAnswer) {
    EXPECT_FALSE(busAnswers(address(), 20ms));
}

TEST_F(BusProbe, ABusThatNobodyServesDoesNotAnswer) {
    EXPECT_FALSE(busAnswers(address() + "-of-nobody", 10s));
}

TEST_F(BusProbe, ABusIsWaitedForThoughSignalsArrive) {
    const SignalHandler previous = Signal(SIGALRM, doNothing);
    auto bus = answerAfter(100ms);
    itimerval timer{};
    timer.it_interval.tv_usec = timer.it_value.tv_usec = 5000;
    EXPECT_EQ(::setitimer(ITIMER_REAL, &timer, nullptr), 0);
    EXPECT_TRUE(busAnswers(address(), 10s));
    timer = {};
    ::setitimer(ITIMER_REAL, &timer, nullptr);
    bus.join();
    Signal(SIGALRM, previous);
}

} // namespace kx
