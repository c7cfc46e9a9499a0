// The host's authority over administrator rights: polkit, or none needed where the process has them
// already.

#pragma once

#include "support/AuthorizationService.h"
#include "support/RunLoop.h"

#include <memory>

namespace kx {

// The authority for this process, by its effective user: RootAuthorizationService for the
// administrator, PolkitAuthorizationService for everybody else. Never null. `loop` must outlive it.
std::unique_ptr<AuthorizationService> makeAuthorizationService(RunLoop& loop);

} // namespace kx
