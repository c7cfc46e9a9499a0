// From the start of the process to the first paint of its window, for the application and for an
// empty window with the same controls. Each runs off screen in a network namespace of its own,
// where its first broadcast reaches nobody.

#include "Comparison.h"

#include <benchmark/benchmark.h>
#include <sched.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <cstdlib>
#include <optional>
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

// The time that the program printed, absent when it printed none or failed.
std::optional<Clock::time_point> firstPaintOfProgram(const char* program) {
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
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0 || output.empty()) {
        return std::nullopt;
    }
    return Clock::time_point(std::chrono::nanoseconds(std::atoll(output.c_str())));
}

void timeStart(benchmark::State& state, const char* program) {
    for (auto _ : state) {
        const auto begin = Clock::now();
        const auto painted = firstPaintOfProgram(program);
        if (!painted.has_value()) {
            state.SkipWithError("the program did not paint its window");
            break;
        }
        state.SetIterationTime(std::chrono::duration<double>(*painted - begin).count());
    }
}

void startApplication(benchmark::State& state) {
    timeStart(state, "kxconfig");
}
BENCHMARK(startApplication)->UseManualTime()->Iterations(5)->Unit(benchmark::kMillisecond);

void startEmptyWindow(benchmark::State& state) {
    timeStart(state, "kxemptywindow");
}
BENCHMARK(startEmptyWindow)->UseManualTime()->Iterations(5)->Unit(benchmark::kMillisecond);

const Comparison comparison("start to first paint, beside an empty window with the same controls",
                            "startApplication", "startEmptyWindow");

} // namespace

} // namespace kx
