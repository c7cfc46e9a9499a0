// A SystemConfiguration over a store and a kernel in memory, and short ways to fill them.

#pragma once

#include "System Configuration/SystemConfiguration.h"
#include "doubles/MemoryConfigurationStore.h"
#include "doubles/MemoryKernelQuery.h"
#include "doubles/RecordedSystemLog.h"
#include "doubles/RoutingMessageBuilder.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace kx {

using Texts = std::vector<std::string>;

inline PropertyList listOfTexts(const Texts& texts) {
    return {texts.begin(), texts.end()};
}

// The services that the user has configured, preferred first.
inline void setServiceOrder(MemoryConfigurationStore& store, const Texts& serviceIDs) {
    store.setValue("Setup:/Network/Global/IPv4", {{"ServiceOrder", listOfTexts(serviceIDs)}});
}

inline void setServiceInterface(MemoryConfigurationStore& store, const std::string& serviceID,
                                const PropertyDictionary& interface) {
    store.setValue("Setup:/Network/Service/" + serviceID + "/Interface", interface);
}

// The interface record of a service that is not a dial-up.
inline PropertyDictionary ethernet(const std::string& userName, const std::string& deviceName) {
    return {{"Type", "Ethernet"}, {"UserDefinedName", userName}, {"DeviceName", deviceName}};
}

class ConfigurationFixture : public testing::Test {
protected:
    void setServices(const std::vector<std::pair<std::string, PropertyDictionary>>& services) {
        Texts serviceIDs;
        for (const auto& [serviceID, interface] : services) {
            serviceIDs.push_back(serviceID);
            setServiceInterface(store, serviceID, interface);
        }
        setServiceOrder(store, serviceIDs);
    }
    void setKernelList(const RoutingMessageBuilder& builder) {
        kernelQuery.setInterfaceList(builder.bytes());
    }

    // Titles of the full and of the pop-up enumeration; empty when there are none.
    Texts titles() { return configuration.interfaceTitlesAndServiceIDs(nullptr).value_or(Texts()); }
    Texts popUpTitles() { return configuration.bsdTitlesAndServiceIDs(nullptr).value_or(Texts()); }

    // Only the change watch is open between the operations.
    void TearDown() override {
        EXPECT_LE(store.openSessionCount(), 1U);
        EXPECT_EQ(store.openPreferencesCount(), 0);
    }

    MemoryConfigurationStore store;
    MemoryKernelQuery kernelQuery;
    RecordedSystemLog log;
    SystemConfiguration configuration{store, kernelQuery};
};

} // namespace kx
