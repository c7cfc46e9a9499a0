#include "platform/linux/LinuxConfigurationStore.h"

#include "platform/linux/KeyPattern.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <string>

namespace kx {

namespace {

constexpr std::chrono::milliseconds settlingTime{100};
constexpr std::chrono::milliseconds retryTime{1000}; // wait while the kernel cannot be asked
constexpr int refusedPatternStatus = 1002;

// The keys that a session watches.
struct KeyChoice {
    std::vector<std::string> keys;
    std::vector<KeyPattern> patterns;

    bool contains(const std::string& key) const {
        return std::ranges::find(keys, key) != keys.end() ||
               std::ranges::any_of(
                   patterns, [&key](const KeyPattern& pattern) { return pattern.matches(key); });
    }
};

} // namespace

class LinuxConfigurationStore::Session final : public DynamicStoreSession {
public:
    Session(LinuxConfigurationStore& store, DynamicStoreCallBack callback, void* info,
            Records records)
        : _store(store)
        , _callback(callback)
        , _info(info)
        , _records(callback == nullptr ? std::move(records) : nullptr) {}

    std::optional<PropertyDictionary> copyValue(std::string_view key) override {
        const auto records = _records != nullptr ? _records : _store.currentRecords();
        if (records == nullptr) {
            return std::nullopt;
        }
        const auto found = records->dynamicStore.find(key);
        return found != records->dynamicStore.end() ? std::optional(found->second) : std::nullopt;
    }

    bool setNotificationKeys(std::span<const std::string_view> keys,
                             std::span<const std::string_view> patterns) override {
        KeyChoice choice;
        choice.keys.assign(keys.begin(), keys.end());
        for (const auto text : patterns) {
            auto pattern = KeyPattern::parse(text);
            if (!pattern.has_value()) {
                _store._lastError = refusedPatternStatus;
                return false;
            }
            choice.patterns.push_back(std::move(*pattern));
        }
        _choice = std::move(choice);
        return true;
    }

    std::unique_ptr<ConfigurationChangeSource> createRunLoopSource() override;

    // Tells the callback the watched keys that differ, if there are any.
    void tell(const ConfigurationRecords& before, const ConfigurationRecords& after) {
        auto keys = changedKeys(before, after);
        std::erase_if(keys, [this](const std::string& key) { return !_choice.contains(key); });
        if (!keys.empty() && _callback != nullptr) {
            _callback(*this, keys, _info);
        }
    }

private:
    LinuxConfigurationStore& _store;
    DynamicStoreCallBack _callback;
    void* _info;
    Records _records; // null when each read sees the present records
    KeyChoice _choice;
};

class LinuxConfigurationStore::Source final : public ConfigurationChangeSource {
public:
    Source(LinuxConfigurationStore& store, Session& session)
        : _store(store)
        , _session(session) {}
    ~Source() override { std::erase(_store._runningSources, this); }

    void addToRunLoop() override {
        _told = _store.currentRecords();
        if (std::ranges::find(_store._runningSources, this) == _store._runningSources.end()) {
            _store._runningSources.push_back(this);
        }
    }

    // The callback may destroy this source.
    void tell(const Records& now) {
        const auto before = std::exchange(_told, now);
        if (before != nullptr && before != now) {
            _session.tell(*before, *now);
        }
    }

private:
    LinuxConfigurationStore& _store;
    Session& _session;
    Records _told; // records that the callback knows; null until the first read
};

std::unique_ptr<ConfigurationChangeSource> LinuxConfigurationStore::Session::createRunLoopSource() {
    return std::make_unique<Source>(_store, *this);
}

// A session sees the preferences as they were when it was opened.
class LinuxConfigurationStore::Preferences final : public PreferencesSession {
public:
    explicit Preferences(Records records)
        : _records(std::move(records)) {}

    std::optional<PropertyListValue> getValue(std::string_view key) override {
        const auto* const value = valueForKey(_records->preferences, key);
        return value != nullptr ? std::optional(*value) : std::nullopt;
    }
    std::optional<PropertyDictionary> pathGetValue(std::string_view path) override {
        const auto* const dictionary = dictionaryAtPath(_records->preferences, path);
        return dictionary != nullptr ? std::optional(*dictionary) : std::nullopt;
    }

private:
    Records _records;
};

LinuxConfigurationStore::LinuxConfigurationStore(RunLoop& runLoop, KernelLinks& links,
                                                 ConnectionProfiles* profiles)
    : _runLoop(runLoop)
    , _links(links)
    , _profiles(profiles) {
    _links.setChangeAction([this] { noteChange(); });
    if (_profiles != nullptr) {
        _profiles->setChangeAction([this] { noteChange(); });
    }
}

LinuxConfigurationStore::~LinuxConfigurationStore() {
    _links.setChangeAction(nullptr);
    if (_profiles != nullptr) {
        _profiles->setChangeAction(nullptr);
    }
}

std::unique_ptr<DynamicStoreSession>
LinuxConfigurationStore::openSession(std::string_view /*name*/, DynamicStoreCallBack callback,
                                     void* info) {
    auto records = currentRecords();
    if (records == nullptr) {
        return nullptr;
    }
    return std::make_unique<Session>(*this, callback, info, std::move(records));
}

std::unique_ptr<PreferencesSession>
LinuxConfigurationStore::openPreferences(std::string_view /*name*/) {
    auto records = currentRecords();
    if (records == nullptr) {
        return nullptr;
    }
    return std::make_unique<Preferences>(std::move(records));
}

// Null, with the reason in _lastError, when the kernel cannot be asked.
LinuxConfigurationStore::Records LinuxConfigurationStore::currentRecords() {
    static const std::vector<ConnectionProfile> noProfiles;
    const auto& profiles = _profiles != nullptr ? _profiles->activeProfiles() : noProfiles;
    const auto* const links = _links.links();
    if (links == nullptr) {
        _lastError = errno;
        return nullptr;
    }
    const std::pair generation(_links.generation(),
                               _profiles != nullptr ? _profiles->generation() : 0);
    if (_records == nullptr || generation != _recordsGeneration) {
        _records =
            std::make_shared<const ConfigurationRecords>(configurationRecords(*links, profiles));
        _recordsGeneration = generation;
    }
    return _records;
}

// The first change starts the wait, and later changes do not extend it. So the changes of a host
// that changes all the time are told too.
void LinuxConfigurationStore::noteChange() {
    if (_pendingTell == nullptr && !_runningSources.empty()) {
        tellAfter(settlingTime);
    }
}

void LinuxConfigurationStore::tellAfter(std::chrono::milliseconds delay) {
    _pendingTell = _runLoop.callOnceAfter(delay, [this] { tellChanges(); });
}

void LinuxConfigurationStore::tellChanges() {
    _pendingTell.reset();
    const auto now = currentRecords();
    if (now == nullptr) {
        tellAfter(retryTime);
        return;
    }
    const auto sources = _runningSources;
    for (auto* const source : sources) {
        // A callback may have destroyed a source behind it.
        if (std::ranges::find(_runningSources, source) != _runningSources.end()) {
            source->tell(now);
        }
    }
}

} // namespace kx
