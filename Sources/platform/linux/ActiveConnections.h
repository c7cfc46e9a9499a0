// The active connection profiles in what NetworkManager tells of all its objects at once: the
// answer to GetManagedObjects (org.freedesktop.DBus.ObjectManager). Pure.
//
// Left out are
//   - connections without a device, or with one that has no interface yet
//   - virtual private networks: their device is the one that carries the tunnel, not its end
//   - what NetworkManager calls external: it made the profile up for a link that somebody else has
//     configured, so nobody has named it
//   - connections whose identifier, name or device is missing or of another type

#pragma once

#include "platform/linux/ConnectionProfiles.h"

#include <QDBusMessage>
#include <vector>

namespace kx {

// In the order in which NetworkManager lists them, each with its link once; none for an answer of
// another shape. A profile with several devices comes once for each. Addresses that cannot be read
// are left out.
std::vector<ConnectionProfile> activeConnections(const QDBusMessage& managedObjects);

} // namespace kx
