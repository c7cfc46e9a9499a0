// KXConfig: wires the core to the platform and runs it.

#include "KXConfigAppDelegate.h"
#include "KXDiagnosis.h"
#include "KXTableRun.h"
#include "ReadAheadSystemCalls.h"
#include "System Configuration/SystemConfiguration.h"
#include "conversation/AddressBindings.h"
#include "conversation/InterfaceAddress.h"
#include "files/CapturingSystemCalls.h"
#include "files/SessionRecord.h"
#include "files/WholeFile.h"
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
#include "platform/posix/ThreadHostResolver.h"
#include "platform/qt/ApplicationIcon.h"
#include "platform/qt/InstalledResources.h"
#include "platform/qt/MainWindow.h"
#include "platform/qt/QtApplication.h"
#include "platform/qt/QtHelpServices.h"
#include "platform/qt/QtRunLoop.h"
#include "platform/qt/QtText.h"
#include "platform/qt/QtTranslations.h"
#include "platform/qt/WaitingPanel.h"
#include "support/LocalizedText.h"
#include "support/RateLimitedSystemLog.h"
#include "support/SignalPipe.h"
#include "support/SystemLog.h"
#include "support/TextCatalogue.h"
#include "translations/Translations.h"

#include <unistd.h>

#include <QApplication>
#include <QSocketNotifier>
#include <QString>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <functional>
#include <optional>
#include <string>
#include <utility>

namespace {

void describeApplication() {
    QApplication::setApplicationName("KXConfig");
    QApplication::setApplicationVersion(KX_VERSION);
    // The name of the desktop entry. A desktop finds the icon of the window by this name, if it
    // looks for one.
    QApplication::setDesktopFileName("org.kxconfig.KXConfig");
    QApplication::setWindowIcon(kx::applicationIcon());
}

// The IPv4 address of this host on a link; 0 when there is none.
std::uint32_t ownAddressOn(kx::DatagramSystemCalls& systemCalls, std::uint32_t link) {
    return kx::addressOfInterface(kx::SystemConfiguration::sharedInstance(),
                                  systemCalls.nameForLink(link))
        .address;
}

template<class Unit, class Clock>
Unit timeOf() {
    return std::chrono::duration_cast<Unit>(Clock::now().time_since_epoch());
}

constexpr auto timeNow = timeOf<kx::CaptureTime, std::chrono::system_clock>;

// Only a file is replaced, and only one that may be written.
std::optional<kx::Error> writeFile(const std::string& path, std::string_view text) {
    const auto objection = kx::objectionToReplacing(path);
    return objection.has_value() ? objection : kx::replaceFile(path, text);
}

// What this host gives to the controller, each after what it needs itself.
struct Host {
    kx::QtRunLoop& runLoop;
    std::string language; // of the window
    kx::ThreadHostResolver hostResolver{runLoop};
    kx::ReadAheadSystemCalls systemCalls = {};
    kx::LinuxReceiveBufferControl receiveBuffers = {};

    // Between the listener and the system: the witness takes out what the diagnosis sends to
    // itself, and what is left is recorded.
    kx::ListenerWitness witness{systemCalls, &receiveBuffers};
    kx::SessionRecord sessionRecord = kx::SessionRecord();
    kx::CapturingSystemCalls recordedCalls{witness, recorder({})};

    // What others ask and hear with sockets of their own is recorded too. The event log has no line
    // for it.
    kx::CapturingSystemCalls recordedProbes{
        systemCalls,
        recorder([] { return kx::localizedText("A check of Details, not in the event log"); })};
    kx::CapturingSystemCalls recordedRuns{
        systemCalls,
        recorder([] { return kx::localizedText("Configure from File, not in the event log"); })};

    kx::LinuxNeighbourTable neighbours = {};
    kx::SystemWallClock wallClock = {};
    kx::QtApplication application = {};
    kx::QtHelpServices helpServices{kx::installedResourceFolder(),
                                    kx::QtHelpServices::browserForUser(::geteuid()),
                                    kx::qtText(language)};
    kx::KernelLinks kernelLinks{runLoop};
    kx::LinuxKernelQuery kernelQuery{kernelLinks};
    kx::NetworkManagerProfiles connectionProfiles{runLoop};
    kx::LinuxConfigurationStore configurationStore{runLoop, kernelLinks, &connectionProfiles};
    kx::LinuxDiagnosticSockets diagnosticSockets{runLoop};
    kx::LinuxHostDiagnostics diagnostics = kx::LinuxHostDiagnostics();
    kx::LinuxAddressProbes probes{runLoop};
    kx::LinuxRunLock runLock = {};

