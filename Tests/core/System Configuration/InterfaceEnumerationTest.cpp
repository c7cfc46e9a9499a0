#include "ConfigurationFixture.h"
#include "doubles/MarkedLocalizedText.h"

namespace kx {

namespace {

using Builder = RoutingMessageBuilder;
using InterfaceEnumeration = ConfigurationFixture;

constexpr std::string_view applicationName = "org.kxconfig.KXConfig";

} // namespace

TEST_F(InterfaceEnumeration, OneServiceAndLoopbackAreTitledWithTheirServices) {
    setServices({{"A", ethernet("Ethernet", "en0")}});
    setKernelList(Builder().interface("lo0", true, {}).interface("en0", true));
    Texts serviceIDs;
    EXPECT_EQ(configuration.interfaceTitlesAndServiceIDs(&serviceIDs),
              (Texts{"Ethernet (en0)", "Loopback (lo0)"}));
    EXPECT_EQ(serviceIDs, (Texts{"A", "=lo0"}));
    EXPECT_EQ(configuration.currentInterfaceTitles(), (Texts{"Ethernet (en0)", "Loopback (lo0)"}));
    EXPECT_EQ(configuration.bsdTitlesAndServiceIDs(&serviceIDs),
              (Texts{"Ethernet (en0)", "Loopback (lo0)"}));
    EXPECT_EQ(serviceIDs, (Texts{"A", "=lo0"}));
}

TEST_F(InterfaceEnumeration, ServicesComeInTheUsersOrder) {
    setServices({{"B", ethernet("Second", "en1")}, {"A", ethernet("First", "en0")}});
    EXPECT_EQ(titles(), (Texts{"Second (en1)", "First (en0)"}));
}

TEST_F(InterfaceEnumeration, TwoServicesOnOneInterfaceAreToldApartOnlyByTheFullList) {
    setServices({{"A", ethernet("Ethernet", "en0")},
                 {"B", ethernet("Ethernet 2", "en0")},
                 {"C", ethernet("Ethernet 3", "en0")}});
    EXPECT_EQ(titles(), (Texts{"Ethernet (en0)", "Ethernet 2 (en0:1)", "Ethernet 3 (en0:2)"}));
    EXPECT_EQ(popUpTitles(), (Texts{"Ethernet (en0)", "Ethernet 2 (en0)", "Ethernet 3 (en0)"}));
}

TEST_F(InterfaceEnumeration, ANameThatCarriesItsIdentifierIsNotTitledTwice) {
    setServices({{"A", ethernet("Ethernet (en0)", "en0")}});
    EXPECT_EQ(titles(), Texts{"Ethernet (en0)"});
}

TEST_F(InterfaceEnumeration, PPPServicesAreNumberedAmongThemselvesAndNamedByTheirDevice) {
    setServices({{"P", {{"Type", "PPP"}, {"DeviceName", "modem"}, {"UserDefinedName", "Dial"}}},
                 {"A", ethernet("Ethernet", "en0")},
                 {"Q", {{"Type", "PPP"}}}});
    const Texts expected = {"modem (ppp0)", "Ethernet (en0)", "not available (ppp1)"};
    EXPECT_EQ(titles(), expected);
    EXPECT_EQ(popUpTitles(), expected);
}

TEST_F(InterfaceEnumeration, APPPServiceWithoutARecordTakesNoNumber) {
    setServices({{"P", {{"Type", "PPP"}, {"DeviceName", "modem"}}},
                 {"Q", {{"Type", "PPP"}, {"DeviceName", "phone"}}}});
    store.removeValue("Setup:/Network/Service/P/Interface");
    EXPECT_EQ(titles(), Texts{"phone (ppp0)"});
}

TEST_F(InterfaceEnumeration, MissingNamesAreShownAsNotAvailable) {
    const MarkedLocalizedText localized;
    setServices({{"A", {{"DeviceName", "en0"}}}, {"B", {{"UserDefinedName", "Nowhere"}}}});
    EXPECT_EQ(titles(), (Texts{"<not available> (en0)", "Nowhere (<not available>)"}));
}

TEST_F(InterfaceEnumeration, NamesOfAnotherKindThanTextAreMissing) {
    setServices({{"A", {{"DeviceName", 1}, {"UserDefinedName", PropertyList{"x"}}}}});
    EXPECT_EQ(titles(), Texts{"not available (not available)"});
}

TEST_F(InterfaceEnumeration, KernelInterfacesAreNamedByKindAndNotLocalized) {
    const MarkedLocalizedText localized;
    setKernelList(Builder()
                      .interface("lo0", true)
                      .interface("lo1", true)
                      .interface("tun0", true)
                      .interface("tun", true)
                      .interface("xtun0", true));
    EXPECT_EQ(titles(), (Texts{"Loopback (lo0)", "BSD Interface (lo1)", "VPN Tunnel (tun0)",
                               "VPN Tunnel (tun)", "BSD Interface (xtun0)"}));
}

TEST_F(InterfaceEnumeration, TheLoopbackIsTheOneThatTheKernelCallsSo) {
    kernelQuery.loopback = "lo";
    setKernelList(Builder().interface("lo", true).interface("lo0", true));
    EXPECT_EQ(titles(), (Texts{"Loopback (lo)", "BSD Interface (lo0)"}));
    EXPECT_EQ(configuration.serviceIDForInterface("lo"), "=lo");
    EXPECT_EQ(configuration.serviceIDForInterface("lo0"), std::nullopt);
}

TEST_F(InterfaceEnumeration, AKernelInterfaceThatIsDownIsInTheFullListOnly) {
    setKernelList(Builder().interface("en0", false).interface("en1", true));
    EXPECT_EQ(titles(), (Texts{"BSD Interface (en0)", "BSD Interface (en1)"}));
    EXPECT_EQ(popUpTitles(), Texts{"BSD Interface (en1)"});
}

TEST_F(InterfaceEnumeration, AServiceIsInBothListsWhetherItsInterfaceIsUpOrNot) {
    setServices({{"A", ethernet("Ethernet", "en0")}});
    setKernelList(Builder().interface("en0", false));
    EXPECT_EQ(popUpTitles(), Texts{"Ethernet (en0)"});
}

TEST_F(InterfaceEnumeration, AKernelInterfaceIsListedOnceWhateverElseTheListHolds) {
    setKernelList(Builder()
                      .interface("en0", true)
                      .address(0x0A000001U, 0xFF000000U)
                      .message(99, {1, 2})
                      .interface("en0", true)
                      .interfaceWith(1, {})
                      .interface("en\xFF", true)
                      .interface("en1", true));
    EXPECT_EQ(titles(), (Texts{"BSD Interface (en0)", "BSD Interface (en1)"}));
}

TEST_F(InterfaceEnumeration, AKernelInterfaceWithTheNumberedNameOfAPPPServiceIsTakenForIt) {
    setServices({{"P", {{"Type", "PPP"}, {"DeviceName", "modem"}}}});
    setKernelList(Builder().interface("ppp0", true).interface("modem", true));
    EXPECT_EQ(titles(), (Texts{"modem (ppp0)", "BSD Interface (modem)"}));
}

TEST_F(InterfaceEnumeration, WithoutAStoreTheKernelsPartRemains) {
    store.refusesSessions = true;
    setKernelList(Builder().interface("lo0", true));
    EXPECT_EQ(titles(), Texts{"Loopback (lo0)"});
    EXPECT_EQ(log.lines(), Texts{});
}

TEST_F(InterfaceEnumeration, WithoutAServiceOrderTheKernelsPartRemains) {
    setServiceInterface(store, "A", ethernet("Ethernet", "en0"));
    setKernelList(Builder().interface("lo0", true));
    EXPECT_EQ(titles(), Texts{"Loopback (lo0)"});
    store.setValue("Setup:/Network/Global/IPv4", {{"ServiceOrder", "A"}});
    EXPECT_EQ(titles(), Texts{"Loopback (lo0)"}) << "a text is no list";
}

TEST_F(InterfaceEnumeration, WithoutAKernelAnswerTheServicesRemain) {
    setServices({{"A", ethernet("Ethernet", "en0")}});
    setKernelList(Builder().interface("lo0", true));
    kernelQuery.failsRead = true;
    EXPECT_EQ(titles(), Texts{"Ethernet (en0)"});
}

TEST_F(InterfaceEnumeration, NothingFoundIsNoListAndLeavesTheServicesUntouched) {
    Texts serviceIDs = {"untouched"};
    EXPECT_EQ(configuration.interfaceTitlesAndServiceIDs(&serviceIDs), std::nullopt);
    EXPECT_EQ(configuration.bsdTitlesAndServiceIDs(&serviceIDs), std::nullopt);
    EXPECT_EQ(configuration.currentInterfaceTitles(), std::nullopt);
    EXPECT_EQ(serviceIDs, Texts{"untouched"});
}

TEST_F(InterfaceEnumeration, SessionsCarryTheApplicationsName) {
    titles();
    popUpTitles();
    EXPECT_EQ(store.sessionNames(),
              (Texts{"AddIPAddressListChangeCallbackSCF", std::string(applicationName),
                     std::string(applicationName)}));
}

// --- Interface identifiers ---

TEST_F(InterfaceEnumeration, AServiceKeepsItsIdentifierWhenAnotherOneGoes) {
    setServices({{"A", ethernet("Ethernet", "en0")}, {"B", ethernet("Ethernet 2", "en0")}});
    titles();
    setServiceOrder(store, {"B"});
    EXPECT_EQ(titles(), Texts{"Ethernet 2 (en0:1)"});
    EXPECT_EQ(configuration.interfaceIDs(),
              (SystemConfiguration::InterfaceIDs{{"A", "en0"}, {"B", "en0:1"}}));
}

TEST_F(InterfaceEnumeration, TheIdentifierOfAServiceThatIsGoneStaysTaken) {
    setServices({{"A", ethernet("Ethernet", "en0")}});
    titles();
    setServices({{"B", ethernet("Ethernet 2", "en0")}});
    EXPECT_EQ(titles(), Texts{"Ethernet 2 (en0:1)"});
}

TEST_F(InterfaceEnumeration, AServiceKeepsItsIdentifierWhenItsInterfaceChanges) {
    setServices({{"A", ethernet("Ethernet", "en0")}});
    titles();
    setServices({{"A", ethernet("Ethernet", "en7")}});
    EXPECT_EQ(titles(), Texts{"Ethernet (en0)"});
}

TEST_F(InterfaceEnumeration, PurgingForgetsIdentifiersAtTheNextFullList) {
    setServices({{"A", ethernet("Ethernet", "en0")}, {"B", ethernet("Ethernet 2", "en0")}});
    titles();
    setServiceOrder(store, {"B", "A"});
    EXPECT_EQ(titles(), (Texts{"Ethernet 2 (en0:1)", "Ethernet (en0)"}));
    configuration.purgeInterfaceIDs();
    EXPECT_EQ(configuration.interfaceIDs().size(), 2U) << "not before";
    EXPECT_EQ(titles(), (Texts{"Ethernet 2 (en0)", "Ethernet (en0:1)"}));
    setServiceOrder(store, {"A", "B"});
    EXPECT_EQ(titles(), (Texts{"Ethernet (en0:1)", "Ethernet 2 (en0)"})) << "purged only once";
}

TEST_F(InterfaceEnumeration, APurgeWithNothingFoundIsDoneToo) {
    setServices({{"A", ethernet("Ethernet", "en0")}});
    titles();
    configuration.purgeInterfaceIDs();
    setServiceOrder(store, {});
    EXPECT_EQ(titles(), Texts{});
    EXPECT_TRUE(configuration.interfaceIDs().empty());
}

TEST_F(InterfaceEnumeration, ThePopUpListTouchesNeitherIdentifiersNorThePurge) {
    setServices({{"A", ethernet("Ethernet", "en0")}});
    popUpTitles();
    EXPECT_TRUE(configuration.interfaceIDs().empty());
    titles();
    configuration.purgeInterfaceIDs();
    popUpTitles();
    EXPECT_EQ(configuration.interfaceIDs().size(), 1U);
    titles();
    EXPECT_EQ(configuration.interfaceIDs().size(), 1U);
}

TEST_F(InterfaceEnumeration, ATakenSuffixIsSkippedEvenIfItIsAnInterfacesOwnName) {
    setServices({{"A", ethernet("Alias", "en0:1")},
                 {"B", ethernet("Ethernet", "en0")},
                 {"C", ethernet("Ethernet 2", "en0")}});
    EXPECT_EQ(titles(), (Texts{"Alias (en0:1)", "Ethernet (en0)", "Ethernet 2 (en0:2)"}));
}

TEST_F(InterfaceEnumeration, AThousandInterfacesTakeOneSessionAndOneKernelList) {
    std::vector<std::pair<std::string, PropertyDictionary>> services;
    RoutingMessageBuilder kernel;
    for (int i = 0; i < 1000; ++i) {
        const std::string name = "eth" + std::to_string(i);
        services.emplace_back("service-" + name, ethernet("Ethernet", name));
        kernel.interface(name, true);
        kernel.interface("tap" + std::to_string(i), true);
    }
    setServices(services);
    setKernelList(kernel);
    const auto sessions = store.sessionNames().size();
    const auto calls = kernelQuery.calls.size();
    EXPECT_EQ(titles().size(), 2000U);
    EXPECT_EQ(configuration.interfaceIDs().size(), 2000U);
    EXPECT_EQ(store.sessionNames().size(), sessions + 1);
    EXPECT_EQ(kernelQuery.calls.size(), calls + 2) << "its size, and the list";
}

TEST_F(InterfaceEnumeration, ManyServicesOnOneInterfaceAllGetAnIdentifier) {
    std::vector<std::pair<std::string, PropertyDictionary>> services;
    services.reserve(40);
    for (int i = 0; i < 40; ++i) {
        services.emplace_back("S" + std::to_string(i), ethernet("Ethernet", "en0"));
    }
    setServices(services);
    EXPECT_EQ(titles().back(), "Ethernet (en0:39)");
    EXPECT_EQ(configuration.interfaceIDs().size(), 40U);
}

} // namespace kx
