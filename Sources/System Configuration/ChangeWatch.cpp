#include "System Configuration/ChangeWatch.h"

#include "System Configuration/ConfigurationKeys.h"
#include "support/Require.h"
#include "support/TextFormat.h"

#include <memory_resource>
#include <new>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kx {

namespace {

template<class Make>
auto unlessOutOfMemory(Make make) -> std::optional<decltype(make())> {
    try {
        return make();
    } catch (const std::bad_alloc&) {
        return std::nullopt;
    }
}

// Chooses the IPv4 state of every service. Pattern and list lie in memory of the default memory
// resource, because a lack of memory has a status code of its own.
int watchIPv4States(const ConfigurationStore& store, DynamicStoreSession& session) {
    const auto pattern = unlessOutOfMemory([] {
        return std::pmr::string(filledText(
            networkServiceEntityKey, {kSCDynamicStoreDomainState, kSCCompAnyRegex, kSCEntNetIPv4}));
    });
    if (!pattern.has_value()) {
        return MySCError(store, false);
    }
    const auto patterns =
        unlessOutOfMemory([&pattern] { return std::pmr::vector<std::string_view>{*pattern}; });
    if (!patterns.has_value()) {
        return listNotMadeStatus;
    }
    return MySCError(store, session.setNotificationKeys({}, *patterns));
}

} // namespace

int MySCError(const ConfigurationStore& store, bool success) {
    if (success) {
        return noErr;
    }
    const int status = store.SCError();
    return status != noErr ? status : unspecifiedFailureStatus;
}

int CreateIPAddressListChangeCallbackSCF(ConfigurationStore& store, DynamicStoreCallBack callback,
                                         void* info, std::unique_ptr<DynamicStoreSession>* storeRef,
                                         std::unique_ptr<ConfigurationChangeSource>* sourceRef) {
    require(storeRef != nullptr, "storeRef != NULL", systemConfigurationPath);
    require(sourceRef != nullptr, "sourceRef != NULL", systemConfigurationPath);
    // NOLINTBEGIN(clang-analyzer-core.NonNullParamChecker): require() does not return for null.
    require(*storeRef == nullptr, "*storeRef == NULL", systemConfigurationPath);
    require(*sourceRef == nullptr, "*sourceRef == NULL", systemConfigurationPath);
    // NOLINTEND(clang-analyzer-core.NonNullParamChecker)

    auto session = store.openSession(changeWatchSessionName, callback, info);
    std::unique_ptr<ConfigurationChangeSource> source;
    int err = MySCError(store, session != nullptr);
    if (err == noErr) {
        err = watchIPv4States(store, *session);
    }
    if (err == noErr) {
        source = session->createRunLoopSource();
        err = MySCError(store, source != nullptr);
    }
    if (err != noErr) {
        session.reset();
    }
    *storeRef = std::move(session);
    *sourceRef = std::move(source);
    requireWatchOutcome(err, storeRef->get(), sourceRef->get());
    return err;
}

void requireWatchOutcome(int err, const DynamicStoreSession* store,
                         const ConfigurationChangeSource* source, std::source_location location) {
    require((err == noErr) == (store != nullptr), "(err == noErr) == (*storeRef != NULL)",
            systemConfigurationPath, location);
    require((err == noErr) == (source != nullptr), "(err == noErr) == (*sourceRef != NULL)",
            systemConfigurationPath, location);
}

} // namespace kx
