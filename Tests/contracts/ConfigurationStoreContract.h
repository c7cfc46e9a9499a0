// The contract of System Configuration/ConfigurationStore.h: tests that every configuration store
// must pass.
//
// A test program runs them against its store by
//
//     INSTANTIATE_TYPED_TEST_SUITE_P(Linux, ConfigurationStoreContract, LinuxStoreTrait);
//
// with a trait that is made anew for each test and has
//
//     ConfigurationStore& store();
//     // A configured service, its interface, and the one IPv4 address of both.
//     std::string serviceID();
//     std::string interfaceName();
//     std::string address();
//     // Gives that interface one more address on the host; takes all of them away.
//     void addAddress();
//     void removeAddresses();
//     // Runs the store's loop until the condition holds; false when it does not within a
//     // generous time.
//     bool runUntil(const std::function<bool()>& condition);
//     // Runs the loop long enough for a change that should not come.
//     void runAWhile();

#pragma once

#include "System Configuration/ConfigurationStore.h"
#include "addresses/IPv4Address.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace kx {

// Records the calls of a session's callback.
struct RecordedChanges {
    std::vector<std::string> keys;
    std::vector<std::size_t> counts; // number of keys in each call
    std::function<void()> duringCall;

    static void record(DynamicStoreSession& /*store*/, const std::vector<std::string>& changedKeys,
                       void* info) {
        auto& changes = *static_cast<RecordedChanges*>(info);
        changes.keys.insert(changes.keys.end(), changedKeys.begin(), changedKeys.end());
        changes.counts.push_back(changedKeys.size());
        if (changes.duringCall) {
            changes.duringCall();
        }
    }
    bool contains(std::string_view key) const {
        return std::find(keys.begin(), keys.end(), key) != keys.end();
    }
};

template<typename Trait>
class ConfigurationStoreContract : public testing::Test {
protected:
    std::unique_ptr<DynamicStoreSession> openSession() {
        return trait.store().openSession("contract", RecordedChanges::record, &changes);
    }
    std::optional<PropertyDictionary> value(const std::string& key) {
        return openSession()->copyValue(key);
    }
    std::optional<PropertyDictionary> savedValue(const std::string& path) {
        return trait.store().openPreferences("contract")->pathGetValue(path);
    }
    std::string serviceStateKey() {
        return "State:/Network/Service/" + trait.serviceID() + "/IPv4";
    }

    // Opens a session that watches patterns and keys, with its source.
    bool watch(std::vector<std::string_view> keys, std::vector<std::string_view> patterns) {
        session = openSession();
        const bool isChosen = session->setNotificationKeys(keys, patterns);
        source = session->createRunLoopSource();
        return isChosen && source != nullptr;
    }
    bool watchServiceStates() { return watch({}, {"State:/Network/Service/[^/]+/IPv4"}); }

    // The texts of a list in a record. The test fails when the list has other values.
    static std::vector<std::string> texts(const std::optional<PropertyDictionary>& record,
                                          std::string_view key) {
        std::vector<std::string> result;
        const auto* entry = record.has_value() ? valueForKey(*record, key) : nullptr;
        EXPECT_TRUE(entry != nullptr && entry->list() != nullptr) << key;
        if (entry != nullptr && entry->list() != nullptr) {
            for (const auto& element : *entry->list()) {
                EXPECT_NE(element.text(), nullptr) << key;
                result.push_back(element.description());
            }
        }
        return result;
    }
    static std::string text(const std::optional<PropertyDictionary>& record, std::string_view key) {
        const auto* entry = record.has_value() ? valueForKey(*record, key) : nullptr;
        EXPECT_TRUE(entry != nullptr && entry->text() != nullptr) << key;
        return entry != nullptr ? entry->description() : "";
    }
    static std::size_t occurrences(const std::vector<std::string>& texts, const std::string& text) {
        return static_cast<std::size_t>(std::count(texts.begin(), texts.end(), text));
    }

    Trait trait;
    RecordedChanges changes;
    std::unique_ptr<DynamicStoreSession> session;
    std::unique_ptr<ConfigurationChangeSource> source;
};

TYPED_TEST_SUITE_P(ConfigurationStoreContract);

// --- Records ---

TYPED_TEST_P(ConfigurationStoreContract, EveryServiceInTheOrderIsListedOnceAndHasAnInterface) {
    const auto serviceIDs = this->texts(this->value("Setup:/Network/Global/IPv4"), "ServiceOrder");
    EXPECT_EQ(this->occurrences(serviceIDs, this->trait.serviceID()), 1U);
    for (const auto& serviceID : serviceIDs) {
        EXPECT_EQ(this->occurrences(serviceIDs, serviceID), 1U);
        EXPECT_FALSE(serviceID.starts_with('=')) << "kernel interfaces are not services";
        const auto interface = this->value("Setup:/Network/Service/" + serviceID + "/Interface");
        EXPECT_NE(this->text(interface, "DeviceName"), "");
        EXPECT_NE(this->text(interface, "Type"), "");
        EXPECT_NE(this->text(interface, "UserDefinedName"), "");
    }
}

