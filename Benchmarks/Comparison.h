// Comparisons: two benchmarks that do the same thing in two ways, run interleaved in one process
// and printed as the ratio of their times.

#pragma once

#include <optional>
#include <string>

namespace kx {

// Adds a row to the table: the time of the benchmark `ours` divided by the time of `reference`.
// Called at static initialisation, beside the benchmarks. The goal is printed beside the ratio.
struct Comparison {
    Comparison(std::string what, std::string ours, std::string reference,
               std::optional<double> goal = std::nullopt);
};

// Adds a row to the table: a ratio that the benchmark finds itself and leaves in its counter
// "ratio". Also called at static initialisation.
struct MeasuredRatio {
    MeasuredRatio(std::string what, std::string benchmark,
                  std::optional<double> goal = std::nullopt);
};

} // namespace kx
