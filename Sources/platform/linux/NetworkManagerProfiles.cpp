#include "platform/linux/NetworkManagerProfiles.h"

#include "platform/linux/ActiveConnections.h"
#include "platform/linux/SystemBus.h"

#include <systemd/sd-bus.h>

#include <algorithm>
#include <string_view>
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
constexpr auto propertiesInterface = "org.freedesktop.DBus.Properties";
constexpr std::string_view ownerChanged = "NameOwnerChanged";

// The interfaces of NetworkManager from which profiles are read. Others change all the time, for
// example the strength of radio signals.
constexpr const char* readInterfaces[] = {
    "org.freedesktop.NetworkManager",
    "org.freedesktop.NetworkManager.Connection.Active",
    "org.freedesktop.NetworkManager.Device",
    "org.freedesktop.NetworkManager.IP4Config",
};

} // namespace

NetworkManagerProfiles::NetworkManagerProfiles(RunLoop& loop)
    : _loop(loop) {
    connectToBus();
}

NetworkManagerProfiles::~NetworkManagerProfiles() = default;

const std::vector<ConnectionProfile>& NetworkManagerProfiles::activeProfiles() {
    _bus->process(); // the bus may have ended
    if (!_bus->isOpen()) {
        forget();
        if (Clock::now() >= _nextTry) {
            connectToBus();
        }
    }
    if (_isFirstReading) {
        _bus->processUntil(
            [this] { return !_isFirstReading; },
            std::chrono::ceil<std::chrono::milliseconds>(_endOfPatience - Clock::now()));
        _isFirstReading = false; // its answer may still come
    }
    return _profiles;
}

void NetworkManagerProfiles::connectToBus() {
    const auto begin = Clock::now();
    _watch.reset();
    _bus = std::make_unique<SystemBus>(
        firstPatience, [this](sd_bus_message* signal) { hear(signal); }, [this] { forget(); });
    const auto end = Clock::now();
    _nextTry = end + std::max<Clock::duration>(timeBetweenTries, restAfterATry * (end - begin));
    if (!_bus->isOpen()) {
        return;
    }
    _watch = _loop.watchForReading(_bus->descriptor(), [this] { _bus->process(); });
    _bus->hearSignals(busService, busService, std::string(ownerChanged), service);
    // The answer comes before any signal of a later change of the owner, and before the answer to a
    // call that is made later.
    auto question = _bus->method(busService, busPath, busService, "GetNameOwner");
    sd_bus_message_append_basic(question.get(), SD_BUS_TYPE_STRING, service);
    _ownerAnswer = _bus->call(std::move(question));
    for (const auto* const interface : readInterfaces) {
        _bus->hearSignals(service, propertiesInterface, "PropertiesChanged", interface);
    }
    read();
    _isFirstReading = _reading != nullptr;
    _endOfPatience = Clock::now() + firstPatience;
}

void NetworkManagerProfiles::read() {
    _reading =
        _bus->call(_bus->method(service, rootPath, objectManagerInterface, "GetManagedObjects"),
                   [this] { takeAnswer(); });
    if (_reading->isFinished()) {
        forget(); // the connection has ended
    }
}

// The connection that told the profiles is gone and will not answer any more.
void NetworkManagerProfiles::forget() {
    if (!_bus->isOpen()) {
        _watch.reset();
    }
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
    const auto answered = std::move(_reading);
    bool mustReadAgain = _isOutdated;
    endReading();
    if (sd_bus_message* const reply = answered->reply()) {
        setProfiles(activeConnections(reply));
    } else if (answered->isWithoutReply()) {
        mustReadAgain = true; // NetworkManager has ended
    } else {
        setProfiles({});
    }
    if (mustReadAgain && _reading == nullptr) {
        read();
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
void NetworkManagerProfiles::hear(sd_bus_message* signal) {
    if (sd_bus_message_get_member(signal) == ownerChanged) {
        const auto arguments = textsIn(signal, 3);
        if (senderOf(signal) == busService && arguments.has_value() &&
            arguments->front() == service) {
            hearOwner(arguments->back());
        }
    } else if (_reading != nullptr) {
        _isOutdated = _isOutdated || owner().empty() || senderOf(signal) == owner();
    } else if (!owner().empty() && senderOf(signal) == owner()) {
        read();
    }
}

const std::string& NetworkManagerProfiles::owner() {
    if (_ownerAnswer != nullptr && _ownerAnswer->isFinished()) {
        if (sd_bus_message* const answer = _ownerAnswer->reply()) { // otherwise there is no owner
            _owner = textsIn(answer, 1).value_or(std::vector<std::string>{""}).front();
        }
        _ownerAnswer.reset();
    }
    return _owner;
}

void NetworkManagerProfiles::hearOwner(const std::string& owner) {
    forget();
    _owner = owner;
    if (_bus->isOpen() && !owner.empty()) {
        read();
    }
}

} // namespace kx
