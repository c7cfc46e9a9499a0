#include "platform/linux/SystemBus.h"

#include <systemd/sd-bus.h>

#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <utility>

namespace kx {

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

// Every program finds the bus in this way.
constexpr auto addressVariable = "DBUS_SYSTEM_BUS_ADDRESS";
constexpr auto wellKnownAddress = "unix:path=/var/run/dbus/system_bus_socket";

const char* busAddress() {
    const char* const address = std::getenv(addressVariable);
    return address != nullptr ? address : wellKnownAddress;
}

constexpr std::uint64_t withoutLimit = UINT64_MAX; // microseconds

// Without a function of its own the connection would end when the bus refuses a rule.
int hearNothing(sd_bus_message* /*answer*/, void* /*unused*/, sd_bus_error* /*error*/) {
    return 0;
}

} // namespace

void EndOfBusMessage::operator()(sd_bus_message* message) const {
    sd_bus_message_unref(message);
}

BusCall::~BusCall() {
    sd_bus_slot_unref(_slot);
}

sd_bus_message* BusCall::reply() const {
    if (_answer == nullptr || sd_bus_message_is_method_error(_answer.get(), nullptr) != 0) {
        return nullptr;
    }
    sd_bus_message_rewind(_answer.get(), 1);
    return _answer.get();
}

bool BusCall::isWithoutReply() const {
    return _answer != nullptr &&
           sd_bus_message_is_method_error(_answer.get(), SD_BUS_ERROR_NO_REPLY) != 0;
}

void BusCall::finish(BusMessage answer) {
    _answer = std::move(answer);
    _isFinished = true;
    const auto finished = std::move(_finished); // lives on when it destroys this object
    if (finished) {
        finished();
    }
}

struct SystemBus::State {
    sd_bus* bus = nullptr;
    std::function<void(sd_bus_message*)> heard;
    std::function<void()> ended; // empty when the end was told

    State() = default;
    ~State() { sd_bus_close_unref(bus); }
    State(const State&) = delete;
    State& operator=(const State&) = delete;

    static int hear(sd_bus_message* signal, void* state, sd_bus_error* /*error*/) {
        const auto heard = static_cast<State*>(state)->heard;
        if (heard) {
            heard(signal);
        }
        return 0;
    }
};

SystemBus::SystemBus(milliseconds patience, std::function<void(sd_bus_message*)> heard,
                     std::function<void()> ended)
    : _state(std::make_shared<State>()) {
    sd_bus* bus = nullptr;
    if (sd_bus_new(&bus) < 0) {
        return;
    }
    _state->bus = bus;
    const bool isStarted =
        sd_bus_set_address(bus, busAddress()) >= 0 && sd_bus_set_bus_client(bus, 1) >= 0 &&
        sd_bus_set_method_call_timeout(bus, withoutLimit) >= 0 && sd_bus_start(bus) >= 0;
    const auto isReady = [bus] { return sd_bus_is_ready(bus) > 0; };
    if (isStarted) {
        processUntil(isReady, patience);
    }
    if (!isStarted || !isReady()) {
        sd_bus_close(bus);
        return;
    }
    _state->heard = std::move(heard);
    _state->ended = std::move(ended);
}

SystemBus::~SystemBus() {
    _state->heard = {};
    _state->ended = {};
    sd_bus_close(_state->bus);
}

bool SystemBus::isOpen() const {
    return sd_bus_is_open(_state->bus) > 0;
}

int SystemBus::descriptor() const {
    return isOpen() ? sd_bus_get_fd(_state->bus) : -1;
}

void SystemBus::process() {
    const auto state = _state;
    int result = 0;
    do {
        result = sd_bus_process(state->bus, nullptr);
    } while (result > 0);
    if (result < 0 && result != -EBUSY) { // which says that process() has been called from inside
        sd_bus_close(state->bus);
    }
    if (sd_bus_is_open(state->bus) <= 0) {
        const auto ended = std::exchange(state->ended, nullptr);
        if (ended) {
            ended();
        }
    }
}

void SystemBus::processUntil(const std::function<bool()>& isDone, milliseconds patience) {
    const auto state = _state;
    const auto end = Clock::now() + patience;
    process();
    while (!isDone() && sd_bus_is_open(state->bus) > 0) {
        const auto left = std::chrono::ceil<std::chrono::microseconds>(end - Clock::now());
        if (left.count() <= 0) {
            return;
        }
        sd_bus_wait(state->bus, static_cast<std::uint64_t>(left.count())); // a signal may end it
        process();
    }
}

void SystemBus::hearSignals(const std::string& sender, const std::string& interface,
                            const std::string& name, const std::string& firstArgument) {
    std::string rule =
        "type='signal',sender='" + sender + "',interface='" + interface + "',member='" + name + "'";
    if (!firstArgument.empty()) {
        rule += ",arg0='" + firstArgument + "'";
    }
    sd_bus_add_match_async(_state->bus, nullptr, rule.c_str(), State::hear, hearNothing,
                           _state.get());
}

BusMessage SystemBus::method(const char* service, const char* path, const char* interface,
                             const char* name) const {
    sd_bus_message* message = nullptr;
    if (!isOpen() ||
        sd_bus_message_new_method_call(_state->bus, &message, service, path, interface, name) < 0) {
        return nullptr;
    }
    sd_bus_message_set_auto_start(message, 0);
    return BusMessage(message);
}

std::unique_ptr<BusCall> SystemBus::call(BusMessage message, std::function<void()> finished) {
    auto call = std::make_unique<BusCall>();
    const auto take = [](sd_bus_message* answer, void* waiting, sd_bus_error* /*error*/) {
        static_cast<BusCall*>(waiting)->finish(BusMessage(sd_bus_message_ref(answer)));
        return 0;
    };
    call->_isFinished =
        message == nullptr || sd_bus_call_async(_state->bus, &call->_slot, message.get(), take,
                                                call.get(), withoutLimit) < 0;
    if (!call->_isFinished) {
        call->_finished = std::move(finished);
    }
    return call;
}

std::string_view senderOf(sd_bus_message* message) {
    const char* const sender = sd_bus_message_get_sender(message);
    return sender != nullptr ? sender : "";
}

std::optional<std::vector<std::string>> textsIn(sd_bus_message* message, std::size_t count) {
    sd_bus_message_rewind(message, 1);
    std::vector<std::string> texts;
    while (texts.size() < count) {
        const char* text = nullptr;
        if (sd_bus_message_read_basic(message, SD_BUS_TYPE_STRING, &text) <= 0) {
            return std::nullopt;
        }
        texts.emplace_back(text);
    }
    return texts;
}

} // namespace kx
