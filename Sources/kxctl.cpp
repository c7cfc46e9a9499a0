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
#include "platform/posix/SyslogSystemLog.h"
#include "platform/posix/SystemWallClock.h"
#include "platform/posix/TerminalConsole.h"
#include "platform/posix/TerminalWaiting.h"
#include "platform/posix/ThreadHostResolver.h"
#include "platform/qtcore/EventLoopWaiting.h"
#include "platform/qtcore/QtLocalizedText.h"
#include "platform/qtcore/QtRunLoop.h"
#include "platform/qtcore/QtTranslations.h"
#include "support/RateLimitedSystemLog.h"
#include "support/SignalPipe.h"

#include <QCoreApplication>
#include <chrono>
#include <csignal>
#include <optional>
#include <string>
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

int runOnThisHost(const kx::CommandLine& line, kx::QtRunLoop& runLoop,
                  kx::TerminalConsole& console) {
    kx::ThreadHostResolver hostResolver(runLoop);
    kx::ReadAheadSystemCalls systemCalls;
    kx::LinuxReceiveBufferControl receiveBuffers;
    const kx::SystemWallClock wallClock;

    kx::KernelLinks kernelLinks(runLoop);
    kx::LinuxKernelQuery kernelQuery(kernelLinks);
    kx::NetworkManagerProfiles connectionProfiles;
    kx::LinuxConfigurationStore configurationStore(runLoop, kernelLinks, &connectionProfiles);
    kx::SystemConfiguration::installSources(configurationStore, kernelQuery);
    kx::LinuxHostInterfaces interfaces(kx::SystemConfiguration::sharedInstance(), kernelLinks);

    kx::LinuxRunLock runLock;
    kx::LinuxNeighbourTable neighbours;
    kx::LinuxAddressProbes probes(runLoop);
    kx::LinuxHostDiagnostics diagnostics;
    kx::LinuxDiagnosticSockets diagnosticSockets(runLoop);
    kx::EventLoopWaiting waiting;
    kx::TerminalWaiting waitingAtTerminal(waiting, console);
    const auto authorizationService = kx::makeAuthorizationService(
        runLoop, waitingAtTerminal,
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
        runLoop.watchForReading(signalPipe.descriptor(), [&run] { run.takeSignals(); });
    return run.run();
}

int runInLanguageOfUser(int argc, char* argv[], const std::vector<std::string>& arguments,
                        kx::TerminalConsole& console) {
    QCoreApplication qtApplication(argc, argv);
    const kx::QtTranslations translations;
    const kx::QtLocalizedText localizedText;
    kx::installLocalizedText(&localizedText);
    kx::SyslogSystemLog systemLog("kxctl", "/dev/log", kx::SyslogSystemLog::Copies::last);
    kx::QtRunLoop runLoop;
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
    return runInLanguageOfUser(argc, argv, arguments, console);
}
