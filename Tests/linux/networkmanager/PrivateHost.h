// A host of the test's own: a network, a system bus and a NetworkManager. The test starts and ends
// each of them. Runs under in_private_host.sh.
//
// Two links, kx0 and kx1, have a profile each, named "Office" and "Production line", with the
// addresses 192.0.2.5/24 and 198.51.100.5/25.

#pragma once

#include "linux/PrivateNetwork.h"

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <thread>

namespace kx {

// Handles events until the condition holds; false when it does not within a generous time.
inline bool handleEventsUntil(const std::function<bool()>& condition) {
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (!condition() && std::chrono::steady_clock::now() < end) {
        QCoreApplication::processEvents(QEventLoop::AllEvents);
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    return condition();
}

inline void handleEventsFor(std::chrono::milliseconds time) {
    const auto end = std::chrono::steady_clock::now() + time;
    while (std::chrono::steady_clock::now() < end) {
        QCoreApplication::processEvents(QEventLoop::AllEvents);
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
}

// A program that runs beside the test and ends with this object.
class BackgroundProgram {
public:
    BackgroundProgram(const QString& program, const QStringList& arguments, const QString& log) {
        _process.setProcessChannelMode(QProcess::MergedChannels);
        _process.setStandardOutputFile(log, QIODevice::Append);
        _process.start(program, arguments);
        if (!_process.waitForStarted()) {
            throw std::runtime_error(program.toStdString() + " does not start");
        }
    }
    ~BackgroundProgram() {
        _process.kill();
        _process.waitForFinished();
    }
    BackgroundProgram(const BackgroundProgram&) = delete;
    BackgroundProgram& operator=(const BackgroundProgram&) = delete;

    // Ends the program as the host ends a service.
    void terminate() {
        _process.terminate();
        _process.waitForFinished();
    }
    void hang() { ::kill(static_cast<pid_t>(_process.processId()), SIGSTOP); }
    void goOn() { ::kill(static_cast<pid_t>(_process.processId()), SIGCONT); }

private:
    QProcess _process;
};

class PrivateHost {
public:
    static constexpr auto officeID = "00000001-0000-4000-8000-000000000000";
    static constexpr auto lineID = "00000002-0000-4000-8000-000000000000";

    PrivateHost() {
        const char* const folder = std::getenv("KX_PRIVATE_HOST");
        if (folder == nullptr) {
            throw std::runtime_error("not under in_private_host.sh");
        }
        _folder = folder;
        for (const auto* const used : {"/etc/NetworkManager", "/var/lib/NetworkManager", "/run"}) {
            for (const auto& entry : std::filesystem::directory_iterator(_folder + used)) {
                std::filesystem::remove_all(entry);
            }
        }
        std::filesystem::create_directory(profileFolder());
        qputenv("DBUS_SYSTEM_BUS_ADDRESS", busAddress().c_str());
        writeFiles();
        network.addLink("kx0", "02:00:00:00:00:01");
        network.addLink("kx1", "02:00:00:00:00:02");
    }

    void startBus() {
        std::filesystem::remove(busSocket());
        bus.emplace("dbus-daemon",
                    QStringList{"--nofork", "--nopidfile", "--nosyslog",
                                "--config-file=" + QString::fromStdString(_folder + "/bus.conf")},
                    log());
        if (!handleEventsUntil([this] { return busListens(); })) {
            throw std::runtime_error("the bus does not come");
        }
    }
    void stopBus() { bus.reset(); }

    // Connections to a bus that hangs, as many as it takes.
    std::vector<FileDescriptor> fillQueueOfBus() const {
        std::vector<FileDescriptor> waiting;
        bool isAccepted = true;
        while (isAccepted) {
            waiting.emplace_back(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
            isAccepted = connectToBus(waiting.back().number());
        }
        return waiting;
    }

    // Starts NetworkManager, which is on the bus a little later. It takes its view of the devices
    // from the kernel, because no other service prepares them.
    void startNetworkManager() {
        networkManager.emplace(
            "unshare",
            QStringList{"--mount", "sh", "-c",
                        "mount -t sysfs -o ro sysfs /sys && exec NetworkManager --no-daemon"},
            log());
    }
    // Starts the bus and NetworkManager, and waits until the profiles are active.
    void start() {
        startBus();
        startNetworkManager();
        if (QProcess::execute("nm-online", {"--wait-for-startup", "--quiet", "--timeout=20"}) !=
            0) {
            throw std::runtime_error("NetworkManager does not come");
        }
    }
    void stopNetworkManager() {
        networkManager->terminate();
        networkManager.reset();
    }

    // Gives an administrator's command to a running NetworkManager, and waits until it is carried
    // out.
    static void nmcli(const QStringList& arguments) {
        if (QProcess::execute("nmcli", arguments) != 0) {
            throw std::runtime_error("failed: nmcli " + arguments.join(' ').toStdString());
        }
    }

    // Adds a profile that NetworkManager finds when it starts. `settings` follow the settings that
    // all profiles share.
    void addProfile(const std::string& identifier, const std::string& name,
                    const std::string& settings) {
        write(profileFolder() + "/" + identifier + ".nmconnection",
              "[connection]\nuuid=" + identifier + "\nid=" + name + "\n" + settings);
    }

    // Settings of a profile for an interface; `ipv4` holds further lines about its addresses. An
    // address is used at once, because newer versions by default ask first whether another host has
    // it.
    static std::string ethernet(const std::string& interface, const std::string& ipv4) {
        return "type=ethernet\ninterface-name=" + interface +
               "\n[ipv4]\nmethod=manual\ndad-timeout=0\n" + ipv4 + "[ipv6]\nmethod=disabled\n";
    }

    PrivateNetwork network;
    std::optional<BackgroundProgram> bus;
    std::optional<BackgroundProgram> networkManager;

private:
    bool connectToBus(int socket) const {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        busSocket().copy(std::data(address.sun_path), sizeof address.sun_path - 1);
        return ::connect(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
    }
    bool busListens() const {
        const FileDescriptor socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
        return connectToBus(socket.number());
    }
    std::string busSocket() const { return _folder + "/bus"; }
    std::string busAddress() const { return "unix:path=" + busSocket(); }
    std::string profileFolder() const { return _folder + "/etc/NetworkManager/system-connections"; }
    QString log() const { return QString::fromStdString(_folder + "/log"); }

    void writeFiles() {
        write(_folder + "/bus.conf",
              "<busconfig><type>system</type><listen>" + busAddress() +
                  "</listen><auth>EXTERNAL</auth><policy context='default'>"
                  "<allow user='*'/><allow own='*'/><allow send_destination='*'/>"
                  "<allow receive_sender='*'/></policy></busconfig>");
        write(_folder + "/etc/NetworkManager/NetworkManager.conf",
              "[main]\nplugins=keyfile\nno-auto-default=*\ndns=none\nrc-manager=unmanaged\n");
        addProfile(officeID, "Office", ethernet("kx0", "address1=192.0.2.5/24\n"));
        addProfile(lineID, "Production line", ethernet("kx1", "address1=198.51.100.5/25\n"));
    }

    // NetworkManager accepts profiles only from files that no other user can read.
    static void write(const std::string& path, const std::string& text) {
        QFile file(QString::fromStdString(path));
        if (!file.open(QIODevice::WriteOnly) ||
            file.write(text.data(), static_cast<qint64>(text.size())) < 0 ||
            !file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner)) {
            throw std::runtime_error("cannot be written: " + path);
        }
    }

    std::string _folder;
};

} // namespace kx