    // Keeps each datagram in the session record, with the comment that `comment` makes.
    kx::CapturingSystemCalls::Services recorder(std::function<std::string()> comment) {
        return {
            .take =
                [this, comment = std::move(comment)](kx::CapturedDatagram datagram,
                                                     kx::ByteView data) {
                    const std::string text = comment ? comment() : std::string();
                    datagram.comment = text;
                    sessionRecord.keep(datagram, data);
                },
            .now = timeNow,
            .ownAddress = [this](std::uint32_t link) { return ownAddressOn(systemCalls, link); },
            .receiveBuffers = &receiveBuffers};
    }

    kx::CaptureCounts recordedCounts() const {
        kx::CaptureCounts sum;
        for (const auto* calls : {&recordedCalls, &recordedProbes, &recordedRuns}) {
            sum.received += calls->counts().received;
            sum.dropped += calls->counts().dropped;
        }
        return sum;
    }
};

// By the XDG Base Directory Specification; empty when the user has no home.
std::string stateFolder() {
    const auto value = [](const char* name) {
        const char* const text = std::getenv(name);
        return std::string(text != nullptr ? text : "");
    };
    const std::string state = value("XDG_STATE_HOME");
    if (state.starts_with('/')) { // others are to be passed over
        return state + "/kxconfig";
    }
    const std::string home = value("HOME");
    return home.empty() ? std::string() : home + "/.local/state/kxconfig";
}

// The run has a socket of its own, which is not witnessed.
kx::KXTableRun::Services tableServicesOf(Host& host, kx::HostInterfaces& interfaces,
                                         kx::AddressBindings& bindings,
                                         kx::KXConfigAppDelegate& controller) {
    return {.session = {.runLoop = host.runLoop,
                        .hostResolver = host.hostResolver,
                        .systemCalls = host.recordedRuns,
                        .receiveBuffers = &host.receiveBuffers},
            .now = timeOf<std::chrono::milliseconds, std::chrono::steady_clock>,
            .utc = timeOf<std::chrono::seconds, std::chrono::system_clock>,
            .wallClock = host.wallClock,
            .interfaces = interfaces,
            .moves = {.holders = {.neighbours = host.neighbours, .probes = &host.probes},
                      .bindings = bindings},
            .lock = host.runLock,
            .writeFile = writeFile,
            .stateFolder = stateFolder(),
            .chosenInterface = [&controller] { return controller.nameOfChosenInterface(); },
            .usesPort =
                [&host](std::uint16_t port, std::vector<std::uint32_t> ownAddresses) {
                    host.witness.passOverRequestsFrom(port, std::move(ownAddresses));
                }};
}

kx::KXDiagnosis::Services diagnosisServicesOf(Host& host, kx::HostInterfaces& interfaces) {
    return {.runLoop = host.runLoop,
            .now = timeOf<std::chrono::milliseconds, std::chrono::steady_clock>,
            .witness = host.witness,
            .systemCalls = host.recordedProbes,
            .sockets = host.diagnosticSockets,
            .host = host.diagnostics,
            .neighbours = host.neighbours,
            .interfaces = interfaces};
}

// The host must outlive the services.
kx::KXConfigAppDelegate::Services servicesOf(Host& host, kx::KXDiagnosis& diagnosis,
                                             kx::AuthorizationService* authorizationService) {
    return {.runLoop = host.runLoop,
            .hostResolver = host.hostResolver,
            .systemCalls = host.recordedCalls,
            .wallClock = host.wallClock,
            .application = host.application,
            .networkInterfaces = &kx::SystemConfiguration::sharedInstance(),
            .openHelpAnchor =
                [&help = host.helpServices](std::string_view anchor) {
                    return kx::openHelpAnchor(anchor, help);
                },
            .authorizationService = authorizationService,
            .receiveBuffers = &host.receiveBuffers,
            .hasHelpPage = [&help = host.helpServices](
                               std::string_view page) { return kx::hasHelpPage(page, help); },
            .neighbours = &host.neighbours,
            .likeliestCause = [&diagnosis] { return diagnosis.likeliestCause(); },
            .openHelpInViewer =
                [&help = host.helpServices](std::string_view anchor) {
                    const auto book = help.helpBookName();
                    return book.has_value() && help.openAnchorInBook(anchor, *book);
                },
            .saving = {.record = &host.sessionRecord,
                       .application = "KXConfig " KX_VERSION,
                       .counts = [&host] { return host.recordedCounts(); },
                       .now = timeNow,
                       .writeFile = writeFile}};
}

// What an order to end ends, each after what it needs itself.
struct Work {
    kx::MainWindow& window;
    kx::WaitingPanel& waiting;
    kx::KXConfigAppDelegate& controller;
    kx::KXTableRun& tableRun;
    bool isOrderedToEnd = false; // by a signal before

