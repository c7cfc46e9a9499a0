// Queries about one service or one interface. They answer with records and with texts for people.

#include "System Configuration/ConfigurationKeys.h"
#include "System Configuration/ConfigurationRecord.h"
#include "System Configuration/RoutingMessages.h"
#include "System Configuration/SystemConfiguration.h"
#include "addresses/HardwareAddress.h"
#include "addresses/IPv4Address.h"
#include "support/LocalizedText.h"
#include "support/SystemLog.h"
#include "support/TextFormat.h"

#include <algorithm>
#include <utility>

namespace kx {

namespace {

std::string joined(const std::vector<std::string>& texts) {
    std::string result;
    for (const auto& text : texts) {
        result += &text != &texts.front() ? "," : "";
        result += text;
    }
    return texts.empty() ? localizedText(notAvailableText) : result;
}

std::optional<PropertyListValue> elementOf(const PropertyList& list, std::size_t index) {
    return index < list.size() ? std::optional(list[index]) : std::nullopt;
}

// There is no prefix of length 0: a mask without bits counts as none.
std::string prefixForMask(const std::optional<PropertyListValue>& mask) {
    return prefixForMaskStr(textOf(mask)).value_or("32");
}

std::string linkStatusText(bool isActive) {
    return isActive ? "Active" : "Inactive";
}

// The answer in the message about the wanted interface itself.
std::optional<std::string> interfaceText(const InterfaceMessage& interface,
                                         std::string_view requestKey) {
    if (requestKey == hardwareAddressRequest &&
        interface.hardwareAddress.size() == hardwareAddressLength) {
        HardwareAddress address;
        std::copy(interface.hardwareAddress.begin(), interface.hardwareAddress.end(),
                  address.bytes());
        return address.stringValue();
    }
    if (requestKey == linkStatusRequest) {
        return linkStatusText(interface.isUp);
    }
    return std::nullopt;
}

// The answer in an address message of the wanted interface.
std::optional<std::string> addressText(const AddressMessage& message, std::string_view requestKey) {
    if (requestKey == grantAddressRequest) {
        return stringForIP(message.address);
    }
    if (requestKey == subnetMaskRequest) {
        return stringForIP(message.mask);
    }
    if (requestKey == netNumberRequest) {
        return stringForNetNumber(message.address, message.mask);
    }
    return std::nullopt;
}

// The answer in one message. `isInsideInterface` says whether the messages before it were about the
// wanted interface. Afterwards it says this of the present message.
std::optional<std::string> messageText(ByteView message, std::string_view bsdName,
                                       std::string_view requestKey, bool& isInsideInterface) {
    const auto interface = interfaceMessage(message);
    if (interface.has_value()) {
        isInsideInterface = interface->name == bsdName;
        return isInsideInterface ? interfaceText(*interface, requestKey) : std::nullopt;
    }
    const auto address = addressMessage(message);
    return address.has_value() && isInsideInterface ? addressText(*address, requestKey)
                                                    : std::nullopt;
}

} // namespace

std::optional<PropertyListValue> SystemConfiguration::interfaceDataForDictionaryNameKey(
    std::string_view bsdName, std::string_view dictionaryName, std::string_view key) {
    const auto session = _store.openSession(applicationIdentifier, nullptr, nullptr);
    if (session == nullptr) {
        return std::nullopt;
    }
    return entryOf(
        session->copyValue(filledText(stateInterfaceEntityKey, {bsdName, dictionaryName})), key);
}

std::optional<PropertyListValue> SystemConfiguration::serviceDataForDictionaryNameKey(
    std::string_view serviceID, std::string_view dictionaryName, std::string_view key) {
    if (serviceID.starts_with(kernelOnlyMark)) {
        return std::nullopt;
    }
    const auto session = _store.openSession(applicationIdentifier, nullptr, nullptr);
    if (session == nullptr) {
        return std::nullopt;
    }
    auto entry = entryOf(
        session->copyValue(filledText(stateServiceEntityKey, {serviceID, dictionaryName})), key);
    if (entry.has_value()) {
        return entry;
    }
    return staticServiceDataForDictionaryNameKey(serviceID, dictionaryName, key);
}

std::optional<PropertyListValue> SystemConfiguration::staticServiceDataForDictionaryNameKey(
    std::string_view serviceID, std::string_view dictionaryName, std::string_view key) {
    if (serviceID.starts_with(kernelOnlyMark)) {
        return std::nullopt;
    }
    const auto session = _store.openPreferences(applicationIdentifier);
    if (session == nullptr) {
        // This logs the line of the search for a service, because readers of the log know that
        // line.
        logToSystem("serviceIDForInterface: open session for System Configuration failed");
        return std::nullopt;
    }
    return entryOf(
        session->pathGetValue(filledText(savedServiceEntityPath, {serviceID, dictionaryName})),
        key);
}

std::string SystemConfiguration::serviceInterfaceDataForKey(std::string_view serviceID,
                                                            std::string_view requestKey) {
    if (serviceID.starts_with(kernelOnlyMark)) {
        return bsdNameInterfaceDataForKey(serviceID.substr(1), requestKey);
    }
    const auto bsdName = bsdNameForServiceID(serviceID);
    if (requestKey == grantAddressRequest) {
        return _joinedServiceList(serviceID, bsdName, ipv4AddressesEntry);
    }
    if (requestKey == grantAddress6Request) {
        return _joinedIPv6Addresses(bsdName);
    }
    if (requestKey == subnetMaskRequest) {
        return _joinedServiceList(serviceID, bsdName, ipv4SubnetMasksEntry);
    }
    if (requestKey == netNumberRequest) {
        return _joinedNetNumbers(serviceID, bsdName);
    }
    if (requestKey == linkStatusRequest) {
        return _linkStatus(bsdName);
    }
    if (requestKey == hardwareAddressRequest) {
        return bsdName.has_value() ? bsdNameInterfaceDataForKey(*bsdName, hardwareAddressRequest)
                                   : localizedText(notAvailableText);
    }
    logToSystem("interfaceDataForKey unknown request");
    return localizedText(notAvailableText);
}

std::string SystemConfiguration::bsdNameInterfaceDataForKey(std::string_view bsdName,
                                                            std::string_view requestKey) {
    const auto list = getParameter(interfaceListName).value_or(Bytes());
    bool isInsideInterface = false;
    for (const ByteView message : routingMessages(list)) {
        const auto answer = messageText(message, bsdName, requestKey, isInsideInterface);
        if (answer.has_value()) {
            return *answer;
        }
    }
    return localizedText(notAvailableText);
}

std::optional<InterfaceState> SystemConfiguration::interfaceState(std::string_view bsdName) {
    const auto list = getParameter(interfaceListName).value_or(Bytes());
    for (const ByteView message : routingMessages(list)) {
        const auto interface = interfaceMessage(message);
        if (interface.has_value() && interface->name == bsdName) {
            return InterfaceState{.isRunning = interface->isUp && interface->isRunning,
                                  .canBroadcast =
                                      interface->canBroadcast && !interface->isPointToPoint};
        }
    }
    return std::nullopt;
}

PropertyList SystemConfiguration::_interfaceList(const std::optional<std::string>& bsdName,
                                                 std::string_view dictionaryName,
                                                 std::string_view key) {
    return bsdName.has_value()
               ? listOf(interfaceDataForDictionaryNameKey(*bsdName, dictionaryName, key))
               : PropertyList();
}

std::string SystemConfiguration::_joinedServiceList(std::string_view serviceID,
                                                    const std::optional<std::string>& bsdName,
                                                    std::string_view key) {
    auto list = listOf(serviceDataForDictionaryNameKey(serviceID, kSCEntNetIPv4, key));
    if (list.empty()) {
        list = _interfaceList(bsdName, kSCEntNetIPv4, key);
    }
    std::vector<std::string> texts;
    for (const auto& element : list) {
        texts.push_back(element.description());
    }
    return joined(texts);
}

std::string SystemConfiguration::_joinedIPv6Addresses(const std::optional<std::string>& bsdName) {
    const auto addresses = _interfaceList(bsdName, ipv6Entity, ipv6AddressesEntry);
    const auto prefixLengths = _interfaceList(bsdName, ipv6Entity, ipv6PrefixLengthEntry);
    std::vector<std::string> texts;
    for (std::size_t i = 0; i < addresses.size(); ++i) {
        const auto prefixLength = elementOf(prefixLengths, i);
        texts.push_back(filledText(
            "%@/%@", {addresses[i].description(),
                      prefixLength ? std::optional(prefixLength->description()) : std::nullopt}));
    }
    return joined(texts);
}

std::string SystemConfiguration::_joinedNetNumbers(std::string_view serviceID,
                                                   const std::optional<std::string>& bsdName) {
    auto addresses =
        listOf(serviceDataForDictionaryNameKey(serviceID, kSCEntNetIPv4, ipv4AddressesEntry));
    auto masks =
        listOf(serviceDataForDictionaryNameKey(serviceID, kSCEntNetIPv4, ipv4SubnetMasksEntry));
    if (addresses.empty()) {
        addresses = _interfaceList(bsdName, kSCEntNetIPv4, ipv4AddressesEntry);
        masks = _interfaceList(bsdName, kSCEntNetIPv4, ipv4SubnetMasksEntry);
    }
    std::vector<std::string> texts;
    for (std::size_t i = 0; i < addresses.size(); ++i) {
        texts.push_back(
            filledText("%@/%@", {addresses[i].description(), prefixForMask(elementOf(masks, i))}));
    }
    return joined(texts);
}

std::string SystemConfiguration::_linkStatus(const std::optional<std::string>& bsdName) {
    const auto active =
        bsdName.has_value()
            ? interfaceDataForDictionaryNameKey(*bsdName, linkEntity, linkActiveEntry)
            : std::nullopt;
    return active.has_value() ? linkStatusText(numberOf(active) == 1) : "Not reported";
}

} // namespace kx
