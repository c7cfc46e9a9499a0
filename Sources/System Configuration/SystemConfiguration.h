// The one point of access to the host's network configuration: the interfaces and their titles,
// their addresses, and the changes to them.
//
// Two sources are merged: the configured network services of the configuration store, in the user's
// order, and the kernel's own list, for interfaces that no service covers. A service identifier
// that begins with "=" stands for such a kernel-only interface ("=lo0"). It has no configured
// service, so a query that needs one answers with nothing.
//
// Only the interface identifiers are cached: every query opens a session of its own and closes it
// before it returns.
//
// Failures: every query answers with nothing, or with the localized text "not available". The
// comments at the operations say what they write to the system log. Broken contracts in the
// construction end the process (ChangeWatch.h).
//
// Threading: the main thread only; changes are announced from its run loop.
//
// Ownership: the shared instance lives until the process ends. It does not own its sources. They
// may be destroyed when the process is about to end, if nobody queries the instance any more and
// the run loop does not turn any more.

#pragma once

#include "System Configuration/ConfigurationStore.h"
#include "System Configuration/KernelQuery.h"
#include "System Configuration/NetworkInterfaces.h"
#include "support/ByteRange.h"
#include "support/NotificationCenter.h"
#include "support/PropertyListValue.h"

#include <map>
#include <memory>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kx {

// The notification of a change to a service's IPv4 state. The shared instance posts one for each
// changed key. The user info holds the entries of the new state, and the service's identifier under
// "ServiceID". When the state is gone, it holds only the identifier.
inline constexpr std::string_view SystemConfigurationNotification =
    "SystemConfigurationNotification";
inline constexpr std::string_view serviceIDUserInfoKey = "ServiceID";

// The requests that the text queries know.
inline constexpr std::string_view grantAddressRequest = "grantAddress";   // IPv4 addresses
inline constexpr std::string_view grantAddress6Request = "grantAddress6"; // IPv6 addresses/prefixes
inline constexpr std::string_view subnetMaskRequest = "subnetMask";       // IPv4 masks
inline constexpr std::string_view netNumberRequest = "netNumber";         // IPv4 addresses/prefixes
inline constexpr std::string_view linkStatusRequest = "linkStatus";
inline constexpr std::string_view hardwareAddressRequest = "hardwareAddress";

class SystemConfiguration final : public NetworkInterfaces {
public:
    // Sets the sources of the shared instance. The wiring of the program calls this once, before
    // the first use of the shared instance.
    // Contract: "sharedInstance == nil".
    static void installSources(ConfigurationStore& store, KernelQuery& kernelQuery);

    // The process's one object, created on first use and never released. The sources must be
    // installed. Contract: "sources != NULL".
    static SystemConfiguration& sharedInstance();

    // Sets up the change watch. When that fails, the object works but never announces a change.
    SystemConfiguration(ConfigurationStore& store, KernelQuery& kernelQuery);

    // Does not end the watch. The watch announces its changes to the shared instance.
    ~SystemConfiguration() override;
    SystemConfiguration(const SystemConfiguration&) = delete;
    SystemConfiguration& operator=(const SystemConfiguration&) = delete;

    // Registers `selector` for SystemConfigurationNotification posted by this object, until
    // removeObserver() is called with the same observer or this object is destroyed. The observer
    // is only a name for the registration. Registered twice, it is called twice.
    void addObserverWithSelector(const void* observer, NotificationCenter::Selector selector);

    // Ends every registration of an observer. An observer without a registration is no error.
    void removeObserver(const void* observer);

    // Reads each changed key and posts its notification before it goes on to the next. A key that
    // has neither a value nor a service's identifier in it is skipped.
    void dynamicStoreCallback(const std::vector<std::string>& changedKeys);

    // The titles of all configured services and of all other kernel interfaces. Each carries an
    // interface identifier that belongs to its service alone and stays the same from one
    // enumeration to the next, also when other services go. When there are none, the result is
    // absent and `serviceIDs` is not written. Otherwise `serviceIDs`, unless null, is parallel to
    // the titles.
    std::optional<std::vector<std::string>>
    interfaceTitlesAndServiceIDs(std::vector<std::string>* serviceIDs);

    // The same without the identifiers of the services.
    std::optional<std::vector<std::string>> currentInterfaceTitles();

    // The titles for the interface pop-up: with the plain names of the interfaces, and with only
    // those kernel interfaces that are up. Does not change the interface identifiers.
    std::optional<std::vector<std::string>>
    bsdTitlesAndServiceIDs(std::vector<std::string>* serviceIDs) override;

    // Interface identifiers by service identifier, as given until now.
    using InterfaceIDs = std::map<std::string, std::string, std::less<>>;
    const InterfaceIDs& interfaceIDs() const { return _interfaceIDs; }

