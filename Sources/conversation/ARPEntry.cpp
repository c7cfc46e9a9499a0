#include "conversation/ARPEntry.h"

#include "conversation/NeighbourTable.h"
#include "support/AuthorizationService.h"

#include <algorithm>
#include <utility>

namespace kx {

namespace {

char lowerCase(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

} // namespace

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

bool isBoundOnLink(NeighbourTable& neighbours, std::uint32_t address, std::uint32_t link,
                   std::string_view hardwareAddress) {
    const auto entry = neighbours.entry(address, link);
    return entry.has_value() && entry->state == NeighbourState::permanent &&
           std::ranges::equal(entry->hardwareAddress, hardwareAddress, {}, lowerCase, lowerCase);
}

} // namespace kx
