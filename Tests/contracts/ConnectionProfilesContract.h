// The contract of platform/linux/ConnectionProfiles.h: tests that every source of connection
// profiles must pass.
//
// A test program runs them against its source by
//
//     INSTANTIATE_TYPED_TEST_SUITE_P(Memory, ConnectionProfilesContract, MemoryProfilesTrait);
//
// with a trait that is made anew for each test and has
//
//     ConnectionProfiles& profiles();
//     // Profiles that are active, or will be within a generous time, in any order.
//     std::vector<ConnectionProfile> wanted();
//     // Gives the profile with this identifier another name; deactivates it.
//     void rename(const std::string& identifier, const std::string& name);
//     void deactivate(const std::string& identifier);
//     // Runs the loop until the condition holds; false when it does not within a generous time.
//     bool runUntil(const std::function<bool()>& condition);
//     // Runs the loop long enough for a change that should not come.
//     void runAWhile();

#pragma once

#include "platform/linux/ConnectionProfiles.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

namespace kx {

template<typename Trait>
class ConnectionProfilesContract : public testing::Test {
protected:
    using Profiles = std::vector<ConnectionProfile>;

    bool become(const Profiles& wanted) {
        return trait.runUntil([&] {
            const Profiles& active = trait.profiles().activeProfiles();
            return std::is_permutation(active.begin(), active.end(), wanted.begin(), wanted.end());
        });
    }
    // Brings the host to rest, with all its profiles.
    void settle() {
        ASSERT_TRUE(become(trait.wanted()));
        trait.runAWhile();
    }
    void countChanges() {
        trait.profiles().setChangeAction([this] { ++changes; });
    }

    Trait trait;
    int changes = 0;
};

TYPED_TEST_SUITE_P(ConnectionProfilesContract);

TYPED_TEST_P(ConnectionProfilesContract, EveryActiveProfileIsListedWithAllThatItHas) {
    EXPECT_TRUE(this->become(this->trait.wanted()));
}

TYPED_TEST_P(ConnectionProfilesContract, TheGenerationStaysWhileNothingChanges) {
    this->settle();
    const auto generation = this->trait.profiles().generation();
    this->countChanges();
    this->trait.runAWhile();
    EXPECT_EQ(this->trait.profiles().activeProfiles().size(), this->trait.wanted().size());
    EXPECT_EQ(this->trait.profiles().generation(), generation);
    EXPECT_EQ(this->changes, 0);
}

TYPED_TEST_P(ConnectionProfilesContract, ANewNameIsToldAndGrowsTheGeneration) {
    this->settle();
    const auto generation = this->trait.profiles().generation();
    this->countChanges();
    auto wanted = this->trait.wanted();
    this->trait.rename(wanted[0].identifier, "Another name");
    wanted[0].name = "Another name";
    EXPECT_TRUE(this->become(wanted));
    EXPECT_GT(this->trait.profiles().generation(), generation);
    EXPECT_GE(this->changes, 1);
}

TYPED_TEST_P(ConnectionProfilesContract, AnInactiveProfileIsNotListed) {
    this->settle();
    const auto generation = this->trait.profiles().generation();
    this->countChanges();
    auto wanted = this->trait.wanted();
    this->trait.deactivate(wanted[0].identifier);
    wanted.erase(wanted.begin());
    EXPECT_TRUE(this->become(wanted));
    EXPECT_GT(this->trait.profiles().generation(), generation);
    EXPECT_GE(this->changes, 1);
}

TYPED_TEST_P(ConnectionProfilesContract, TheActionSeesTheChange) {
    this->settle();
    std::vector<std::string> seen;
    this->trait.profiles().setChangeAction([&] {
        for (const auto& profile : this->trait.profiles().activeProfiles()) {
            seen.push_back(profile.name);
        }
    });
    this->trait.rename(this->trait.wanted()[0].identifier, "Another name");
    EXPECT_TRUE(this->trait.runUntil(
        [&] { return std::find(seen.begin(), seen.end(), "Another name") != seen.end(); }));
    this->trait.profiles().setChangeAction(nullptr);
}

TYPED_TEST_P(ConnectionProfilesContract, NothingIsCalledWithoutAnAction) {
    this->settle();
    this->countChanges();
    this->trait.profiles().setChangeAction(nullptr);
    auto wanted = this->trait.wanted();
    this->trait.rename(wanted[0].identifier, "Another name");
    wanted[0].name = "Another name";
    EXPECT_TRUE(this->become(wanted));
    EXPECT_EQ(this->changes, 0);
}

REGISTER_TYPED_TEST_SUITE_P(ConnectionProfilesContract, EveryActiveProfileIsListedWithAllThatItHas,
                            TheGenerationStaysWhileNothingChanges,
                            ANewNameIsToldAndGrowsTheGeneration, AnInactiveProfileIsNotListed,
                            TheActionSeesTheChange, NothingIsCalledWithoutAnAction);

} // namespace kx
