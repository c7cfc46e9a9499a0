#include "platform/linux/ActiveConnections.h"

#include <arpa/inet.h>
#include <systemd/sd-bus.h>

#include <algorithm>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>

namespace kx {

namespace {

constexpr auto managerPath = "/org/freedesktop/NetworkManager";
constexpr std::string_view managerInterface = "org.freedesktop.NetworkManager";
constexpr std::string_view activeInterface = "org.freedesktop.NetworkManager.Connection.Active";
constexpr std::string_view deviceInterface = "org.freedesktop.NetworkManager.Device";
constexpr std::string_view ipv4Interface = "org.freedesktop.NetworkManager.IP4Config";

constexpr std::uint32_t externalFlag = 0x80; // a bit of StateFlags

struct ObjectPath {
    std::string text;
};
using ObjectPaths = std::vector<ObjectPath>;
using Addresses = std::vector<IPv4InterfaceAddress>;

// A property of one of the types that are read.
using Value = std::variant<std::string, ObjectPath, std::uint32_t, bool, ObjectPaths, Addresses>;
using Properties = std::map<std::string, Value, std::less<>>;
using PropertiesByInterface = std::map<std::string, Properties, std::less<>>;
using ManagedObjects = std::map<std::string, PropertiesByInterface, std::less<>>;

// Reads on in a message. A function that fails throws, because then the message is damaged.
class MessageReader {
public:
    struct Damage {};

    explicit MessageReader(sd_bus_message* message)
        : _message(message) {}

    // Calls the function for each element of the array that is next.
    template<class Function>
    void forEach(const char* element, Function function) {
        check(sd_bus_message_enter_container(_message, SD_BUS_TYPE_ARRAY, element));
        while (check(sd_bus_message_at_end(_message, 0)) == 0) {
            function();
        }
        check(sd_bus_message_exit_container(_message));
    }

    // The same for a dictionary. The function gets the key, and reads the value.
    template<class Function>
    void forEachEntry(char keyType, const std::string& entry, Function function) {
        forEach(("{" + entry + "}").c_str(), [&] {
            check(sd_bus_message_enter_container(_message, SD_BUS_TYPE_DICT_ENTRY, entry.c_str()));
            function(text(keyType));
            check(sd_bus_message_exit_container(_message));
        });
    }

    // A text of one of D-Bus's types of texts.
    std::string text(char type) {
        const char* read = nullptr;
        check(sd_bus_message_read_basic(_message, type, &read));
        return read;
    }

    void skip(const char* types) { check(sd_bus_message_skip(_message, types)); }

    // The value in the variant that is next; absent when it is of no type that is read.
    std::optional<Value> variant() {
        const char* contents = nullptr;
        check(sd_bus_message_peek_type(_message, nullptr, &contents));
        const std::string type(contents);
        check(sd_bus_message_enter_container(_message, SD_BUS_TYPE_VARIANT, type.c_str()));
        auto value = valueOf(type);
        check(sd_bus_message_exit_container(_message));
        return value;
    }

    Properties properties() {
        Properties read;
        forEachEntry(SD_BUS_TYPE_STRING, "sv", [&](const std::string& name) {
            if (auto value = variant()) {
                read.insert_or_assign(name, *std::move(value));
            }
        });
        return read;
    }

private:
    static int check(int result) {
        if (result < 0) {
            throw Damage();
        }
        return result;
    }

    std::optional<Value> valueOf(const std::string& type) {
        if (type == "s") {
            return text(SD_BUS_TYPE_STRING);
        }
        if (type == "o") {
            return ObjectPath{text(SD_BUS_TYPE_OBJECT_PATH)};
        }
        if (type == "u") {
            std::uint32_t number = 0;
            check(sd_bus_message_read_basic(_message, SD_BUS_TYPE_UINT32, &number));
            return number;
        }
        if (type == "b") {
            int flag = 0;
            check(sd_bus_message_read_basic(_message, SD_BUS_TYPE_BOOLEAN, &flag));
            return flag != 0;
        }
        if (type == "ao") {
            ObjectPaths paths;
            forEach("o", [&] { paths.push_back({text(SD_BUS_TYPE_OBJECT_PATH)}); });
            return paths;
        }
        if (type == "aa{sv}") {
            return addresses();
        }
        skip(type.c_str());
        return std::nullopt;
    }

    Addresses addresses();

