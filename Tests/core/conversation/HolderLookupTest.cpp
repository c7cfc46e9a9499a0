#include "conversation/HolderLookup.h"

#include "core/SentDatagrams.h"
#include "doubles/ManualRunLoop.h"
#include "doubles/ScriptedNeighbours.h"
#include "doubles/ScriptedNetworkInterfaces.h"
#include "doubles/ScriptedSystemCalls.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace kx {

using namespace std::chrono_literals;

namespace {

const std::string holder = "02:4B:58:00:00:03";
using Sent = std::vector<std::string>;

class HolderLookupTest : public testing::Test {
protected:
    static constexpr std::uint32_t link = 2;

    HolderLookupTest() {
        systemCalls.addLink("eth0", link);
        interfaces.addService("Ethernet", "eth0", "192.0.2.1", "255.255.255.0");
    }

    static AddressQuestion questionOf(const std::string& address, std::uint32_t by = link) {
        return {.address = ipForString(address), .link = by};
    }

    void lookUp(const std::string& address) { lookup.lookUp(questionOf(address)); }

    void setEntry(NeighbourState state, const std::string& hardware = {}) {
        neighbours.entries[ipForString("192.0.2.13")] = {.state = state,
                                                         .hardwareAddress = hardware};
    }

    Sent sent() const { return sentThrough(systemCalls); }

    // "held", "free", "unknown" or "nothing yet".
    std::string state(const std::string& address = "192.0.2.13") const {
        const auto* const result = lookup.resultOf(questionOf(address));
        if (result == nullptr) {
            return "nothing yet";
        }
        return result->state == HolderState::held   ? "held"
               : result->state == HolderState::free ? "free"
                                                    : "unknown";
    }

    ManualRunLoop runLoop;
    ScriptedSystemCalls systemCalls;
    ScriptedNeighbours neighbours;
    ScriptedNetworkInterfaces interfaces;
    std::optional<std::string> unit;
    int found = 0;
    HolderLookup lookup{{.runLoop = runLoop,
                         .systemCalls = systemCalls,
                         .neighbours = &neighbours,
                         .interfaces = &interfaces,
                         .unitOf =
                             [this](std::string_view hardware) {
                                 return hardware == holder ? unit : std::nullopt;
                             }},
                        [this] { ++found; }};
};

} // namespace

TEST_F(HolderLookupTest, HalfASecondLaterAnEmptyDatagramLeavesForTheDiscardPort) {
    lookUp("192.0.2.13");
    runLoop.advanceBy(499ms);
    EXPECT_EQ(sent(), Sent{});
    runLoop.advanceBy(1ms);
    EXPECT_EQ(sent(), Sent{"192.0.2.13:9 "});
    EXPECT_EQ(systemCalls.sentDatagrams()[0].link, link);
    runLoop.advanceBy(20s);
    EXPECT_EQ(sent().size(), 1U) << "one is enough";
}

TEST_F(HolderLookupTest, TheSocketIsItsOwnAndIsClosedAtOnce) {
    lookUp("192.0.2.13");
    runLoop.advanceBy(500ms);
    EXPECT_EQ(systemCalls.count(ScriptedSystemCalls::Operation::bind), 0U);
    EXPECT_TRUE(systemCalls.openDescriptors().empty());
}

TEST_F(HolderLookupTest, AConfirmedNeighbourHoldsTheAddress) {
    lookUp("192.0.2.13");
    runLoop.advanceBy(500ms);
    setEntry(NeighbourState::reachable, holder);
    runLoop.advanceBy(50ms);
    ASSERT_EQ(state(), "held");
    const auto& result = *lookup.resultOf(questionOf("192.0.2.13"));
    EXPECT_EQ(result.holders.at(0).hardwareAddress, holder);
    EXPECT_EQ(result.holders.at(0).serialNumber, std::nullopt);
    EXPECT_EQ(found, 1);
    setEntry(NeighbourState::failed);
    runLoop.advanceBy(20s);
    EXPECT_EQ(state(), "held") << "it was asked once";
    EXPECT_EQ(found, 1);
}

TEST_F(HolderLookupTest, AKnownUnitIsNamed) {
    unit = "4B 58 00 00 00 03";
    setEntry(NeighbourState::reachable, holder);
    lookUp("192.0.2.13");
    runLoop.advanceBy(550ms);
    ASSERT_EQ(state(), "held");
    EXPECT_EQ(lookup.resultOf(questionOf("192.0.2.13"))->holders.at(0).serialNumber, unit);
}

TEST_F(HolderLookupTest, AFailureMeansThatTheAddressIsFreeUnlessItIsAnOldOne) {
    setEntry(NeighbourState::failed);
    lookUp("192.0.2.13");
    runLoop.advanceBy(1450ms);
    EXPECT_EQ(state(), "nothing yet");
    runLoop.advanceBy(50ms);
    EXPECT_EQ(state(), "free");
}

TEST_F(HolderLookupTest, WhatIsNotFoundOutInFourSecondsIsUnknown) {
    setEntry(NeighbourState::stale, holder);
    lookUp("192.0.2.13");
    runLoop.advanceBy(4499ms);
    EXPECT_EQ(state(), "nothing yet");
    runLoop.advanceBy(1ms);
    EXPECT_EQ(state(), "unknown");
    EXPECT_EQ(found, 1);
}

TEST_F(HolderLookupTest, AnAnswerThatComesLaterReplacesTheUnknown) {
    setEntry(NeighbourState::stale, holder);
    lookUp("192.0.2.13");
    runLoop.advanceBy(5500ms);
    EXPECT_EQ(state(), "unknown");
    setEntry(NeighbourState::reachable, holder);
    runLoop.advanceBy(50ms);
    EXPECT_EQ(state(), "held");
    EXPECT_EQ(found, 2);
}