    void end() {
        window.disconnectActions();
        controller.applicationWillTerminate();
    }

    // Units that are being configured are finished first. Their window goes, so what a person must
    // know of them goes to the system log. A second order sends them no further command.
    void endByOrder() {
        waiting.giveUp();
        if (std::exchange(isOrderedToEnd, true) && tableRun.isStopping()) {
            tableRun.breakOff();
            return;
        }
        tableRun.stopThen([this] {
            for (const std::string& sentence : tableRun.sentencesAboutUnitsToLookAt()) {
                kx::logToSystem(sentence);
            }
            end();
            QApplication::exit(0);
        });
    }
};

// Runs the program until its end, which a person or a signal brings about.
int runWindow(Work work) {
    kx::MainWindow& window = work.window;
    window.connectActions(work.controller);
    QObject::connect(qApp, &QCoreApplication::aboutToQuit, &window, [&work] { work.end(); });
    // A dialog may be open, below which an action is not done. The action has to find the end when
    // it goes on, so the end comes before its loop is left.
    kx::SignalPipe signalPipe({SIGTERM, SIGINT, SIGHUP});
    const QSocketNotifier arrivals(signalPipe.descriptor(), QSocketNotifier::Read);
    QObject::connect(&arrivals, &QSocketNotifier::activated, &window, [&] {
        if (signalPipe.take().has_value()) {
            work.endByOrder();
        }
    });
    window.show();
    work.controller.applicationDidFinishLaunching();
    return QApplication::exec();
}

int runOnThisHost(kx::QtRunLoop& runLoop, const std::string& language) {
    Host host{runLoop, language};
    kx::SystemConfiguration::installSources(host.configurationStore, host.kernelQuery);
    kx::MainWindow window;
    kx::WaitingPanel waiting(window);
    const auto authorizationService = kx::makeAuthorizationService(runLoop, waiting);
    kx::LinuxHostInterfaces interfaces(kx::SystemConfiguration::sharedInstance(), host.kernelLinks);
    kx::KXDiagnosis diagnosis(diagnosisServicesOf(host, interfaces));
    kx::KXConfigAppDelegate controller(window.outlets(),
                                       servicesOf(host, diagnosis, authorizationService.get()));
    kx::AuthorizedAddressBindings bindings(*authorizationService, [&waiting] { waiting.giveUp(); });
    kx::KXTableRun tableRun(tableServicesOf(host, interfaces, bindings, controller));
    diagnosis.setSelection(
        {.chosenInterface = [&] { return controller.nameOfChosenInterface(); },
         .selectedUnit = [&] { return controller.selectedUnit(); },
         .record =
             [&](const std::string& serial) {
                 const kx::UnitRecord* const unit = controller.devices().find(serial);
                 return unit != nullptr ? std::optional<kx::UnitRecord>(*unit) : std::nullopt;
             }});
    window.setDiagnosis(&diagnosis, [&controller] { controller.openHelp("no-answer"); });
    window.setTableRun(&tableRun, [&controller] { controller.openHelp("many-units"); });
    const int result = runWindow(
        {.window = window, .waiting = waiting, .controller = controller, .tableRun = tableRun});
    window.setTableRun(nullptr, {});
    window.setDiagnosis(nullptr, {});
    return result;
}

} // namespace

int main(int argc, char* argv[]) {
    // The reader of standard error may end before the window does.
    std::signal(SIGPIPE, SIG_IGN);

    const QApplication qtApplication(argc, argv);
    describeApplication();

    kx::SyslogSystemLog systemLog("kxconfig");
    kx::installSystemLog(&systemLog);
    const auto translation = kx::firstTranslation(kx::languagesOfUser());
    const kx::QtTranslations textsOfQt(translation.language);
    const kx::TextCatalogue texts(translation.entries);
    kx::installLocalizedText(&texts);

    kx::QtRunLoop runLoop;
    kx::RateLimitedSystemLog limitedLog(systemLog, runLoop);
    kx::installSystemLog(&limitedLog);
    kx::installMemoryExhaustionHandler();
    const int result = runOnThisHost(runLoop, std::string(translation.language));

    kx::installLocalizedText(nullptr);
    kx::installSystemLog(nullptr);
    return result;
}
