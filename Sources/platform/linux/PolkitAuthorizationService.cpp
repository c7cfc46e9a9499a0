#include "platform/linux/PolkitAuthorizationService.h"

#include "platform/linux/LinuxAuthorizationReference.h"
#include "platform/linux/PolkitCheck.h"

namespace kx {

namespace {

constexpr auto launcherPath = "/usr/bin/pkexec";
constexpr auto launcherName = "pkexec";

// pkexec(1): the dialog was dismissed. For every other reason not to run the tool it returns 127.
constexpr int launcherDismissed = 126;

constexpr auto arpToolPath = "/usr/sbin/arp";
constexpr auto arpToolAction = "org.kxconfig.KXConfig.set-arp-entry";
constexpr auto anyToolAction = "org.freedesktop.policykit.exec";

class PolkitReference final : public LinuxAuthorizationReference {
public:
    explicit PolkitReference(RunningTools& runningTools)
        : LinuxAuthorizationReference(runningTools) {}

private:
    std::int32_t obtain(const AuthorizationItem& right, bool mayAskPerson) override {
        if (right.name != kAuthorizationRightExecute) {
            return errAuthorizationDenied;
        }
        switch (
            askPolkit(right.value == arpToolPath ? arpToolAction : anyToolAction, mayAskPerson)) {
        case PolkitAnswer::authorized:
            return errAuthorizationSuccess;
        case PolkitAnswer::dismissed:
            return errAuthorizationCanceled;
        case PolkitAnswer::nobodyAsked:
            return errAuthorizationInteractionNotAllowed;
        case PolkitAnswer::refused:
        case PolkitAnswer::unreachable:
            break;
        }
        return errAuthorizationDenied;
    }

    // The launcher gives the tool its own environment. It refuses to start the tool when it finds
    // one of a few variables in doubt, so it gets none. It must not ask in a terminal, because the
    // user of a window does not look there.
    std::unique_ptr<StartedTool> start(const std::string& toolPath,
                                       const std::vector<std::string>& arguments) override {
        std::vector<std::string> words{"--disable-internal-agent", toolPath};
        words.insert(words.end(), arguments.begin(), arguments.end());
        return StartedTool::start(launcherPath, words, std::vector<std::string>());
    }

    std::string launcher() const override { return launcherName; }

    std::int32_t refusalOf(int launcherStatus) const override {
        return launcherStatus == launcherDismissed ? errAuthorizationCanceled
                                                   : errAuthorizationDenied;
    }
};

} // namespace

PolkitAuthorizationService::PolkitAuthorizationService(RunLoop& loop)
    : _runningTools(loop) {}

std::unique_ptr<AuthorizationReference> PolkitAuthorizationService::create() {
    return isPolkitThere() ? std::make_unique<PolkitReference>(_runningTools) : nullptr;
}

} // namespace kx
