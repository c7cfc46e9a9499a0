#include "platform/linux/PolkitCheck.h"

#include "platform/linux/SystemBus.h"
#include "support/LocalizedText.h"

#include <systemd/sd-bus.h>
#include <unistd.h>

#include <chrono>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <memory>
#include <sstream>
#include <string>

namespace kx {

namespace {

using Clock = std::chrono::steady_clock;

constexpr auto authorityName = "org.freedesktop.PolicyKit1";
constexpr auto authorityPath = "/org/freedesktop/PolicyKit1/Authority";
constexpr auto authorityInterface = "org.freedesktop.PolicyKit1.Authority";

// The time that the bus may take to answer, and the longer time that it may take to start polkit.
constexpr std::chrono::milliseconds patienceWithBus{1000};
constexpr std::chrono::milliseconds patienceWithStart{2000};

// The time between two looks at a polkit that has a person asked.
constexpr std::chrono::milliseconds betweenLooksAtPolkit{1000};

// The start time of this process, in the kernel's clock ticks since boot. It is 0 when it cannot be
// read; polkit then looks it up itself. Together with the process number it names the process for
// good.
std::uint64_t startTime() {
    std::ifstream file("/proc/self/stat");
    const std::string line{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    // The program's name is in parentheses and may hold any characters. The fields after it are
    // numbers, except for the first. The start time is the 20th of them.
    const auto nameEnd = line.rfind(')');
    if (nameEnd == std::string::npos) {
        return 0;
    }
    std::istringstream fields(line.substr(nameEnd + 1));
    constexpr int fieldsBefore = 19;
    std::string skipped;
    for (int field = 0; field < fieldsBefore; ++field) {
        fields >> skipped;
    }
    std::uint64_t time = 0;
    fields >> time;
    return time;
}

PolkitAnswer answerOf(sd_bus_message* reply) {
    int isAuthorized = 0;
    int isChallenge = 0;
    if (reply == nullptr || sd_bus_message_has_signature(reply, "(bba{ss})") <= 0 ||
        sd_bus_message_enter_container(reply, SD_BUS_TYPE_STRUCT, "bba{ss}") <= 0 ||
        sd_bus_message_read(reply, "bb", &isAuthorized, &isChallenge) <= 0) {
        return PolkitAnswer::unreachable;
    }
    if (isAuthorized != 0) {
        return PolkitAnswer::authorized;
    }
    return isChallenge != 0 ? PolkitAnswer::nobodyAsked : PolkitAnswer::refused;
}

// The call. It has no reply when none has come in time, and when the person gives up.
std::unique_ptr<BusCall> answerTo(SystemBus& bus, BusMessage question,
                                  std::chrono::milliseconds patience, Waiting& waiting) {
    auto call = bus.call(std::move(question));
    const auto end = Clock::now() + patience;
    waiting.until(
        [&] {
            bus.process();
            return call->isFinished() || Clock::now() >= end;
        },
        localizedText("Waiting for administrator rights."));
    return call;
}

bool isPolkitOn(SystemBus& bus, Waiting& waiting) {
    auto question = bus.method(busService, busPath, busService, "NameHasOwner");
    int hasOwner = 0;
    if (question == nullptr || sd_bus_message_append(question.get(), "s", authorityName) < 0) {
        return false;
    }
    const auto has = answerTo(bus, std::move(question), patienceWithBus, waiting);
    if (has->reply() == nullptr || sd_bus_message_read(has->reply(), "b", &hasOwner) <= 0) {
        return false;
    }
    if (hasOwner != 0) {
        return true;
    }
    constexpr std::uint32_t noFlags = 0;
    auto start = bus.method(busService, busPath, busService, "StartServiceByName");
    return start != nullptr &&
           sd_bus_message_append(start.get(), "su", authorityName, noFlags) >= 0 &&
           answerTo(bus, std::move(start), patienceWithStart, waiting)->reply() != nullptr;
}

// About this process, which its number and its start time name for good.
BusMessage questionAbout(const SystemBus& bus, const std::string& action) {
    constexpr std::uint32_t askNobody = 0;
    auto question =
        bus.method(authorityName, authorityPath, authorityInterface, "CheckAuthorization");
    if (question == nullptr) {
        return nullptr;
    }
    const bool isWhole =
        sd_bus_message_append(question.get(), "(sa{sv})", "unix-process", 3,             //
                              "pid", "u", static_cast<std::uint32_t>(::getpid()),        //
                              "start-time", "t", startTime(),                            //
                              "uid", "i", static_cast<std::int32_t>(::getuid())) >= 0 && //
        sd_bus_message_append(question.get(), "sa{ss}us", action.c_str(), 0, askNobody, "") >= 0;
    return isWhole ? std::move(question) : nullptr;
}

// Looks from time to time whether polkit answers a question that needs nobody.
class SilenceWatch {
public:
    bool isSilent() {
        if (_isSilent) {
            return true;
        }
        _bus.process();
        if (_look == nullptr) {
            if (Clock::now() >= _nextLook) {
                _look = _bus.call(nameOfBackend());
                _endOfLook = Clock::now() + patienceWithPolkit;
            }
        } else if (_look->isFinished() || Clock::now() >= _endOfLook) {
            _isSilent = _look->reply() == nullptr;
            _look.reset();
            _nextLook = Clock::now() + betweenLooksAtPolkit;
        }
        return _isSilent;
    }

private:
    BusMessage nameOfBackend() const {
        auto question =
            _bus.method(authorityName, authorityPath, "org.freedesktop.DBus.Properties", "Get");
        if (question != nullptr) {
            sd_bus_message_append(question.get(), "ss", authorityInterface, "BackendName");
        }
        return question;
    }

    SystemBus _bus{patienceWithBus};
    std::unique_ptr<BusCall> _look; // null between two looks
    Clock::time_point _endOfLook;
    Clock::time_point _nextLook = Clock::now() + betweenLooksAtPolkit;
    bool _isSilent = false;
};

} // namespace

bool isPolkitThere(Waiting& waiting) {
    SystemBus bus(patienceWithBus);
    return isPolkitOn(bus, waiting);
}

std::function<bool()> watchPolkitForSilence() {
    return [watch = std::make_shared<SilenceWatch>()] { return watch->isSilent(); };
}

PolkitAnswer askPolkit(const std::string& action, Waiting& waiting) {
    SystemBus bus(patienceWithBus);
    return isPolkitOn(bus, waiting)
               ? answerOf(answerTo(bus, questionAbout(bus, action), patienceWithPolkit, waiting)
                              ->reply())
               : PolkitAnswer::unreachable;
}

} // namespace kx
