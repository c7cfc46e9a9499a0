#include "platform/linux/NetworkManagerProfiles.h"

#include "platform/linux/ActiveConnections.h"
#include "platform/qtcore/SystemBus.h"

#include <QDBusError>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QVariant>
#include <algorithm>
#include <utility>

namespace kx {

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds firstPatience{750};
constexpr std::chrono::seconds timeBetweenTries{1};
constexpr int restAfterATry = 8; // times the duration of the try

constexpr auto service = "org.freedesktop.NetworkManager";
constexpr auto rootPath = "/org/freedesktop";
constexpr auto objectManagerInterface = "org.freedesktop.DBus.ObjectManager";
constexpr auto busService = "org.freedesktop.DBus";
constexpr auto ownerChanged = "NameOwnerChanged";

// The interfaces of NetworkManager from which profiles are read. Others change all the time, for
// example the strength of radio signals.
constexpr const char* readInterfaces[] = {
    "org.freedesktop.NetworkManager",
    "org.freedesktop.NetworkManager.Connection.Active",
    "org.freedesktop.NetworkManager.Device",
    "org.freedesktop.NetworkManager.IP4Config",
};

} // namespace

// The watcher may be the sender of the running signal, so it is deleted later.
void NetworkManagerProfiles::EndOfCall::operator()(QDBusPendingCallWatcher* call) const {
    call->disconnect();
    call->deleteLater();
}

NetworkManagerProfiles::NetworkManagerProfiles() {
    connectToBus();
}

NetworkManagerProfiles::~NetworkManagerProfiles() = default;

const std::vector<ConnectionProfile>& NetworkManagerProfiles::activeProfiles() {
    if (!_bus->isOpen()) {
        forget();
        if (Clock::now() >= _nextTry) {
            connectToBus();
        }
    }
    if (_isFirstReading) {
        // This waits on the call itself. Its watcher would take the answer while it waits.
        _reading->QDBusPendingCall::waitForFinished();
        takeAnswer();
    }
    return _profiles;
}

void NetworkManagerProfiles::connectToBus() {
    const auto begin = Clock::now();
    _bus = std::make_unique<SystemBus>([this](const QDBusMessage& signal) { hear(signal); },
                                       firstPatience);
    const auto end = Clock::now();
    _nextTry = end + std::max<Clock::duration>(timeBetweenTries, restAfterATry * (end - begin));
    if (!_bus->isOpen()) {
        return;
    }
    _bus->hearSignals(busService, busService, ownerChanged, service);
    _ownerAnswer.reset(new QDBusPendingCallWatcher(_bus->owner(service)));
    for (const auto* const interface : readInterfaces) {
        _bus->hearSignals(service, "org.freedesktop.DBus.Properties", "PropertiesChanged",
                          interface);
    }
    read(firstPatience);
    _isFirstReading = true;
}

void NetworkManagerProfiles::read(std::chrono::milliseconds patience) {
    const auto request = QDBusMessage::createMethodCall(service, rootPath, objectManagerInterface,
                                                        "GetManagedObjects");
    _reading.reset(new QDBusPendingCallWatcher(_bus->call(request, patience)));
    QObject::connect(_reading.get(), &QDBusPendingCallWatcher::finished, _reading.get(),
                     [this] { takeAnswer(); });
}

// The connection that told the profiles is gone and will not answer any more.
void NetworkManagerProfiles::forget() {
    endReading();
    _ownerAnswer.reset();
    _owner.clear();
    setProfiles({});
}

void NetworkManagerProfiles::endReading() {
    _reading.reset();
    _isFirstReading = _isOutdated = false;
}

void NetworkManagerProfiles::takeAnswer() {
    const QDBusMessage answer = _reading->reply();
    bool mustReadAgain = _isOutdated;
    endReading();
    if (answer.type() == QDBusMessage::ReplyMessage) {
        setProfiles(activeConnections(answer));
    } else if (QDBusError(answer).type() == QDBusError::NoReply) {
        mustReadAgain = true; // NetworkManager hangs, or ended just now
    } else {
        setProfiles({});
    }
    if (mustReadAgain) {
        read(SystemBus::endlessPatience);
    }
}

void NetworkManagerProfiles::setProfiles(std::vector<ConnectionProfile> profiles) {
    if (profiles != _profiles) {
        _profiles = std::move(profiles);
        ++_generation;
        if (_changeAction) {
            _changeAction();
        }
    }
}

// Any connection on the bus may send a signal to this end directly, whatever this end has asked
// for.
void NetworkManagerProfiles::hear(const QDBusMessage& signal) {
    if (SystemBus::endsConnection(signal)) {
        forget();
    } else if (signal.member() == ownerChanged) {
        const auto arguments = signal.arguments();
        if (signal.service() == busService && arguments.value(0).toString() == service) {
            hearOwner(arguments.value(2).toString());
        }
    } else if (_reading != nullptr) {
        _isOutdated = _isOutdated || owner().isEmpty() || signal.service() == owner();
    } else if (!owner().isEmpty() && signal.service() == owner()) {
        read(SystemBus::endlessPatience);
    }
}

const QString& NetworkManagerProfiles::owner() {
    if (_ownerAnswer != nullptr && _ownerAnswer->isFinished()) {
        const QDBusMessage answer = _ownerAnswer->reply();
        if (answer.type() == QDBusMessage::ReplyMessage) { // otherwise there is no owner
            _owner = answer.arguments().value(0).toString();
        }
        _ownerAnswer.reset();
    }
    return _owner;
}

void NetworkManagerProfiles::hearOwner(const QString& owner) {
    forget();
    _owner = owner;
    if (_bus->isOpen() && !owner.isEmpty()) {
        read(SystemBus::endlessPatience);
    }
}

} // namespace kx
