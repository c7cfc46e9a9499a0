// Look-ups from names to services and back, and the location sets.

#include "ConfigurationFixture.h"

namespace kx {

namespace {

constexpr std::string_view preferencesFailure =
    "serviceIDForInterface: open session for System Configuration failed";

class ServiceLookup : public ConfigurationFixture {
protected:
    // A saved set "Home" with two services, and one service that the set does not have.
    void saveServices() {
        store.setPreference("CurrentSet", "/Sets/Home");
        store.setPath("/Sets/Home/Network/Global/IPv4",
                      {{"ServiceOrder", listOfTexts({"A", "B"})}});
        store.setPath("/NetworkServices/A/Interface", {{"DeviceName", "en0"}});
        store.setPath("/NetworkServices/B/Interface", {{"DeviceName", "en1"}});
        store.setPath("/NetworkServices/C/Interface", {{"DeviceName", "en2"}});
    }
};

} // namespace

TEST_F(ServiceLookup, TheServiceOfAnInterfaceIsFoundInTheCurrentSet) {
    saveServices();
    EXPECT_EQ(configuration.serviceIDForInterface("en0"), "A");
    EXPECT_EQ(configuration.serviceIDForInterface("en1"), "B");
    EXPECT_EQ(configuration.serviceIDForInterface("en2"), std::nullopt);
    EXPECT_EQ(store.preferencesNames().front(), "org.kxconfig.KXConfig");
    EXPECT_EQ(store.sessionNames().size(), 1U) << "the current state is not looked at";
}

TEST_F(ServiceLookup, OfSeveralServicesOnAnInterfaceTheFirstInOrderIsFound) {
    saveServices();
    store.setPath("/NetworkServices/B/Interface", {{"DeviceName", "en0"}});
    EXPECT_EQ(configuration.serviceIDForInterface("en0"), "A");
    store.setPath("/Sets/Home/Network/Global/IPv4", {{"ServiceOrder", listOfTexts({"B", "A"})}});
    EXPECT_EQ(configuration.serviceIDForInterface("en0"), "B");
}

TEST_F(ServiceLookup, TheLoopbackHasItsIdentifierWithoutAnySession) {
    store.refusesPreferences = true;
    EXPECT_EQ(configuration.serviceIDForInterface("lo0"), "=lo0");
    EXPECT_EQ(log.lines(), Texts{});
}

TEST_F(ServiceLookup, AnInterfaceWithoutAServiceHasNone) {
    saveServices();
    EXPECT_EQ(configuration.serviceIDForInterface("tun0"), std::nullopt);
    EXPECT_EQ(configuration.serviceIDForInterface(""), std::nullopt);
    EXPECT_EQ(log.lines(), Texts{});
}

TEST_F(ServiceLookup, PreferencesThatCannotBeOpenedAreLogged) {
    store.refusesPreferences = true;
    EXPECT_EQ(configuration.serviceIDForInterface("en0"), std::nullopt);
    EXPECT_EQ(log.lines(), Texts{std::string(preferencesFailure)});
}

TEST_F(ServiceLookup, IncompletePreferencesHaveNoService) {
    EXPECT_EQ(configuration.serviceIDForInterface("en0"), std::nullopt);
    store.setPreference("CurrentSet", "/Sets/Home");
    EXPECT_EQ(configuration.serviceIDForInterface("en0"), std::nullopt);
    store.setPath("/Sets/Home/Network/Global/IPv4",
                  {{"ServiceOrder", PropertyList{1, "gone", "A"}}});
    EXPECT_EQ(configuration.serviceIDForInterface("en0"), std::nullopt);
    store.setPath("/NetworkServices/A/Interface", {{"DeviceName", "en0"}});
    EXPECT_EQ(configuration.serviceIDForInterface("en0"), "A");
}

// --- The name of a service's interface ---

TEST_F(ServiceLookup, AKernelOnlyIdentifierIsTheNameBehindItsMark) {
    store.refusesSessions = true;
    EXPECT_EQ(configuration.bsdNameForServiceID("=tun0"), "tun0");
    EXPECT_EQ(configuration.bsdNameForServiceID("="), "");
}

TEST_F(ServiceLookup, AServicesNameIsThatOfItsDevice) {
    setServices({{"A", ethernet("Ethernet", "en0")}, {"B", {{"UserDefinedName", "Nowhere"}}}});
    EXPECT_EQ(configuration.bsdNameForServiceID("A"), "en0");
    EXPECT_EQ(configuration.bsdNameForServiceID("B"), std::nullopt);
    EXPECT_EQ(configuration.bsdNameForServiceID("C"), std::nullopt);
    EXPECT_EQ(store.sessionNames().back(), "org.kxconfig.KXConfig");
}

TEST_F(ServiceLookup, EveryPPPServiceIsTheFirst) {
    setServices({{"P", {{"Type", "PPP"}, {"DeviceName", "modem"}}},
                 {"Q", {{"Type", "PPP"}, {"DeviceName", "phone"}}}});
    EXPECT_EQ(configuration.bsdNameForServiceID("P"), "ppp0");
    EXPECT_EQ(configuration.bsdNameForServiceID("Q"), "ppp0");
}

TEST_F(ServiceLookup, WithoutAStoreAServiceHasNoName) {
    setServices({{"A", ethernet("Ethernet", "en0")}});
    store.refusesSessions = true;
    EXPECT_EQ(configuration.bsdNameForServiceID("A"), std::nullopt);
    EXPECT_EQ(log.lines(), Texts{});
}

// --- Location sets ---

TEST_F(ServiceLookup, TheCurrentSetIsItsPathWithoutThePrefix) {
    store.setPreference("CurrentSet", "/Sets/Home");
    EXPECT_EQ(configuration.currentSet(), "Home");
    store.setPreference("CurrentSet", "/Sets/");
    EXPECT_EQ(configuration.currentSet(), "");
    EXPECT_EQ(store.preferencesNames().front(), "org.kxconfig.KXConfig");
}

TEST_F(ServiceLookup, SixCharactersGoWhereverThePrefixStands) {
    store.setPreference("CurrentSet", "x/Sets/Home");
    EXPECT_EQ(configuration.currentSet(), "/Home");
    store.setPreference("CurrentSet", "a long path/Sets/Home");
    EXPECT_EQ(configuration.currentSet(), " path/Sets/Home");
    store.setPreference("CurrentSet", "\xC3\xA9\xC3\xA9/Sets/\xC3\xA9");
    EXPECT_EQ(configuration.currentSet(), "s/\xC3\xA9") << "characters, not bytes";
    store.setPreference("CurrentSet", "\xF0\x9F\x98\x80/Sets/1");
    EXPECT_EQ(configuration.currentSet(), "s/1") << "a character outside the basic plane is two";
}

TEST_F(ServiceLookup, AnotherOrNoPathHasNoCurrentSet) {
    EXPECT_EQ(configuration.currentSet(), std::nullopt);
    store.setPreference("CurrentSet", "/Set/Home");
    EXPECT_EQ(configuration.currentSet(), std::nullopt);
    store.setPreference("CurrentSet", 7);
    EXPECT_EQ(configuration.currentSet(), std::nullopt);
}

TEST_F(ServiceLookup, AllSetsAreReturnedAsTheyStand) {
    EXPECT_EQ(configuration.setsDictionary(), std::nullopt);
    const PropertyDictionary sets = {{"Home", PropertyDictionary{{"UserDefinedName", "Home"}}}};
    store.setPreference("Sets", sets);
    EXPECT_EQ(configuration.setsDictionary(), sets);
}

TEST_F(ServiceLookup, WithoutPreferencesThereAreNoSetsAndNothingIsLogged) {
    store.setPreference("CurrentSet", "/Sets/Home");
    store.setPreference("Sets", PropertyDictionary{});
    store.refusesPreferences = true;
    EXPECT_EQ(configuration.currentSet(), std::nullopt);
    EXPECT_EQ(configuration.setsDictionary(), std::nullopt);
    EXPECT_EQ(log.lines(), Texts{});
}

} // namespace kx
