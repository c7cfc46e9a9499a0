#include "platform/linux/LinuxAuthorizationReference.h"

#include "support/LocalizedText.h"

#include <unistd.h>

#include <thread>
#include <utility>

namespace kx {

namespace {

using Clock = std::chrono::steady_clock;

// Launchers, like shells, end with one of these when they have started nothing. The tools do not.
constexpr int firstStatusOfRefusal = 126;
constexpr int lastStatusOfRefusal = 127;

// How long a launcher that is asked to end may take. It only has to be scheduled.
constexpr std::chrono::milliseconds longestEndOfLauncher{1000};
constexpr std::chrono::milliseconds betweenLooksAtTheLauncher{5};

} // namespace

LinuxAuthorizationReference::LinuxAuthorizationReference(RunningTools& runningTools,
                                                         Waiting& waiting)
    : _runningTools(runningTools)
    , _waiting(waiting) {}

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
    const bool hasBegun =
        _begun.tool != nullptr && _begun.toolPath == toolPath && _begun.arguments == arguments;
    if (!hasBegun) {
        if (const auto status = begin(toolPath, arguments); status != errAuthorizationSuccess) {
            return status;
        }
    }
    auto tool = std::move(_begun.tool);
    awaitFirstWork(*tool);
    _runningTools.attend(std::move(tool), [alive = std::weak_ptr<bool>(_alive),
                                           action = std::move(ended)](const ToolEnd& end) {
        if (!alive.expired() && action) {
            action(end);
        }
    });
    return errAuthorizationSuccess;
}

std::int32_t LinuxAuthorizationReference::begin(const std::string& toolPath,
                                                const std::vector<std::string>& arguments) {
    _begun.tool.reset();
    const std::string program = programFor(toolPath, arguments);
    if (program.empty()) {
        return errAuthorizationDenied;
    }
    // A launcher would report this only in words.
    if (::access(program.c_str(), X_OK) != 0) {
        return errAuthorizationToolExecuteFailure;
    }
    const auto untilDecided = asker();
    auto tool = start(program, arguments);
    if (tool == nullptr) {
        return errAuthorizationToolExecuteFailure;
    }
    const auto status = awaitPerson(*tool);
    if (status == errAuthorizationSuccess) {
        _begun = {toolPath, arguments, std::move(tool)};
    } else {
        _runningTools.attend(std::move(tool), {}); // a launcher that has not ended yet is reaped
    }
    return status;
}

// While the program is still the launcher, a person may be asked. This takes as long as the person
// takes.
std::int32_t LinuxAuthorizationReference::awaitPerson(StartedTool& tool) {
    if (launcher().empty()) {
        return errAuthorizationSuccess;
    }
    const auto isSilent = watchForSilence();
    bool isAuthoritySilent = false;
    const auto isDecided = [&] {
        isAuthoritySilent = isSilent();
        return isAuthoritySilent || tool.hasEnded() || !isLauncher(tool);
    };
    const bool wasAwaited =
        _waiting.until(isDecided, localizedText("Waiting for administrator rights."));
    if ((!wasAwaited || isAuthoritySilent) && takeBack(tool)) {
        return isAuthoritySilent ? errAuthorizationDenied : errAuthorizationCanceled;
    }
    return tool.hasEnded() && isRefusal(tool) ? refusalOf(tool.status()) : errAuthorizationSuccess;
}

// False when the launcher has become the tool before it could be ended.
bool LinuxAuthorizationReference::takeBack(StartedTool& tool) const {
    const auto end = Clock::now() + longestEndOfLauncher;
    tool.askToEnd();
    while (!tool.hasEnded() && isLauncher(tool) && Clock::now() < end) {
        std::this_thread::sleep_for(betweenLooksAtTheLauncher);
    }
    return isLauncher(tool);
}

void LinuxAuthorizationReference::awaitFirstWork(StartedTool& tool) {
    const auto end = Clock::now() + moment;
    _waiting.until([&] { return tool.hasEnded() || Clock::now() >= end; },
                   localizedText("Waiting for the tool that has administrator rights."));
}

// Where the system does not tell the name of the program, it may still be the launcher.
bool LinuxAuthorizationReference::isLauncher(const StartedTool& tool) const {
    return tool.programName().value_or(launcher()) == launcher();
}

// The name of the program tells for certain whether the launcher has become the tool. Where the
// system does not tell the name, the status decides.
bool LinuxAuthorizationReference::isRefusal(StartedTool& ended) const {
    const auto name = ended.programName();
    if (name.has_value()) {
        return *name == launcher();
    }
    const int status = ended.status();
    return status == firstStatusOfRefusal || status == lastStatusOfRefusal;
}

} // namespace kx
