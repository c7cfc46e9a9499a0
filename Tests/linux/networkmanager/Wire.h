// Messages of D-Bus that a test composes, without a connection. After it is sealed, a message is
// read as one that has arrived.

#pragma once

#include "platform/linux/SystemBus.h"
#include "support/Pipe.h"

#include <sys/socket.h>
#include <systemd/sd-bus.h>

#include <array>
#include <cstdint>
#include <map>
#include <stdexcept>
#include <string>
#include <variant>
#include <vector>

namespace kx {

struct ObjectPath {
    std::string text;
};
struct Inner {
    std::string text; // in a variant inside the variant
};
struct SimpleValue;
using Dictionary = std::map<std::string, SimpleValue>;
struct SimpleValue : std::variant<std::string, std::int32_t, std::uint32_t, bool> {
    using variant::variant;
    SimpleValue(const char* text) // NOLINT(google-explicit-constructor): reads as a value
        : variant(std::string(text)) {}
};
using Value = std::variant<SimpleValue, ObjectPath, Inner, std::vector<std::string>,
                           std::vector<std::uint8_t>, std::vector<ObjectPath>, Dictionary,
                           std::vector<Dictionary>>;
using Properties = std::map<std::string, Value>;
using PropertiesByInterface = std::map<std::string, Properties>;
using ManagedObjects = std::map<std::string, PropertiesByInterface>;

// Appends values to a message. Each function appends one.
class Composer {
public:
    explicit Composer(sd_bus_message* message)
        : _message(message) {}

    void add(const std::string& text) { basic(SD_BUS_TYPE_STRING, text.c_str()); }
    void add(std::int32_t number) { basic(SD_BUS_TYPE_INT32, &number); }
    void add(std::uint32_t number) { basic(SD_BUS_TYPE_UINT32, &number); }
    void add(std::uint8_t byte) { basic(SD_BUS_TYPE_BYTE, &byte); }
    void add(bool flag) {
        const int number = flag ? 1 : 0;
        basic(SD_BUS_TYPE_BOOLEAN, &number);
    }
    void add(const ObjectPath& path) { basic(SD_BUS_TYPE_OBJECT_PATH, path.text.c_str()); }
    void add(const Inner& inner) { inVariant(inner.text); }
    void add(const SimpleValue& value) {
        std::visit([this](const auto& simple) { add(simple); }, value);
    }
    void add(const Value& value) {
        std::visit([this](const auto& held) { addHeld(held); }, value);
    }
    template<class Element>
    void add(const std::vector<Element>& elements) {
        open(SD_BUS_TYPE_ARRAY, typeOf(Element()));
        for (const auto& element : elements) {
            add(element);
        }
        close();
    }
    void add(const Dictionary& dictionary) { entries("{sv}", dictionary); }
    void add(const Properties& properties) { entries("{sv}", properties); }
    void add(const PropertiesByInterface& interfaces) { entries("{sa{sv}}", interfaces); }
    void add(const ManagedObjects& objects) { entries("{oa{sa{sv}}}", objects); }

private:
    static std::string typeOf(const std::string&) { return "s"; }
    static std::string typeOf(std::int32_t) { return "i"; }
    static std::string typeOf(std::uint32_t) { return "u"; }
    static std::string typeOf(std::uint8_t) { return "y"; }
    static std::string typeOf(bool) { return "b"; }
    static std::string typeOf(const ObjectPath&) { return "o"; }
    static std::string typeOf(const Inner&) { return "v"; }
    static std::string typeOf(const Dictionary&) { return "a{sv}"; }
    template<class Element>
    static std::string typeOf(const std::vector<Element>&) {
        return "a" + typeOf(Element());
    }

    template<class Held>
    void addHeld(const Held& held) {
        inVariant(held);
    }
    void addHeld(const SimpleValue& value) {
        std::visit([this](const auto& simple) { inVariant(simple); }, value);
    }

    template<class Held>
    void inVariant(const Held& held) {
        open(SD_BUS_TYPE_VARIANT, typeOf(held));
        add(held);
        close();
    }

    template<class Map>
    void entries(const std::string& entry, const Map& map) {
        open(SD_BUS_TYPE_ARRAY, entry);
        for (const auto& [key, value] : map) {
            open(SD_BUS_TYPE_DICT_ENTRY, entry.substr(1, entry.size() - 2));
            basic(entry[1], key.c_str());
            addEntryValue(value);
            close();
        }
        close();
    }
    template<class Held>
    void addEntryValue(const Held& value) {
        add(value);
    }
    void addEntryValue(const SimpleValue& value) { addHeld(value); }

    void basic(char type, const void* value) {
        check(sd_bus_message_append_basic(_message, type, value));
    }
    void open(char type, const std::string& contents) {
        check(sd_bus_message_open_container(_message, type, contents.c_str()));
    }
    void close() { check(sd_bus_message_close_container(_message)); }
    static void check(int result) {
        if (result < 0) {
            throw std::runtime_error("a message cannot be composed");
        }
    }

    sd_bus_message* _message;
};

// Makes messages.
class Wire {
public:
    Wire() {
        std::array<int, 2> ends{};
        if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0 ||
            sd_bus_new(&_bus) < 0 || sd_bus_set_fd(_bus, ends[0], ends[0]) < 0 ||
            sd_bus_start(_bus) < 0) {
            throw std::runtime_error("no bus");
        }
        _otherEnd = FileDescriptor(ends[1]);
    }
    ~Wire() { sd_bus_close_unref(_bus); }
    Wire(const Wire&) = delete;
    Wire& operator=(const Wire&) = delete;

    // A message with this value, or with nothing.
    template<class Carried>
    BusMessage carried(const Carried& value) {
        BusMessage message = empty();
        Composer(message.get()).add(value);
        return sealed(std::move(message));
    }
    BusMessage carried() { return sealed(empty()); }

private:
    BusMessage empty() {
        sd_bus_message* message = nullptr;
        if (sd_bus_message_new_signal(_bus, &message, "/", "kx.Test", "answer") < 0) {
            throw std::runtime_error("no message");
        }
        return BusMessage(message);
    }
    static BusMessage sealed(BusMessage message) {
        if (sd_bus_message_seal(message.get(), 1, 0) < 0) {
            throw std::runtime_error("a message cannot be sealed");
        }
        return message;
    }

    sd_bus* _bus = nullptr;
    FileDescriptor _otherEnd;
};

} // namespace kx
