// The host's links and connection profiles as the records of a configuration store (System
// Configuration/ConfigurationStore.h describes them). Pure; any thread.
//
// The services are:
//   - the active connection profiles of links, by their own identifiers and names, except on the
//     loopback and on tunnels, which carry no broadcasts; a modem's device, for example, is no link
//     and carries no datagrams
//   - every link that can broadcast, has an IPv4 address and has no profile; its identifier is
//     "link-" and its name, and its user-defined name says its kind
// The service with the host's preferred default route comes first. Services without a default route
// follow in the order of their links' indexes.
//
// A service has the addresses that its link has in the kernel. The addresses in its profile are its
// saved configuration. There is one location set, because this host knows no others.

#pragma once

#include "platform/linux/ConnectionProfiles.h"
#include "platform/linux/NetworkLink.h"
#include "support/PropertyListValue.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kx {

struct ConfigurationRecords {
    std::map<std::string, PropertyDictionary, std::less<>> dynamicStore; // records by key
    PropertyDictionary preferences; // paths lead into the dictionaries in it
};

ConfigurationRecords configurationRecords(const std::vector<NetworkLink>& links,
                                          const std::vector<ConnectionProfile>& profiles);

// The dictionary at a path such as "/NetworkServices/ID/Interface"; null when there is none.
const PropertyDictionary* dictionaryAtPath(const PropertyDictionary& root, std::string_view path);

// The keys of the dynamic store whose records came, went or got another content, in ascending
// order.
std::vector<std::string> changedKeys(const ConfigurationRecords& before,
                                     const ConfigurationRecords& after);

} // namespace kx
