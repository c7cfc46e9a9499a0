#include "platform/qtcore/SystemBus.h"

#include "platform/qtcore/BusProbe.h"

#include <cstdlib>
#include <utility>

namespace kx {

namespace {

constexpr auto busService = "org.freedesktop.DBus";
constexpr auto localInterface = "org.freedesktop.DBus.Local";
constexpr auto localPath = "/org/freedesktop/DBus/Local";
constexpr auto disconnectedSignal = "Disconnected";

// Every program finds the bus in this way.
constexpr auto addressVariable = "DBUS_SYSTEM_BUS_ADDRESS";
constexpr auto wellKnownAddress = "unix:path=/var/run/dbus/system_bus_socket";

QString busAddress() {
    const char* const address = std::getenv(addressVariable);
    return QString::fromLocal8Bit(address != nullptr ? address : wellKnownAddress);
}

// The toolkit keeps its connections by name, so each needs a new one.
QString newConnectionName() {
    static int count = 0;
    return QString("kx-system-bus-%1").arg(++count);
}

// Absent when the bus does not answer. The toolkit starts a thread for its first connection, open
// or not; a host without a bus does without that.
std::optional<QDBusConnection> connectionToBus(std::chrono::milliseconds patience) {
    const QString address = busAddress();
    if (!busAnswers(address.toLocal8Bit().toStdString(), patience)) {
        return std::nullopt;
    }
    return QDBusConnection::connectToPeer(address, newConnectionName());
}

} // namespace

SystemBus::SystemBus(std::function<void(const QDBusMessage&)> heard,
                     std::chrono::milliseconds patience)
    : _heard(std::move(heard))
    , _connection(connectionToBus(patience)) {
    if (!_connection.has_value() || !_connection->isConnected()) {
        return;
    }
    _connection->connect(QString(), localPath, localInterface, disconnectedSignal, this,
                         SLOT(receive(QDBusMessage)));
    _connection->send(busCall("Hello"));
}

SystemBus::~SystemBus() {
    if (_connection.has_value()) {
        QDBusConnection::disconnectFromPeer(_connection->name());
    }
}

bool SystemBus::endsConnection(const QDBusMessage& signal) {
    return signal.interface() == localInterface && signal.member() == disconnectedSignal;
}

void SystemBus::hearSignals(const QString& sender, const QString& interface, const QString& name,
                            const QString& firstArgument) {
    if (!_connection.has_value()) {
        return;
    }
    QString rule = QString("type='signal',sender='%1',interface='%2',member='%3'")
                       .arg(sender, interface, name);
    if (!firstArgument.isEmpty()) {
        rule += QString(",arg0='%1'").arg(firstArgument);
    }
    QDBusMessage request = busCall("AddMatch");
    request << rule;
    _connection->send(request);
    // The second call for an interface and a name, with another first argument, is refused and is
    // not needed.
    _connection->connect(QString(), QString(), interface, name, this, SLOT(receive(QDBusMessage)));
}

QDBusPendingCall SystemBus::owner(const QString& service) {
    QDBusMessage request = busCall("GetNameOwner");
    request << service;
    return call(request, endlessPatience);
}

QDBusPendingCall SystemBus::call(QDBusMessage message, std::chrono::milliseconds patience) {
    if (!_connection.has_value()) {
        return QDBusPendingCall::fromError(
            QDBusError(QDBusError::Disconnected, "There is no connection to the bus"));
    }
    message.setAutoStartService(false);
    return _connection->asyncCall(message, static_cast<int>(patience.count()));
}

void SystemBus::receive(const QDBusMessage& signal) {
    const auto heard = _heard; // lives on when the call destroys this object
    heard(signal);
}

QDBusMessage SystemBus::busCall(const QString& method) const {
    return QDBusMessage::createMethodCall(busService, "/org/freedesktop/DBus", busService, method);
}

} // namespace kx
