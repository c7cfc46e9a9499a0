// Keeping the session's datagrams beside not keeping them: the cost of receiving a unit's reply as
// the window does with its event log closed, and that of reading a datagram and doing nothing with
// it. Both over loopback, on the Qt loop, in processor time.

#include "Comparison.h"
#include "KXConfigAppDelegate.h"
#include "LoopbackBatches.h"
#include "ProcessorTime.h"
#include "addresses/SocketAddressRecord.h"
#include "core/UnitReplies.h"
#include "doubles/FixedWallClock.h"
#include "doubles/RecordedOutlets.h"
#include "doubles/ScriptedHostResolver.h"
#include "files/CapturingSystemCalls.h"
#include "files/SessionRecord.h"
#include "platform/qt/MainWindow.h"
#include "platform/qtcore/QtRunLoop.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <chrono>

namespace kx {

namespace {

CaptureTime timeNow() {
    return std::chrono::duration_cast<CaptureTime>(
        std::chrono::system_clock::now().time_since_epoch());
}

// The system's calls, of which none reaches a network: sockets are bound to loopback, and what is
// sent goes nowhere.
class LoopbackCalls final : public DatagramSystemCalls {
public:
    int bind(int descriptor, ByteView) override {
        return DatagramSystemCalls::bind(descriptor, dataForAddress(loopbackAddress, port));
    }
    ssize_t receiveFrom(int descriptor, std::span<std::uint8_t> buffer,
                        DatagramOrigin& origin) override {
        const ssize_t length = DatagramSystemCalls::receiveFrom(descriptor, buffer, origin);
        received += length > 0 ? 1 : 0;
        return length;
    }
    ssize_t sendTo(int, ByteView data, std::optional<ByteView>) override {
        return static_cast<ssize_t>(data.size());
    }
    ssize_t sendToByLink(int, ByteView data, ByteView, std::uint32_t) override {
        return static_cast<ssize_t>(data.size());
    }

    int received = 0;
};

// The system calls of the window, with the record and without it.
struct Calls {
    LoopbackCalls bare = {};
    SessionRecord record = SessionRecord();
    CapturingSystemCalls recorded{bare,
                                  {.take = [this](const CapturedDatagram& datagram,
                                                  ByteView data) { record.keep(datagram, data); },
                                   .now = timeNow,
                                   .ownAddress = [](std::uint32_t) { return 0U; }}};
};

double secondsToReceive(const int& received) {
    const auto begin = processorTime();
    const int wanted = received + batch;
    while (received < wanted) {
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return (processorTime() - begin).count();
}

// The real window and the real controller, with the event log closed.
void receiveReplies(benchmark::State& state, Calls& calls, DatagramSystemCalls& used) {
    QtRunLoop runLoop;
    ScriptedHostResolver resolver;
    const FixedWallClock wallClock(2026, 3, 5, 14, 7, 0);
    RecordedApplication application;
    MainWindow window;
    KXConfigAppDelegate controller(window.outlets(),
                                   {runLoop, resolver, used, wallClock, application, nullptr, {}});
    window.connectActions(controller);
    window.show();
    controller.applicationDidFinishLaunching();
    if (controller.udpListener()->port() == 0) {
        state.SkipWithError("the port is taken");
        return;
    }
    timeBatchesBy(
        state, [&] { return secondsToReceive(calls.bare.received); }, SampleUnit().reply());
    window.disconnectActions();
    controller.applicationWillTerminate();
}

void readDatagrams(benchmark::State& state, Calls& calls, DatagramSystemCalls& used) {
    QtRunLoop runLoop;
    ScriptedHostResolver resolver;
    UDPEchoDelegate nobody;
    const auto echo = UDPEcho::make(runLoop, resolver, used);
    echo->setDelegate(&nobody);
    echo->startServerOnPort(port);
    if (echo->port() == 0) {
        state.SkipWithError("the port is taken");
        return;
    }
    used.enablePacketInfo(echo->nativeSocket());
    timeBatchesBy(state, [&] { return secondsToReceive(calls.bare.received); });
}

void receiveRepliesForgotten(benchmark::State& state) {
    Calls calls;
    receiveReplies(state, calls, calls.bare);
}
BENCHMARK(receiveRepliesForgotten)->UseManualTime();

void receiveRepliesKept(benchmark::State& state) {
    Calls calls;
    receiveReplies(state, calls, calls.recorded);
}
BENCHMARK(receiveRepliesKept)->UseManualTime();

void readDatagramsForgotten(benchmark::State& state) {
    Calls calls;
    readDatagrams(state, calls, calls.bare);
}
BENCHMARK(readDatagramsForgotten)->UseManualTime();

void readDatagramsKept(benchmark::State& state) {
    Calls calls;
    readDatagrams(state, calls, calls.recorded);
}
BENCHMARK(readDatagramsKept)->UseManualTime();

const Comparison replyRow("receive a reply, keeping the session record beside not keeping it",
                          "receiveRepliesKept", "receiveRepliesForgotten", 1.02);
const Comparison readRow("read a datagram and do nothing with it, keeping the record beside not",
                         "readDatagramsKept", "readDatagramsForgotten");

} // namespace

} // namespace kx
