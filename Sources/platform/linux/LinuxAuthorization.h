// The host's authority over administrator rights. It is polkit, or an authority that grants every
// right where the process has them already. On the thread of the run loop.

#pragma once

#include "support/AuthorizationService.h"
#include "support/RunLoop.h"
#include "support/Waiting.h"

#include <memory>

namespace kx {

// Where a person is asked: at a dialog of the desktop, or, where no desktop asks, also in the
// terminal of this process.
enum class PersonAt { desktop, desktopOrTerminal };

// The authority for this process, by its effective user: RootAuthorizationService for the
// administrator, PolkitAuthorizationService for every other user. Never null. `loop` and `waiting`
// must outlive it.
std::unique_ptr<AuthorizationService> makeAuthorizationService(RunLoop& loop, Waiting& waiting,
                                                               PersonAt person = PersonAt::desktop);

} // namespace kx
