// Runs every benchmark several times, interleaved, and prints the comparisons as ratios.

#include "Comparison.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <algorithm>
#include <array>
#include <cstdio>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace kx {

namespace {

struct Row {
    std::string what;
    std::string ours;
    std::string reference; // empty when `ours` finds the ratio itself
    std::optional<double> goal;
};

std::vector<Row>& rows() {
    static std::vector<Row> table;
    return table;
}

// Whether a benchmark measured something. Otherwise it says why it could not. From version 1.8 on
// the library reports this under another name.
template<class Run>
bool hasRun(const Run& run) {
    if constexpr (requires { run.error_occurred; }) {
        return !run.error_occurred;
    } else {
        return !static_cast<bool>(run.skipped);
    }
}

// Keeps the time of each repetition, in addition to the output on the console.
class RepetitionReporter final : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& reports) override {
        for (const Run& run : reports) {
            if (run.run_type == Run::RT_Iteration && hasRun(run)) {
                const std::string& name = run.run_name.function_name;
                _times[name].push_back(run.GetAdjustedRealTime());
                const auto ratio = run.counters.find("ratio");
                if (ratio != run.counters.end()) {
                    _ratios[name].push_back(ratio->second);
                }
            }
        }
        ConsoleReporter::ReportRuns(reports);
    }

    // The ratio of each repetition of ours to the repetition of the reference in the same round, or
    // the ratio that ours found itself, in ascending order. Empty when one of them did not run.
    std::vector<double> ratios(const Row& row) const {
        std::vector<double> result = row.reference.empty() ? foundBy(row.ours) : quotients(row);
        std::sort(result.begin(), result.end());
        return result;
    }

private:
    std::vector<double> foundBy(const std::string& benchmark) const {
        const auto found = _ratios.find(benchmark);
        return found == _ratios.end() ? std::vector<double>() : found->second;
    }

    std::vector<double> quotients(const Row& row) const {
        const auto ours = _times.find(row.ours);
        const auto reference = _times.find(row.reference);
        if (ours == _times.end() || reference == _times.end()) {
            return {};
        }
        std::vector<double> result;
        const std::size_t rounds = std::min(ours->second.size(), reference->second.size());
        for (std::size_t i = 0; i < rounds; ++i) {
            result.push_back(ours->second[i] / reference->second[i]);
        }
        return result;
    }

    std::map<std::string, std::vector<double>> _times;
    std::map<std::string, std::vector<double>> _ratios;
};

std::string textOfGoal(const std::optional<double>& goal) {
    std::array<char, 32> text{};
    if (goal.has_value()) {
        std::snprintf(text.data(), text.size(), "%g", *goal);
    }
    return text.data();
}

void printTable(const RepetitionReporter& reporter) {
    std::printf("\n| What | Goal | Median ratio | Least | Most |\n|---|---|---|---|---|\n");
    for (const Row& row : rows()) {
        const auto ratios = reporter.ratios(row);
        if (!ratios.empty()) {
            std::printf("| %s | %s | %.2f | %.2f | %.2f |\n", row.what.c_str(),
                        textOfGoal(row.goal).c_str(), ratios[ratios.size() / 2], ratios.front(),
                        ratios.back());
        }
    }
}

} // namespace

Comparison::Comparison(std::string what, std::string ours, std::string reference,
                       std::optional<double> goal) {
    rows().push_back({std::move(what), std::move(ours), std::move(reference), goal});
}

MeasuredRatio::MeasuredRatio(std::string what, std::string benchmark, std::optional<double> goal) {
    rows().push_back({std::move(what), std::move(benchmark), {}, goal});
}

} // namespace kx

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);

    std::vector<char*> arguments(argv, argv + argc);
    std::array<std::string, 3> defaults{"--benchmark_repetitions=9",
                                        "--benchmark_enable_random_interleaving=true",
                                        "--benchmark_min_time=0.05"};
    for (std::size_t i = 0; i < defaults.size(); ++i) {
        arguments.insert(arguments.begin() + 1 + static_cast<std::ptrdiff_t>(i),
                         defaults[i].data());
    }
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data())) {
        return 2;
    }
    kx::RepetitionReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    kx::printTable(reporter);
    return 0;
}
