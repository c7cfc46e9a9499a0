// A private connection to the host's system bus, by sd-bus.
//
// The connection blocks the caller only in its beginning and in processUntil(). It offers no
// methods to others. What it sends is small and fits into the socket. No call has a limit of time:
// a caller that has waited long enough drops the call, and an answer that came in time counts
// although the caller was late.
//
// Threading: one thread. Whoever makes the object calls process() when the descriptor can be read.
// A connection that has ended does not come back: make another one.

#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

struct sd_bus;
struct sd_bus_message;
struct sd_bus_slot;

namespace kx {

// The bus's own service, object and interface.
inline constexpr auto busService = "org.freedesktop.DBus";
inline constexpr auto busPath = "/org/freedesktop/DBus";

struct EndOfBusMessage {
    void operator()(sd_bus_message* message) const;
};
using BusMessage = std::unique_ptr<sd_bus_message, EndOfBusMessage>;

// A call of a method that waits for its answer. Nobody is told of an answer after the object's end.
class BusCall {
public:
    BusCall() = default;
    ~BusCall();
    BusCall(const BusCall&) = delete;
    BusCall& operator=(const BusCall&) = delete;

    bool isFinished() const { return _isFinished; }

    // The answer, ready to be read from its beginning; null before the answer has come, and when it
    // is an error.
    sd_bus_message* reply() const;

    // Whether the bus says that nobody will answer, because the called program has ended.
    bool isWithoutReply() const;

private:
    friend class SystemBus;

    void finish(BusMessage answer);

    sd_bus_slot* _slot = nullptr;
    BusMessage _answer; // may be an error; null when there is no connection
    bool _isFinished = false;
    std::function<void()> _finished; // may be empty
};

class SystemBus {
public:
    // Connects to the bus at the address in the environment variable DBUS_SYSTEM_BUS_ADDRESS, or
    // else at the well-known one. Blocks until the bus has greeted, for `patience` at most; a bus
    // that has stopped counts as no bus. `heard` is called with every signal that was asked for,
    // and `ended` when the connection ends; both may be empty, and may destroy this object.
    explicit SystemBus(std::chrono::milliseconds patience,
                       std::function<void(sd_bus_message* signal)> heard = {},
                       std::function<void()> ended = {});
    ~SystemBus();
    SystemBus(const SystemBus&) = delete;
    SystemBus& operator=(const SystemBus&) = delete;

    // Whether there is a connection, as far as process() has seen.
    bool isOpen() const;

    // Readable when something has come; -1 without a connection. It is closed when the connection
    // ends, just before `ended` is called.
    int descriptor() const;

    // Attends to everything that has come. Never blocks.
    void process();

    // The same until the condition holds, for `patience` at most, or until the connection ends.
    void processUntil(const std::function<bool()>& isDone, std::chrono::milliseconds patience);

    // Asks the bus for a sender's signals with a name and, where one is given, with this text as
    // their first argument. Any connection on the bus may send such a signal to this end directly,
    // so `heard` has to look at the sender.
    void hearSignals(const std::string& sender, const std::string& interface,
                     const std::string& name, const std::string& firstArgument = {});

    // A call of a method, to which arguments may be appended; it starts no service. Null without a
    // connection.
    BusMessage method(const char* service, const char* path, const char* interface,
                      const char* name) const;

    // Sends the call. `finished` is called from process() when the answer has come, and when the
    // connection ends before it; it may be empty. Without a connection the call is finished at
    // once, and nobody is told.
    std::unique_ptr<BusCall> call(BusMessage message, std::function<void()> finished = {});

private:
    struct State;

    std::shared_ptr<State> _state; // outlives the object while it processes
};

// The sender of a message, as the bus tells it; empty when it tells none.
std::string_view senderOf(sd_bus_message* message);

// The first texts among the arguments of a message, as many as are wanted; absent when the message
// has others. Reads from the beginning.
std::optional<std::vector<std::string>> textsIn(sd_bus_message* message, std::size_t count);

} // namespace kx
