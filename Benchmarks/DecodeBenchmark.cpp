// Decoding the 81-byte reply's parameter list, compared with a straightforward decoder: a map from
// name to text, and a stream for each text.

#include "Comparison.h"
#include "units/ParameterList.h"
#include "words/ParameterLines.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>
#include <string>

namespace kx {

namespace {

const Bytes parameterList = {'<',  'M',  '>',  0x00, 0x1A, 0x2B, 0x3C, 0x4D, 0x5E, '<',  'I',  '>',
                             192,  168,  1,    10,   '<',  'D',  '>',  192,  168,  1,    1,    '<',
                             'T',  '>',  0x0D, 0xC0, '<',  'P',  '>',  0x27, 0x10, '<',  'U',  '>',
                             0,    0,    0,    0,    0,    0x2A, '<',  'C',  '>',  0x00, 0x0A, 0x0B,
                             0x0C, 0x0D, 0x0E, '<',  'S',  '>',  1,    2,    3,    4,    5,    6};

struct PlainUnit {
    std::map<std::string, std::string> record;
    std::string displayText;
};

std::string plainText(char tag, const std::string& value) {
    char buffer[32];
    std::string text;
    const auto byte = [&value](std::size_t i) {
        return static_cast<unsigned>(static_cast<unsigned char>(value[i]));
    };
    switch (tag) {
    case 'I':
    case 'D':
        std::snprintf(buffer, sizeof buffer, "%u.%u.%u.%u", byte(0), byte(1), byte(2), byte(3));
        return buffer;
    case 'T':
    case 'P':
        return std::to_string(byte(0) * 256 + byte(1));
    case 'U':
        return value.substr(0, 5) == std::string(5, '\0') ? std::to_string(byte(5)) : value;
    default:
        for (std::size_t i = 0; i < value.size(); ++i) {
            std::snprintf(buffer, sizeof buffer, "%02X", byte(i));
            text += text.empty() ? "" : tag == 'S' ? " " : ":";
            text += buffer;
        }
        return text;
    }
}

PlainUnit plainDecode(const Bytes& list) {
    static const std::map<std::string, std::pair<std::string, std::size_t>> items = {
        {"<M>", {"internal MAC address", 6}},    {"<I>", {"internal IP address", 4}},
        {"<D>", {"destination IP address", 4}},  {"<T>", {"destination Port number", 2}},
        {"<P>", {"device Port number", 2}},      {"<U>", {"unit ID", 6}},
        {"<C>", {"destination MAC address", 6}}, {"<S>", {"serial number", 6}}};
    PlainUnit unit;
    std::string rest(list.begin(), list.end());
    while (rest.size() >= 3) {
        const auto item = items.find(rest.substr(0, 3));
        if (item == items.end() || rest.size() < 3 + item->second.second) {
            break;
        }
        const auto& [name, length] = item->second;
        const std::string text = plainText(rest[1], rest.substr(3, length));
        unit.displayText += "\n\t" + name + ": " + text;
        unit.record[name] = text;
        rest = rest.substr(3 + length);
    }
    return unit;
}

void decodePlainly(benchmark::State& state) {
    if (plainDecode(parameterList).displayText !=
        linesOfParameters(decodeUnitParameters(parameterList).items, parameterLineStarts())) {
        state.SkipWithError("the two decoders disagree");
    }
    for (auto _ : state) {
        benchmark::DoNotOptimize(plainDecode(parameterList));
    }
}
BENCHMARK(decodePlainly);

// Decodes and makes the lines, as the application does for its log.
void decode(benchmark::State& state) {
    const ParameterLineStarts starts = parameterLineStarts();
    for (auto _ : state) {
        const auto decoded = decodeUnitParameters(parameterList);
        benchmark::DoNotOptimize(decoded.record);
        benchmark::DoNotOptimize(linesOfParameters(decoded.items, starts));
    }
}
BENCHMARK(decode);

const Comparison comparison("decode the 81-byte reply, beside std::string and std::map code",
                            "decode", "decodePlainly", 0.10);

} // namespace

} // namespace kx
