// A wait in which the thread sleeps and nothing is handled. The test decides when the person gives up.

#pragma once

#include "support/Waiting.h"

#include <chrono>
#include <string>
#include <thread>
#include <vector>

namespace kx {

class ImpatientWaiting final : public Waiting {
public:
    std::chrono::milliseconds patience = std::chrono::hours(1);
    std::vector<std::string> sentences; // of each wait, in order

    bool until(const std::function<bool()>& isDone, std::string_view sentence) override {
        sentences.emplace_back(sentence);
        const auto end = std::chrono::steady_clock::now() + patience;
        while (!isDone()) {
            if (std::chrono::steady_clock::now() >= end) {
                return false;
            }
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
        }
        return true;
    }
};

} // namespace kx
