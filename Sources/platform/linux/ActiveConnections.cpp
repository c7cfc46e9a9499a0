#include "platform/linux/ActiveConnections.h"

#include <arpa/inet.h>

#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QMap>
#include <QString>
#include <QVariant>
#include <QVariantMap>
#include <algorithm>
#include <optional>

namespace kx {

namespace {

using PropertiesByInterface = QMap<QString, QVariantMap>;
using ManagedObjects = QMap<QDBusObjectPath, PropertiesByInterface>;
using ObjectPaths = QList<QDBusObjectPath>;
using Dictionaries = QList<QVariantMap>;

constexpr auto managerPath = "/org/freedesktop/NetworkManager";
constexpr auto managerInterface = "org.freedesktop.NetworkManager";
constexpr auto activeInterface = "org.freedesktop.NetworkManager.Connection.Active";
constexpr auto deviceInterface = "org.freedesktop.NetworkManager.Device";
constexpr auto ipv4Interface = "org.freedesktop.NetworkManager.IP4Config";

constexpr unsigned externalFlag = 0x80; // a bit of StateFlags

// The value as a container, if it has exactly this signature. A read with another signature would
// never end.
template<class Container>
Container containerIn(const QVariant& value, const char* signature) {
    Container result;
    if (value.metaType() == QMetaType::fromType<QDBusArgument>()) {
        const auto argument = value.value<QDBusArgument>();
        if (argument.currentSignature() == signature) {
            argument >> result;
        }
    }
    return result;
}

// A property with a simple value of exactly this type.
template<class Value>
std::optional<Value> simpleIn(const QVariantMap& properties, const char* name) {
    const QVariant value = properties.value(name);
    return value.metaType() == QMetaType::fromType<Value>() ? std::optional(value.value<Value>())
                                                            : std::nullopt;
}

std::string textIn(const QVariantMap& properties, const char* name) {
    return simpleIn<QString>(properties, name).value_or(QString()).toStdString();
}

// The identifier becomes a component of keys, in which "=" marks an interface without a service.
bool isIdentifier(const std::string& text) {
    return !text.empty() && text.find_first_of("/=") == std::string::npos;
}

std::vector<IPv4InterfaceAddress> addressesIn(const QVariantMap& configuration) {
    std::vector<IPv4InterfaceAddress> addresses;
    for (const auto& entry :
         containerIn<Dictionaries>(configuration.value("AddressData"), "aa{sv}")) {
        in_addr address{};
        const auto prefixLength = simpleIn<unsigned>(entry, "prefix");
        if (::inet_pton(AF_INET, textIn(entry, "address").c_str(), &address) == 1 &&
            prefixLength.has_value() && *prefixLength <= 32) {
            addresses.push_back({ntohl(address.s_addr), *prefixLength});
        }
    }
    return addresses;
}

// The link that carries the addresses. For a modem or a dial-up connection it is not the device
// itself.
std::string interfaceOfDevice(const QVariantMap& device) {
    const std::string ipInterface = textIn(device, "IpInterface");
    return !ipInterface.empty() ? ipInterface : textIn(device, "Interface");
}

class Reader {
public:
    explicit Reader(const ManagedObjects& objects)
        : _objects(objects) {}

    std::vector<ConnectionProfile> profiles() {
        const auto manager = properties(QDBusObjectPath(managerPath), managerInterface);
        for (const auto& path :
             containerIn<ObjectPaths>(manager.value("ActiveConnections"), "ao")) {
            addConnection(properties(path, activeInterface));
        }
        return std::move(_profiles);
    }

private:
    QVariantMap properties(const QDBusObjectPath& path, const char* interface) const {
        return _objects.value(path).value(interface);
    }

    void addConnection(const QVariantMap& connection) {
        ConnectionProfile profile;
        profile.identifier = textIn(connection, "Uuid");
        profile.name = textIn(connection, "Id");
        const unsigned flags = simpleIn<unsigned>(connection, "StateFlags").value_or(0);
        if (!isIdentifier(profile.identifier) || profile.name.empty() ||
            (flags & externalFlag) != 0 || simpleIn<bool>(connection, "Vpn").value_or(false)) {
            return;
        }
        const auto configuration = simpleIn<QDBusObjectPath>(connection, "Ip4Config");
        profile.addresses =
            addressesIn(properties(configuration.value_or(QDBusObjectPath()), ipv4Interface));
        for (const auto& path : containerIn<ObjectPaths>(connection.value("Devices"), "ao")) {
            profile.interfaceName = interfaceOfDevice(properties(path, deviceInterface));
            add(profile);
        }
    }

    // While a profile is activated again, its old and its new connection exist at the same time.
    void add(const ConnectionProfile& profile) {
        const auto isSame = [&profile](const ConnectionProfile& other) {
            return other.identifier == profile.identifier &&
                   other.interfaceName == profile.interfaceName;
        };
        if (!profile.interfaceName.empty() && std::ranges::none_of(_profiles, isSame)) {
            _profiles.push_back(profile);
        }
    }

    const ManagedObjects& _objects;
    std::vector<ConnectionProfile> _profiles;
};

} // namespace

std::vector<ConnectionProfile> activeConnections(const QDBusMessage& managedObjects) {
    const auto objects =
        containerIn<ManagedObjects>(managedObjects.arguments().value(0), "a{oa{sa{sv}}}");
    return Reader(objects).profiles();
}

} // namespace kx
