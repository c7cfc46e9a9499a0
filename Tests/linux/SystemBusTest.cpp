// The connection to a message bus, with a socket of the test in the bus's place.

#include "platform/linux/SystemBus.h"

#include "System Configuration/SystemCallWrappers.h"
#include "support/Pipe.h"

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <sys/un.h>
#include <systemd/sd-bus.h>
#include <unistd.h>

#include <cstdlib>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

namespace kx {

namespace {

using namespace std::chrono_literals;

void doNothing(int /*signal*/) {}

class ASystemBus : public testing::Test {
protected:
    ASystemBus() {
        EXPECT_NE(::mkdtemp(_folder.data()), nullptr);
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        path().copy(std::data(address.sun_path), sizeof address.sun_path - 1);
        EXPECT_EQ(
            ::bind(_socket.number(), reinterpret_cast<const sockaddr*>(&address), sizeof address),
            0);
        EXPECT_EQ(::listen(_socket.number(), 1), 0);
        ::setenv("DBUS_SYSTEM_BUS_ADDRESS", ("unix:path=" + path()).c_str(), 1);
    }
    ~ASystemBus() override {
        ::unsetenv("DBUS_SYSTEM_BUS_ADDRESS");
        ::unlink(path().c_str());
        ::rmdir(_folder.c_str());
    }

    // Greets its first caller after this time, and ends when the caller does. The thread blocks
    // signals, because they are for the caller's thread.
    std::thread greetAfter(std::chrono::milliseconds time) const {
        sigset_t all;
        sigset_t before;
        sigfillset(&all);
        ::pthread_sigmask(SIG_BLOCK, &all, &before);
        std::thread bus([this, time] {
            const int caller = ::accept4(_socket.number(), nullptr, nullptr, SOCK_CLOEXEC);
            std::this_thread::sleep_for(time);
            serve(caller);
        });
        ::pthread_sigmask(SIG_SETMASK, &before, nullptr);
        return bus;
    }

    std::string path() const { return _folder + "/bus"; }

private:
    static int answer(sd_bus_message* message, void* /*unused*/, sd_bus_error* /*error*/) {
        if (sd_bus_message_is_method_call(message, "org.freedesktop.DBus", "Hello") > 0) {
            return sd_bus_reply_method_return(message, "s", ":1.1");
        }
        if (sd_bus_message_is_method_call(message, "org.freedesktop.DBus", "AddMatch") > 0) {
            const char* rule = nullptr;
            sd_bus_message_read(message, "s", &rule);
            return std::string_view(rule).find("kx.Refused") == std::string_view::npos
                       ? sd_bus_reply_method_return(message, nullptr)
                       : sd_bus_reply_method_errorf(message, SD_BUS_ERROR_LIMITS_EXCEEDED, "full");
        }
        if (sd_bus_message_is_method_call(message, "kx.Test", "Signal") > 0) {
            sd_bus_message* signal = nullptr;
            sd_bus* const bus = sd_bus_message_get_bus(message);
            sd_bus_message_new_signal(bus, &signal, "/", "kx.Test", "Rang");
            sd_bus_message_set_sender(signal, ":1.7");
            sd_bus_message_append(signal, "s", "first");
            sd_bus_send(bus, signal, nullptr);
            sd_bus_message_unref(signal);
            return sd_bus_reply_method_return(message, "s", "done");
        }
        if (sd_bus_message_is_method_call(message, "kx.Test", "Refuse") > 0) {
            return sd_bus_reply_method_errorf(message, SD_BUS_ERROR_FAILED, "refused");
        }
        if (sd_bus_message_is_method_call(message, "kx.Test", "End") > 0) {
            return sd_bus_reply_method_errorf(message, SD_BUS_ERROR_NO_REPLY, "ended");
        }
        return 1; // no answer
    }

