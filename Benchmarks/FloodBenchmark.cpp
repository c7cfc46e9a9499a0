// A flood: another process sends replies of ten thousand units over loopback as fast as it can. The
// real window takes in as many of them as it can, with its drawer closed, its event log being
// written and the record of the session being kept; then a bare loop of recvfrom(2) does so for the
// same time. Both have the receive buffer that the window asks for. The rest is dropped by the
// system.
//
// Each side takes two seconds, or as many as KX_FLOOD_SECONDS says, at most 60.

#include "Comparison.h"
#include "LoopbackCalls.h"
#include "ReadAheadSystemCalls.h"
#include "ShownWindow.h"
#include "platform/linux/LinuxReceiveBufferControl.h"
#include "platform/qt/QtRunLoop.h"

#include <benchmark/benchmark.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <unistd.h>

#include <QEventLoop>
#include <QProcess>
#include <QTimer>
#include <algorithm>
#include <array>
#include <chrono>
#include <cstdlib>

namespace kx {

namespace {

using Clock = std::chrono::steady_clock;
using namespace std::chrono_literals;

std::chrono::seconds timeOfFlood() {
    const char* const wanted = std::getenv("KX_FLOOD_SECONDS");
    return std::chrono::seconds(
        wanted != nullptr ? std::clamp(std::strtol(wanted, nullptr, 10), 1L, 60L) : 2L);
}

// The other process. It ends with this object, and by itself a little after the flood.
class Flood {
public:
    Flood() {
        const auto longest = timeOfFlood() + 5s;
        _sender.start(KX_BENCH_PROGRAMS "/kxflood", {QString::number(longest.count())});
        _sender.waitForStarted();
    }
    ~Flood() {
        _sender.kill();
        _sender.waitForFinished();
    }
    Flood(const Flood&) = delete;
    Flood& operator=(const Flood&) = delete;

private:
    QProcess _sender;
};

// Datagrams in a second; 0 when the flood did not come.
template<class Take>
double rateOf(const int& taken, const Take& takeFor) {
    Flood flood;
    takeFor(std::chrono::milliseconds(500)); // the sender needs a moment to begin
    const int before = taken;
    const auto begin = Clock::now();
    takeFor(std::chrono::milliseconds(timeOfFlood()));
    const std::chrono::duration<double> time = Clock::now() - begin;
    return (taken - before) / time.count();
}

double rateOfWindow() {
    ReadAheadSystemCalls systemCalls;
    WindowCalls calls(systemCalls);
    LinuxReceiveBufferControl receiveBuffers;
    QtRunLoop runLoop;
    ShownWindow window(runLoop, calls.recorded, &receiveBuffers);
    return rateOf(calls.bare.received, [](std::chrono::milliseconds time) {
        QEventLoop loop;
        QTimer::singleShot(time, Qt::PreciseTimer, &loop, &QEventLoop::quit);
        loop.exec();
    });
}

// Reads until the time is over. It looks at the clock now and then, and waits a second at most.
void readFor(std::chrono::milliseconds time, int socket, int& taken) {
    constexpr int readsBetweenLooks = 64;
    std::array<char, 65536> buffer; // NOLINT: filled by the system
    const auto end = Clock::now() + time;
    while (Clock::now() < end) {
        for (int reads = 0; reads < readsBetweenLooks; ++reads) {
            sockaddr_in sender{};
            socklen_t length = sizeof sender;
            if (::recvfrom(socket, buffer.data(), buffer.size(), 0,
                           reinterpret_cast<sockaddr*>(&sender), &length) < 0) {
                return;
            }
            ++taken;
        }
    }
}

double rateOfBareLoop(int socket) {
    int taken = 0;
    return rateOf(taken, [&](std::chrono::milliseconds time) { readFor(time, socket, taken); });
}

double rateOfBareLoop() {
    const int socket = ::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    const timeval longestWait{.tv_sec = 1, .tv_usec = 0};
    ::setsockopt(socket, SOL_SOCKET, SO_RCVTIMEO, &longestWait, sizeof longestWait);
    LinuxReceiveBufferControl().enlarge(socket, 4 * 1024 * 1024);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(loopbackAddress);
    const bool isBound =
        ::bind(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
    const double rate = isBound ? rateOfBareLoop(socket) : 0;
    ::close(socket);
    return rate;
}

void flood(benchmark::State& state) {
    for (auto _ : state) {
        const double window = rateOfWindow();
        const double bare = rateOfBareLoop();
        if (window == 0 || bare == 0) {
            state.SkipWithError("no flood came, or the port is taken");
            break;
        }
        state.counters["window_per_s"] = window;
        state.counters["bare_per_s"] = bare;
        state.counters["ratio"] = window / bare;
    }
}
BENCHMARK(flood)->Iterations(1)->Repetitions(3)->Unit(benchmark::kMillisecond);

const MeasuredRatio row("flood, drawer closed: datagrams that the window takes in, beside a bare "
                        "recvfrom loop (at least the goal)",
                        "flood", 0.8);

} // namespace

} // namespace kx
