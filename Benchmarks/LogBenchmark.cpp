// The event log in the real window: replies with the drawer open and closed, appending to long
// logs, the memory that long logs take, and opening the drawer on them.

#include "AllocatedBytes.h"
#include "Comparison.h"
#include "LogWindow.h"
#include "ProcessorTime.h"
#include "UnitDatagrams.h"

#include <benchmark/benchmark.h>
#include <malloc.h>

#include <QApplication>
#include <algorithm>
#include <chrono>

namespace kx {

namespace {

using Clock = std::chrono::steady_clock;
using Seconds = std::chrono::duration<double>;

// The number of datagrams that the Qt loop hands over between two turns of Qt's own loop.
constexpr std::size_t batch = 32;

constexpr int longLog = 1'000'000;
constexpr int shortLog = 100'000;

// Returns the longest turn of the loop meanwhile.
Seconds receiveReplies(LogWindow& window, const std::vector<Bytes>& replies) {
    Seconds longest{};
    for (std::size_t next = 0; next < replies.size();) {
        const auto start = Clock::now();
        for (const std::size_t end = std::min(replies.size(), next + batch); next < end; ++next) {
            window.receive(replies[next]);
        }
        LogWindow::handleEvents();
        longest = std::max<Seconds>(longest, Clock::now() - start);
    }
    window.showEnd();
    return longest;
}

void receiveReplies(benchmark::State& state, bool drawerIsOpen) {
    const std::vector<Bytes> replies = repliesOfUnits(5000);
    LogWindow window;
    if (drawerIsOpen) {
        window.openDrawer();
    }
    for (auto _ : state) {
        const auto before = processorTime();
        receiveReplies(window, replies);
        state.SetIterationTime((processorTime() - before).count());
        window.controller().discoverButton(); // this empties the log
        LogWindow::handleEvents();
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(replies.size()));
}

void repliesWithDrawerClosed(benchmark::State& state) {
    receiveReplies(state, false);
}
BENCHMARK(repliesWithDrawerClosed)->UseManualTime()->Iterations(3)->Unit(benchmark::kMillisecond);

void repliesWithDrawerOpen(benchmark::State& state) {
    receiveReplies(state, true);
}
BENCHMARK(repliesWithDrawerOpen)->UseManualTime()->Iterations(3)->Unit(benchmark::kMillisecond);

const Comparison repliesRow("5,000 replies logged, drawer open beside drawer closed",
                            "repliesWithDrawerOpen", "repliesWithDrawerClosed");

void longestTurnDuringReplies(benchmark::State& state) {
    const std::vector<Bytes> replies = repliesOfUnits(10'000);
    constexpr Seconds allowed = std::chrono::milliseconds(50);
    Seconds longest{};
    for (auto _ : state) {
        LogWindow window;
        window.openDrawer();
        longest = std::max(longest, receiveReplies(window, replies));
    }
    state.counters["ratio"] = longest / allowed;
}
BENCHMARK(longestTurnDuringReplies)->Iterations(1)->Unit(benchmark::kMillisecond);

const MeasuredRatio
    longestTurnRow("10,000 replies, drawer open: longest turn of the loop, beside 50 ms",
                   "longestTurnDuringReplies", 1);

// New pages of memory cost more than used ones. Memory left by earlier rounds would be enough only
// for the shorter log, so both logs get new pages.
void forgetFreedMemory() {
    mallopt(M_MMAP_THRESHOLD, 1 << 20); // once set, it does not grow with freed memory
    malloc_trim(0);
}

void appendToLog(benchmark::State& state, int lines) {
    constexpr int appended = 30'000;
    forgetFreedMemory();
    LogWindow window;
    window.openDrawer();
    window.appendLines(lines);
    window.showEnd();
    forgetFreedMemory();
    for (auto _ : state) {
        const auto before = processorTime();
        for (int line = 0; line < appended; line += static_cast<int>(batch)) {
            window.appendLines(static_cast<int>(batch));
            LogWindow::handleEvents();
        }
        window.showEnd();
        state.SetIterationTime((processorTime() - before).count());
    }
    state.SetItemsProcessed(state.iterations() * appended);
}

void appendToShortLog(benchmark::State& state) {
    appendToLog(state, shortLog);
}
BENCHMARK(appendToShortLog)->UseManualTime()->Iterations(2)->Unit(benchmark::kMillisecond);

void appendToLongLog(benchmark::State& state) {
    appendToLog(state, longLog);
}
BENCHMARK(appendToLongLog)->UseManualTime()->Iterations(2)->Unit(benchmark::kMillisecond);

const Comparison appendRow("append to a log of 1,000,000 lines beside one of 100,000, drawer open",
                           "appendToLongLog", "appendToShortLog");

// Measures the most memory over the second half of the log, including the controller's own copy of
// the text. A buffer that grows by doubling takes the most memory just after it has grown.
void memoryOfLongLog(benchmark::State& state) {
    constexpr int step = 1000;
    double worst = 0;
    for (auto _ : state) {
        LogWindow window;
        window.openDrawer();
        const double before = allocatedBytes();
        for (int lines = step; lines <= longLog; lines += step) {
            window.appendLines(step);
            if (lines >= longLog / 2) {
                const auto bytes = static_cast<double>(window.view().text().size());
                worst = std::max(worst, (allocatedBytes() - before) / bytes);
            }
        }
        window.showEnd();
    }
    state.counters["ratio"] = worst;
}
BENCHMARK(memoryOfLongLog)->Iterations(1)->Unit(benchmark::kMillisecond);

const MeasuredRatio memoryRow("memory of a log of 1,000,000 lines, drawer open, beside its text",
                              "memoryOfLongLog", 1.3);

// Notes the first paint of a widget, which is over when the turn of the loop is.
class FirstPaint final : public QObject {
public:
    explicit FirstPaint(QObject& widget) { widget.installEventFilter(this); }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        hasCome = hasCome || event->type() == QEvent::Paint;
        return false;
    }

    bool hasCome = false;
};

void openDrawerOnLongLog(benchmark::State& state) {
    constexpr Seconds allowed = std::chrono::milliseconds(200);
    Seconds taken{};
    for (auto _ : state) {
        LogWindow window;
        window.appendLines(longLog);
        const auto start = Clock::now();
        FirstPaint paint(*window.view().viewport());
        window.controller().logDrawerButton();
        while (!paint.hasCome) {
            QApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
        taken = Clock::now() - start;
    }
    state.counters["ratio"] = taken / allowed;
}
BENCHMARK(openDrawerOnLongLog)->Iterations(1)->Unit(benchmark::kMillisecond);

const MeasuredRatio
    openRow("open the drawer on 1,000,000 lines: time to the first paint, beside 200 ms",
            "openDrawerOnLongLog", 1);

} // namespace

} // namespace kx