    static void serve(int caller) {
        sd_bus* bus = nullptr;
        sd_id128_t identity{};
        sd_id128_randomize(&identity);
        ASSERT_GE(sd_bus_new(&bus), 0);
        ASSERT_GE(sd_bus_set_fd(bus, caller, caller), 0);
        ASSERT_GE(sd_bus_set_server(bus, 1, identity), 0);
        ASSERT_GE(sd_bus_add_filter(bus, nullptr, answer, nullptr), 0);
        ASSERT_GE(sd_bus_start(bus), 0);
        int result = 0;
        while (result >= 0) {
            result = sd_bus_process(bus, nullptr);
            if (result == 0) {
                result = sd_bus_wait(bus, UINT64_MAX);
            }
        }
        sd_bus_close_unref(bus);
    }

    std::string _folder = testing::TempDir() + "kx-bus-XXXXXX";
    FileDescriptor _socket{::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0)};
};

} // namespace

TEST_F(ASystemBus, ThatSaysNothingInTimeCountsAsNone) {
    const SystemBus bus(20ms);
    EXPECT_FALSE(bus.isOpen());
    EXPECT_EQ(bus.descriptor(), -1);
}

TEST_F(ASystemBus, ThatNobodyServesCountsAsNone) {
    ::setenv("DBUS_SYSTEM_BUS_ADDRESS", ("unix:path=" + path() + "-of-nobody").c_str(), 1);
    EXPECT_FALSE(SystemBus(10s).isOpen());
}

TEST_F(ASystemBus, IsWaitedForThoughSignalsArrive) {
    const SignalHandler previous = Signal(SIGALRM, doNothing);
    auto host = greetAfter(100ms);
    itimerval timer{};
    timer.it_interval.tv_usec = timer.it_value.tv_usec = 5000;
    EXPECT_EQ(::setitimer(ITIMER_REAL, &timer, nullptr), 0);
    EXPECT_TRUE(SystemBus(10s).isOpen());
    timer = {};
    ::setitimer(ITIMER_REAL, &timer, nullptr);
    host.join();
    Signal(SIGALRM, previous);
}

TEST_F(ASystemBus, WithoutAConnectionFinishesEachCallAtOnce) {
    SystemBus bus(20ms);
    EXPECT_EQ(bus.method("kx.Test", "/", "kx.Test", "Signal"), nullptr);
    const auto call = bus.call(nullptr, [] { FAIL() << "it was finished before"; });
    EXPECT_TRUE(call->isFinished());
    EXPECT_EQ(call->reply(), nullptr);
    EXPECT_FALSE(call->isWithoutReply());
}

TEST_F(ASystemBus, CarriesCallsTheirAnswersAndSignals) {
    auto host = greetAfter(0ms);
    {
        std::vector<std::string> heard;
        SystemBus bus(10s, [&heard](sd_bus_message* signal) {
            heard = textsIn(signal, 1).value_or(std::vector<std::string>());
            EXPECT_EQ(textsIn(signal, 2), std::nullopt) << "it has one";
            EXPECT_EQ(senderOf(signal), ":1.7");
        });
        bus.hearSignals("kx.Test", "kx.Test", "Rang", "first");
        bool isTold = false;
        const auto call =
            bus.call(bus.method("kx.Test", "/", "kx.Test", "Signal"), [&] { isTold = true; });
        EXPECT_FALSE(call->isFinished());
        EXPECT_EQ(call->reply(), nullptr);
        bus.processUntil([&] { return isTold; }, 10s);
        EXPECT_EQ(textsIn(call->reply(), 1), std::vector<std::string>{"done"});
        EXPECT_EQ(textsIn(call->reply(), 1), std::vector<std::string>{"done"}) << "read again";
        EXPECT_EQ(heard, std::vector<std::string>{"first"}) << "it came before the answer";
    }
    host.join();
}

TEST_F(ASystemBus, MayRefuseARuleAndGoesOn) {
    auto host = greetAfter(0ms);
    {
        SystemBus bus(10s);
        bus.hearSignals("kx.Test", "kx.Refused", "Rang");
        const auto call = bus.call(bus.method("kx.Test", "/", "kx.Test", "Signal"));
        bus.processUntil([&] { return call->isFinished(); }, 10s);
        EXPECT_NE(call->reply(), nullptr);
        EXPECT_TRUE(bus.isOpen());
    }
    host.join();
}

