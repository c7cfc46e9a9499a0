// The contracts of the profiles and of the store, with a real NetworkManager.

#include "PrivateHost.h"
#include "contracts/ConfigurationStoreContract.h"
#include "contracts/ConnectionProfilesContract.h"
#include "platform/linux/LinuxConfigurationStore.h"
#include "platform/linux/NetworkManagerProfiles.h"
#include "platform/qt/QtRunLoop.h"

namespace kx {

namespace {

using namespace std::chrono_literals;

class NetworkManagerTrait {
public:
    NetworkManagerTrait() {
        _host.start();
        _profiles.emplace(_loop);
    }
    ConnectionProfiles& profiles() { return *_profiles; }
    std::vector<ConnectionProfile> wanted() {
        return {{PrivateHost::officeID, "Office", "kx0", {{0xC0000205U, 24}}},
                {PrivateHost::lineID, "Production line", "kx1", {{0xC6336405U, 25}}}};
    }
    void rename(const std::string& identifier, const std::string& name) {
        PrivateHost::nmcli(
            {"connection", "modify", identifier.c_str(), "connection.id", name.c_str()});
    }
    void deactivate(const std::string& identifier) {
        PrivateHost::nmcli({"connection", "down", identifier.c_str()});
    }
    bool runUntil(const std::function<bool()>& condition) { return handleEventsUntil(condition); }
    void runAWhile() { handleEventsFor(300ms); }

private:
    PrivateHost _host;
    QtRunLoop _loop;
    std::optional<NetworkManagerProfiles> _profiles;
};

struct Stack {
    QtRunLoop loop;
    KernelLinks links{loop};
    NetworkManagerProfiles profiles{loop};
    LinuxConfigurationStore store{loop, links, &profiles};
};

class NetworkManagerStoreTrait {
public:
    NetworkManagerStoreTrait() {
        _host.start();
        _stack.emplace();
        const bool isReady = handleEventsUntil([this] {
            return _stack->store.openSession("trait", nullptr, nullptr)
                ->copyValue("State:/Network/Service/" + serviceID() + "/IPv4")
                .has_value();
        });
        if (!isReady) {
            throw std::runtime_error("NetworkManager does not activate the profile");
        }
        handleEventsFor(300ms);
        // Otherwise NetworkManager would put back the addresses that the test takes away.
        _host.networkManager->hang();
    }
    ConfigurationStore& store() { return _stack->store; }
    std::string serviceID() { return PrivateHost::officeID; }
    std::string interfaceName() { return "kx0"; }
    std::string address() { return "192.0.2.5"; }
    void addAddress() { _host.network.addAddress("kx0", "203.0.113.1/24"); }
    void removeAddresses() { _host.network.ip("address flush dev kx0"); }
    bool runUntil(const std::function<bool()>& condition) { return handleEventsUntil(condition); }
    void runAWhile() { handleEventsFor(300ms); }

private:
    PrivateHost _host;
    std::optional<Stack> _stack;
};

INSTANTIATE_TYPED_TEST_SUITE_P(NetworkManager, ConnectionProfilesContract, NetworkManagerTrait);
INSTANTIATE_TYPED_TEST_SUITE_P(NetworkManager, ConfigurationStoreContract,
                               NetworkManagerStoreTrait);

} // namespace

} // namespace kx
