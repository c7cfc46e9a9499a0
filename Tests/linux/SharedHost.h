// The sources of the shared SystemConfiguration of this program: a private network, which its tests
// share, and the adapters of Linux. Like the shared instance, it is never released.

#pragma once

#include "PrivateNetwork.h"
#include "System Configuration/SystemConfiguration.h"
#include "platform/linux/LinuxConfigurationStore.h"
#include "platform/linux/LinuxKernelQuery.h"
#include "platform/posix/PollRunLoop.h"

namespace kx {

struct SharedHost {
    PrivateNetwork network;
    PollRunLoop loop;
    KernelLinks links{loop};
    LinuxKernelQuery kernelQuery{links};
    LinuxConfigurationStore store{loop, links, nullptr};
};

// Made on the first call; after it the calling thread is in its network.
inline SharedHost& sharedHost() {
    static auto& host = *[] {
        auto* const made = new SharedHost;
        SystemConfiguration::installSources(made->store, made->kernelQuery);
        return made;
    }();
    host.network.enter();
    return host;
}

} // namespace kx
