// Keeping the session's datagrams beside not keeping them: the cost of receiving a unit's reply as
// the window does with its event log closed, and that of reading a datagram and doing nothing with
// it. Both over loopback, on the Qt loop, in processor time.

#include "Comparison.h"
#include "LoopbackBatches.h"
#include "ProcessorTime.h"
#include "conversation/UnitSession.h"
#include "core/UnitReplies.h"
#include "doubles/ScriptedHostResolver.h"
#include "files/CapturingSystemCalls.h"
#include "files/SessionRecord.h"
#include "platform/qtcore/QtRunLoop.h"
#include "words/EventLogEntries.h"
#include "words/LogText.h"
#include "words/ParameterLines.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <chrono>

namespace kx {

namespace {

CaptureTime timeNow() {
    return std::chrono::duration_cast<CaptureTime>(
        std::chrono::system_clock::now().time_since_epoch());
}

// The system calls of the window, with the record and without it.
struct Calls {
    DatagramSystemCalls bare = {};
    SessionRecord record = SessionRecord();
    CapturingSystemCalls recorded{bare,
                                  {.take = [this](const CapturedDatagram& datagram,
                                                  ByteView data) { record.keep(datagram, data); },
                                   .now = timeNow,
                                   .ownAddress = [](std::uint32_t) { return 0U; }}};
};

// Logs what the controller logs.
class LoggedReplies final : public UnitSessionObserver {
public:
    void sessionDidReceiveDatagram(std::size_t length, const DatagramOrigin&) override {
        _log.append(entryOfDatagram(length));
        ++received;
    }
    void unitDidTellParameters(const Reply& reply, const DecodedUnitParameters& parameters,
                               const DatagramOrigin&) override {
        _log.append(entryOfReply(reply, linesOfParameters(parameters.items, _names)));
    }
    void clear() { _log.clear(); }

    int received = 0;

private:
    LogText _log;
    ShownParameterNames _names = shownParameterNames();
};

class CountedDatagrams final : public UDPEchoDelegate {
public:
    void echoDidReceiveDataFromAddress(UDPEcho&, const Bytes& data, const Bytes&) override {
        benchmark::DoNotOptimize(data.data());
        ++received;
    }
    int received = 0;
};

double secondsToReceive(const int& received) {
    const auto begin = processorTime();
    const int wanted = received + batch;
    while (received < wanted) {
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return (processorTime() - begin).count();
}

void receiveReplies(benchmark::State& state, DatagramSystemCalls& calls) {
    QtRunLoop runLoop;
    ScriptedHostResolver resolver;
    UnitRegistry registry;
    LoggedReplies replies;
    UnitSession session({.runLoop = runLoop, .hostResolver = resolver, .systemCalls = calls},
                        registry, replies);
    session.start(port);
    if (!session.isListening()) {
        state.SkipWithError("the port is taken");
        return;
    }
    const auto receive = [&replies] {
        replies.clear();
        return secondsToReceive(replies.received);
    };
    timeBatchesBy(state, receive, SampleUnit().reply());
}

void readDatagrams(benchmark::State& state, DatagramSystemCalls& calls) {
    QtRunLoop runLoop;
    ScriptedHostResolver resolver;
    CountedDatagrams counted;
    const auto echo = UDPEcho::make(runLoop, resolver, calls);
    echo->setDelegate(&counted);
    echo->startServerOnPort(port);
    if (echo->port() == 0) {
        state.SkipWithError("the port is taken");
        return;
    }
    calls.enablePacketInfo(echo->nativeSocket());
    timeBatchesBy(state, [&counted] { return secondsToReceive(counted.received); });
}

void receiveRepliesForgotten(benchmark::State& state) {
    Calls calls;
    receiveReplies(state, calls.bare);
}
BENCHMARK(receiveRepliesForgotten)->UseManualTime();

void receiveRepliesKept(benchmark::State& state) {
    Calls calls;
    receiveReplies(state, calls.recorded);
}
BENCHMARK(receiveRepliesKept)->UseManualTime();

void readDatagramsForgotten(benchmark::State& state) {
    Calls calls;
    readDatagrams(state, calls.bare);
}
BENCHMARK(readDatagramsForgotten)->UseManualTime();

void readDatagramsKept(benchmark::State& state) {
    Calls calls;
    readDatagrams(state, calls.recorded);
}
BENCHMARK(readDatagramsKept)->UseManualTime();

const Comparison replyRow("receive a reply, keeping the session record beside not keeping it",
                          "receiveRepliesKept", "receiveRepliesForgotten");
const Comparison readRow("read a datagram and do nothing with it, keeping the record beside not",
                         "readDatagramsKept", "readDatagramsForgotten");

} // namespace

} // namespace kx
