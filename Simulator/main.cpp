#include "Simulator/UnitProgram.h"

#include <cstdlib>
#include <exception>
#include <iostream>

int main(int argc, char* argv[]) {
    using namespace kx::simulator;
    constexpr int kUsageStatus = 2;
    try {
        const CommandLine line =
            readCommandLine({argv + 1, static_cast<std::size_t>(argc > 0 ? argc - 1 : 0)});
        if (line.help)
            std::cout << helpText();
        else
            playUnits(line);
        return EXIT_SUCCESS;
    } catch (const UsageFailure& failure) {
        std::cerr << "kxunits: " << failure.what() << "\nSee kxunits --help.\n";
        return kUsageStatus;
    } catch (const std::exception& failure) {
        std::cerr << "kxunits: " << failure.what() << '\n';
        return EXIT_FAILURE;
    }
}