TYPED_TEST_P(ConfigurationStoreContract, AServicesInterfaceIsTheDeviceThatCarriesItsAddress) {
    const auto interface =
        this->value("Setup:/Network/Service/" + this->trait.serviceID() + "/Interface");
    EXPECT_EQ(this->text(interface, "DeviceName"), this->trait.interfaceName());
}

TYPED_TEST_P(ConfigurationStoreContract, AddressesAndMasksAreParallelListsOfDottedTexts) {
    for (const auto& key : {this->serviceStateKey(),
                            "State:/Network/Interface/" + this->trait.interfaceName() + "/IPv4"}) {
        const auto record = this->value(key);
        const auto addresses = this->texts(record, "Addresses");
        const auto masks = this->texts(record, "SubnetMasks");
        EXPECT_EQ(addresses, std::vector<std::string>{this->trait.address()}) << key;
        ASSERT_EQ(masks.size(), addresses.size()) << key;
        EXPECT_NE(ipForString(masks[0]), 0U) << key;
    }
}

TYPED_TEST_P(ConfigurationStoreContract, TheLinkOfAnInterfaceIsANumber) {
    const auto link =
        this->value("State:/Network/Interface/" + this->trait.interfaceName() + "/Link");
    ASSERT_TRUE(link.has_value());
    const auto* active = valueForKey(*link, "Active");
    ASSERT_NE(active, nullptr);
    EXPECT_TRUE(*active == 0 || *active == 1) << active->description();
}

TYPED_TEST_P(ConfigurationStoreContract, TheSavedConfigurationKnowsTheServiceToo) {
    const auto preferences = this->trait.store().openPreferences("contract");
    const auto set = preferences->getValue("CurrentSet");
    ASSERT_TRUE(set.has_value() && set->text() != nullptr);
    ASSERT_TRUE(set->text()->starts_with("/Sets/")) << *set->text();
    const auto serviceIDs =
        this->texts(this->savedValue(*set->text() + "/Network/Global/IPv4"), "ServiceOrder");
    EXPECT_EQ(this->occurrences(serviceIDs, this->trait.serviceID()), 1U);
    const auto interface =
        this->savedValue("/NetworkServices/" + this->trait.serviceID() + "/Interface");
    EXPECT_EQ(this->text(interface, "DeviceName"), this->trait.interfaceName());

    const auto sets = preferences->getValue("Sets");
    ASSERT_TRUE(sets.has_value() && sets->dictionary() != nullptr);
    EXPECT_NE(valueForKey(*sets->dictionary(), set->text()->substr(6)), nullptr);
}

TYPED_TEST_P(ConfigurationStoreContract, WhatTheHostDoesNotHaveIsMissing) {
    for (const auto* key :
         {"", "/", "State:/Network/Service/none/IPv4", "Setup:/Network/Service/none/Interface",
          "State:/Network/Interface/none/IPv4", "State:/Network/Interface/none/Link"}) {
        EXPECT_EQ(this->value(key), std::nullopt) << key;
    }
    for (const auto* path : {"", "/NetworkServices/none/Interface", "(null)/Network/Global/IPv4"}) {
        EXPECT_EQ(this->savedValue(path), std::nullopt) << path;
    }
    EXPECT_EQ(this->trait.store().openPreferences("contract")->getValue("none"), std::nullopt);
}

TYPED_TEST_P(ConfigurationStoreContract, SessionsMayBeOpenSideBySide) {
    const auto one = this->openSession();
    const auto preferences = this->trait.store().openPreferences("contract");
    auto other = this->openSession();
    other.reset();
    EXPECT_TRUE(one->copyValue("Setup:/Network/Global/IPv4").has_value());
    EXPECT_TRUE(preferences->getValue("CurrentSet").has_value());
}

TYPED_TEST_P(ConfigurationStoreContract, ASessionWithoutACallbackReads) {
    const auto quiet = this->trait.store().openSession("contract", nullptr, nullptr);
    ASSERT_NE(quiet, nullptr);
    EXPECT_TRUE(quiet->copyValue("Setup:/Network/Global/IPv4").has_value());
}

// --- Changes ---