    sd_bus_message* _message;
};

// A property with a value of exactly this type.
template<class Wanted>
std::optional<Wanted> valueIn(const Properties& properties, std::string_view name) {
    const auto found = properties.find(name);
    const auto* const value =
        found != properties.end() ? std::get_if<Wanted>(&found->second) : nullptr;
    return value != nullptr ? std::optional(*value) : std::nullopt;
}

std::string textIn(const Properties& properties, std::string_view name) {
    return valueIn<std::string>(properties, name).value_or(std::string());
}

Addresses MessageReader::addresses() {
    Addresses read;
    forEach("a{sv}", [&] {
        const Properties entry = properties();
        in_addr address{};
        const auto prefixLength = valueIn<std::uint32_t>(entry, "prefix");
        if (::inet_pton(AF_INET, textIn(entry, "address").c_str(), &address) == 1 &&
            prefixLength.has_value() && *prefixLength <= 32) {
            read.push_back({ntohl(address.s_addr), *prefixLength});
        }
    });
    return read;
}

bool isRead(std::string_view interface) {
    return interface == managerInterface || interface == activeInterface ||
           interface == deviceInterface || interface == ipv4Interface;
}

ManagedObjects objectsIn(sd_bus_message* message) {
    ManagedObjects objects;
    MessageReader reader(message);
    reader.forEachEntry(SD_BUS_TYPE_OBJECT_PATH, "oa{sa{sv}}", [&](const std::string& path) {
        auto& object = objects[path];
        reader.forEachEntry(SD_BUS_TYPE_STRING, "sa{sv}", [&](const std::string& interface) {
            if (isRead(interface)) {
                object.insert_or_assign(interface, reader.properties());
            } else {
                reader.skip("a{sv}");
            }
        });
    });
    return objects;
}

// The identifier becomes a component of keys, in which "=" marks an interface without a service.
bool isIdentifier(const std::string& text) {
    return !text.empty() && text.find_first_of("/=") == std::string::npos;
}

// The link that carries the addresses. For a modem or a dial-up connection it is not the device
// itself.
std::string interfaceOfDevice(const Properties& device) {
    const std::string ipInterface = textIn(device, "IpInterface");
    return !ipInterface.empty() ? ipInterface : textIn(device, "Interface");
}

class ProfileSearch {
public:
    explicit ProfileSearch(const ManagedObjects& objects)
        : _objects(objects) {}

    std::vector<ConnectionProfile> profiles() {
        const auto& manager = properties(managerPath, managerInterface);
        for (const auto& path :
             valueIn<ObjectPaths>(manager, "ActiveConnections").value_or(ObjectPaths())) {
            addConnection(properties(path.text, activeInterface));
        }
        return std::move(_profiles);
    }

private:
    const Properties& properties(std::string_view path, std::string_view interface) const {
        static const Properties none;
        const auto object = _objects.find(path);
        if (object == _objects.end()) {
            return none;
        }
        const auto found = object->second.find(interface);
        return found != object->second.end() ? found->second : none;
    }

    void addConnection(const Properties& connection) {
        ConnectionProfile profile;
        profile.identifier = textIn(connection, "Uuid");
        profile.name = textIn(connection, "Id");
        const auto flags = valueIn<std::uint32_t>(connection, "StateFlags").value_or(0);
        if (!isIdentifier(profile.identifier) || profile.name.empty() ||
            (flags & externalFlag) != 0 || valueIn<bool>(connection, "Vpn").value_or(false)) {
            return;
        }
        const auto configuration =
            valueIn<ObjectPath>(connection, "Ip4Config").value_or(ObjectPath());
        profile.addresses =
            valueIn<Addresses>(properties(configuration.text, ipv4Interface), "AddressData")
                .value_or(Addresses());
        for (const auto& path :
             valueIn<ObjectPaths>(connection, "Devices").value_or(ObjectPaths())) {
            profile.interfaceName = interfaceOfDevice(properties(path.text, deviceInterface));
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

std::vector<ConnectionProfile> activeConnections(sd_bus_message* managedObjects) {
    sd_bus_message_rewind(managedObjects, 1);
    if (sd_bus_message_has_signature(managedObjects, "a{oa{sa{sv}}}") <= 0) {
        return {};
    }
    try {
        const auto objects = objectsIn(managedObjects);
        return ProfileSearch(objects).profiles();
    } catch (const MessageReader::Damage&) {
        return {};
    }
}

} // namespace kx