TEST_F(ASystemBus, TellsARefusalFromACalledProgramThatHasEnded) {
    auto host = greetAfter(0ms);
    {
        SystemBus bus(10s);
        const auto refused = bus.call(bus.method("kx.Test", "/", "kx.Test", "Refuse"));
        const auto ended = bus.call(bus.method("kx.Test", "/", "kx.Test", "End"));
        bus.processUntil([&] { return ended->isFinished(); }, 10s);
        EXPECT_EQ(refused->reply(), nullptr);
        EXPECT_FALSE(refused->isWithoutReply());
        EXPECT_EQ(ended->reply(), nullptr);
        EXPECT_TRUE(ended->isWithoutReply());
    }
    host.join();
}

TEST_F(ASystemBus, IsNotWaitedForWithoutAnEnd) {
    auto host = greetAfter(0ms);
    {
        SystemBus bus(10s);
        bus.processUntil([] { return false; }, 20ms);
        EXPECT_TRUE(bus.isOpen());
    }
    host.join();
}

TEST_F(ASystemBus, HasTheAnswerForACallerWhoIsLate) {
    auto host = greetAfter(0ms);
    {
        SystemBus bus(10s);
        const auto call = bus.call(bus.method("kx.Test", "/", "kx.Test", "Signal"));
        std::this_thread::sleep_for(200ms);
        bus.processUntil([&] { return call->isFinished(); }, 0ms);
        EXPECT_TRUE(call->isFinished());
    }
    host.join();
}

TEST_F(ASystemBus, ThatEndsFinishesTheCallsAndSaysSoOnce) {
    auto host = greetAfter(0ms);
    int ends = 0;
    int finished = 0;
    SystemBus bus(10s, nullptr, [&ends] { ++ends; });
    const auto call =
        bus.call(bus.method("kx.Test", "/", "kx.Test", "Nothing"), [&finished] { ++finished; });
    ::shutdown(bus.descriptor(), SHUT_RDWR);
    bus.processUntil([&] { return ends > 0; }, 10s);
    bus.process();
    EXPECT_EQ(ends, 1);
    EXPECT_EQ(finished, 1);
    EXPECT_FALSE(bus.isOpen());
    EXPECT_TRUE(call->isFinished());
    EXPECT_EQ(call->reply(), nullptr);
    host.join();
}

TEST_F(ASystemBus, MayBeDestroyedByWhoeverHearsItsEnd) {
    auto host = greetAfter(0ms);
    std::unique_ptr<SystemBus> bus;
    bus = std::make_unique<SystemBus>(10s, nullptr, [&bus] { bus.reset(); });
    ::shutdown(bus->descriptor(), SHUT_RDWR);
    bus->process();
    EXPECT_EQ(bus, nullptr);
    host.join();
}

TEST_F(ASystemBus, MayBeDestroyedByWhoeverHearsASignal) {
    auto host = greetAfter(0ms);
    std::unique_ptr<SystemBus> bus;
    bus = std::make_unique<SystemBus>(10s, [&bus](sd_bus_message*) { bus.reset(); });
    bus->hearSignals("kx.Test", "kx.Test", "Rang");
    const auto call = bus->call(bus->method("kx.Test", "/", "kx.Test", "Signal"));
    bus->processUntil([&bus] { return bus == nullptr; }, 10s);
    EXPECT_EQ(bus, nullptr);
    EXPECT_FALSE(call->isFinished()) << "the answer came behind the signal";
    host.join();
}

TEST_F(ASystemBus, TellsNobodyOfACallThatWasDropped) {
    auto host = greetAfter(0ms);
    {
        SystemBus bus(10s);
        bus.call(bus.method("kx.Test", "/", "kx.Test", "Signal"),
                 [] { FAIL() << "it was dropped"; });
        const auto next = bus.call(bus.method("kx.Test", "/", "kx.Test", "Refuse"));
        bus.processUntil([&] { return next->isFinished(); }, 10s);
        EXPECT_TRUE(next->isFinished());
    }
    host.join();
}

} // namespace kx