TYPED_TEST_P(ConfigurationStoreContract, AChangeUnderAPatternIsToldFromTheRunLoop) {
    ASSERT_TRUE(this->watchServiceStates());
    this->source->addToRunLoop();
    this->trait.addAddress();
    EXPECT_TRUE(this->changes.keys.empty());
    const auto key = this->serviceStateKey();
    ASSERT_TRUE(this->trait.runUntil([&] {
        return this->changes.contains(key) &&
               this->texts(this->session->copyValue(key), "Addresses").size() == 2;
    }));
    for (const auto& changed : this->changes.keys) {
        EXPECT_TRUE(changed.starts_with("State:/Network/Service/") && changed.ends_with("/IPv4"))
            << changed;
    }
}

TYPED_TEST_P(ConfigurationStoreContract, AChangeOfAPlainKeyIsTold) {
    const auto key = this->serviceStateKey();
    ASSERT_TRUE(this->watch({key}, {}));
    this->source->addToRunLoop();
    this->trait.addAddress();
    EXPECT_TRUE(this->trait.runUntil([&] { return this->changes.contains(key); }));
    EXPECT_EQ(this->occurrences(this->changes.keys, key), this->changes.keys.size());
}

TYPED_TEST_P(ConfigurationStoreContract, ARecordThatIsGoneIsTold) {
    ASSERT_TRUE(this->watchServiceStates());
    this->source->addToRunLoop();
    const auto key = this->serviceStateKey();
    this->trait.removeAddresses();
    EXPECT_TRUE(this->trait.runUntil(
        [&] { return this->changes.contains(key) && !this->session->copyValue(key).has_value(); }));
}

TYPED_TEST_P(ConfigurationStoreContract, NoCallIsMadeWithoutAChangedKey) {
    ASSERT_TRUE(this->watchServiceStates());
    this->source->addToRunLoop();
    this->trait.runAWhile();
    EXPECT_TRUE(this->changes.counts.empty());
    this->trait.addAddress();
    ASSERT_TRUE(this->trait.runUntil([&] { return !this->changes.counts.empty(); }));
    EXPECT_EQ(this->occurrences(this->changes.keys, ""), 0U);
    EXPECT_EQ(std::count(this->changes.counts.begin(), this->changes.counts.end(), 0U), 0);
}

TYPED_TEST_P(ConfigurationStoreContract, WhatIsNotWatchedIsNotTold) {
    ASSERT_TRUE(this->watch({"State:/Network/Service/none/IPv4"}, {"State:/Other/[^/]+/IPv4"}));
    this->source->addToRunLoop();
    this->trait.addAddress();
    this->trait.runAWhile();
    EXPECT_TRUE(this->changes.keys.empty());
}

TYPED_TEST_P(ConfigurationStoreContract, ASourceThatDoesNotRunTellsNothing) {
    ASSERT_TRUE(this->watchServiceStates());
    this->trait.addAddress();
    this->trait.runAWhile();
    EXPECT_TRUE(this->changes.keys.empty());
}

TYPED_TEST_P(ConfigurationStoreContract, ADestroyedSourceTellsNothing) {
    ASSERT_TRUE(this->watchServiceStates());
    this->source->addToRunLoop();
    this->trait.addAddress();
    this->source.reset();
    this->trait.runAWhile();
    EXPECT_TRUE(this->changes.keys.empty());
}

TYPED_TEST_P(ConfigurationStoreContract, ACallbackMayDestroyTheSource) {
    ASSERT_TRUE(this->watchServiceStates());
    this->source->addToRunLoop();
    this->changes.duringCall = [this] { this->source.reset(); };
    this->trait.addAddress();
    ASSERT_TRUE(this->trait.runUntil([&] { return !this->changes.counts.empty(); }));
    this->trait.removeAddresses();
    this->trait.runAWhile();
    EXPECT_EQ(this->changes.counts.size(), 1U);
}

REGISTER_TYPED_TEST_SUITE_P(ConfigurationStoreContract,
                            EveryServiceInTheOrderIsListedOnceAndHasAnInterface,
                            AServicesInterfaceIsTheDeviceThatCarriesItsAddress,
                            AddressesAndMasksAreParallelListsOfDottedTexts,
                            TheLinkOfAnInterfaceIsANumber, TheSavedConfigurationKnowsTheServiceToo,
                            WhatTheHostDoesNotHaveIsMissing, SessionsMayBeOpenSideBySide,
                            ASessionWithoutACallbackReads, AChangeUnderAPatternIsToldFromTheRunLoop,
                            AChangeOfAPlainKeyIsTold, ARecordThatIsGoneIsTold,
                            NoCallIsMadeWithoutAChangedKey, WhatIsNotWatchedIsNotTold,
                            ASourceThatDoesNotRunTellsNothing, ADestroyedSourceTellsNothing,
                            ACallbackMayDestroyTheSource);

} // namespace kx
