#include "platform/posix/TerminalWaiting.h"

namespace kx {

bool TerminalWaiting::until(const std::function<bool()>& isDone, std::string_view sentence) {
    const TerminalConsole::Loan loan(_console);
    return _waiting.until(isDone, sentence);
}

} // namespace kx
