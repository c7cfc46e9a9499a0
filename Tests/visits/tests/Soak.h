// A long visit to the running program among units whose replies cannot be relied on: discoveries,
// edits, moves of address, reloads, restores and options in a random order. At the end the units
// become honest, and after one discovery more the window must show of each what it holds; memory,
// descriptors and threads must be where they were after the first part, and no child is left.
//
// Main thread only; run() waits in nested event loops. Environment: KX_SOAK_SECONDS, how long the
// visit takes; KX_SOAK_SEED, from which all that is random follows; KX_SOAK_UNITS, how many
// simulated units there are; and that of UnitStates.h.

#pragma once

#include "driver/WindowDriver.h"
#include "tests/ResourceUse.h"
#include "tests/UnitStates.h"

#include <chrono>
#include <random>
#include <vector>

namespace kx {

class Soak final {
public:
    explicit Soak(WindowDriver& driver);

    // Throws a Disappointment that says what was not as it must be.
    void run();

private:
    using Clock = std::chrono::steady_clock;

    void takeStepsUntil(Clock::time_point end);
    void takeStep(int kind);

    void discover();
    void letDiscoveryEnd();
    void pickUnit();
    void edit();
    void reload();
    void restore();
    void sendOption();
    void toggleLog();

    QString newValue(const QString& parameter);
    QString hexadecimal(int bytes, QChar separator);
    int below(int bound);

    void discoverAtRest();
    ResourceUse useAtRest();
    void expectShown(const std::vector<ShownParameters>& units);
    ShownParameters shownNow() const;

    WindowDriver& _driver;
    std::mt19937 _random;
    int _steps = 0;
    Clock::time_point _discoveryEnds; // of the last one
};

} // namespace kx
