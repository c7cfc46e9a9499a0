// Floods the port of the benchmarks on loopback with the replies of ten thousand units, each from
// its own address, as fast as the system takes them.
//
//   kxflood SECONDS
//
// Ends after so many seconds, at most 120.

#include "LoopbackSender.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>

int main(int argc, char** argv) {
    using Clock = std::chrono::steady_clock;
    const long seconds = argc == 2 ? std::strtol(argv[1], nullptr, 10) : 0;
    const auto end = Clock::now() + std::chrono::seconds(std::clamp(seconds, 0L, 120L));
    const auto replies = kx::datagramsOfUnits(10'000);
    const kx::LoopbackSender sender;
    while (Clock::now() < end) {
        sender.send(replies);
    }
    return EXIT_SUCCESS;
}
