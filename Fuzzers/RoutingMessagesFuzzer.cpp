// The walks over the kernel's interface list: the enumeration of interfaces, and every query about
// each of them that the list can answer.

#include "FuzzInput.h"
#include "System Configuration/RoutingMessages.h"
#include "System Configuration/SystemConfiguration.h"
#include "doubles/MemoryConfigurationStore.h"
#include "doubles/MemoryKernelQuery.h"
#include "support/TextEncoding.h"

#include <string>
#include <vector>

using namespace kx;

namespace {

constexpr std::string_view requests[] = {grantAddressRequest, grantAddress6Request,
                                         subnetMaskRequest,   netNumberRequest,
                                         linkStatusRequest,   hardwareAddressRequest};

bool isText(const std::string& text) {
    return !text.empty() && isValidUTF8(bytesOfText(text));
}

// Makes every query on a host whose kernel knows these interfaces and which has no configured
// service.
void askEverything(ByteView list) {
    MemoryConfigurationStore store;
    MemoryKernelQuery kernelQuery;
    kernelQuery.setInterfaceList(Bytes(list.begin(), list.end()));
    SystemConfiguration configuration(store, kernelQuery);

    std::vector<std::string> upServiceIDs;
    const auto upTitles = configuration.bsdTitlesAndServiceIDs(&upServiceIDs);
    std::vector<std::string> serviceIDs;
    const auto titles = configuration.interfaceTitlesAndServiceIDs(&serviceIDs);
    requireInvariant(!titles || titles->size() == serviceIDs.size(), "each title has its service");
    requireInvariant(upServiceIDs.size() <= serviceIDs.size(), "what is up is listed in any case");
    for (const auto& serviceID : serviceIDs) {
        requireInvariant(serviceID.starts_with('=') && isText(serviceID.substr(1)),
                         "a name is a text that is not empty");
        for (const auto request : requests) {
            requireInvariant(isText(configuration.serviceInterfaceDataForKey(serviceID, request)),
                             "every question has a text for an answer");
        }
    }
}

void splitSocketAddresses(ByteView bytes) {
    RoutingAddresses slots;
    const std::uint8_t presenceMask = bytes.empty() ? 0 : bytes.front();
    get_rtaddrs(presenceMask, bytes, slots);
    for (std::size_t i = 0; i < slots.size(); ++i) {
        requireInvariant(slots[i].has_value() == ((presenceMask >> i & 1U) != 0),
                         "a slot is filled exactly when its bit is set");
        requireInvariant(!slots[i] || slots[i]->empty() ||
                             slots[i]->data() + slots[i]->size() == bytes.data() + bytes.size(),
                         "a slot reaches to the end of the message");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    askEverything({data, size});
    splitSocketAddresses({data, size});
    return 0;
}
