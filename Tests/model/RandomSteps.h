// Random steps that can be had again: a seed, a number of steps, and the latest steps in words.
//
// The seed and the number are fixed, so that a test does the same in every run. KX_MODEL_SEED and
// KX_MODEL_STEPS replace them, for runs that take long; scripts/deep-checks has one. When the test
// has failed, by an exception too, seed and steps are printed at the end.

#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <deque>
#include <iostream>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace kx::model {

inline std::uint32_t numberInEnvironment(const char* name, std::uint32_t usual) {
    const char* const text = std::getenv(name);
    return text != nullptr ? static_cast<std::uint32_t>(std::strtoul(text, nullptr, 10)) : usual;
}

// The sanitizers take ten times as long.
inline std::uint32_t fewerWithSanitizers(std::uint32_t steps) {
#ifdef KX_SANITIZED
    return steps / 10;
#else
    return steps;
#endif
}

class RandomSteps {
public:
    explicit RandomSteps(std::uint32_t usualSteps)
        : _steps(numberInEnvironment("KX_MODEL_STEPS", fewerWithSanitizers(usualSteps))) {}

    ~RandomSteps() {
        if (::testing::Test::HasFailure()) {
            std::cout << story();
        }
    }
    RandomSteps(const RandomSteps&) = delete;
    RandomSteps& operator=(const RandomSteps&) = delete;

    // Whether there is another step; the one before is then over.
    bool next() { return _step++ < _steps; }

    std::uint32_t steps() const { return _steps; }

    std::uint32_t below(std::uint32_t bound) {
        return std::uniform_int_distribution<std::uint32_t>(0, bound - 1)(_random);
    }

    bool oneIn(std::uint32_t count) { return below(count) == 0; }

    template<class Element>
    Element oneOf(const std::vector<Element>& all) {
        return all[below(static_cast<std::uint32_t>(all.size()))];
    }

    // Tells a step in words.
    void tell(std::string words) {
        constexpr std::size_t mostTold = 12;
        _told.push_back(std::to_string(_step) + ": " + std::move(words));
        if (_told.size() > mostTold) {
            _told.pop_front();
        }
    }

private:
    // The seed, the number of the step, and the latest steps.
    std::string story() const {
        std::string text = "KX_MODEL_SEED=" + std::to_string(_seed) + ", step " +
                           std::to_string(_step) + ", the latest steps:\n";
        for (const std::string& each : _told) {
            text += "  " + each + '\n';
        }
        return text;
    }

    std::uint32_t _seed = numberInEnvironment("KX_MODEL_SEED", 20'261'122);
    std::mt19937 _random{_seed};
    std::uint32_t _steps;
    std::uint32_t _step = 0;
    std::deque<std::string> _told;
};

} // namespace kx::model
