// The authority for a process that is the administrator already: it grants every right without
// asking anybody, and starts tools as they are. The ARP tool gets no text that begins with "-",
// because it would take that for an option.
//
// As with every authority, a right is held under a reference only once it was obtained there
// (platform/linux/LinuxAuthorizationReference.h), so users of the two authorities see no
// difference.

#pragma once

#include "platform/linux/RunningTools.h"
#include "support/AuthorizationService.h"
#include "support/RunLoop.h"
#include "support/Waiting.h"

#include <memory>

namespace kx {

class RootAuthorizationService final : public AuthorizationService {
public:
    // `loop` and `waiting` must outlive the service.
    RootAuthorizationService(RunLoop& loop, Waiting& waiting);

    std::unique_ptr<AuthorizationReference> create() override;
    std::optional<std::string> objectionTo(const std::string& toolPath,
                                           const std::vector<std::string>& arguments) const override;

private:
    RunningTools _runningTools;
    Waiting& _waiting;
};

} // namespace kx
