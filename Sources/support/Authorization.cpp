#include "support/Authorization.h"

#include "support/SystemLog.h"
#include "support/TextEncoding.h"
#include "support/TextFormat.h"

#include <utility>

namespace kx {

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
    for (const auto& argument : arguments) {
        if (!asciiBytes(argument).has_value()) {
            logToSystem(filledText("Character conversion exception: %@", {argument}));
            return -1;
        }
    }
    if (mAuthorizationRef == nullptr) {
        return errAuthorizationInvalidRef;
    }
    return mAuthorizationRef->executeWithPrivileges(_privilegedToolPath, arguments,
                                                    std::move(ended));
}

} // namespace kx
