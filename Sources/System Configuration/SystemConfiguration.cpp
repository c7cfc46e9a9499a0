#include "System Configuration/SystemConfiguration.h"

#include "System Configuration/ChangeWatch.h"
#include "System Configuration/ConfigurationKeys.h"
#include "support/Require.h"

#include <algorithm>
#include <utility>

namespace kx {

namespace {

constexpr std::size_t longestParameterName = 16;
constexpr std::size_t parameterHeadroom = 512; // bytes

struct InstalledSources {
    ConfigurationStore& store;
    KernelQuery& kernelQuery;
};

std::optional<InstalledSources> installedSources;
SystemConfiguration* shared = nullptr;

// The identifier in a key such as "State:/Network/Service/ID/IPv4".
std::optional<std::string> serviceIDInKey(std::string_view key) {
    const std::size_t entity = key.find("/IPv4");
    if (entity == std::string_view::npos) {
        return std::nullopt;
    }
    const std::string_view service = key.substr(0, entity);
    const std::size_t prefix = service.find(stateServicePrefix);
    if (prefix == std::string_view::npos) {
        return std::nullopt;
    }
    return std::string(service.substr(prefix + stateServicePrefix.size()));
}

} // namespace

void SystemConfiguration::installSources(ConfigurationStore& store, KernelQuery& kernelQuery) {
    require(shared == nullptr, "sharedInstance == nil", systemConfigurationPath);
    installedSources.emplace(InstalledSources{store, kernelQuery});
}

SystemConfiguration& SystemConfiguration::sharedInstance() {
    if (shared == nullptr) {
        const auto& sources =
            requireValue(installedSources, "sources != NULL", systemConfigurationPath);
        shared = new SystemConfiguration(sources.store, sources.kernelQuery);
    }
    return *shared;
}

SystemConfiguration::SystemConfiguration(ConfigurationStore& store, KernelQuery& kernelQuery)
    : _store(store)
    , _kernelQuery(kernelQuery) {
    const int err = CreateIPAddressListChangeCallbackSCF(_store, myDynamicStoreCallback, nullptr,
                                                         &storeRef, &sourceRef);
    if (err == noErr) {
        sourceRef->addToRunLoop();
    }
}

SystemConfiguration::~SystemConfiguration() {
    static_cast<void>(sourceRef.release());
    static_cast<void>(storeRef.release());
}

void SystemConfiguration::addObserverWithSelector(const void* observer,
                                                  NotificationCenter::Selector selector) {
    _observers.emplace(observer, NotificationCenter::defaultCenter().addObserver(
                                     std::move(selector), SystemConfigurationNotification, this));
}

void SystemConfiguration::removeObserver(const void* observer) {
    _observers.erase(observer);
}

void SystemConfiguration::dynamicStoreCallback(const std::vector<std::string>& changedKeys) {
    for (const auto& key : changedKeys) {
        const auto serviceID = serviceIDInKey(key);
        const auto value = storeRef != nullptr ? storeRef->copyValue(key) : std::nullopt;
        if (!value.has_value() && !serviceID.has_value()) {
            continue;
        }
        auto userInfo = value.value_or(PropertyDictionary());
        if (serviceID.has_value()) {
            userInfo.insert_or_assign(std::string(serviceIDUserInfoKey), *serviceID);
        }
        NotificationCenter::defaultCenter().postNotification(
            {std::string(SystemConfigurationNotification), this, std::move(userInfo)});
    }
}

std::optional<Bytes> SystemConfiguration::getParameter(std::optional<std::span<const int>> name) {
    if (!name.has_value() || name->size() > longestParameterName) {
        return std::nullopt;
    }
    // The size is only a first guess. When its query fails, only the headroom is left, and the
    // second call tells whether that was enough.
    std::size_t length = 0;
    static_cast<void>(_kernelQuery.sysctl(*name, nullptr, length));
    Bytes buffer(length + parameterHeadroom);
    length = buffer.size();
    if (_kernelQuery.sysctl(*name, buffer.data(), length) < 0) {
        return std::nullopt;
    }
    buffer.resize(std::min(length, buffer.size()));
    return buffer;
}

void myDynamicStoreCallback(DynamicStoreSession& /*store*/,
                            const std::vector<std::string>& changedKeys, void* /*info*/) {
    SystemConfiguration::sharedInstance().dynamicStoreCallback(changedKeys);
}

bool networkIsReady() {
    auto& configuration = SystemConfiguration::sharedInstance();
    std::vector<std::string> serviceIDs;
    configuration.interfaceTitlesAndServiceIDs(&serviceIDs);
    return std::any_of(serviceIDs.begin(), serviceIDs.end(), [&](const std::string& serviceID) {
        return !serviceID.starts_with(kernelOnlyMark) &&
               configuration.serviceInterfaceDataForKey(serviceID, linkStatusRequest) == "Active";
    });
}

} // namespace kx
