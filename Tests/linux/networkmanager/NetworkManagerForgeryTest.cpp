// Signals from another sender that look like NetworkManager's or the bus's own. Any connection on
// the bus may send a signal to a single other connection.

#include "PrivateHost.h"
#include "platform/linux/NetworkManagerProfiles.h"
#include "platform/qt/QtRunLoop.h"

#include <gtest/gtest.h>

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QVariantMap>
#include <fstream>

namespace kx {

namespace {

using Names = std::vector<std::string>;
using namespace std::chrono_literals;

constexpr auto service = "org.freedesktop.NetworkManager";

class NetworkManagerForgery : public testing::Test {
protected:
    void SetUp() override {
        host.start();
        profiles.emplace(loop);
        ASSERT_TRUE(namesBecome(both));
        forger.emplace(QDBusConnection::connectToBus(
            qEnvironmentVariable("DBUS_SYSTEM_BUS_ADDRESS"), "forger"));
        ASSERT_TRUE(forger->isConnected());
    }
    void TearDown() override { QDBusConnection::disconnectFromBus("forger"); }

    Names names() {
        Names result;
        for (const auto& profile : profiles->activeProfiles()) {
            result.push_back(profile.name);
        }
        std::ranges::sort(result);
        return result;
    }
    bool namesBecome(const Names& wanted) {
        return handleEventsUntil([&] { return names() == wanted; });
    }

    // Sends a signal to every connection, one by one, whatever they have asked the bus for. When
    // this returns, each connection has got it, because the bus keeps the order.
    void forge(const QString& path, const QString& interface, const QString& name,
               const QVariantList& arguments) {
        for (const QString& connection : forger->interface()->registeredServiceNames().value()) {
            if (connection.startsWith(':') && connection != forger->baseService()) {
                auto signal = QDBusMessage::createTargetedSignal(connection, path, interface, name);
                signal.setArguments(arguments);
                forger->send(signal);
            }
        }
        forger->interface()->isServiceRegistered(service);
    }
    void forgeOwner(const QString& owner) {
        const QString present = forger->interface()->serviceOwner(service);
        forge("/org/freedesktop/DBus", "org.freedesktop.DBus", "NameOwnerChanged",
              {QString(service), present, owner});
    }
    void forgeChange() {
        forge("/org/freedesktop/NetworkManager/Devices/1", "org.freedesktop.DBus.Properties",
              "PropertiesChanged",
              {"org.freedesktop.NetworkManager.Device", QVariantMap{{"Interface", "kx9"}},
               QStringList()});
    }

    static const inline Names both = {"Office", "Production line"};
    PrivateHost host;
    QtRunLoop loop;
    std::optional<NetworkManagerProfiles> profiles;
    std::optional<QDBusConnection> forger;
};

// Counts the requests for all objects on the bus.
class Readings {
public:
    Readings()
        : _log(QString::fromLocal8Bit(std::getenv("KX_PRIVATE_HOST")) + "/readings")
        , _monitor("dbus-monitor",
                   {"--address", qEnvironmentVariable("DBUS_SYSTEM_BUS_ADDRESS"),
                    "type='method_call',member='GetManagedObjects'"},
                   _log) {
        // The monitor reports that it has begun.
        handleEventsUntil([this] { return linesWith("NameAcquired") + linesWith("NameLost") > 0; });
    }
    ~Readings() { QFile::remove(_log); }
    Readings(const Readings&) = delete;
    Readings& operator=(const Readings&) = delete;

    int count() const { return linesWith("member=GetManagedObjects"); }

private:
    int linesWith(const std::string& text) const {
        std::ifstream file(_log.toStdString());
        int result = 0;
        for (std::string line; std::getline(file, line);) {
            result += line.find(text) != std::string::npos ? 1 : 0;
        }
        return result;
    }

    QString _log;
    BackgroundProgram _monitor;
};

} // namespace

TEST_F(NetworkManagerForgery, NobodyElseCanSayThatNetworkManagerHasEnded) {
    int changes = 0;
    profiles->setChangeAction([&changes] { ++changes; });
    forgeOwner("");
    handleEventsFor(300ms);
    EXPECT_EQ(changes, 0);
    EXPECT_EQ(names(), both);
    profiles->setChangeAction(nullptr);
}

TEST_F(NetworkManagerForgery, NobodyElseCanSayThatTheyAreNetworkManager) {
    int changes = 0;
    profiles->setChangeAction([&changes] { ++changes; });
    forgeOwner(forger->baseService());
    handleEventsFor(300ms);
    EXPECT_EQ(changes, 0);
    profiles->setChangeAction(nullptr);
    PrivateHost::nmcli({"connection", "down", PrivateHost::officeID});
    EXPECT_TRUE(namesBecome({"Production line"})) << "the real one is still heard";
}

TEST_F(NetworkManagerForgery, NobodyElseCanHaveTheProfilesReadAnew) {
    const Readings readings;
    handleEventsFor(300ms);
    const int before = readings.count();
    forgeChange();
    handleEventsFor(300ms);
    EXPECT_EQ(readings.count(), before);
    PrivateHost::nmcli({"connection", "down", PrivateHost::officeID});
    EXPECT_TRUE(namesBecome({"Production line"}));
    EXPECT_TRUE(handleEventsUntil([&] { return readings.count() > before; })) << "the real one can";
}

} // namespace kx
