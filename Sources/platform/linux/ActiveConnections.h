// The active connection profiles in NetworkManager's description of all its objects, which is the
// answer to GetManagedObjects (org.freedesktop.DBus.ObjectManager). Pure.
//
// These are left out:
//   - connections without a device, or with one that has no interface yet
//   - virtual private networks, because their device is the link that carries the tunnel
//   - connections that NetworkManager calls external: it made the profile for a link that another
//     program has configured, so no person has named it
//   - connections whose identifier, name or device is missing or of another type

#pragma once

#include "platform/linux/ConnectionProfiles.h"

#include <vector>

struct sd_bus_message;

namespace kx {

// The profiles in the order in which NetworkManager lists them, each once with its link. A profile
// with several devices comes once for each of them. Addresses that cannot be read are left out. An
// answer of another shape gives no profiles. The message is read from its beginning.
std::vector<ConnectionProfile> activeConnections(sd_bus_message* managedObjects);

} // namespace kx
