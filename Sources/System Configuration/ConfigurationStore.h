// The host's network configuration as keyed records: the current state with a change feed (the
// dynamic store), and the saved configuration (the preferences).
//
// A record is a dictionary under a key such as "State:/Network/Service/ID/IPv4"
// (ConfigurationKeys.h has the keys that are read here). An adapter must answer these:
//
//   Setup:/Network/Global/IPv4            ServiceOrder: service identifiers, preferred first
//   Setup:/Network/Service/ID/Interface   DeviceName, Type ("PPP" for dial-up), UserDefinedName
//   State:/Network/Service/ID/IPv4        Addresses, SubnetMasks: dotted texts, parallel lists
//   State:/Network/Interface/NAME/IPv4    the same, for an interface
//   State:/Network/Interface/NAME/IPv6    Addresses: texts; PrefixLength: integers, parallel
//   State:/Network/Interface/NAME/Link    Active: 1 or 0
//
//   preference CurrentSet                 the path of the current location set, "/Sets/..."
//   preference Sets                       a dictionary of the location sets
//   path SET/Network/Global/IPv4          ServiceOrder, as saved for that set
//   path /NetworkServices/ID/Interface    DeviceName, Type, UserDefinedName, as saved
//   path /NetworkServices/ID/IPv4         Addresses, SubnetMasks, as saved
//
// When the host does not have a record or an entry, it is missing; an empty one never takes its
// place.
//
// Threading: the main thread only. Reads may take a moment; they run on user actions and on change
// notifications. No callback comes from inside an operation.
//
// Ownership: sessions and sources are handles; destroying one closes it. They must not outlive
// their store, and a source must not outlive its session. The adapter takes care of the run loop.

#pragma once

#include "support/PropertyListValue.h"

#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kx {

// The change feed of one session. Destroying it ends the feed; it may be destroyed from inside the
// session's callback.
class ConfigurationChangeSource {
public:
    virtual ~ConfigurationChangeSource() = default;

    // Begins to deliver changes on the main run loop. Earlier changes are not delivered, and
    // neither are changes before the store could first read its records.
    virtual void addToRunLoop() = 0;

protected:
    ConfigurationChangeSource() = default;
    ConfigurationChangeSource(const ConfigurationChangeSource&) = delete;
    ConfigurationChangeSource& operator=(const ConfigurationChangeSource&) = delete;
};

// An open session with the dynamic store.
class DynamicStoreSession {
public:
    virtual ~DynamicStoreSession() = default;

    // The record under a key; absent when there is none. A session with a callback answers with the
    // present state. A session without one may answer with the state at its opening.
    virtual std::optional<PropertyDictionary> copyValue(std::string_view key) = 0;

    // Chooses the keys whose changes are told to the session's callback: plain keys, and patterns.
    // A pattern is a regular expression over the whole key; the only construct in use is "[^/]+",
    // which matches any one component. False when the choice could not be made; the earlier choice
    // then stays.
    virtual bool setNotificationKeys(std::span<const std::string_view> keys,
                                     std::span<const std::string_view> patterns) = 0;

    // The session's change feed, not yet running; null when it could not be made.
    virtual std::unique_ptr<ConfigurationChangeSource> createRunLoopSource() = 0;

protected:
    DynamicStoreSession() = default;
    DynamicStoreSession(const DynamicStoreSession&) = delete;
    DynamicStoreSession& operator=(const DynamicStoreSession&) = delete;
};

// A session calls this function when watched keys have changed: a record came, went or got another
// content. `changedKeys` names each key once; copyValue() reads their records. `info` is the
// pointer that openSession() was given.
using DynamicStoreCallBack = void (*)(DynamicStoreSession& store,
                                      const std::vector<std::string>& changedKeys, void* info);

// An open session with the saved preferences.
class PreferencesSession {
public:
    virtual ~PreferencesSession() = default;

    // The preference under a key; absent when there is none.
    virtual std::optional<PropertyListValue> getValue(std::string_view key) = 0;

    // The record at a path; absent when there is none.
    virtual std::optional<PropertyDictionary> pathGetValue(std::string_view path) = 0;

protected:
    PreferencesSession() = default;
    PreferencesSession(const PreferencesSession&) = delete;
    PreferencesSession& operator=(const PreferencesSession&) = delete;
};

class ConfigurationStore {
public:
    virtual ~ConfigurationStore() = default;

    // Opens a session with the dynamic store under a name (for diagnostics). `callback` may be null
    // when no change feed is wanted. Null when the session could not be opened.
    virtual std::unique_ptr<DynamicStoreSession>
    openSession(std::string_view name, DynamicStoreCallBack callback, void* info) = 0;

    // Opens a session with the saved preferences. Null when it could not be opened.
    virtual std::unique_ptr<PreferencesSession> openPreferences(std::string_view name) = 0;

    // The status code of the last operation that failed here, in a session or in a source; 0 when
    // there is none, or when it has no code.
    virtual int SCError() const = 0;
};

} // namespace kx
