#include "platform/posix/MemoryExhaustion.h"

#include "support/SystemLog.h"

#include <unistd.h>

#include <cstddef>
#include <cstdlib>
#include <exception>
#include <memory>
#include <new>
#include <string_view>

namespace kx {

namespace {

constexpr std::string_view lastSentence = "There is no memory left, so the program ends.";

// Address space that is freed for the last line, because writing a line takes memory. Nothing
// writes to it, so the system gives it no pages.
std::unique_ptr<std::byte[]>& reserve() {
    constexpr std::size_t enoughForALine = std::size_t{1} << 20U;
    static auto bytes = std::make_unique_for_overwrite<std::byte[]>(enoughForALine);
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
    reserve().reset();
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
