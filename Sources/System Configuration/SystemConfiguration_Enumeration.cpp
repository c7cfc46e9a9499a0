// Lists the interfaces with their titles, and finds the service behind a title.

#include "System Configuration/ConfigurationKeys.h"
#include "System Configuration/ConfigurationRecord.h"
#include "System Configuration/InterfaceTitles.h"
#include "System Configuration/RoutingMessages.h"
#include "System Configuration/SystemConfiguration.h"
#include "support/LocalizedText.h"
#include "support/SystemLog.h"
#include "support/TextEncoding.h"
#include "support/TextFormat.h"

#include <algorithm>
#include <set>
#include <utility>

namespace kx {

namespace {

std::string textOrNotAvailable(const ConfigurationRecord& record, std::string_view key) {
    return textOf(entryOf(record, key)).value_or(localizedText(notAvailableText));
}

bool isPPP(const ConfigurationRecord& interface) {
    return textOf(entryOf(interface, kSCPropNetInterfaceType)) == kSCValNetInterfaceTypePPP;
}

// `count` is a number of UTF-16 units, but no character is split.
std::string_view withoutFirstCharacters(std::string_view text, std::size_t count) {
    std::size_t end = 0;
    const auto isInsideCharacter = [&] {
        return (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80U;
    };
    while (end < text.size() &&
           (isInsideCharacter() || lengthInCharacters(text.substr(0, end)) < count)) {
        ++end;
    }
    return text.substr(end);
}

// The result of both enumerations. It is absent, and no empty list, when nothing was found.
std::optional<std::vector<std::string>> enumerated(std::vector<std::string> titles,
                                                   std::vector<std::string> foundServiceIDs,
                                                   std::vector<std::string>* serviceIDs) {
    if (titles.empty()) {
        return std::nullopt;
    }
    if (serviceIDs != nullptr) {
        *serviceIDs = std::move(foundServiceIDs);
    }
    return titles;
}

} // namespace

std::optional<std::vector<std::string>>
SystemConfiguration::interfaceTitlesAndServiceIDs(std::vector<std::string>* serviceIDs) {
    auto interfaces = _listedServices();
    _appendKernelInterfaces(interfaces, KernelInterfaces::all);
    if (std::exchange(_purgeInterfaceIDs, false)) {
        _interfaceIDs.clear();
        _takenInterfaceIDs.clear();
    }
    std::vector<std::string> titles;
    std::vector<std::string> foundServiceIDs;
    for (const auto& interface : interfaces) {
        titles.push_back(titleForNameAndID(interface.userName, _interfaceIDForService(interface)));
        foundServiceIDs.push_back(interface.serviceID);
    }
    return enumerated(std::move(titles), std::move(foundServiceIDs), serviceIDs);
}

std::optional<std::vector<std::string>> SystemConfiguration::currentInterfaceTitles() {
    return interfaceTitlesAndServiceIDs(nullptr);
}

std::optional<std::vector<std::string>>
SystemConfiguration::bsdTitlesAndServiceIDs(std::vector<std::string>* serviceIDs) {
    auto interfaces = _listedServices();
    _appendKernelInterfaces(interfaces, KernelInterfaces::up);
    std::vector<std::string> titles;
    std::vector<std::string> foundServiceIDs;
    for (const auto& interface : interfaces) {
        titles.push_back(titleForNameAndID(interface.userName, interface.name));
        foundServiceIDs.push_back(interface.serviceID);
    }
    return enumerated(std::move(titles), std::move(foundServiceIDs), serviceIDs);
}

std::vector<SystemConfiguration::ListedInterface> SystemConfiguration::_listedServices() {
    std::vector<ListedInterface> interfaces;
    const auto session = _store.openSession(applicationIdentifier, nullptr, nullptr);
    if (session == nullptr) {
        return interfaces;
    }
    const auto global = session->copyValue(setupGlobalIPv4Key);
    int pppCounter = 0;
    for (const auto& serviceID : textsOf(entryOf(global, serviceOrderEntry))) {
        const auto interface =
            session->copyValue(filledText(setupServiceInterfaceKey, {serviceID}));
        if (!interface.has_value()) {
            continue;
        }
        const auto deviceName = textOrNotAvailable(interface, kSCPropNetInterfaceDeviceName);
        if (isPPP(interface)) {
            // Gets a number among the PPP services, because only the kernel knows its own numbers.
            interfaces.push_back({serviceID, filledText("%@%d", {"ppp", pppCounter}), deviceName});
            ++pppCounter;
        } else {
            interfaces.push_back(
                {serviceID, deviceName, textOrNotAvailable(interface, kSCPropUserDefinedName)});
        }
    }
    return interfaces;
}

void SystemConfiguration::_appendKernelInterfaces(std::vector<ListedInterface>& interfaces,
                                                  KernelInterfaces which) {
    std::set<std::string> listedNames; // there may be a thousand
    for (const auto& interface : interfaces) {
        listedNames.insert(interface.name);
    }
    const auto list = getParameter(interfaceListName).value_or(Bytes());
    for (const ByteView message : routingMessages(list)) {
        const auto found = interfaceMessage(message).value_or(InterfaceMessage());
        const std::string name = found.name.value_or("");
        const bool isWanted = !name.empty() && (which == KernelInterfaces::all || found.isUp);
        if (isWanted && listedNames.insert(name).second) {
            interfaces.push_back(
                {filledText("=%@", {name}), name, _userNameForKernelInterface(name)});
        }
    }
}

std::string SystemConfiguration::_userNameForKernelInterface(std::string_view name) const {
    if (name == _kernelQuery.loopbackName()) {
        return "Loopback";
    }
    return name.starts_with("tun") ? "VPN Tunnel" : "BSD Interface";
}

const std::string& SystemConfiguration::_interfaceIDForService(const ListedInterface& interface) {
    const auto known = _interfaceIDs.find(interface.serviceID);
    if (known != _interfaceIDs.end()) {
        return known->second;
    }
    // This loop ends, because it tries one identifier more than there are taken ones.
    std::string interfaceID = interface.name;
    for (int n = 1; !_takenInterfaceIDs.insert(interfaceID).second; ++n) {
        interfaceID = filledText("%@:%d", {interface.name, n});
    }
    return _interfaceIDs.emplace(interface.serviceID, std::move(interfaceID)).first->second;
}

std::optional<std::string> SystemConfiguration::serviceIDForInterface(std::string_view bsdName) {
    if (bsdName == _kernelQuery.loopbackName()) {
        return filledText("=%@", {bsdName});
    }
    const auto session = _store.openPreferences(applicationIdentifier);
    if (session == nullptr) {
        logToSystem("serviceIDForInterface: open session for System Configuration failed");
        return std::nullopt;
    }
    const auto set = textOf(session->getValue(kSCPrefCurrentSet));
    const auto global = session->pathGetValue(filledText(setGlobalIPv4Path, {set}));
    for (const auto& serviceID : textsOf(entryOf(global, serviceOrderEntry))) {
        const auto interface =
            session->pathGetValue(filledText(savedServiceEntityPath, {serviceID, interfaceEntity}));
        if (textOf(entryOf(interface, kSCPropNetInterfaceDeviceName)) == bsdName) {
            return serviceID;
        }
    }
    return std::nullopt;
}

std::optional<std::string> SystemConfiguration::bsdNameForServiceID(std::string_view serviceID) {
    if (serviceID.starts_with(kernelOnlyMark)) {
        return std::string(serviceID.substr(1));
    }
    const auto session = _store.openSession(applicationIdentifier, nullptr, nullptr);
    if (session == nullptr) {
        return std::nullopt;
    }
    const auto interface = session->copyValue(filledText(setupServiceInterfaceKey, {serviceID}));
    if (isPPP(interface)) {
        return "ppp0";
    }
    return textOf(entryOf(interface, kSCPropNetInterfaceDeviceName));
}

std::optional<std::string> SystemConfiguration::currentSet() {
    const auto session = _store.openPreferences(applicationIdentifier);
    const auto set =
        session != nullptr ? textOf(session->getValue(kSCPrefCurrentSet)) : std::nullopt;
    if (!set.has_value() || set->find(setsPrefix) == std::string::npos) {
        return std::nullopt;
    }
    return std::string(withoutFirstCharacters(*set, setsPrefix.size()));
}

std::optional<PropertyDictionary> SystemConfiguration::setsDictionary() {
    const auto session = _store.openPreferences(applicationIdentifier);
    const auto sets = session != nullptr ? session->getValue(kSCPrefSets) : std::nullopt;
    const auto* dictionary = sets.has_value() ? sets->dictionary() : nullptr;
    return dictionary != nullptr ? std::optional(*dictionary) : std::nullopt;
}

} // namespace kx
