// From the first reply of ten thousand units to the last row that the event log's view has painted:
// the real window with its drawer open, on Qt's loop, with the record of the session. Every reply
// is read, decoded, compared with the others, kept in the registry and in the table of all units,
// and put into words.
//
// The reference is a plain loop on the same socket. The endpoint receives the same datagrams, and
// its delegate takes each apart and decodes its parameters. Nothing keeps or shows them.
//
// On both sides the batches are sent between the timed parts, and processor time is counted,
// because the view waits for its frames.

#include "Comparison.h"
#include "LoopbackBatches.h"
#include "LoopbackCalls.h"
#include "ProcessorTime.h"
#include "ReadAheadSystemCalls.h"
#include "ShownWindow.h"
#include "platform/linux/LinuxReceiveBufferControl.h"
#include "platform/posix/PollRunLoop.h"
#include "platform/qt/QtRunLoop.h"
#include "units/ParameterList.h"
#include "units/UnitReply.h"

#include <benchmark/benchmark.h>

namespace kx {

namespace {

constexpr std::uint32_t units = 10'000;

template<class Act>
double secondsOf(const Act& act) {
    const auto begin = processorTime();
    act();
    return (processorTime() - begin).count();
}

void repliesToLastRow(benchmark::State& state) {
    const auto replies = datagramsOfUnits(units);
    for (auto _ : state) {
        ReadAheadSystemCalls systemCalls;
        WindowCalls calls(systemCalls);
        LinuxReceiveBufferControl receiveBuffers;
        QtRunLoop runLoop;
        ShownWindow window(runLoop, calls.recorded, &receiveBuffers);
        if (!window.isListening()) {
            state.SkipWithError("the port is taken");
            break;
        }
        window.openDrawer();
        const double reception = secondsInBatches(
            replies, [&calls](int count) { return secondsToReceive(calls.bare, count); });
        state.SetIterationTime(reception + secondsOf([&window] { window.showEnd(); }));
        if (window.controller().allUnits().size() != units) {
            state.SkipWithError("units are missing");
            break;
        }
    }
}
BENCHMARK(repliesToLastRow)->UseManualTime()->Iterations(1)->Unit(benchmark::kMillisecond);

class Decoder final : public UDPEchoDelegate {
public:
    void echoDidReceiveDataFromAddress(UDPEcho&, const Bytes& data, const Bytes&) override {
        if (packetKindOfDatagram(data) != PacketKind::reply) {
            return;
        }
        const Reply reply = replyFromDatagram(data);
        const auto parameters = decodeUnitParameters(reply.payload);
        benchmark::DoNotOptimize(parameters.record);
        decoded += parameters.items.size() == unitParameterCount ? 1 : 0;
    }
    std::uint32_t decoded = 0;
};

void repliesDecoded(benchmark::State& state) {
    const auto replies = datagramsOfUnits(units);
    for (auto _ : state) {
        ReadAheadSystemCalls systemCalls;
        LoopbackCalls calls(systemCalls);
        PollRunLoop runLoop;
        ScriptedHostResolver resolver;
        Decoder decoder;
        const auto echo = UDPEcho::make(runLoop, resolver, calls);
        echo->setDelegate(&decoder);
        echo->startServerOnPort(port);
        if (echo->port() == 0) {
            state.SkipWithError("the port is taken");
            break;
        }
        calls.enablePacketInfo(echo->nativeSocket());
        state.SetIterationTime(secondsInBatches(replies, [&](int count) {
            const int wanted = calls.received + count;
            return secondsOf([&] {
                while (calls.received < wanted) {
                    runLoop.runOnce();
                }
            });
        }));
        if (decoder.decoded != units) {
            state.SkipWithError("replies were not decoded");
            break;
        }
    }
}
BENCHMARK(repliesDecoded)->UseManualTime()->Iterations(1)->Unit(benchmark::kMillisecond);

const Comparison row("10,000 replies, drawer open, from the first datagram to the last row drawn, "
                     "beside receiving and decoding alone",
                     "repliesToLastRow", "repliesDecoded", 1.5);

} // namespace

} // namespace kx
