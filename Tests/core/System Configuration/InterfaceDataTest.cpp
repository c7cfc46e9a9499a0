// One piece of data about a service or an interface, as a record's entry and as text.

#include "ConfigurationFixture.h"
#include "doubles/MarkedLocalizedText.h"

#include <random>

namespace kx {

namespace {

using Builder = RoutingMessageBuilder;

const Texts everyRequest = {"grantAddress", "grantAddress6",   "subnetMask", "netNumber",
                            "linkStatus",   "hardwareAddress", "unknown"};

class InterfaceData : public ConfigurationFixture {
protected:
    InterfaceData() { setServices({{"A", ethernet("Ethernet", "en0")}}); }

    void setServiceIPv4(const Texts& addresses, const Texts& masks) {
        store.setValue("State:/Network/Service/A/IPv4", {{"Addresses", listOfTexts(addresses)},
                                                         {"SubnetMasks", listOfTexts(masks)}});
    }
    void setInterfaceIPv4(const Texts& addresses, const Texts& masks) {
        store.setValue("State:/Network/Interface/en0/IPv4", {{"Addresses", listOfTexts(addresses)},
                                                             {"SubnetMasks", listOfTexts(masks)}});
    }
    std::string service(std::string_view requestKey) {
        return configuration.serviceInterfaceDataForKey("A", requestKey);
    }
    std::string kernel(std::string_view name, std::string_view requestKey) {
        return configuration.bsdNameInterfaceDataForKey(name, requestKey);
    }
};

} // namespace

// --- Entries of records ---

TEST_F(InterfaceData, AnEntryOfAnInterfacesStateIsReadFromTheStore) {
    store.setValue("State:/Network/Interface/en0/Link", {{"Active", 1}});
    EXPECT_EQ(configuration.interfaceDataForDictionaryNameKey("en0", "Link", "Active"), 1);
    EXPECT_EQ(configuration.interfaceDataForDictionaryNameKey("en0", "Link", "Other"),
              std::nullopt);
    EXPECT_EQ(configuration.interfaceDataForDictionaryNameKey("en1", "Link", "Active"),
              std::nullopt);
    EXPECT_EQ(store.sessionNames().back(), "org.kxconfig.KXConfig");
    store.refusesSessions = true;
    EXPECT_EQ(configuration.interfaceDataForDictionaryNameKey("en0", "Link", "Active"),
              std::nullopt);
    EXPECT_EQ(log.lines(), Texts{});
}

TEST_F(InterfaceData, AServicesStateComesBeforeItsSavedConfiguration) {
    store.setPath("/NetworkServices/A/IPv4", {{"Router", "10.0.0.2"}, {"Saved", "yes"}});
    EXPECT_EQ(configuration.serviceDataForDictionaryNameKey("A", "IPv4", "Router"), "10.0.0.2")
        << "no state at all";
    store.setValue("State:/Network/Service/A/IPv4", {{"Router", "10.0.0.1"}});
    EXPECT_EQ(configuration.serviceDataForDictionaryNameKey("A", "IPv4", "Router"), "10.0.0.1");
    EXPECT_EQ(configuration.serviceDataForDictionaryNameKey("A", "IPv4", "Saved"), "yes")
        << "a state without the entry";
    EXPECT_EQ(configuration.serviceDataForDictionaryNameKey("A", "IPv4", "Other"), std::nullopt);
}

TEST_F(InterfaceData, WithoutAStoreTheSavedConfigurationIsNotAsked) {
    store.setPath("/NetworkServices/A/IPv4", {{"Saved", "yes"}});
    store.refusesSessions = true;
    EXPECT_EQ(configuration.serviceDataForDictionaryNameKey("A", "IPv4", "Saved"), std::nullopt);
    EXPECT_TRUE(store.preferencesNames().empty());
}

TEST_F(InterfaceData, TheSavedConfigurationAloneCanBeAsked) {
    store.setValue("State:/Network/Service/A/IPv4", {{"Router", "10.0.0.1"}});
    store.setPath("/NetworkServices/A/IPv4", {{"Saved", "yes"}});
    EXPECT_EQ(configuration.staticServiceDataForDictionaryNameKey("A", "IPv4", "Saved"), "yes");
    EXPECT_EQ(configuration.staticServiceDataForDictionaryNameKey("A", "IPv4", "Router"),
              std::nullopt);
    EXPECT_EQ(configuration.staticServiceDataForDictionaryNameKey("B", "IPv4", "Saved"),
              std::nullopt);
    EXPECT_EQ(store.preferencesNames().back(), "org.kxconfig.KXConfig");
}

TEST_F(InterfaceData, PreferencesThatCannotBeOpenedAreLoggedInTheSameWords) {
    store.refusesPreferences = true;
    EXPECT_EQ(configuration.staticServiceDataForDictionaryNameKey("A", "IPv4", "Saved"),
              std::nullopt);
    EXPECT_EQ(log.lines(),
              Texts{"serviceIDForInterface: open session for System Configuration failed"});
}

TEST_F(InterfaceData, AKernelOnlyIdentifierHasNoRecords) {
    store.setValue("State:/Network/Service/=lo0/IPv4", {{"Router", "10.0.0.1"}});
    store.setPath("/NetworkServices/=lo0/IPv4", {{"Router", "10.0.0.1"}});
    EXPECT_EQ(configuration.serviceDataForDictionaryNameKey("=lo0", "IPv4", "Router"),
              std::nullopt);
    EXPECT_EQ(configuration.staticServiceDataForDictionaryNameKey("=lo0", "IPv4", "Router"),
              std::nullopt);
    EXPECT_EQ(store.sessionNames().size(), 1U);
    EXPECT_TRUE(store.preferencesNames().empty());
}

// --- Texts about a service ---

TEST_F(InterfaceData, AddressesAndMasksOfAServiceAreJoined) {
    setServiceIPv4({"10.0.0.5", "10.0.0.6"}, {"255.0.0.0", "255.255.255.0"});
    EXPECT_EQ(service("grantAddress"), "10.0.0.5,10.0.0.6");
    EXPECT_EQ(service("subnetMask"), "255.0.0.0,255.255.255.0");
    EXPECT_EQ(service("netNumber"), "10.0.0.5/8,10.0.0.6/24");
}

TEST_F(InterfaceData, WithoutThemTheOnesOfTheInterfaceAre) {
    setInterfaceIPv4({"10.0.0.7"}, {"255.255.0.0"});
    EXPECT_EQ(service("grantAddress"), "10.0.0.7");
    EXPECT_EQ(service("subnetMask"), "255.255.0.0");
    EXPECT_EQ(service("netNumber"), "10.0.0.7/16");
    setServiceIPv4({}, {});
    EXPECT_EQ(service("grantAddress"), "10.0.0.7") << "empty is as good as missing";
    EXPECT_EQ(service("subnetMask"), "255.255.0.0");
    EXPECT_EQ(service("netNumber"), "10.0.0.7/16");
}

TEST_F(InterfaceData, MasksOfTheServiceAreNotMixedWithAddressesOfTheInterface) {
    setServiceIPv4({}, {"255.0.0.0"});
    setInterfaceIPv4({"10.0.0.7"}, {"255.255.0.0"});
    EXPECT_EQ(service("netNumber"), "10.0.0.7/16");
    EXPECT_EQ(service("subnetMask"), "255.0.0.0");
    setServiceIPv4({"10.0.0.5"}, {});
    EXPECT_EQ(service("netNumber"), "10.0.0.5/32");
}

TEST_F(InterfaceData, AMissingOrUselessMaskCountsAsAPrefixOf32) {
    setServiceIPv4({"10.0.0.1", "10.0.0.2", "10.0.0.3", "10.0.0.4"},
                   {"255.0.0.0", "0.0.0.0", "nonsense"});
    EXPECT_EQ(service("netNumber"), "10.0.0.1/8,10.0.0.2/32,10.0.0.3/32,10.0.0.4/32");
    setServiceIPv4({"10.0.0.1"}, {"128.0.0.0"});
    EXPECT_EQ(service("netNumber"), "10.0.0.1/1") << "a prefix of 1 is one";
    store.setValue("State:/Network/Service/A/IPv4",
                   {{"Addresses", PropertyList{"10.0.0.1"}}, {"SubnetMasks", PropertyList{7}}});
    EXPECT_EQ(service("netNumber"), "10.0.0.1/32");
}

TEST_F(InterfaceData, IPv6AddressesCarryTheirPrefixLengths) {
    store.setValue("State:/Network/Interface/en0/IPv6",
                   {{"Addresses", listOfTexts({"fe80::1", "2001:db8::1", "2001:db8::2"})},
                    {"PrefixLength", PropertyList{64, 48}}});
    EXPECT_EQ(service("grantAddress6"), "fe80::1/64,2001:db8::1/48,2001:db8::2/(null)");
}

TEST_F(InterfaceData, AServiceWithoutIPv6AddressesHasNoneAvailable) {
    EXPECT_EQ(service("grantAddress6"), "not available");
    store.setValue("State:/Network/Interface/en0/IPv6", {{"PrefixLength", PropertyList{64}}});
    EXPECT_EQ(service("grantAddress6"), "not available");
}

TEST_F(InterfaceData, ALinkIsActiveInactiveOrNotReported) {
    EXPECT_EQ(service("linkStatus"), "Not reported");
    for (const auto& [value, text] :
         std::vector<std::pair<PropertyListValue, std::string>>{{1, "Active"},
                                                                {"1", "Active"},
                                                                {0, "Inactive"},
                                                                {2, "Inactive"},
                                                                {"no", "Inactive"},
                                                                {PropertyList{1}, "Inactive"}}) {
        store.setValue("State:/Network/Interface/en0/Link", {{"Active", value}});
        EXPECT_EQ(service("linkStatus"), text) << value.description();
    }
    store.setValue("State:/Network/Interface/en0/Link", {{"Detaching", 1}});
    EXPECT_EQ(service("linkStatus"), "Not reported");
}

TEST_F(InterfaceData, TheHardwareAddressOfAServiceIsTheKernels) {
    setKernelList(Builder().interface("lo0", true, {}).interface("en0", true));
    EXPECT_EQ(service("hardwareAddress"), "00:1A:2B:3C:4D:5E");
}

TEST_F(InterfaceData, APPPServiceIsAskedForTheFirstPPPInterface) {
    setServices({{"A", {{"Type", "PPP"}, {"DeviceName", "modem"}}}});
    store.setValue("State:/Network/Interface/ppp0/Link", {{"Active", 1}});
    EXPECT_EQ(service("linkStatus"), "Active");
}

TEST_F(InterfaceData, AnUnknownRequestLogsOnceAndIsNotAvailable) {
    EXPECT_EQ(service("gateway"), "not available");
    EXPECT_EQ(log.lines(), Texts{"interfaceDataForKey unknown request"});
}

TEST_F(InterfaceData, AServiceThatNobodyKnowsHasNothing) {
    const MarkedLocalizedText localized;
    for (const auto& request : everyRequest) {
        EXPECT_EQ(configuration.serviceInterfaceDataForKey("B", request),
                  request == "linkStatus" ? "Not reported" : "<not available>")
            << request;
    }
}

TEST_F(InterfaceData, WithoutStoreAndPreferencesNothingIsAvailable) {
    setServiceIPv4({"10.0.0.5"}, {"255.0.0.0"});
    store.refusesSessions = true;
    store.refusesPreferences = true;
    for (const auto& request : everyRequest) {
        EXPECT_EQ(service(request), request == "linkStatus" ? "Not reported" : "not available")
            << request;
    }
}

TEST_F(InterfaceData, AKernelOnlyIdentifierIsAnsweredByTheKernelAlone) {
    setKernelList(Builder().interface("lo0", true, {}).address(0x7F000001U, 0xFF000000U));
    store.refusesSessions = true;
    store.refusesPreferences = true;
    const auto loopback = [this](std::string_view request) {
        return configuration.serviceInterfaceDataForKey("=lo0", request);
    };
    EXPECT_EQ(loopback("linkStatus"), "Active");
    EXPECT_EQ(loopback("grantAddress"), "127.0.0.1");
    EXPECT_EQ(loopback("gateway"), "not available");
    EXPECT_EQ(log.lines(), Texts{});
    EXPECT_EQ(store.sessionNames().size(), 1U);
}

// --- Texts from the kernel ---

TEST_F(InterfaceData, TheKernelAnswersForTheWantedInterface) {
    setKernelList(Builder()
                      .interface("lo0", true, {})
                      .address(0x7F000001U, 0xFF000000U)
                      .interface("en0", true)
                      .address(0x0A000005U, 0xFFFFFF00U)
                      .interface("en1", false, {6, 5, 4, 3, 2, 1}));
    EXPECT_EQ(kernel("en0", "grantAddress"), "10.0.0.5");
    EXPECT_EQ(kernel("en0", "subnetMask"), "255.255.255.0");
    EXPECT_EQ(kernel("en0", "netNumber"), "10.0.0.5/24");
    EXPECT_EQ(kernel("en0", "linkStatus"), "Active");
    EXPECT_EQ(kernel("en0", "hardwareAddress"), "00:1A:2B:3C:4D:5E");
    EXPECT_EQ(kernel("lo0", "grantAddress"), "127.0.0.1");
    EXPECT_EQ(kernel("en1", "linkStatus"), "Inactive");
    EXPECT_EQ(kernel("en1", "hardwareAddress"), "06:05:04:03:02:01");
}

TEST_F(InterfaceData, OnlyTheFirstIPv4AddressCounts) {
    setKernelList(Builder()
                      .interface("en0", true)
                      .addressWith({{5, Builder::socketAddress(30, 1)}})
                      .message(99, {1})
                      .address(0x0A000005U, 0xFFFFFF00U)
                      .address(0x0A000006U, 0xFF000000U));
    EXPECT_EQ(kernel("en0", "grantAddress"), "10.0.0.5");
    EXPECT_EQ(kernel("en0", "netNumber"), "10.0.0.5/24");
}

TEST_F(InterfaceData, AnAddressWithoutItsPartsIsZero) {
    setKernelList(Builder().interface("en0", true).addressWith({}));
    EXPECT_EQ(kernel("en0", "grantAddress"), "0.0.0.0");
    EXPECT_EQ(kernel("en0", "subnetMask"), "0.0.0.0");
    EXPECT_EQ(kernel("en0", "netNumber"), "0.0.0.0");
}

TEST_F(InterfaceData, AddressesOfAnotherInterfaceAreNotTaken) {
    setKernelList(Builder()
                      .address(0x01010101U, 0xFF000000U)
                      .interface("en0", true)
                      .interface("en1", true)
                      .address(0x0A000005U, 0xFFFFFF00U));
    EXPECT_EQ(kernel("en0", "grantAddress"), "not available");
    EXPECT_EQ(kernel("en", "grantAddress"), "not available") << "names are compared whole";
}

TEST_F(InterfaceData, AnInterfaceMessageWithoutANameDoesNotEndTheInterface) {
    setKernelList(
        Builder().interface("en0", true).interfaceWith(1, {}).address(0x0A000005U, 0xFFFFFF00U));
    EXPECT_EQ(kernel("en0", "grantAddress"), "10.0.0.5");
}

TEST_F(InterfaceData, AnInterfaceMessageWithAnotherNameEndsTheInterface) {
    setKernelList(
        Builder().interface("en0", true).interface("\xFF", true).address(0x0A000005U, 0xFFFFFF00U));
    EXPECT_EQ(kernel("en0", "grantAddress"), "not available");
    EXPECT_EQ(kernel("", "grantAddress"), "not available");
}

TEST_F(InterfaceData, AHardwareAddressOfAnotherLengthIsNotAvailable) {
    setKernelList(Builder()
                      .interface("lo0", true, {})
                      .address(0x7F000001U, 0xFF000000U)
                      .interface("fw0", true, {1, 2, 3, 4, 5, 6, 7, 8}));
    EXPECT_EQ(kernel("lo0", "hardwareAddress"), "not available");
    EXPECT_EQ(kernel("fw0", "hardwareAddress"), "not available");
}

TEST_F(InterfaceData, WhatTheKernelDoesNotAnswerIsNotAvailableSilently) {
    const MarkedLocalizedText localized;
    setKernelList(Builder().interface("en0", true).address(0x0A000005U, 0xFFFFFF00U));
    EXPECT_EQ(kernel("en0", "grantAddress6"), "<not available>");
    EXPECT_EQ(kernel("en0", "gateway"), "<not available>");
    EXPECT_EQ(kernel("en9", "grantAddress"), "<not available>");
    kernelQuery.failsRead = true;
    EXPECT_EQ(kernel("en0", "grantAddress"), "<not available>");
    EXPECT_EQ(log.lines(), Texts{});
}

TEST_F(InterfaceData, ForeignBytesFromTheKernelDoNoHarm) {
    const auto whole = Builder().interface("en0", true).address(0x0A000005U, 0xFFFFFF00U).bytes();
    std::mt19937 random(20240301);
    for (std::size_t length = 0; length < whole.size(); ++length) {
        kernelQuery.setInterfaceList(
            Bytes(whole.begin(), whole.begin() + static_cast<long>(length)));
        EXPECT_EQ(kernel("en0", "grantAddress"), "not available") << length;
        auto changed = whole;
        changed[length] = static_cast<std::uint8_t>(random());
        kernelQuery.setInterfaceList(changed);
        for (const auto& request : everyRequest) {
            EXPECT_FALSE(kernel("en0", request).empty());
        }
        titles();
    }
}

// --- The kernel query ---

TEST_F(InterfaceData, AParameterIsReadWithHeadroomForItsGrowth) {
    kernelQuery.setValue({1, 2, 3}, Bytes(100, 7));
    kernelQuery.growth = Bytes(512, 8);
    const std::vector<int> name = {1, 2, 3};
    const auto value = configuration.getParameter(name);
    ASSERT_TRUE(value.has_value());
    EXPECT_EQ(value->size(), 612U) << "shrunk to what was written";
    ASSERT_EQ(kernelQuery.calls.size(), 2U);
    EXPECT_EQ(kernelQuery.calls[0].capacity, std::nullopt);
    EXPECT_EQ(kernelQuery.calls[1].capacity, 612U);
    EXPECT_EQ(kernelQuery.calls[1].name, name);
}

TEST_F(InterfaceData, AParameterThatGrowsBeyondTheHeadroomIsAbsent) {
    kernelQuery.setValue({1}, Bytes(100, 7));
    kernelQuery.growth = Bytes(513, 8);
    EXPECT_EQ(configuration.getParameter(std::vector<int>{1}), std::nullopt);
}

TEST_F(InterfaceData, AFailedProbeLeavesTheHeadroom) {
    kernelQuery.failsProbe = true;
    kernelQuery.setValue({1}, Bytes(512, 7));
    EXPECT_EQ(configuration.getParameter(std::vector<int>{1}), Bytes(512, 7));
    kernelQuery.setValue({1}, Bytes(513, 7));
    EXPECT_EQ(configuration.getParameter(std::vector<int>{1}), std::nullopt);
}

TEST_F(InterfaceData, AFailedReadIsAbsentAndAnEmptyValueIsNot) {
    kernelQuery.setValue({1}, {});
    EXPECT_EQ(configuration.getParameter(std::vector<int>{1}), Bytes());
    kernelQuery.failsRead = true;
    EXPECT_EQ(configuration.getParameter(std::vector<int>{1}), std::nullopt);
    EXPECT_EQ(configuration.getParameter(std::vector<int>{2}), std::nullopt);
}

TEST_F(InterfaceData, ANameHasAtMostSixteenElements) {
    const std::vector<int> sixteen(16, 1);
    const std::vector<int> seventeen(17, 1);
    kernelQuery.setValue(sixteen, {1});
    kernelQuery.setValue(seventeen, {1});
    EXPECT_EQ(configuration.getParameter(sixteen), Bytes{1});
    kernelQuery.calls.clear();
    EXPECT_EQ(configuration.getParameter(seventeen), std::nullopt);
    EXPECT_EQ(configuration.getParameter(std::nullopt), std::nullopt);
    EXPECT_TRUE(kernelQuery.calls.empty());
}

TEST_F(InterfaceData, TheInterfaceListIsAskedForByItsName) {
    kernel("en0", "grantAddress");
    ASSERT_EQ(kernelQuery.calls.size(), 2U);
    EXPECT_EQ(kernelQuery.calls[0].name, (std::vector<int>{4, 17, 0, 2, 3, 0}));
}

} // namespace kx
