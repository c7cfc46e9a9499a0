// The doubles behind the shared SystemConfiguration of a test program.
//
// A process has one shared instance, so it has one set of these doubles. A test that reaches the
// shared instance first calls sharedConfigurationDoubles(). Its first call installs the doubles,
// and each call empties them.

#pragma once

#include "System Configuration/SystemConfiguration.h"
#include "doubles/MemoryConfigurationStore.h"
#include "doubles/MemoryKernelQuery.h"

namespace kx {

struct SharedConfigurationDoubles {
    MemoryConfigurationStore store;
    MemoryKernelQuery kernelQuery;
};

inline SharedConfigurationDoubles& sharedConfigurationDoubles() {
    static auto& doubles = *[] {
        auto* made = new SharedConfigurationDoubles;
        SystemConfiguration::installSources(made->store, made->kernelQuery);
        return made;
    }();
    doubles.store.clear();
    doubles.kernelQuery.clear();
    SystemConfiguration::sharedInstance().purgeInterfaceIDs();
    return doubles;
}

} // namespace kx
