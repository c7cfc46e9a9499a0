// The fixed texts of the host's network configuration: the names of sessions, and the keys of
// records in the store. support/TextFormat.h fills the placeholders of a text.

#pragma once

#include "support/LocalizedText.h"

#include <string_view>

namespace kx {

// The name under which the application opens a session.
inline constexpr std::string_view applicationIdentifier = "org.kxconfig.KXConfig";

// The name of the session that carries the change watch.
inline constexpr std::string_view changeWatchSessionName = "AddIPAddressListChangeCallbackSCF";

// Domains, components and entities that keys are made of.
inline constexpr std::string_view kSCDynamicStoreDomainState = "State:";
inline constexpr std::string_view kSCCompAnyRegex = "[^/]+"; // matches any one component of a key
inline constexpr std::string_view kSCEntNetIPv4 = "IPv4";
inline constexpr std::string_view ipv6Entity = "IPv6";
inline constexpr std::string_view linkEntity = "Link";
inline constexpr std::string_view interfaceEntity = "Interface";

// Keys of the dynamic store.
inline constexpr std::string_view setupGlobalIPv4Key = "Setup:/Network/Global/IPv4";
inline constexpr std::string_view setupServiceInterfaceKey = "Setup:/Network/Service/%@/Interface";
inline constexpr std::string_view stateServiceEntityKey = "State:/Network/Service/%@/%@";
inline constexpr std::string_view stateInterfaceEntityKey = "State:/Network/Interface/%@/%@";
inline constexpr std::string_view networkServiceEntityKey =
    "%@/Network/Service/%@/%@"; // the first placeholder is the domain
inline constexpr std::string_view stateServicePrefix = "State:/Network/Service/";

// Saved preferences: keys, and paths into them.
inline constexpr std::string_view kSCPrefCurrentSet = "CurrentSet";
inline constexpr std::string_view kSCPrefSets = "Sets";
inline constexpr std::string_view setsPrefix = "/Sets/";
// The placeholder is the path of a set.
inline constexpr std::string_view setGlobalIPv4Path = "%@/Network/Global/IPv4";
inline constexpr std::string_view savedServiceEntityPath = "/NetworkServices/%@/%@";

// Entries of the records.
inline constexpr std::string_view serviceOrderEntry = "ServiceOrder";
inline constexpr std::string_view kSCPropNetInterfaceType = "Type";
inline constexpr std::string_view kSCPropNetInterfaceDeviceName = "DeviceName";
inline constexpr std::string_view kSCPropUserDefinedName = "UserDefinedName";
inline constexpr std::string_view ipv4AddressesEntry = "Addresses";
inline constexpr std::string_view ipv4SubnetMasksEntry = "SubnetMasks";
inline constexpr std::string_view ipv6AddressesEntry = "Addresses";
inline constexpr std::string_view ipv6PrefixLengthEntry = "PrefixLength";
inline constexpr std::string_view linkActiveEntry = "Active";

// The interface type of a dial-up service.
inline constexpr std::string_view kSCValNetInterfaceTypePPP = "PPP";

// The localized text that stands for every missing value.
inline constexpr std::string_view notAvailableText = localizedKey("not available");

// The first character of the service identifier of a kernel interface that no service covers. The
// name of the interface follows it.
inline constexpr char kernelOnlyMark = '=';

// Status codes. All others are the platform's own.
inline constexpr int noErr = 0;
inline constexpr int unspecifiedFailureStatus = 1001; // a failure without a code of its own
inline constexpr int listNotMadeStatus = -4960;       // a list could not be made

} // namespace kx
