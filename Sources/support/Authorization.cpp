#include "support/Authorization.h"

#include "support/SystemLog.h"
#include "support/TextEncoding.h"
#include "support/TextFormat.h"

#include <algorithm>
#include <utility>

namespace kx {

namespace {

// The first one that is not ASCII; null when all are.
const std::string* argumentThatIsNotASCII(const std::vector<std::string>& arguments) {
    const auto found = std::ranges::find_if(
        arguments, [](const std::string& argument) { return !asciiBytes(argument).has_value(); });
    return found != arguments.end() ? &*found : nullptr;
}

} // namespace

Authorization::Authorization(AuthorizationService& service, std::string toolPath)
    : _service(service)
    , _privilegedToolPath(std::move(toolPath)) {}

Authorization::~Authorization() = default;

bool Authorization::authenticate(const std::vector<std::string>& plannedArguments) {
    return copyRights(kAuthorizationFlagInteractionAllowed | kAuthorizationFlagExtendRights,
                      plannedArguments);
}

bool Authorization::isAuthenticated() {
    return copyRights(kAuthorizationFlagExtendRights, {});
}

void Authorization::deauthenticate() {
    mAuthorizationRef.reset();
}

bool Authorization::copyRights(std::uint32_t flags,
                               const std::vector<std::string>& plannedArguments) {
    if (mAuthorizationRef == nullptr) {
        mAuthorizationRef = _service.create();
    }
    // The run refuses them, so nobody is asked about them, and no tool begins with them.
    if (argumentThatIsNotASCII(plannedArguments) != nullptr) {
        return mAuthorizationRef != nullptr;
    }
    const AuthorizationItem right{.name = std::string(kAuthorizationRightExecute),
                                  .value = _privilegedToolPath,
                                  .flags = 0,
                                  .arguments = plannedArguments};
    return mAuthorizationRef != nullptr &&
           mAuthorizationRef->copyRights(right, flags) == errAuthorizationSuccess;
}

std::int32_t Authorization::runToolWithArgs(const std::vector<std::string>& arguments,
                                            AuthorizationReference::ToolEndAction ended) {
    if (arguments.size() > mostToolArguments) {
        return -1;
    }
    if (const auto* const argument = argumentThatIsNotASCII(arguments)) {
        logToSystem(filledText("Character conversion exception: %@", {*argument}));
        return -1;
    }
    if (mAuthorizationRef == nullptr) {
        return errAuthorizationInvalidRef;
    }
    return mAuthorizationRef->executeWithPrivileges(_privilegedToolPath, arguments,
                                                    std::move(ended));
}

} // namespace kx
