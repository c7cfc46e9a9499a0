// Everything that can be seen of the program or of a model, as texts by name, and where two differ.

#pragma once

#include <algorithm>
#include <cstddef>
#include <map>
#include <string>

namespace kx::model {

using SeenState = std::map<std::string, std::string>;

// A text in one line of ASCII.
inline std::string inOneLine(const std::string& text) {
    constexpr const char* digits = "0123456789ABCDEF";
    std::string line;
    for (const char each : text) {
        const auto octet = static_cast<unsigned char>(each);
        if (each == '\n') {
            line += "\\n";
        } else if (octet >= 32 && octet < 127) {
            line += each;
        } else {
            line.append("\\x").append({digits[octet / 16], digits[octet % 16]});
        }
    }
    return line;
}

// A text in one line, from a little before the first place in which it differs from the other.
inline std::string inOneLine(const std::string& text, const std::string& other) {
    constexpr std::size_t before = 200;
    const auto place = std::mismatch(text.begin(), text.end(), other.begin(), other.end()).first;
    const auto same = static_cast<std::size_t>(place - text.begin());
    const std::size_t from = text == other || same < before ? 0 : same - before;
    return (from > 0 ? "..." : "") + inOneLine(text.substr(from));
}

// Both states, and marks at the texts that differ; empty when none does.
inline std::string differenceOf(const SeenState& program, const SeenState& model) {
    if (program == model) {
        return {};
    }
    SeenState all = program;
    all.insert(model.begin(), model.end());
    std::string text;
    for (const auto& [name, unused] : all) {
        const auto ofProgram = program.contains(name) ? program.at(name) : "(absent)";
        const auto ofModel = model.contains(name) ? model.at(name) : "(absent)";
        text += ofProgram == ofModel ? "  " + name + '\n' : "* " + name + '\n';
        text += "    program  " + inOneLine(ofProgram, ofModel) + '\n';
        text += "    model    " + inOneLine(ofModel, ofProgram) + '\n';
    }
    return text;
}

} // namespace kx::model
