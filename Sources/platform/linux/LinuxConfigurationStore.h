// The configuration store of a Linux host: the kernel's links and the active connection profiles,
// as the records of ConfigurationRecords.h.
//
// Nothing is written anywhere, so the "saved" configuration is the present one. A session with a
// callback sees the links as they are at the moment of each read. Any other session, and one with
// the preferences, sees them as they were when it was opened, so that a listing of many services
// reads the host once. Changes are told together, a little later than they happen. A record that
// comes and goes within a tenth of a second is no change. The steps of one administrator's command
// are one change.
//
// Failures: while there are no links (KernelLinks.h), no session is opened, and SCError() has the
// value of errno. Patterns with another construct than "[^/]+" are refused (SCError() 1002).
//
// Threading: the main thread only. Ownership: the run loop, the links and the profiles must outlive
// the store. The store sets the change actions of the links and the profiles; they must stay set
// while the store lives.

#pragma once

#include "System Configuration/ConfigurationStore.h"
#include "platform/linux/ConfigurationRecords.h"
#include "platform/linux/ConnectionProfiles.h"
#include "platform/linux/KernelLinks.h"
#include "support/RunLoop.h"

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace kx {

class LinuxConfigurationStore final : public ConfigurationStore {
public:
    // `profiles` may be null when no program on the host keeps profiles.
    LinuxConfigurationStore(RunLoop& runLoop, KernelLinks& links, ConnectionProfiles* profiles);
    ~LinuxConfigurationStore() override;
    LinuxConfigurationStore(const LinuxConfigurationStore&) = delete;
    LinuxConfigurationStore& operator=(const LinuxConfigurationStore&) = delete;

    std::unique_ptr<DynamicStoreSession>
    openSession(std::string_view name, DynamicStoreCallBack callback, void* info) override;
    std::unique_ptr<PreferencesSession> openPreferences(std::string_view name) override;
    int SCError() const override { return _lastError; }

private:
    class Session;
    class Source;
    class Preferences;
    using Records = std::shared_ptr<const ConfigurationRecords>; // never change once made

    Records currentRecords();
    void noteChange();
    void tellAfter(std::chrono::milliseconds delay);
    void tellChanges();

    RunLoop& _runLoop;
    KernelLinks& _links;
    ConnectionProfiles* _profiles;
    int _lastError = 0;

    Records _records;
    std::pair<std::uint64_t, std::uint64_t> _recordsGeneration; // links first, then profiles
    std::vector<Source*> _runningSources;
    RunLoop::Handle _pendingTell;
};

} // namespace kx
