// kxctl: wires the core and the commands to the platform and runs one command.

#include "ReadAheadSystemCalls.h"
#include "System Configuration/SystemConfiguration.h"
#include "commands/CommandRun.h"
#include "conversation/AddressBindings.h"
#include "platform/linux/KernelLinks.h"
#include "platform/linux/LinuxAddressProbes.h"
#include "platform/linux/LinuxAuthorization.h"
#include "platform/linux/LinuxConfigurationStore.h"
#include "platform/linux/LinuxDiagnosticSockets.h"
#include "platform/linux/LinuxHostDiagnostics.h"
#include "platform/linux/LinuxHostInterfaces.h"
#include "platform/linux/LinuxKernelQuery.h"
#include "platform/linux/LinuxNeighbourTable.h"
#include "platform/linux/LinuxReceiveBufferControl.h"
#include "platform/linux/LinuxRunLock.h"
#include "platform/linux/NetworkManagerProfiles.h"
#include "platform/posix/MemoryExhaustion.h"
#include "platform/posix/PollRunLoop.h"
#include "platform/posix/SyslogSystemLog.h"
#include "platform/posix/SystemWallClock.h"
#include "platform/posix/TerminalConsole.h"
#include "platform/posix/TerminalWaiting.h"
#include "platform/posix/ThreadHostResolver.h"
#include "support/RateLimitedSystemLog.h"
#include "support/SignalPipe.h"
#include "support/TextCatalogue.h"
#include "translations/Translations.h"

#include <langinfo.h>

#include <chrono>
#include <clocale>
#include <csignal>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace {

template<class Unit, class Clock>
Unit timeOf() {
    return std::chrono::duration_cast<Unit>(Clock::now().time_since_epoch());
}

// A terminal that is closed ends the program as an order to end does.
std::optional<int> orderToEnd(kx::SignalPipe& signalPipe) {
    const auto signal = signalPipe.take();
    return signal == SIGHUP ? SIGTERM : signal;
}

// The texts of the system's errors are in the user's language too, where they are in UTF-8. Nothing
// else of the locale changes what the program writes, and each category costs files to read.
void takeLocaleOfUser() {
    std::setlocale(LC_CTYPE, "");
    if (std::string_view(::nl_langinfo(CODESET)) == "UTF-8") {
        std::setlocale(LC_MESSAGES, "");
    } else {
        std::setlocale(LC_CTYPE, "C");
    }
}

int runOnThisHost(const kx::CommandLine& line, kx::PollRunLoop& runLoop,
                  kx::TerminalConsole& console) {
    kx::ThreadHostResolver hostResolver(runLoop);
    kx::ReadAheadSystemCalls systemCalls;
    kx::LinuxReceiveBufferControl receiveBuffers;
    const kx::SystemWallClock wallClock;

    kx::KernelLinks kernelLinks(runLoop);
    kx::LinuxKernelQuery kernelQuery(kernelLinks);
    kx::NetworkManagerProfiles connectionProfiles(runLoop);
    kx::LinuxConfigurationStore configurationStore(runLoop, kernelLinks, &connectionProfiles);
    kx::SystemConfiguration::installSources(configurationStore, kernelQuery);
    kx::LinuxHostInterfaces interfaces(kx::SystemConfiguration::sharedInstance(), kernelLinks);

    kx::LinuxRunLock runLock;
    kx::LinuxNeighbourTable neighbours;
    kx::LinuxAddressProbes probes(runLoop);
    kx::LinuxHostDiagnostics diagnostics;
    kx::LinuxDiagnosticSockets diagnosticSockets(runLoop);
    kx::TerminalWaiting waiting(runLoop, console);
    const auto authorizationService = kx::makeAuthorizationService(
        runLoop, waiting,
        console.isNoteTerminal() ? kx::PersonAt::desktopOrTerminal : kx::PersonAt::desktop);
    kx::AuthorizedAddressBindings bindings(*authorizationService, [&] { waiting.giveUp(); });

    kx::SignalPipe signalPipe({SIGINT, SIGTERM, SIGHUP});

    kx::CommandRun run(line, {.session = {.runLoop = runLoop,
                                          .hostResolver = hostResolver,
                                          .systemCalls = systemCalls,
                                          .receiveBuffers = &receiveBuffers},
                              .now = timeOf<std::chrono::milliseconds, std::chrono::steady_clock>,
                              .utc = timeOf<std::chrono::microseconds, std::chrono::system_clock>,
                              .wallClock = wallClock,
                              .console = console,
                              .interfaces = interfaces,
                              .runLock = runLock,
                              .neighbours = neighbours,
                              .probes = &probes,
                              .bindings = bindings,
                              .diagnostics = diagnostics,
                              .diagnosticSockets = diagnosticSockets,
                              .takeSignal = [&] { return orderToEnd(signalPipe); }});
    const auto watch =
        runLoop.watchForReading(signalPipe.descriptor(), [&run] { run.takeSignal(); });
    return run.run();
}

int runInLanguageOfUser(const std::vector<std::string>& arguments, kx::TerminalConsole& console) {
    takeLocaleOfUser();
    const kx::TextCatalogue texts(kx::firstTranslation(kx::languagesOfUser()).entries);
    kx::installLocalizedText(&texts);
    kx::SyslogSystemLog systemLog("kxctl", "/dev/log", kx::SyslogSystemLog::Copies::last);
    kx::PollRunLoop runLoop;
    kx::RateLimitedSystemLog limitedLog(systemLog, runLoop);
    kx::installSystemLog(&limitedLog);
    kx::installMemoryExhaustionHandler();

    const auto line = kx::readCommandLine(arguments, console);
    const auto* const status = std::get_if<int>(&line);
    const int result = status != nullptr
                           ? *status
                           : runOnThisHost(std::get<kx::CommandLine>(line), runLoop, console);
    kx::installSystemLog(nullptr);
    kx::installLocalizedText(nullptr);
    return result;
}

} // namespace

int main(int argc, char* argv[]) {
    // A reader that has seen enough closes its pipe.
    std::signal(SIGPIPE, SIG_IGN);
    const std::vector<std::string> arguments(argv + (argc > 0 ? 1 : 0), argv + argc);
    kx::TerminalConsole console;
    if (kx::asksForHelp(arguments)) {
        // The help is English and needs nothing of the host. The word may also be an option's
        // value.
        const auto line = kx::commandLineOf(arguments);
        const auto* const parsed = std::get_if<kx::CommandLine>(&line);
        if (parsed != nullptr && (parsed->has("--help") || parsed->has("--version"))) {
            return std::get<int>(kx::readCommandLine(arguments, console));
        }
    }
    return runInLanguageOfUser(arguments, console);
}
