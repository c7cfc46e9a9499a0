#include "platform/posix/MemoryExhaustion.h"

#include "support/SystemLog.h"

#include <unistd.h>

#include <cstddef>
#include <cstdlib>
#include <exception>
#include <memory>
#include <new>
#include <string_view>
#include <vector>

namespace kx {

namespace {

constexpr std::string_view lastSentence = "There is no memory left, so the program ends.";

// Freed for the last line, because writing a line takes memory.
std::vector<std::byte>& reserve() {
    constexpr std::size_t enoughForALine = std::size_t{1} << 20U;
    static std::vector<std::byte> bytes(enoughForALine);
    return bytes;
}

std::terminate_handler otherHandler = nullptr;

bool isForWantOfMemory() {
    const auto exception = std::current_exception();
    if (exception == nullptr) {
        return false;
    }
    try {
        std::rethrow_exception(exception);
    } catch (const std::bad_alloc&) {
        return true;
    } catch (...) {
        return false;
    }
}

[[noreturn]] void handleTermination() {
    if (!isForWantOfMemory()) {
        otherHandler();
        std::abort();
    }
    reserve() = std::vector<std::byte>();
    try {
        logLastToSystem(lastSentence);
    } catch (...) {
        // Best effort: there is nowhere to report a failure.
        [[maybe_unused]] const auto written =
            ::write(STDERR_FILENO, lastSentence.data(), lastSentence.size());
    }
    std::_Exit(EXIT_FAILURE);
}

} // namespace

void installMemoryExhaustionHandler() {
    reserve();
    otherHandler = std::set_terminate(handleTermination);
}

} // namespace kx
