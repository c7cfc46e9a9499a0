// The configuration store of a Linux host: the kernel's links and the active connection profiles,
// as the records of ConfigurationRecords.h.
//
// Nothing is written anywhere, so what is "saved" is what the host has now. Every read sees the
// links as they are at that moment. Changes are told a little later than they happen, and together:
// what comes and goes within a tenth of a second is no change, and what one command of the
// administrator does in several steps is one.
//
// Failures: no session is opened, and SCError() has the value of errno, while the kernel cannot be
// asked. Patterns with another construct than "[^/]+" are refused (SCError() 1002).
//
// Threading: the main thread only. Ownership: the run loop, the links and the profiles must outlive
// the store, and so must their present change actions, which are the store's.

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
    // `profiles` may be null: then nobody on the host keeps any.
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
    using Records = std::shared_ptr<const ConfigurationRecords>; // never changed once made

    Records currentRecords();
    void noteChange();
    void tellAfter(std::chrono::milliseconds delay);
    void tellChanges();

    RunLoop& _runLoop;
    KernelLinks& _links;
    ConnectionProfiles* _profiles;
    int _lastError = 0;

    Records _records;
    std::pair<std::uint64_t, std::uint64_t> _recordsGeneration; // of links and profiles
    std::vector<Source*> _runningSources;
    RunLoop::Handle _pendingTell;
};

} // namespace kx
