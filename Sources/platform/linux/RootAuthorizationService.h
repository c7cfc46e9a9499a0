// The authority for a process that is the administrator already: it grants every right without
// asking anybody, and starts tools as they are.
//
// As with every authority, a right is held under a reference only once it was obtained there
// (platform/linux/LinuxAuthorizationReference.h), so users of the two authorities see no
// difference.

#pragma once

#include "platform/linux/RunningTools.h"
#include "support/AuthorizationService.h"
#include "support/RunLoop.h"

#include <memory>

namespace kx {

class RootAuthorizationService final : public AuthorizationService {
public:
    // `loop` must outlive the service.
    explicit RootAuthorizationService(RunLoop& loop);

    std::unique_ptr<AuthorizationReference> create() override;

private:
    RunningTools _runningTools;
};

} // namespace kx
