// Keeping the session's datagrams beside not keeping them: the cost of receiving a unit's reply as
// the window does with its event log closed, and that of reading a datagram and doing nothing with
// it. Both over loopback, on the Qt loop, in processor time.

#include "Comparison.h"
#include "LoopbackBatches.h"
#include "LoopbackCalls.h"
#include "ShownWindow.h"
#include "platform/qt/QtRunLoop.h"

#include <benchmark/benchmark.h>

namespace kx {

namespace {

// The real window, with the event log closed.
void receiveReplies(benchmark::State& state, const LoopbackCalls& calls,
                    DatagramSystemCalls& used) {
    QtRunLoop runLoop;
    ShownWindow window(runLoop, used);
    if (!window.isListening()) {
        state.SkipWithError("the port is taken");
        return;
    }
    timeBatchesBy(
        state, [&] { return secondsToReceive(calls, batch); }, SampleUnit().reply());
}

void readDatagrams(benchmark::State& state, const LoopbackCalls& calls, DatagramSystemCalls& used) {
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
    timeBatchesBy(state, [&] { return secondsToReceive(calls, batch); });
}

void receiveRepliesForgotten(benchmark::State& state) {
    DatagramSystemCalls systemCalls;
    WindowCalls calls(systemCalls);
    receiveReplies(state, calls.bare, calls.bare);
}
BENCHMARK(receiveRepliesForgotten)->UseManualTime();

void receiveRepliesKept(benchmark::State& state) {
    DatagramSystemCalls systemCalls;
    WindowCalls calls(systemCalls);
    receiveReplies(state, calls.bare, calls.recorded);
}
BENCHMARK(receiveRepliesKept)->UseManualTime();

void readDatagramsForgotten(benchmark::State& state) {
    DatagramSystemCalls systemCalls;
    WindowCalls calls(systemCalls);
    readDatagrams(state, calls.bare, calls.bare);
}
BENCHMARK(readDatagramsForgotten)->UseManualTime();

void readDatagramsKept(benchmark::State& state) {
    DatagramSystemCalls systemCalls;
    WindowCalls calls(systemCalls);
    readDatagrams(state, calls.bare, calls.recorded);
}
BENCHMARK(readDatagramsKept)->UseManualTime();

const Comparison replyRow("receive a reply, keeping the session record beside not keeping it",
                          "receiveRepliesKept", "receiveRepliesForgotten", 1.02);
const Comparison readRow("read a datagram and do nothing with it, keeping the record beside not",
                         "readDatagramsKept", "readDatagramsForgotten");

} // namespace

} // namespace kx
