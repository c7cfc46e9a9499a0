// The time from the start of the process to the first paint of its window, and the most memory that
// it takes until then, for the application and for an empty window with the same controls. Each
// runs off screen in its own network namespace, where its first broadcast reaches nobody.

#include "Comparison.h"

#include <benchmark/benchmark.h>
#include <sched.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <cstdlib>
#include <optional>
#include <sstream>
#include <string>

namespace kx {

namespace {

using Clock = std::chrono::steady_clock;

[[noreturn]] void becomeProgram(const char* program, int output) {
    ::dup2(output, STDOUT_FILENO);
    if (::unshare(CLONE_NEWNET) != 0 && ::unshare(CLONE_NEWUSER | CLONE_NEWNET) != 0) {
        ::_exit(1);
    }
    ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
    ::setenv("QT_QPA_GENERIC_PLUGINS", "kxfirstpaint", 1);
    ::setenv("QT_PLUGIN_PATH", KX_BENCH_PLUGINS, 1);
    const std::string path = std::string(KX_BENCH_PROGRAMS "/") + program;
    ::execl(path.c_str(), program, static_cast<char*>(nullptr));
    ::_exit(1);
}

struct FirstPaint {
    Clock::time_point time;
    double peakMemoryInKiB = 0;
};

// The printed report of the program; absent when it printed nothing or failed.
std::optional<FirstPaint> firstPaintOfProgram(const char* program) {
    std::array<int, 2> ends{};
    if (::pipe(ends.data()) != 0) {
        return std::nullopt;
    }
    const pid_t child = ::fork();
    if (child == 0) {
        ::close(ends[0]);
        becomeProgram(program, ends[1]);
    }
    ::close(ends[1]);
    std::string output;
    std::array<char, 64> buffer{};
    for (ssize_t count = 0; (count = ::read(ends[0], buffer.data(), buffer.size())) > 0;) {
        output.append(buffer.data(), static_cast<std::size_t>(count));
    }
    ::close(ends[0]);
    int status = 0;
    ::waitpid(child, &status, 0);
    long long nanoseconds = 0;
    double peakMemoryInKiB = 0;
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0 ||
        !(std::istringstream(output) >> nanoseconds >> peakMemoryInKiB)) {
        return std::nullopt;
    }
    return FirstPaint{Clock::time_point(std::chrono::nanoseconds(nanoseconds)), peakMemoryInKiB};
}

// `measure` returns the value of a start that counts, as seconds.
void measureStarts(benchmark::State& state, const char* program,
                   double (*measure)(Clock::time_point begin, const FirstPaint& painted)) {
    for (auto _ : state) {
        const auto begin = Clock::now();
        const auto painted = firstPaintOfProgram(program);
        if (!painted.has_value()) {
            state.SkipWithError("the program did not paint its window");
            break;
        }
        state.SetIterationTime(measure(begin, *painted));
    }
}

double timeToPaint(Clock::time_point begin, const FirstPaint& painted) {
    return std::chrono::duration<double>(painted.time - begin).count();
}

// The figure of a benchmark is a time, so a microsecond stands for a KiB.
double peakMemory(Clock::time_point /*begin*/, const FirstPaint& painted) {
    return painted.peakMemoryInKiB * 1e-6;
}

void startApplication(benchmark::State& state) {
    measureStarts(state, "kxconfig", timeToPaint);
}
BENCHMARK(startApplication)->UseManualTime()->Iterations(5)->Unit(benchmark::kMillisecond);

void startEmptyWindow(benchmark::State& state) {
    measureStarts(state, "kxemptywindow", timeToPaint);
}
BENCHMARK(startEmptyWindow)->UseManualTime()->Iterations(5)->Unit(benchmark::kMillisecond);

void peakMemoryOfApplication(benchmark::State& state) {
    measureStarts(state, "kxconfig", peakMemory);
}
BENCHMARK(peakMemoryOfApplication)->UseManualTime()->Iterations(1);

void peakMemoryOfEmptyWindow(benchmark::State& state) {
    measureStarts(state, "kxemptywindow", peakMemory);
}
BENCHMARK(peakMemoryOfEmptyWindow)->UseManualTime()->Iterations(1);

const Comparison
    timeComparison("start to first paint, beside an empty window with the same controls",
                   "startApplication", "startEmptyWindow", 1.1);
const Comparison memoryComparison("peak memory at the first paint, beside the same empty window",
                                  "peakMemoryOfApplication", "peakMemoryOfEmptyWindow", 1.08);

} // namespace

} // namespace kx
