// The authority for an ordinary user: polkit asks a person through the desktop's dialog, and pkexec
// runs the tool.
//
// The right to run a tool is the action by which pkexec knows the tool. For the ARP tool this is an
// action of kxarp, the program that is run in its place (platform/linux/ARPTool.h and
// Resources/org.kxconfig.KXConfig.policy): one for entering and one for taking out. polkit keeps a
// grant of these actions to this process for a few minutes. When polkit has let a right run out, it
// is no longer held, and the next request asks a person again.
//
// polkit takes words for its dialog only from the administrator, so that no program deceives a
// person about its wishes. pkexec is the administrator's, and hands over the command line that it
// is about to run. So every question is asked through pkexec: the dialog shows the addresses, and
// once the person has allowed it, the tool begins. About a request without arguments nobody is
// asked, because its dialog could not say what will be run.
//
// An application cannot take its own grant back from polkit. A right that was granted under a
// destroyed reference is not held under the next one. But while polkit still keeps the grant, a
// request that may ask a person asks nobody.
//
// Status codes of a request: errAuthorizationCanceled when the dialog was dismissed or the person
// gave up waiting, errAuthorizationToolExecuteFailure when arguments are named and there is no
// kxarp or no pkexec, errAuthorizationInteractionNotAllowed when a person would have to be asked
// but was not to be, or no arguments are named, otherwise errAuthorizationDenied. Status codes of a
// run: errAuthorizationCanceled and errAuthorizationDenied in the same cases,
// errAuthorizationToolExecuteFailure without the tool or pkexec. create() returns null without a
// system bus or polkit on it.

#pragma once

#include "platform/linux/RunningTools.h"
#include "support/AuthorizationService.h"
#include "support/RunLoop.h"
#include "support/Waiting.h"

#include <memory>

namespace kx {

class PolkitAuthorizationService final : public AuthorizationService {
public:
    // `loop` and `waiting` must outlive the service. `asksInTerminal` tells whether a person may be
    // asked in the terminal of this process, where no desktop asks.
    PolkitAuthorizationService(RunLoop& loop, Waiting& waiting, bool asksInTerminal);

    std::unique_ptr<AuthorizationReference> create() override;
    std::optional<std::string>
    objectionTo(const std::string& toolPath,
                const std::vector<std::string>& arguments) const override;

private:
    RunningTools _runningTools;
    Waiting& _waiting;
    bool _asksInTerminal;
};

} // namespace kx
