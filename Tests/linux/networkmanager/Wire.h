// Two ends of a D-Bus connection within this process. After the way from one end to the other, a
// value has the type that it has when another program sends it.

#pragma once

#include "PrivateHost.h"

#include <gtest/gtest.h>

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusServer>
#include <QMap>
#include <QObject>
#include <QVariantMap>

namespace kx {

using PropertiesByInterface = QMap<QString, QVariantMap>;
using ManagedObjects = QMap<QDBusObjectPath, PropertiesByInterface>;
using Dictionaries = QList<QVariantMap>;

class Wire : public QObject {
    Q_OBJECT

public:
    Wire() {
        qDBusRegisterMetaType<PropertiesByInterface>();
        qDBusRegisterMetaType<ManagedObjects>();
        qDBusRegisterMetaType<Dictionaries>();
        connect(&_server, &QDBusServer::newConnection, this,
                [this](const QDBusConnection& connection) { _sender = connection; });
        _receiver.connect(QString(), QString(), "kx.Test", "answer", this,
                          SLOT(receive(QDBusMessage)));
        handleEventsUntil([this] { return _sender.isConnected() && _receiver.isConnected(); });
    }
    ~Wire() override { QDBusConnection::disconnectFromPeer("test"); }

    // A message with this value, as it arrives.
    QDBusMessage carried(const QVariant& value) {
        auto message = QDBusMessage::createSignal("/", "kx.Test", "answer");
        message << value;
        _received = {};
        _sender.send(message);
        EXPECT_TRUE(
            handleEventsUntil([this] { return _received.type() == QDBusMessage::SignalMessage; }));
        return _received;
    }

private Q_SLOTS:
    void receive(const QDBusMessage& message) { _received = message; }

private:
    QDBusServer _server;
    QDBusConnection _sender{"none"};
    QDBusConnection _receiver{QDBusConnection::connectToPeer(_server.address(), "test")};
    QDBusMessage _received;
};

} // namespace kx
