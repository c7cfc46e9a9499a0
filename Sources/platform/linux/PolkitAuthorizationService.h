// The authority for an ordinary user: polkit, which asks a person through the desktop's dialog, and
// pkexec, which runs the tool.
//
// The right to run a tool is the action by which pkexec knows it. The ARP tool has an action of its
// own (Resources/org.kxconfig.KXConfig.policy), which polkit keeps for a few minutes once it was
// granted to this process: it serves for the question and for the run. A right that polkit has let
// run out is no longer held, and asking for it again asks a person again.
//
// polkit lets no application take its own grant back. What was granted under a reference that is
// gone is not held under the next one, but a request that may ask a person then asks nobody while
// polkit still keeps it.
//
// Status codes of a request: errAuthorizationCanceled when the dialog was dismissed,
// errAuthorizationInteractionNotAllowed when nobody was to be asked or there is no dialog to ask
// with, otherwise errAuthorizationDenied. Of a run: errAuthorizationCanceled and
// errAuthorizationDenied likewise, errAuthorizationToolExecuteFailure without the tool or pkexec.
// create() returns null without a system bus or polkit on it.

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
