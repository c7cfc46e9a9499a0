// NetworkManager's connection profiles, heard over the system bus.
//
// Whatever NetworkManager says of its connections, devices and addresses is not looked at: it makes
// what was read outdated, and everything is read anew, with one call at a time. NetworkManager may
// come, go, come back or hang at any time, and its start is heard. While it hangs, the profiles are
// the ones that it told last; its answer is awaited without an end, and without a timer.
//
// Without a bus, or with one that has stopped when it is to be reached, there are no profiles.
// Nobody tells when a bus comes, so each time that the profiles are asked for is a try to reach
// one, though not more than one a second, and none for six seconds after one that a stopped bus has
// held up. At rest nothing wakes up, with a bus or without.
//
// Threading: the main thread only, which needs a QCoreApplication whose event loop runs.

#pragma once

#include "platform/linux/ConnectionProfiles.h"

#include <QString>
#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

class QDBusMessage;
class QDBusPendingCallWatcher;

namespace kx {

class SystemBus;

class NetworkManagerProfiles final : public ConnectionProfiles {
public:
    // Asks for the profiles, so that they are there, with some luck, when they are wanted.
    NetworkManagerProfiles();
    ~NetworkManagerProfiles() override;
    NetworkManagerProfiles(const NetworkManagerProfiles&) = delete;
    NetworkManagerProfiles& operator=(const NetworkManagerProfiles&) = delete;

    // Waits for the first answer of a bus that was not there before, and for no other.
    const std::vector<ConnectionProfile>& activeProfiles() override;
    std::uint64_t generation() const override { return _generation; }
    void setChangeAction(std::function<void()> action) override {
        _changeAction = std::move(action);
    }

private:
    struct EndOfCall {
        void operator()(QDBusPendingCallWatcher* call) const;
    };
    using Call = std::unique_ptr<QDBusPendingCallWatcher, EndOfCall>;

    void connectToBus();
    void hear(const QDBusMessage& signal);
    void hearOwner(const QString& owner);
    const QString& owner(); // NetworkManager's own name on the bus; empty while it is not known
    void read(std::chrono::milliseconds patience);
    void forget();
    void endReading();
    void takeAnswer();
    void setProfiles(std::vector<ConnectionProfile> profiles);

    std::unique_ptr<SystemBus> _bus;
    std::chrono::steady_clock::time_point _nextTry; // to reach a bus, at the earliest
    Call _reading;                                  // the call that is under way, or null
    bool _isFirstReading = false;                   // on this bus; it ends by itself
    bool _isOutdated = false;                       // what that call will tell
    Call _ownerAnswer;                              // the bus is being asked for the owner, or null
    QString _owner;                                 // as last told; read it by owner()
    std::vector<ConnectionProfile> _profiles;
    std::uint64_t _generation = 0;
    std::function<void()> _changeAction;
};

} // namespace kx
