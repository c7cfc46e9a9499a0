// The memory that the window holds for each unit: what the allocator has given out since the units
// came, with the log drawer closed, without the text of the event log. A hundred thousand replies
// come over loopback, and the discovery ends, so the registry, the findings, the table of all units
// and the unit pop-up know every unit. The record of the session is not kept, because its size does
// not depend on the units.

#include "AllocatedBytes.h"
#include "Comparison.h"
#include "LoopbackBatches.h"
#include "LoopbackCalls.h"
#include "ShownWindow.h"
#include "doubles/ManualRunLoop.h"

#include <benchmark/benchmark.h>

#include <chrono>

namespace kx {

namespace {

using namespace std::chrono_literals;

constexpr std::uint32_t units = 100'000;
constexpr double allowed = 200;

void receive(ShownWindow& window, ManualRunLoop& runLoop, const LoopbackCalls& calls,
             std::span<const LoopbackDatagram> replies) {
    const int socket = window.controller().udpListener()->nativeSocket();
    secondsInBatches(replies, [&](int count) {
        const int wanted = calls.received + count;
        while (calls.received < wanted) {
            runLoop.makeReadable(socket);
        }
        return 0.0;
    });
    runLoop.advanceBy(2000ms); // the time that units have to answer
    ShownWindow::handleEvents();
}

double bytesOfEqualLog(KXConfigAppDelegate& controller) {
    const std::string text = controller.eventLog();
    const double before = allocatedBytes();
    const LogText equal(text);
    return allocatedBytes() - before;
}

bool knowsAll(KXConfigAppDelegate& controller) {
    return controller.devices().records().size() == units &&
           controller.allUnits().size() == units && controller.selectedUnit().has_value();
}

void memoryOfUnits(benchmark::State& state) {
    const auto replies = datagramsOfUnits(units);
    for (auto _ : state) {
        DatagramSystemCalls systemCalls;
        LoopbackCalls calls(systemCalls);
        ManualRunLoop runLoop;
        ShownWindow window(runLoop, calls);
        if (!window.isListening()) {
            state.SkipWithError("the port is taken");
            break;
        }
        const double before = allocatedBytes();
        receive(window, runLoop, calls, replies);
        const double held = allocatedBytes() - before;
        if (!knowsAll(window.controller())) {
            state.SkipWithError("units are missing");
            break;
        }
        const double ofLog = bytesOfEqualLog(window.controller());
        state.counters["of_log"] = ofLog / units;
        state.counters["of_unit"] = (held - ofLog) / units;
        state.counters["ratio"] = (held - ofLog) / units / allowed;
    }
}
BENCHMARK(memoryOfUnits)->Iterations(1)->Unit(benchmark::kMillisecond);

const MeasuredRatio row("100,000 units, drawer closed: bytes held for each unit, beside 200",
                        "memoryOfUnits", 1);

} // namespace

} // namespace kx
