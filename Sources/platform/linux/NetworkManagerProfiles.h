// NetworkManager's connection profiles, heard over the system bus.
//
// The contents of NetworkManager's signals about connections, devices and addresses are ignored.
// Each signal makes the profiles outdated, and all of them are read again, with one call at a time.
// NetworkManager may start, end, start again or hang at any time; the bus tells when it starts.
// While it hangs, the profiles are the ones that it told last. The object waits for its answer
// without a limit and without a timer.
//
// There are no profiles without a bus, or when the bus has stopped at the time of a try to reach
// it. Nobody tells when a bus starts, so each request for the profiles is a try to reach one. Tries
// are at least one second apart, and six seconds after a try that a stopped bus has held up. At
// rest nothing wakes up, with a bus or without.
//
// Threading: the thread of the run loop only.

#pragma once

#include "platform/linux/ConnectionProfiles.h"
#include "support/RunLoop.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

struct sd_bus_message;

namespace kx {

class BusCall;
class SystemBus;

class NetworkManagerProfiles final : public ConnectionProfiles {
public:
    // Asks for the profiles, so that they have usually arrived when they are needed. `loop` must
    // outlive the object.
    explicit NetworkManagerProfiles(RunLoop& loop);
    ~NetworkManagerProfiles() override;
    NetworkManagerProfiles(const NetworkManagerProfiles&) = delete;
    NetworkManagerProfiles& operator=(const NetworkManagerProfiles&) = delete;

    // Waits for the first answer on a bus that was not there before, and for no other answer.
    const std::vector<ConnectionProfile>& activeProfiles() override;
    std::uint64_t generation() const override { return _generation; }
    void setChangeAction(std::function<void()> action) override {
        _changeAction = std::move(action);
    }

private:
    void connectToBus();
    void hear(sd_bus_message* signal);
    void hearOwner(const std::string& owner);
    const std::string& owner(); // NetworkManager's own name on the bus; empty while it is not known
    void read();
    void forget();
    void endReading();
    void takeAnswer();
    void setProfiles(std::vector<ConnectionProfile> profiles);

    RunLoop& _loop;
    std::unique_ptr<SystemBus> _bus;
    std::chrono::steady_clock::time_point _nextTry; // the earliest time to try to reach a bus
    RunLoop::Handle _watch;                         // of the bus
    std::unique_ptr<BusCall> _reading;              // the call that is under way, or null
    bool _isFirstReading = false; // _reading is the first on this bus, and is waited for
    std::chrono::steady_clock::time_point _endOfPatience; // with the first reading
    bool _isOutdated = false;                             // the answer to _reading will be outdated
    std::unique_ptr<BusCall> _ownerAnswer; // pending answer of the bus about the owner, or null
    std::string _owner;                    // as told last; owner() reads it
    std::vector<ConnectionProfile> _profiles;
    std::uint64_t _generation = 0;
    std::function<void()> _changeAction;
};

} // namespace kx
