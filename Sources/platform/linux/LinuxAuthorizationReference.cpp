#include "platform/linux/LinuxAuthorizationReference.h"

#include <unistd.h>

#include <utility>

namespace kx {

namespace {

// Launchers, like shells, end with one of these when they have started nothing. The tools do not.
constexpr int firstStatusOfRefusal = 126;
constexpr int lastStatusOfRefusal = 127;

} // namespace

LinuxAuthorizationReference::LinuxAuthorizationReference(RunningTools& runningTools)
    : _runningTools(runningTools) {}

std::int32_t LinuxAuthorizationReference::copyRights(const AuthorizationItem& right,
                                                     std::uint32_t flags) {
    const bool mayAskPerson = (flags & kAuthorizationFlagInteractionAllowed) != 0;
    if (!mayAskPerson && !_held.contains(right.value)) {
        return errAuthorizationInteractionNotAllowed;
    }
    // The authority is asked again even when the right is held, because the host may let a right
    // run out.
    const auto status = obtain(right, mayAskPerson);
    if (status != errAuthorizationSuccess) {
        _held.erase(right.value);
    } else if ((flags & kAuthorizationFlagExtendRights) != 0) {
        _held.insert(right.value);
    }
    return status;
}

std::int32_t LinuxAuthorizationReference::executeWithPrivileges(
    const std::string& toolPath, const std::vector<std::string>& arguments, ToolEndAction ended) {
    // A launcher would report this only in words.
    if (::access(toolPath.c_str(), X_OK) != 0) {
        return errAuthorizationToolExecuteFailure;
    }
    auto tool = start(toolPath, arguments);
    if (tool == nullptr) {
        return errAuthorizationToolExecuteFailure;
    }
    if (tool->waitAMoment(launcher()) && isRefusal(*tool)) {
        return refusalOf(tool->status());
    }
    _runningTools.attend(std::move(tool), [alive = std::weak_ptr<bool>(_alive),
                                           action = std::move(ended)](int status) {
        if (!alive.expired() && action) {
            action(status);
        }
    });
    return errAuthorizationSuccess;
}

// The name of the program tells for certain whether the launcher has become the tool. Where the
// system does not tell the name, the status decides.
bool LinuxAuthorizationReference::isRefusal(StartedTool& ended) const {
    if (launcher().empty()) {
        return false;
    }
    const auto name = ended.programName();
    if (name.has_value()) {
        return *name == launcher();
    }
    const int status = ended.status();
    return status == firstStatusOfRefusal || status == lastStatusOfRefusal;
}

} // namespace kx
