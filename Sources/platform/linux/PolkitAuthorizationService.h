// The authority for an ordinary user: polkit asks a person through the desktop's dialog, and pkexec
// runs the tool.
//
// The right to run a tool is the action by which pkexec knows the tool. The ARP tool has an action
// of its own (Resources/org.kxconfig.KXConfig.policy). polkit keeps a grant of this action to this
// process for a few minutes, so one grant serves for the question and for the run. When polkit has
// let a right run out, it is no longer held, and the next request asks a person again.
//
// An application cannot take its own grant back from polkit. A right that was granted under a
// destroyed reference is not held under the next one. But while polkit still keeps the grant, a
// request that may ask a person asks nobody.
//
// Status codes of a request: errAuthorizationCanceled when the dialog was dismissed,
// errAuthorizationInteractionNotAllowed when nobody was to be asked or there is no dialog to ask
// with, otherwise errAuthorizationDenied. Status codes of a run: errAuthorizationCanceled and
// errAuthorizationDenied in the same cases, errAuthorizationToolExecuteFailure without the tool or
// pkexec. create() returns null without a system bus or polkit on it.

#pragma once

#include "platform/linux/RunningTools.h"
#include "support/AuthorizationService.h"
#include "support/RunLoop.h"

#include <memory>

namespace kx {

class PolkitAuthorizationService final : public AuthorizationService {
public:
    // `loop` must outlive the service. Needs a QCoreApplication.
    explicit PolkitAuthorizationService(RunLoop& loop);

    std::unique_ptr<AuthorizationReference> create() override;

private:
    RunningTools _runningTools;
};

} // namespace kx
