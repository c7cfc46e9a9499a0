#include "platform/linux/PolkitAuthorizationService.h"

#include "platform/linux/ARPTool.h"
#include "platform/linux/LinuxAuthorizationReference.h"
#include "platform/linux/PolkitCheck.h"
#include "platform/linux/TerminalAgent.h"

namespace kx {

namespace {

constexpr auto launcherPath = "/usr/bin/pkexec";
constexpr auto launcherName = "pkexec";

// pkexec(1): the dialog was dismissed. For every other reason not to run the tool it returns 127.
constexpr int launcherDismissed = 126;

// The actions of kxarp, and that of every other program.
constexpr auto enterAction = "org.kxconfig.KXConfig.set-arp-entry";
constexpr auto takeOutAction = "org.kxconfig.KXConfig.remove-arp-entry";
constexpr auto anyToolAction = "org.freedesktop.policykit.exec";

// The action under which pkexec runs the tool of a right.
std::string actionOfRun(const AuthorizationItem& right) {
    if (right.value != arpToolPath) {
        return anyToolAction;
    }
    if (right.arguments.empty() || right.arguments.front() == "-s") {
        return enterAction;
    }
    return right.arguments.front() == "-d" ? takeOutAction : anyToolAction;
}

std::int32_t statusOf(PolkitAnswer answer) {
    switch (answer) {
    case PolkitAnswer::authorized:
        return errAuthorizationSuccess;
    case PolkitAnswer::nobodyAsked:
        return errAuthorizationInteractionNotAllowed;
    case PolkitAnswer::refused:
    case PolkitAnswer::unreachable:
        break;
    }
    return errAuthorizationDenied;
}

class PolkitReference final : public LinuxAuthorizationReference {
public:
    PolkitReference(RunningTools& runningTools, Waiting& waiting, bool asksInTerminal)
        : LinuxAuthorizationReference(runningTools, waiting)
        , _asksInTerminal(asksInTerminal) {}

private:
    std::int32_t obtain(const AuthorizationItem& right, bool mayAskPerson) override {
        if (right.name != kAuthorizationRightExecute) {
            return errAuthorizationDenied;
        }
        const auto answer = askPolkit(actionOfRun(right), waiting());
        // Nobody is asked about a run that is not known: the dialog could not say what it is for.
        const bool isToBeAsked =
            answer == PolkitAnswer::nobodyAsked && mayAskPerson && !right.arguments.empty();
        return isToBeAsked ? begin(right.value, right.arguments) : statusOf(answer);
    }

    std::string programFor(const std::string& toolPath,
                           const std::vector<std::string>& /*arguments*/) const override {
        return toolPath == arpToolPath ? privilegedToolPath : toolPath;
    }

    // The launcher gives the tool its own environment. It refuses to start the tool when it finds
    // one of a few variables in doubt, so it gets none. It must not ask in a terminal itself,
    // because the user of a window does not look there.
    std::unique_ptr<StartedTool> start(const std::string& program,
                                       const std::vector<std::string>& arguments) override {
        std::vector<std::string> words{"--disable-internal-agent", program};
        words.insert(words.end(), arguments.begin(), arguments.end());
        return StartedTool::start(launcherPath, words, std::vector<std::string>());
    }

    std::string launcher() const override { return launcherName; }

    std::shared_ptr<void> asker() override {
        return _asksInTerminal ? TerminalAgent::start() : nullptr;
    }

    std::int32_t refusalOf(int launcherStatus) const override {
        return launcherStatus == launcherDismissed ? errAuthorizationCanceled
                                                   : errAuthorizationDenied;
    }

    std::function<bool()> watchForSilence() override { return watchPolkitForSilence(); }

    bool _asksInTerminal;
};

} // namespace

PolkitAuthorizationService::PolkitAuthorizationService(RunLoop& loop, Waiting& waiting,
                                                       bool asksInTerminal)
    : _runningTools(loop)
    , _waiting(waiting)
    , _asksInTerminal(asksInTerminal) {}

std::unique_ptr<AuthorizationReference> PolkitAuthorizationService::create() {
    return isPolkitThere(_waiting)
               ? std::make_unique<PolkitReference>(_runningTools, _waiting, _asksInTerminal)
               : nullptr;
}

std::optional<std::string>
PolkitAuthorizationService::objectionTo(const std::string& toolPath,
                                        const std::vector<std::string>& arguments) const {
    return toolPath == arpToolPath ? objectionOfPrivilegedTool(arguments) : std::nullopt;
}

} // namespace kx
