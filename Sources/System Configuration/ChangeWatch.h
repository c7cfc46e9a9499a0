// The watch on the host's IPv4 configuration: one session with the dynamic store, told about the
// IPv4 state of every service, with its change feed. Main thread only.
//
// A wrong call breaks a contract and ends the process (support/Require.h), with the source path
// below.

#pragma once

#include "System Configuration/ConfigurationStore.h"

#include <memory>
#include <source_location>
#include <string_view>

namespace kx {

// The source path of every contract of this folder.
inline constexpr std::string_view systemConfigurationPath =
    "Sources/System Configuration/SystemConfiguration";

// The status code of an operation with the store: 0 when it succeeded; otherwise the store's code
// for it, or 1001 when the store has none.
int MySCError(const ConfigurationStore& store, bool success);

// Opens the session with its callback and makes its feed, which does not run yet. Stores both in
// their slots and returns 0; on failure returns MySCError(), or -4960 when the list of patterns
// could not be made, and leaves the slots null.
//
// Contracts: "storeRef != NULL", "sourceRef != NULL" (the slots exist), "*storeRef == NULL",
// "*sourceRef == NULL" (they are free), and those of requireWatchOutcome().
int CreateIPAddressListChangeCallbackSCF(ConfigurationStore& store, DynamicStoreCallBack callback,
                                         void* info, std::unique_ptr<DynamicStoreSession>* storeRef,
                                         std::unique_ptr<ConfigurationChangeSource>* sourceRef);

// Checks that a watch has both of its parts, or neither. Contracts: "(err == noErr) == (*storeRef
// != NULL)", "(err == noErr) == (*sourceRef != NULL)", reported for the function at `location`.
void requireWatchOutcome(int err, const DynamicStoreSession* store,
                         const ConfigurationChangeSource* source,
                         std::source_location location = std::source_location::current());

} // namespace kx