    // Makes the next call of interfaceTitlesAndServiceIDs() forget all interface identifiers first.
    // The first call after construction does so anyway.
    void purgeInterfaceIDs() { _purgeInterfaceIDs = true; }

    // The first service on an interface, in the order of the saved current location set. The
    // loopback interface has its kernel-only identifier; any other interface without a service has
    // none. Logs "serviceIDForInterface: open session for System Configuration failed" when the
    // preferences cannot be opened.
    std::optional<std::string> serviceIDForInterface(std::string_view bsdName) override;

    // The name in the system of a service's interface, by the current configuration; "ppp0" for
    // every PPP service. Absent for an unknown service and for one without a device.
    std::optional<std::string> bsdNameForServiceID(std::string_view serviceID);

    // The identifier of the current location set: its path without the first six characters. Absent
    // when the path does not contain "/Sets/". The path may contain it at any place.
    std::optional<std::string> currentSet();

    // All location sets as they are saved.
    std::optional<PropertyDictionary> setsDictionary();

    // One entry of the current state of an interface.
    std::optional<PropertyListValue>
    interfaceDataForDictionaryNameKey(std::string_view bsdName, std::string_view dictionaryName,
                                      std::string_view key) override;

    // One entry of the current state of a service, or of its saved configuration when the state
    // does not have it.
    std::optional<PropertyListValue>
    serviceDataForDictionaryNameKey(std::string_view serviceID, std::string_view dictionaryName,
                                    std::string_view key) override;

    // One entry of the saved configuration of a service. Logs the same line as
    // serviceIDForInterface() when the preferences cannot be opened.
    std::optional<PropertyListValue>
    staticServiceDataForDictionaryNameKey(std::string_view serviceID,
                                          std::string_view dictionaryName, std::string_view key);

    std::optional<InterfaceState> interfaceState(std::string_view bsdName) override;

    // A text for people about a service. Several values are joined with ",". A link is "Active",
    // "Inactive" or "Not reported". A missing value is "not available". An unknown request is "not
    // available" too, and logs "interfaceDataForKey unknown request". A kernel-only identifier gets
    // the answer of bsdNameInterfaceDataForKey().
    std::string serviceInterfaceDataForKey(std::string_view serviceID, std::string_view requestKey);

    // The same about an interface of the kernel. Only its first IPv4 address counts. A link is
    // "Active" when the interface is up, and otherwise "Inactive". IPv6 addresses, and unknown
    // requests, are "not available"; nothing is logged.
    std::string bsdNameInterfaceDataForKey(std::string_view bsdName, std::string_view requestKey);

    // The bytes of a kernel value, by its name. Absent without a name, for a name of more than 16
    // elements, and when the kernel does not answer.
    std::optional<Bytes> getParameter(std::optional<std::span<const int>> name);

private:
    struct ListedInterface {
        std::string serviceID;
        std::string name;
        std::string userName;
    };
    enum class KernelInterfaces { all, up };

    std::vector<ListedInterface> _listedServices();
    void _appendKernelInterfaces(std::vector<ListedInterface>& interfaces, KernelInterfaces which);
    std::string _userNameForKernelInterface(std::string_view name) const;
    const std::string& _interfaceIDForService(const ListedInterface& interface);

    PropertyList _interfaceList(const std::optional<std::string>& bsdName,
                                std::string_view dictionaryName, std::string_view key);
    std::string _joinedServiceList(std::string_view serviceID,
                                   const std::optional<std::string>& bsdName, std::string_view key);
    std::string _joinedIPv6Addresses(const std::optional<std::string>& bsdName);
    std::string _joinedNetNumbers(std::string_view serviceID,
                                  const std::optional<std::string>& bsdName);
    std::string _linkStatus(const std::optional<std::string>& bsdName);

    ConfigurationStore& _store;
    KernelQuery& _kernelQuery;

    std::unique_ptr<DynamicStoreSession> storeRef;
    std::unique_ptr<ConfigurationChangeSource> sourceRef;
    InterfaceIDs _interfaceIDs;
    std::set<std::string> _takenInterfaceIDs; // the values of _interfaceIDs
    bool _purgeInterfaceIDs = true;
    std::multimap<const void*, NotificationCenter::Registration> _observers;
};

// The plain function registered with the change watch. It hands the changed keys to the shared
// instance. `info` is not used.
void myDynamicStoreCallback(DynamicStoreSession& store, const std::vector<std::string>& changedKeys,
                            void* info);

// Whether any configured service of the shared instance has an active link. Kernel-only interfaces
// never count.
bool networkIsReady();

} // namespace kx
