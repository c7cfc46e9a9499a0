#include "platform/linux/RootAuthorizationService.h"

#include "platform/linux/ARPTool.h"
#include "platform/linux/LinuxAuthorizationReference.h"

namespace kx {

namespace {

std::optional<std::string> objection(const std::string& toolPath,
                                     const std::vector<std::string>& arguments) {
    return toolPath == arpToolPath ? objectionForAdministrator(arguments) : std::nullopt;
}

class RootReference final : public LinuxAuthorizationReference {
public:
    RootReference(RunningTools& runningTools, Waiting& waiting)
        : LinuxAuthorizationReference(runningTools, waiting) {}

private:
    std::int32_t obtain(const AuthorizationItem& /*right*/, bool /*mayAskPerson*/) override {
        return errAuthorizationSuccess;
    }
    std::string programFor(const std::string& toolPath,
                           const std::vector<std::string>& arguments) const override {
        if (objection(toolPath, arguments).has_value()) {
            return {};
        }
        const bool takesOut =
            toolPath == arpToolPath && !arguments.empty() && arguments.front() == "-d";
        return takesOut ? privilegedToolOfAdministrator() : toolPath;
    }
    std::unique_ptr<StartedTool> start(const std::string& program,
                                       const std::vector<std::string>& arguments) override {
        return StartedTool::start(program, arguments, std::nullopt);
    }
    std::string launcher() const override { return {}; }
    std::int32_t refusalOf(int /*launcherStatus*/) const override {
        return errAuthorizationToolExecuteFailure;
    }
    std::function<bool()> watchForSilence() override {
        return [] { return false; };
    }
};

} // namespace

RootAuthorizationService::RootAuthorizationService(RunLoop& loop, Waiting& waiting)
    : _runningTools(loop)
    , _waiting(waiting) {}

std::unique_ptr<AuthorizationReference> RootAuthorizationService::create() {
    return std::make_unique<RootReference>(_runningTools, _waiting);
}

std::optional<std::string>
RootAuthorizationService::objectionTo(const std::string& toolPath,
                                      const std::vector<std::string>& arguments) const {
    return objection(toolPath, arguments);
}

} // namespace kx
