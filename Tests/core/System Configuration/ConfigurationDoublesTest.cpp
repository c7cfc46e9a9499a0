// The test doubles of the host's configuration keep the contracts of the seams that they stand for.

#include "ConfigurationFixture.h"
#include "contracts/ConfigurationStoreContract.h"
#include "contracts/KernelQueryContract.h"

namespace kx {

namespace {

class MemoryStoreTrait {
public:
    MemoryStoreTrait() {
        setServiceOrder(_store, {"A"});
        setServiceInterface(_store, "A", ethernet("Ethernet", "en0"));
        setAddresses({address()}, {"255.0.0.0"});
        _store.setValue("State:/Network/Interface/en0/Link", {{"Active", 1}});
        _store.setPreference("CurrentSet", "/Sets/Home");
        _store.setPreference("Sets", PropertyDictionary{{"Home", PropertyDictionary{}}});
        _store.setPath("/Sets/Home/Network/Global/IPv4", {{"ServiceOrder", listOfTexts({"A"})}});
        _store.setPath("/NetworkServices/A/Interface", ethernet("Ethernet", "en0"));
    }

    ConfigurationStore& store() { return _store; }
    std::string serviceID() { return "A"; }
    std::string interfaceName() { return "en0"; }
    std::string address() { return "10.0.0.1"; }
    void addAddress() { setAddresses({address(), "10.0.0.2"}, {"255.0.0.0", "255.0.0.0"}); }
    void removeAddresses() {
        _store.removeValue("State:/Network/Service/A/IPv4");
        _store.removeValue("State:/Network/Interface/en0/IPv4");
    }
    bool runUntil(const std::function<bool()>& condition) {
        _store.deliverChanges();
        return condition();
    }
    void runAWhile() { _store.deliverChanges(); }

private:
    void setAddresses(const Texts& addresses, const Texts& masks) {
        for (const auto* key :
             {"State:/Network/Service/A/IPv4", "State:/Network/Interface/en0/IPv4"}) {
            _store.setValue(
                key, {{"Addresses", listOfTexts(addresses)}, {"SubnetMasks", listOfTexts(masks)}});
        }
    }

    MemoryConfigurationStore _store;
};

class MemoryKernelTrait {
public:
    MemoryKernelTrait() {
        _kernelQuery.setInterfaceList(RoutingMessageBuilder()
                                          .interface("lo0", true, {})
                                          .address(0x7F000001U, 0xFF000000U)
                                          .interface(upName(), true, hardwareAddress())
                                          .address(address(), mask())
                                          .interface(downName(), false)
                                          .bytes());
    }

    KernelQuery& kernelQuery() { return _kernelQuery; }
    std::string upName() { return "en0"; }
    Bytes hardwareAddress() { return {2, 0, 0, 0, 0, 1}; }
    std::uint32_t address() { return 0x0A000001U; }
    std::uint32_t mask() { return 0xFFFFFF00U; }
    std::string downName() { return "en1"; }

private:
    MemoryKernelQuery _kernelQuery;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Memory, ConfigurationStoreContract, MemoryStoreTrait);
INSTANTIATE_TYPED_TEST_SUITE_P(Memory, KernelQueryContract, MemoryKernelTrait);

} // namespace

} // namespace kx
