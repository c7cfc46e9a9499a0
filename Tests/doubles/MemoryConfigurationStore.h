// A configuration store whose records are dictionaries in memory, written by the test.
//
// deliverChanges() delivers the changes when the test calls it. Patterns are matched as regular
// expressions. Sessions that are still open are closed with the store.

#pragma once

#include "System Configuration/ConfigurationStore.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <memory>
#include <optional>
#include <regex>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kx {

class MemoryConfigurationStore final : public ConfigurationStore {
public:
    MemoryConfigurationStore() = default;
    MemoryConfigurationStore(const MemoryConfigurationStore&) = delete;
    MemoryConfigurationStore& operator=(const MemoryConfigurationStore&) = delete;
    ~MemoryConfigurationStore() override {
        while (!_sessions.empty()) {
            delete _sessions.back()->source();
            delete _sessions.back();
        }
    }

    std::unique_ptr<DynamicStoreSession>
    openSession(std::string_view name, DynamicStoreCallBack callback, void* info) override {
        if (refusesSessions) {
            return nullptr;
        }
        _sessionNames.emplace_back(name);
        return std::make_unique<Session>(*this, callback, info);
    }

    std::unique_ptr<PreferencesSession> openPreferences(std::string_view name) override {
        if (refusesPreferences) {
            return nullptr;
        }
        _preferencesNames.emplace_back(name);
        return std::make_unique<Preferences>(*this);
    }

    int SCError() const override { return lastError; }

    // Writes a record of the dynamic store, or removes it, and records the change for every session
    // that watches the key.
    void setValue(const std::string& key, PropertyDictionary value) {
        const auto before = valueOf(_values, key);
        if (before != value) {
            _values.insert_or_assign(key, std::move(value));
            noteChange(key);
        }
    }
    void removeValue(const std::string& key) {
        if (_values.erase(key) > 0) {
            noteChange(key);
        }
    }

    // Writes a saved preference, and a record at a path of them.
    void setPreference(const std::string& key, PropertyListValue value) {
        _preferences.insert_or_assign(key, std::move(value));
    }
    void setPath(const std::string& path, PropertyDictionary value) {
        _paths.insert_or_assign(path, std::move(value));
    }

    // Plays one turn of the run loop: tells every session with a running source which keys have
    // changed.
    void deliverChanges() {
        const auto sessions = _sessions;
        for (auto* session : sessions) {
            if (std::find(_sessions.begin(), _sessions.end(), session) != _sessions.end()) {
                session->deliver();
            }
        }
    }

    // Forgets all records, refusals and notes; sessions stay open.
    void clear() {
        _values.clear();
        _preferences.clear();
        _paths.clear();
        _sessionNames.clear();
        _preferencesNames.clear();
        refusesSessions = refusesPreferences = refusesNotificationKeys = refusesSources = false;
        lastError = 0;
    }

    // The names of the sessions, in the order in which they were opened.
    const std::vector<std::string>& sessionNames() const { return _sessionNames; }
    const std::vector<std::string>& preferencesNames() const { return _preferencesNames; }

    // The number of sessions that are open now.
    std::size_t openSessionCount() const { return _sessions.size(); }
    int openPreferencesCount() const { return _openPreferences; }

    // The operations that fail from now on, and the status code of the failure.
    bool refusesSessions = false;
    bool refusesPreferences = false;
    bool refusesNotificationKeys = false;
    bool refusesSources = false;
    int lastError = 0;

private:
    template<class Value>
    using Records = std::map<std::string, Value, std::less<>>;

    template<class Value>
    static std::optional<Value> valueOf(const Records<Value>& records, std::string_view key) {
        const auto found = records.find(key);
        return found != records.end() ? std::optional(found->second) : std::nullopt;
    }

    class Session;

    class Source final : public ConfigurationChangeSource {
    public:
        explicit Source(Session& session)
            : _session(session) {}
        ~Source() override { _session.endSource(); }
        void addToRunLoop() override { _session.runSource(); }

    private:
        Session& _session;
    };

    class Session final : public DynamicStoreSession {
    public:
        Session(MemoryConfigurationStore& store, DynamicStoreCallBack callback, void* info)
            : _store(store)
            , _callback(callback)
            , _info(info) {
            _store._sessions.push_back(this);
        }
        ~Session() override { std::erase(_store._sessions, this); }

        std::optional<PropertyDictionary> copyValue(std::string_view key) override {
            return valueOf(_store._values, key);
        }
        bool setNotificationKeys(std::span<const std::string_view> keys,
                                 std::span<const std::string_view> patterns) override {
            if (_store.refusesNotificationKeys) {
                return false;
            }
            _keys.assign(keys.begin(), keys.end());
            _patterns.assign(patterns.begin(), patterns.end());
            return true;
        }
        std::unique_ptr<ConfigurationChangeSource> createRunLoopSource() override {
            if (_store.refusesSources) {
                return nullptr;
            }
            auto source = std::make_unique<Source>(*this);
            _source = source.get();
            return source;
        }

        ConfigurationChangeSource* source() const { return _source; }
        void runSource() { _isRunning = true; }
        void endSource() {
            _source = nullptr;
            _isRunning = false;
            _changedKeys.clear();
        }
        void noteChange(const std::string& key) {
            const bool isNoted =
                std::find(_changedKeys.begin(), _changedKeys.end(), key) != _changedKeys.end();
            if (_isRunning && isWatched(key) && !isNoted) {
                _changedKeys.push_back(key);
            }
        }
        void deliver() {
            const auto changedKeys = std::exchange(_changedKeys, {});
            if (!changedKeys.empty() && _callback != nullptr) {
                _callback(*this, changedKeys, _info);
            }
        }

    private:
        bool isWatched(const std::string& key) const {
            return std::find(_keys.begin(), _keys.end(), key) != _keys.end() ||
                   std::any_of(_patterns.begin(), _patterns.end(), [&key](const auto& pattern) {
                       return std::regex_match(key, std::regex(pattern));
                   });
        }

        MemoryConfigurationStore& _store;
        DynamicStoreCallBack _callback;
        void* _info;
        std::vector<std::string> _keys;
        std::vector<std::string> _patterns;
        std::vector<std::string> _changedKeys;
        ConfigurationChangeSource* _source = nullptr;
        bool _isRunning = false;
    };

    class Preferences final : public PreferencesSession {
    public:
        explicit Preferences(MemoryConfigurationStore& store)
            : _store(store) {
            ++_store._openPreferences;
        }
        ~Preferences() override { --_store._openPreferences; }
        std::optional<PropertyListValue> getValue(std::string_view key) override {
            return valueOf(_store._preferences, key);
        }
        std::optional<PropertyDictionary> pathGetValue(std::string_view path) override {
            return valueOf(_store._paths, path);
        }

    private:
        MemoryConfigurationStore& _store;
    };

    void noteChange(const std::string& key) {
        for (auto* session : _sessions) {
            session->noteChange(key);
        }
    }

    Records<PropertyDictionary> _values;
    Records<PropertyListValue> _preferences;
    Records<PropertyDictionary> _paths;
    std::vector<Session*> _sessions; // open sessions, oldest first
    std::vector<std::string> _sessionNames;
    std::vector<std::string> _preferencesNames;
    int _openPreferences = 0;
};

} // namespace kx
