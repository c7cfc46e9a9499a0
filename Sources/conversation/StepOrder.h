// Steps that wait for other steps: an order in which they can be done, and the rings of those that
// cannot, because they wait for each other.
//
// Pure; any thread. The time is in proportion to the number of steps and of waits.

#pragma once

#include <cstddef>
#include <vector>

namespace kx {

// The steps that must be done before each step. Steps are counted from 0.
using StepsBefore = std::vector<std::vector<std::size_t>>;

struct StepOrder {
    // The steps that are in no ring, each behind those it waits for; otherwise in their own order.
    std::vector<std::size_t> steps;

    // The number of the ring in which each step is, from 1 on; 0 for a step in no ring.
    std::vector<std::size_t> rings;
};

StepOrder orderOfSteps(const StepsBefore& before);

} // namespace kx
