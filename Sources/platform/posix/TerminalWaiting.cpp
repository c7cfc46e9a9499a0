#include "platform/posix/TerminalWaiting.h"

#include <chrono>

namespace kx {

namespace {

constexpr std::chrono::milliseconds betweenLooks{10};

} // namespace

bool TerminalWaiting::until(const std::function<bool()>& isDone, std::string_view /*sentence*/) {
    const TerminalConsole::Loan loan(_console);
    const unsigned before = _timesGivenUp;
    while (!isDone()) {
        if (_timesGivenUp != before) {
            return false;
        }
        _loop.runOnce(betweenLooks);
    }
    return true;
}

} // namespace kx
