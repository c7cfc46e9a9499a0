#include "conversation/ARPEntry.h"

#include "support/AuthorizationService.h"

#include <utility>

namespace kx {

ARPEntry arpEntryForResult(std::int32_t result, std::string objection) {
    switch (result) {
    case errAuthorizationSuccess:
        return {.state = ARPEntryState::started};
    case errAuthorizationDenied:
        return {.state = ARPEntryState::refused, .sentence = std::move(objection)};
    case errAuthorizationCanceled:
        return {.state = ARPEntryState::dismissed};
    case errAuthorizationToolExecuteFailure:
        return {.state = ARPEntryState::cannotRun};
    case -1: // the arguments are never too many here
        return {.state = ARPEntryState::notASCII};
    default:
        return {.state = ARPEntryState::notStarted, .code = result};
    }
}

ARPEntry arpEntryForEndOfTool(std::int32_t status, std::string sentence) {
    return status == 0 ? ARPEntry{.state = ARPEntryState::started}
                       : ARPEntry{.state = ARPEntryState::ended,
                                  .code = status,
                                  .sentence = std::move(sentence)};
}

} // namespace kx
