// Administrator rights for one fixed tool. An object obtains them from the host's authority, keeps
// them, gives them back, and uses them to run the tool.
//
// A right that was granted stays until deauthenticate() or the end of the object, so a person is
// asked once. Callers authenticate before every run.
//
// Threading: the main thread only. authenticate() returns when the person who is asked has
// answered. runToolWithArgs() returns after that too, when a person is asked again, and when the
// tool has done its first work, at most two seconds later. Both handle the application's events
// meanwhile (support/AuthorizationService.h). Ownership: the service must outlive the object, and
// the object must not be destroyed from inside a call.

#pragma once

#include "support/AuthorizationService.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace kx {

class Authorization {
public:
    static constexpr std::size_t mostToolArguments = 31;

    Authorization(AuthorizationService& service, std::string toolPath);
    virtual ~Authorization(); // gives the rights back
    Authorization(const Authorization&) = delete;
    Authorization& operator=(const Authorization&) = delete;

    // Obtains the right to run the tool, and asks a person where that is needed. False when the
    // request was refused, when the person dismissed the question, and when there is no authority.
    // The person is shown the arguments that the tool will get. An authority may ask nobody, and
    // refuse, when they are not given. When one of them is not ASCII, nobody is asked and the
    // result is true: such a run is refused without rights.
    bool authenticate(const std::vector<std::string>& plannedArguments = {});

    // Whether the right is held already. Never asks anybody.
    bool isAuthenticated();

    // Gives the right back: from now on it is not held.
    void deauthenticate();

    // Starts the tool with these arguments, which must be ASCII, and waits a moment for its first
    // work. A person may be asked once more when the host has let the right run out. Returns 0 when
    // the tool was started, -1 for more than 31 arguments or one that is not ASCII (with a line in
    // the system log), and otherwise a status code of the authority
    // (support/AuthorizationService.h). `ended` is told how the tool ends.
    std::int32_t runToolWithArgs(const std::vector<std::string>& arguments,
                                 AuthorizationReference::ToolEndAction ended = {});

protected:
    bool _authorizationDeclined = false; // for subclasses; nothing here sets it

private:
    bool copyRights(std::uint32_t flags, const std::vector<std::string>& plannedArguments);

    AuthorizationService& _service;
    std::unique_ptr<AuthorizationReference> mAuthorizationRef; // null until first needed
    std::string _privilegedToolPath;
};

} // namespace kx