TEST_F(HolderLookupTest, LooksAtTheTableNoLongerThanAnAnswerCanTake) {
    setEntry(NeighbourState::permanent, holder);
    lookUp("192.0.2.13");
    runLoop.advanceBy(15'500ms);
    EXPECT_EQ(state(), "unknown");
    setEntry(NeighbourState::reachable, holder);
    runLoop.advanceBy(60s);
    EXPECT_EQ(state(), "unknown");
    EXPECT_EQ(runLoop.pendingCallCount(), 0U);
}

TEST_F(HolderLookupTest, AnotherQuestionEndsTheOneBefore) {
    lookUp("192.0.2.13");
    runLoop.advanceBy(400ms);
    lookUp("192.0.2.130");
    runLoop.advanceBy(400ms);
    EXPECT_EQ(sent(), Sent{});
    runLoop.advanceBy(100ms);
    EXPECT_EQ(sent(), Sent{"192.0.2.130:9 "});
    setEntry(NeighbourState::reachable, holder);
    runLoop.advanceBy(5s);
    EXPECT_EQ(state("192.0.2.13"), "nothing yet");
    EXPECT_EQ(state("192.0.2.130"), "unknown");
}

TEST_F(HolderLookupTest, TheSameQuestionGoesOn) {
    lookUp("192.0.2.13");
    runLoop.advanceBy(400ms);
    lookUp("192.0.2.13");
    runLoop.advanceBy(100ms);
    EXPECT_EQ(sent().size(), 1U);
}

TEST_F(HolderLookupTest, ACancelledQuestionSendsNothingAndFindsNothing) {
    lookUp("192.0.2.13");
    lookup.cancel();
    runLoop.advanceBy(20s);
    EXPECT_EQ(sent(), Sent{});
    lookUp("192.0.2.13");
    runLoop.advanceBy(500ms);
    lookup.cancel();
    setEntry(NeighbourState::reachable, holder);
    runLoop.advanceBy(20s);
    EXPECT_EQ(state(), "nothing yet");
    EXPECT_EQ(found, 0);
}

TEST_F(HolderLookupTest, NothingLeavesForAnAddressThatNoNeighbourOfTheLinkHas) {
    interfaces.addService("Wi-Fi", "wlan0", "198.51.100.1", "255.255.255.0");
    systemCalls.addLink("wlan0", 3);
    for (const char* const address :
         {"198.51.100.7", "203.0.113.1", "192.0.3.1", "10.0.0.1", "255.255.255.255", "0.0.0.0",
          "224.0.0.1", "127.0.0.1", "192.0.2.0", "192.0.2.255", "192.0.2.1"}) {
        lookUp(address);
        runLoop.advanceBy(20s);
        EXPECT_EQ(sent(), Sent{}) << address;
        EXPECT_EQ(state(address), "nothing yet") << address;
    }
    EXPECT_EQ(found, 0);
}

TEST_F(HolderLookupTest, AnAddressOfThisHostOnAnotherLinkIsNotAskedFor) {
    interfaces.addService("Wi-Fi", "wlan0", "192.0.2.77", "255.255.255.0");
    lookUp("192.0.2.77");
    runLoop.advanceBy(20s);
    EXPECT_EQ(sent(), Sent{});
}

TEST_F(HolderLookupTest, EveryNetworkOfTheLinkCounts) {
    interfaces.setData("service-eth0", "IPv4", "Addresses",
                       PropertyList{"192.0.2.1", "198.51.100.1"});
    interfaces.setData("service-eth0", "IPv4", "SubnetMasks",
                       PropertyList{"255.255.255.0", "255.255.255.0"});
    lookUp("198.51.100.7");
    runLoop.advanceBy(500ms);
    EXPECT_EQ(sent(), Sent{"198.51.100.7:9 "});
}

TEST_F(HolderLookupTest, ANetworkWhoseMaskIsNotKnownHasNoNeighbours) {
    interfaces.setData("service-eth0", "IPv4", "SubnetMasks", PropertyList{});
    lookUp("192.0.2.13");
    runLoop.advanceBy(20s);
    EXPECT_EQ(sent(), Sent{});
}

TEST_F(HolderLookupTest, WithoutALinkOrAServiceNobodyIsAsked) {
    lookup.lookUp(questionOf("192.0.2.13", 0));
    runLoop.advanceBy(20s);
    lookup.lookUp(questionOf("192.0.2.13", 7));
    runLoop.advanceBy(20s);
    HolderLookup without({.runLoop = runLoop, .systemCalls = systemCalls, .unitOf = {}}, [] {});
    without.lookUp(questionOf("192.0.2.13"));
    runLoop.advanceBy(20s);
    EXPECT_EQ(sent(), Sent{});
}

TEST_F(HolderLookupTest, WhatCannotBeSentLeavesTheHolderUnknown) {
    for (const auto operation :
         {ScriptedSystemCalls::Operation::socket, ScriptedSystemCalls::Operation::setStatusFlags,
          ScriptedSystemCalls::Operation::sendTo}) {
        systemCalls.failNext(operation, EPERM);
        lookUp("192.0.2.13");
        runLoop.advanceBy(4500ms);
        EXPECT_EQ(state(), "unknown");
        EXPECT_TRUE(systemCalls.openDescriptors().empty());
        lookup.cancel();
    }
}

} // namespace kx
