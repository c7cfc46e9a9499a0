// The expected death of a process that broke a contract.

#pragma once

#include <gtest/gtest.h>

#include <csignal>
#include <string>
#include <string_view>

namespace kx {

// The text as a regular expression that matches only this text.
inline std::string literalPattern(std::string_view text) {
    std::string pattern;
    for (const char character : text) {
        if (std::string_view("\\^$.|?*+()[]{}").find(character) != std::string_view::npos) {
            pattern += '\\';
        }
        pattern += character;
    }
    return pattern;
}

// A pattern for the line of support/Require.h, to its end, with exactly this expression and source
// path.
inline std::string brokenContractPattern(std::string_view expression, std::string_view sourcePath) {
    return literalPattern("Assertion failed: (" + std::string(expression) + "), function ") +
           "[^\n]+" + literalPattern(", " + std::string(sourcePath)) + "\n";
}

} // namespace kx

// Expects that `statement` ends the process with abort(3) because of the contract `expression`.
#define EXPECT_BROKEN_CONTRACT(statement, expression, sourcePath)                                  \
    EXPECT_EXIT(statement, testing::KilledBySignal(SIGABRT),                                       \
                kx::brokenContractPattern(expression, sourcePath))
