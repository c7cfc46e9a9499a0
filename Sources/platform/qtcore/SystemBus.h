// A private connection to the host's system bus. Nothing waits for the bus's greeting, and a caller
// waits for an answer only when it wants to.
//
// The toolkit's own bus connections are not used, because they wait for the greeting; a bus that
// has stopped would hold the application up. For the same reason the bus has to show first that it
// answers (BusProbe.h): a bus that has stopped counts as no bus. This end of the connection answers
// no calls.
//
// Threading: the main thread only, which needs a QCoreApplication; signals come from its event
// loop. A connection that has ended does not come back: make another one.

#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QObject>
#include <QString>
#include <chrono>
#include <functional>
#include <optional>

namespace kx {

class SystemBus final : public QObject {
    Q_OBJECT

public:
    // Connects to the bus at the address in the environment variable DBUS_SYSTEM_BUS_ADDRESS, or
    // else at the well-known one, if it shows within `patience` that it answers. `heard` is called
    // with every signal that arrives; it may destroy this object.
    SystemBus(std::function<void(const QDBusMessage& signal)> heard,
              std::chrono::milliseconds patience);
    ~SystemBus() override;
    SystemBus(const SystemBus&) = delete;
    SystemBus& operator=(const SystemBus&) = delete;

    // Whether there is a connection. When the connection ends, a signal arrives for which
    // endsConnection() is true.
    bool isOpen() const { return _connection.has_value() && _connection->isConnected(); }
    static bool endsConnection(const QDBusMessage& signal);

    // Asks the bus for a sender's signals with a name and, where one is given, with this text as
    // their first argument.
    void hearSignals(const QString& sender, const QString& interface, const QString& name,
                     const QString& firstArgument = {});

    // Asks the bus which connection has a service's name. The answer is that connection's own name,
    // or an error when no connection has it. It comes before any signal of a later change of the
    // owner, and before the answer to a call that is made later.
    QDBusPendingCall owner(const QString& service);

    // Calls a method. The answer is an error when none has come in time, and at once when there is
    // no connection. The call starts no service.
    QDBusPendingCall call(QDBusMessage message, std::chrono::milliseconds patience);

    // The patience for an answer that may take for ever. The bus tells when the called connection
    // is gone.
    static constexpr std::chrono::milliseconds endlessPatience{0x7FFFFFFF};

private Q_SLOTS:
    void receive(const QDBusMessage& signal);

private:
    QDBusMessage busCall(const QString& method) const;

    std::function<void(const QDBusMessage&)> _heard;
    std::optional<QDBusConnection> _connection; // absent without a bus
};

} // namespace kx
