#include "Simulator/CommandLine.h"

#include <arpa/inet.h>

#include <algorithm>
#include <charconv>
#include <string_view>

namespace kx::simulator {

namespace {

unsigned numberOf(std::string_view text, unsigned low, unsigned high) {
    unsigned value = 0;
    const char* const end = text.data() + text.size();
    const std::from_chars_result result = std::from_chars(text.data(), end, value);
    if (result.ec != std::errc() || result.ptr != end || value < low || value > high) {
        throw UsageFailure("needs a number from " + std::to_string(low) + " to " +
                           std::to_string(high) + ", not \"" + std::string(text) + '"');
    }
    return value;
}

unsigned percentOf(std::string_view text) {
    return numberOf(text, 0, 100);
}

Network networkOf(const std::string& text) {
    const std::size_t slash = text.find('/');
    in_addr address{};
    if (slash == std::string::npos ||
        ::inet_pton(AF_INET, text.substr(0, slash).c_str(), &address) != 1) {
        throw UsageFailure("needs a network such as 192.0.2.0/24, not \"" + text + '"');
    }
    const unsigned prefixLength = numberOf(text.substr(slash + 1), 8, 30);
    const IPv4 base = ntohl(address.s_addr);
    return {.base = base & (~IPv4{0} << (32 - prefixLength)), .prefixLength = prefixLength};
}

// One option: its name, the word for its value in the help, its explanation, and the function that
// applies its value.
struct Option {
    std::string_view name;
    std::string_view value;
    std::string_view help;
    void (*apply)(CommandLine&, const std::string&);
};

constexpr Option optionTable[] = {
    {"--link", "NAME", "the link that the units are on; default kx1",
     [](CommandLine& line, const std::string& value) { line.link = value; }},
    {"--count", "N", "how many units; default 3",
     [](CommandLine& line, const std::string& value) {
         line.count = numberOf(value, 1, highestUnitNumber);
     }},
    {"--first", "N", "the number of the first unit; default 1",
     [](CommandLine& line, const std::string& value) {
         line.first = numberOf(value, 1, highestUnitNumber);
     }},
    {"--network", "ADDRESS/LENGTH", "the units' network; default 192.0.2.0/24",
     [](CommandLine& line, const std::string& value) { line.network = networkOf(value); }},
    {"--broadcasts", "any|own", "which ones a unit takes: any, or its own subnet's; default any",
     [](CommandLine& line, const std::string& value) {
         if (value != "any" && value != "own") {
             throw UsageFailure("needs any or own, not \"" + value + '"');
         }
         line.ignoresOtherSubnets = value == "own";
     }},
    {"--late", "MS", "every reply leaves MS milliseconds late",
     [](CommandLine& line, const std::string& value) {
         line.faults.late = std::chrono::milliseconds(numberOf(value, 0, 60'000));
     }},
    {"--lose", "PERCENT", "so many replies never leave",
     [](CommandLine& line, const std::string& value) {
         line.faults.losePercent = percentOf(value);
     }},
    {"--duplicate", "PERCENT", "so many replies leave twice",
     [](CommandLine& line, const std::string& value) {
         line.faults.duplicatePercent = percentOf(value);
     }},
    {"--reorder", "PERCENT", "so many replies wait 50 ms and are overtaken",
     [](CommandLine& line, const std::string& value) {
         line.faults.reorderPercent = percentOf(value);
     }},
    {"--truncate", "BYTES", "every reply is cut to BYTES bytes",
     [](CommandLine& line, const std::string& value) {
         line.faults.truncatedLength = numberOf(value, 0, 1000);
     }},
    {"--malform", "PERCENT", "so many replies leave with wrong bytes",
     [](CommandLine& line, const std::string& value) {
         line.faults.malformPercent = percentOf(value);
     }},
    {"--flood", "PER_SECOND", "so many replies that nobody asked for, after the first command",
     [](CommandLine& line, const std::string& value) {
         line.floodPerSecond = numberOf(value, 0, 1'000'000);
     }},
    {"--seed", "N", "where the random choice of struck replies starts; default 1",
     [](CommandLine& line, const std::string& value) {
         line.faults.seed = numberOf(value, 0, 4'294'967'295);
     }},
    {"--record", "FILE", "append what the units hear, and at the end their states, to FILE",
     [](CommandLine& line, const std::string& value) { line.recordPath = value; }},
};

void applyOption(CommandLine& line, std::string_view name, const char* value) {
    const auto option = std::ranges::find(optionTable, name, &Option::name);
    if (option == std::end(optionTable)) {
        throw UsageFailure("unknown option " + std::string(name));
    }
    if (value == nullptr) {
        throw UsageFailure(std::string(name) + " needs a value");
    }
    try {
        option->apply(line, value);
    } catch (const UsageFailure& failure) {
        throw UsageFailure(std::string(name) + ' ' + failure.what());
    }
}

void checkUnitNumbers(const CommandLine& line) {
    const unsigned highest = line.first + line.count - 1;
    if (highest > highestUnitNumber) {
        throw UsageFailure("unit numbers end at " + std::to_string(highestUnitNumber));
    }
    if (!networkHoldsUnits(line.network, highest)) {
        throw UsageFailure("--network is too small for so many units");
    }
}

} // namespace

CommandLine readCommandLine(std::span<const char* const> arguments) {
    CommandLine line;
    for (std::size_t index = 0; index < arguments.size(); index += 2) {
        const std::string_view name = arguments[index];
        if (name == "--help") {
            line.help = true;
            return line;
        }
        applyOption(line, name, index + 1 < arguments.size() ? arguments[index + 1] : nullptr);
    }
    checkUnitNumbers(line);
    return line;
}

std::string helpText() {
    std::string text = "Usage: kxunits [option value]...\n\n"
                       "Plays small networked units on a virtual link. Ends on SIGINT or "
                       "SIGTERM.\n\n";
    constexpr std::size_t helpColumn = 28;
    for (const Option& option : optionTable) {
        std::string left = "  " + std::string(option.name) + ' ' + std::string(option.value);
        left.resize(std::max(helpColumn, left.size() + 1), ' ');
        text += left + std::string(option.help) + '\n';
    }
    text +=
        "  --help                    this text\n"
        "\n"
        "Unit N leaves the factory with\n"
        "  hardware address          02:4B:58 and N in three bytes\n"
        "  serial number             4B 58 00 and N in three bytes\n"
        "  IP address                the network's base + 10 + N\n"
        "  destination               base + 1, 02:00:00:00:00:01, port 3520\n"
        "  device port               3520 when 3 divides N, otherwise 10000\n"
        "  unit ID                   odd N up to 255: the number N;\n"
        "                            otherwise the text \"U\" and N in five digits\n"
        "\n"
        "Once the units listen, one line that begins with \"ready\" goes to standard output.\n"
        "At the end, and on SIGUSR2, the state of every unit goes to the record, or without one\n"
        "to standard output. On SIGUSR1 the faults and the flood end.\n";
    return text;
}

} // namespace kx::simulator
