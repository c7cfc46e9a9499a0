// The faults between a unit and its listener: replies that are late, lost, doubled, overtaken, cut
// short or damaged.
//
// The same plan, seed and replies give the same faults, on every machine. Any thread, one at a
// time.

#pragma once

#include "Simulator/Wire.h"

#include <chrono>
#include <optional>
#include <random>

namespace kx::simulator {

// Percentages are 0 to 100 and apply to each reply by itself.
struct FaultPlan {
    std::chrono::milliseconds late{0}; // every reply leaves this much later
    unsigned losePercent = 0;          // the reply never leaves
    unsigned duplicatePercent = 0;     // the reply leaves twice
    unsigned reorderPercent = 0;       // the reply waits overtakingTime, so later ones overtake it
    unsigned malformPercent = 0;       // the reply leaves with wrong bytes
    std::optional<std::size_t> truncatedLength =
        std::nullopt; // every reply is cut to so many bytes
    std::uint64_t seed = 1;
};

inline constexpr std::chrono::milliseconds overtakingTime{50};

// A reply that leaves `delay` after the unit made it.
struct Delivery {
    std::chrono::milliseconds delay{0};
    Bytes payload;
};

class FaultInjector {
public:
    explicit FaultInjector(const FaultPlan& plan);

    // The deliveries of `reply`; none to two.
    std::vector<Delivery> deliveriesOf(Bytes reply);

private:
    std::size_t below(std::size_t bound);
    bool strikes(unsigned percent);
    void damage(Bytes& reply);

    FaultPlan _plan;
    std::mt19937_64 _random;
};

} // namespace kx::simulator
