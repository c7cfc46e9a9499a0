// The contracts of the store and of the kernel query, on real links.

#include "PrivateNetwork.h"
#include "contracts/ConfigurationStoreContract.h"
#include "contracts/KernelQueryContract.h"
#include "platform/PollLoopDriver.h"
#include "platform/linux/LinuxConfigurationStore.h"
#include "platform/linux/LinuxKernelQuery.h"

namespace kx {

namespace {

// A link with an address, a link that is down, and the loopback.
class LinksOfTheContract {
public:
    LinksOfTheContract() {
        network.addLink("kx0", "02:00:00:00:00:01");
        network.addAddress("kx0", "192.0.2.1/24");
        network.ip("link add kx1 type bridge");
    }

    PrivateNetwork network;
    PollRunLoop loop;
    KernelLinks links{loop};
};

class LinuxStoreTrait {
public:
    ConfigurationStore& store() { return _store; }
    std::string serviceID() { return "link-kx0"; }
    std::string interfaceName() { return "kx0"; }
    std::string address() { return "192.0.2.1"; }
    void addAddress() { _host.network.addAddress("kx0", "198.51.100.1/24"); }
    void removeAddresses() { _host.network.ip("address flush dev kx0"); }
    bool runUntil(const std::function<bool()>& condition) {
        return runLoopUntil(_host.loop, condition);
    }
    void runAWhile() { runLoopFor(_host.loop, std::chrono::milliseconds(300)); }

private:
    LinksOfTheContract _host;
    LinuxConfigurationStore _store{_host.loop, _host.links, nullptr};
};

class LinuxKernelTrait {
public:
    KernelQuery& kernelQuery() { return _kernelQuery; }
    std::string upName() { return "kx0"; }
    Bytes hardwareAddress() { return {2, 0, 0, 0, 0, 1}; }
    std::uint32_t address() { return ipForString("192.0.2.1"); }
    std::uint32_t mask() { return ipForString("255.255.255.0"); }
    std::string downName() { return "kx1"; }

private:
    LinksOfTheContract _host;
    LinuxKernelQuery _kernelQuery{_host.links};
};

INSTANTIATE_TYPED_TEST_SUITE_P(Linux, ConfigurationStoreContract, LinuxStoreTrait);
INSTANTIATE_TYPED_TEST_SUITE_P(Linux, KernelQueryContract, LinuxKernelTrait);

} // namespace

} // namespace kx
