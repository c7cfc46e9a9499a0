#include "platform/linux/RootAuthorizationService.h"

#include "platform/linux/LinuxAuthorizationReference.h"

namespace kx {

namespace {

class RootReference final : public LinuxAuthorizationReference {
public:
    explicit RootReference(RunningTools& runningTools)
        : LinuxAuthorizationReference(runningTools) {}

private:
    std::int32_t obtain(const AuthorizationItem& /*right*/, bool /*mayAskPerson*/) override {
        return errAuthorizationSuccess;
    }
    std::unique_ptr<StartedTool> start(const std::string& toolPath,
                                       const std::vector<std::string>& arguments) override {
        return StartedTool::start(toolPath, arguments, std::nullopt);
    }
    std::string launcher() const override { return {}; }
    std::int32_t refusalOf(int /*launcherStatus*/) const override {
        return errAuthorizationToolExecuteFailure;
    }
};

} // namespace

RootAuthorizationService::RootAuthorizationService(RunLoop& loop)
    : _runningTools(loop) {}

std::unique_ptr<AuthorizationReference> RootAuthorizationService::create() {
    return std::make_unique<RootReference>(_runningTools);
}

} // namespace kx
