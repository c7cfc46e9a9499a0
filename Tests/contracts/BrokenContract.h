// The death that a broken contract must end in.

#pragma once

#include <gtest/gtest.h>

#include <csignal>
#include <string>
#include <string_view>

namespace kx {

// A pattern for the line of support/Require.h with exactly this expression and source path.
inline std::string brokenContractPattern(std::string_view expression, std::string_view sourcePath) {
    std::string pattern;
    for (const char character : "Assertion failed: (" + std::string(expression) + "), function ") {
        if (std::string_view("\\^$.|?*+()[]{}").find(character) != std::string_view::npos) {
            pattern += '\\';
        }
        pattern += character;
    }
    return pattern + ".+, " + std::string(sourcePath);
}

} // namespace kx

// Expects that `statement` ends the process with abort(3) because of the contract `expression`.
#define EXPECT_BROKEN_CONTRACT(statement, expression, sourcePath)                                  \
    EXPECT_EXIT(statement, testing::KilledBySignal(SIGABRT),                                       \
                kx::brokenContractPattern(expression, sourcePath))
