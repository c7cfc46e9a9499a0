// What the shared SystemConfiguration of a test program stands on.
//
// There is one shared instance in a process, so there is one set of its doubles, too. A test that
// reaches the shared instance begins with a call of sharedConfigurationDoubles(), which installs
// them on its first call and empties them on each.

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
