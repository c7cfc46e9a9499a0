// A long visit to the running program among units with unreliable replies: discoveries, edits,
// moves of address, reloads, restores and options in a random order. At the end the replies become
// reliable. After one more discovery the window must show the settings of each unit. Memory,
// descriptors and threads must be back at their numbers after the first part, and no child may be
// left.
//
// Main thread only; run() waits in nested event loops. Environment: KX_SOAK_SECONDS, the length of
// the visit; KX_SOAK_SEED, the seed of everything random; KX_SOAK_UNITS, the number of simulated
// units; and the variables of UnitStates.h.

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

    // Throws a VisitFailure that says what was not as expected.
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
    Clock::time_point _discoveryEnds; // end of the latest discovery
};

} // namespace kx
