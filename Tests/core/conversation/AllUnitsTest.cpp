#include "conversation/AllUnits.h"

#include "HeardUnitSamples.h"

#include <gtest/gtest.h>

namespace kx {

namespace {

using namespace std::chrono_literals;

class AllUnitsTest : public ::testing::Test {
protected:
    explicit AllUnitsTest(std::size_t limit = AllUnits::defaultLimit)
        : units(
              [this](std::uint32_t link) {
                  ++namesAsked;
                  return "eth" + std::to_string(link);
              },
              limit,
              {.steady = [this] { return now; },
               .calendar = [this] { return std::chrono::system_clock::time_point(now); }}) {}

    void hear(std::uint32_t number) { units.unitDidTell(heardUnit(number)); }

    // Unit 2 at the address of unit 1.
    void hearTwoAtOneAddress() {
        hear(1);
        HeardUnit second = heardUnit(2);
        second.record.setValue(UnitParameter::internalIPAddress, "192.0.2.1");
        units.unitDidTell(second);
    }

    // Another host that answers as unit 1.
    static HeardUnit impostor() {
        HeardUnit unit = heardUnit(1);
        unit.record.setValue(UnitParameter::internalMACAddress, sampleHardwareAddress(99));
        unit.record.setValue(UnitParameter::internalIPAddress, "192.0.2.99");
        unit.sender = 0xC0000263U;
        return unit;
    }

    // A discovery that asks on a link, and that these units answer.
    void discover(std::uint32_t link, std::initializer_list<std::uint32_t> answering) {
        units.discoveryDidBegin();
        units.everybodyWasAsked(link);
        for (const std::uint32_t number : answering) {
            hear(number);
        }
        units.discoveryDidEnd();
    }

    std::vector<std::string> serials() const {
        std::vector<std::string> texts;
        for (std::uint32_t unit = 0; unit < units.size(); ++unit) {
            texts.push_back(units.row(unit).text(UnitParameter::serialNumber).value_or(""));
        }
        return texts;
    }

    std::vector<UnitState> states() const {
        std::vector<UnitState> all;
        for (std::uint32_t unit = 0; unit < units.size(); ++unit) {
            all.push_back(units.stateOf(unit));
        }
        return all;
    }

    std::chrono::milliseconds now{1000};
    int namesAsked = 0;
    AllUnits units;
};

class FewUnitsTest : public AllUnitsTest {
protected:
    FewUnitsTest()
        : AllUnitsTest(3) {}
};

using States = std::vector<UnitState>;
using Serials = std::vector<std::string>;
constexpr auto answered = UnitState::answered;
constexpr auto silent = UnitState::silent;
constexpr auto sharesAddress = UnitState::sharesAddress;
constexpr auto sharesSerial = UnitState::sharesSerialNumber;

} // namespace

TEST_F(AllUnitsTest, AUnitThatTellsNoAddressMayAnswer) {
    HeardUnit unit = heardUnit(1);
    unit.record.removeValue(UnitParameter::internalIPAddress);
    units.unitDidTell(unit);
    units.unitDidAnswer(unit.serialNumber(), 0xC0000201U, 2);
    EXPECT_EQ(units.row(0).sender, 0xC0000201U);
}

TEST_F(AllUnitsTest, AUnitThatAnswersAgainKeepsItsNumberAndHasItsNewValues) {
    hear(1);
    hear(2);
    HeardUnit again = heardUnit(1);
    again.record.setValue(UnitParameter::devicePortNumber, "10001");
    again.sender = 0xC0000263U;
    now = 1500ms;
    units.unitDidTell(again);
    EXPECT_EQ(serials(), (Serials{sampleSerial(1), sampleSerial(2)}));
    EXPECT_EQ(units.row(0).text(UnitParameter::devicePortNumber), "10001");
    EXPECT_EQ(units.row(0).sender, 0xC0000263U);
    EXPECT_EQ(units.row(0).heard, std::chrono::system_clock::time_point(1500ms));
    now = 2500ms;
    units.unitDidAnswer(sampleSerial(1), 0xC0000263U, 2);
    EXPECT_EQ(units.row(0).heard, std::chrono::system_clock::time_point(2500ms));
}

TEST_F(AllUnitsTest, ARecordWithoutASerialNumberIsNoUnit) {
    HeardUnit unit = heardUnit(1);
    unit.record.removeValue(UnitParameter::serialNumber);
    units.unitDidTell(unit);
    EXPECT_EQ(units.size(), 0U);
}

TEST_F(AllUnitsTest, TheTimeToAnswerCountsFromTheLatestRequest) {
    units.requestDidLeave();
    now += 20ms;
    units.requestDidLeave();
    now += 3ms;
    hear(1);
    EXPECT_EQ(units.row(0).answered, 3ms);
}

TEST_F(AllUnitsTest, TheNameOfAnInterfaceIsAskedOnce) {
    hear(1);
    hear(2);
    EXPECT_EQ(units.nameOfLink(2), "eth2");
    EXPECT_EQ(units.nameOfLink(0), "");
    EXPECT_EQ(namesAsked, 1);
}

TEST_F(AllUnitsTest, TheUnitsHeardSinceAMomentAreToldOnceTheLatestFirst) {
    hear(1);
    hear(2);
    const auto moment = units.hearings();
    EXPECT_TRUE(units.heardSince(moment).empty());
    hear(3);
    hear(1);
    hear(3);
    EXPECT_EQ(units.heardSince(moment), (std::vector<std::uint32_t>{2, 0}));
    EXPECT_EQ(units.heardSince(0), (std::vector<std::uint32_t>{2, 0, 1}));
}

// --- Silence ---

TEST_F(AllUnitsTest, AUnitThatDoesNotAnswerADiscoveryIsSilentUntilItIsHeard) {
    discover(2, {1, 2});
    EXPECT_EQ(states(), (States{answered, answered}));
    discover(2, {2});
    EXPECT_EQ(states(), (States{silent, answered}));
    units.unitDidAnswer(sampleSerial(1), 0xC0000201U, 2);
    EXPECT_EQ(states(), (States{answered, answered}));
}

TEST_F(AllUnitsTest, NobodyIsSilentBeforeTheTimeToAnswerIsOver) {
    discover(2, {1});
    units.discoveryDidBegin();
    units.everybodyWasAsked(2);
    EXPECT_EQ(states(), (States{answered}));
    units.discoveryDidEnd();
    EXPECT_EQ(states(), (States{silent}));
}

TEST_F(AllUnitsTest, ADiscoveryThatCouldAskNobodyMakesNobodySilent) {
    discover(2, {1});
    units.discoveryDidBegin();
    units.discoveryDidEnd();
    EXPECT_EQ(states(), (States{answered}));
    units.discoveryDidEnd(); // none is under way
    EXPECT_EQ(states(), (States{answered}));
}

TEST_F(AllUnitsTest, AUnitOnAnotherInterfaceWasNotAsked) {
    discover(2, {1});
    discover(3, {});
    EXPECT_EQ(states(), (States{answered}));
    discover(0, {});
    EXPECT_EQ(states(), (States{silent})) << "the routes may have sent the request there";
}

TEST_F(AllUnitsTest, TwoDiscoveriesAtOnceEachHaveTheirTime) {
    discover(2, {1});
    units.discoveryDidBegin();
    units.everybodyWasAsked(2);
    hear(1);
    units.discoveryDidBegin();
    units.everybodyWasAsked(2);
    units.discoveryDidEnd();
    EXPECT_EQ(states(), (States{answered})) << "it answered the first, and has time for the second";
    units.discoveryDidEnd();
    EXPECT_EQ(states(), (States{silent}));
}

// --- Units that cannot be told apart ---

TEST_F(AllUnitsTest, TwoUnitsOfOneAddressAreMarked) {
    hearTwoAtOneAddress();
    hear(3);
    EXPECT_EQ(states(), (States{sharesAddress, sharesAddress, answered}));
    EXPECT_EQ(units.sharerOfAddress(0), 1U);
    EXPECT_EQ(units.sharerOfAddress(1), 0U);
    hear(2);
    EXPECT_EQ(states(), (States{answered, answered, answered})) << "it has moved away";
}

TEST_F(AllUnitsTest, NoHardwareAddressIsNotOneOfZeros) {
    HeardUnit without = heardUnit(1);
    without.record.removeValue(UnitParameter::internalMACAddress);
    units.unitDidTell(without);
    HeardUnit zeros = heardUnit(2);
    zeros.record.setValue(UnitParameter::internalMACAddress, "00:00:00:00:00:00");
    zeros.record.setValue(UnitParameter::internalIPAddress, "192.0.2.1");
    units.unitDidTell(zeros);
    EXPECT_EQ(states(), (States{sharesAddress, sharesAddress}));
}

TEST_F(AllUnitsTest, TwoHostsOfOneSerialNumberAreTwoUnitsThatAreMarked) {
    hear(1);
    units.unitDidTell(impostor());
    EXPECT_EQ(serials(), (Serials{sampleSerial(1), sampleSerial(1)}));
    EXPECT_EQ(states(), (States{sharesSerial, sharesSerial}));
    units.unitDidAnswer(sampleSerial(1), 0xC0000263U, 2);
    EXPECT_EQ(units.heardSince(2), (std::vector<std::uint32_t>{1})) << "the sender tells which";
    units.unitDidAnswer(sampleSerial(1), 1, 2);
    EXPECT_EQ(units.hearings(), 3U);
}

TEST_F(AllUnitsTest, ASilentUnitAccusesNobody) {
    hearTwoAtOneAddress();
    units.discoveryDidBegin();
    units.everybodyWasAsked(2);
    HeardUnit second = heardUnit(2);
    second.record.setValue(UnitParameter::internalIPAddress, "192.0.2.1");
    units.unitDidTell(second);
    units.discoveryDidEnd();
    EXPECT_EQ(states(), (States{silent, answered})) << "the second may be there instead";
}

TEST_F(AllUnitsTest, AUnitWithANewSerialNumberDoesNotShareItsAddressWithItself) {
    hear(1);
    HeardUnit renamed = heardUnit(1);
    renamed.record.setValue(UnitParameter::serialNumber, sampleSerial(50));
    units.unitDidTell(renamed);
    EXPECT_EQ(states(), (States{answered, answered}));
}

TEST_F(AllUnitsTest, AUnitWithoutAnAddressSharesNone) {
    for (const std::uint32_t number : {1U, 2U}) {
        HeardUnit unit = heardUnit(number);
        unit.record.removeValue(UnitParameter::internalIPAddress);
        units.unitDidTell(unit);
    }
    EXPECT_EQ(states(), (States{answered, answered}));
}

TEST_F(AllUnitsTest, AHardwareAddressThatWasChangedIsThatOfTheSameUnit) {
    hear(1);
    units.expectChange(sampleSerial(1));
    units.unitDidTell(impostor());
    EXPECT_EQ(units.size(), 1U);
    EXPECT_EQ(units.row(0).text(UnitParameter::internalMACAddress), sampleHardwareAddress(99));
    hear(1);
    EXPECT_EQ(states(), (States{sharesSerial, sharesSerial})) << "one change was expected, not two";
}

TEST_F(AllUnitsTest, ACommandToEverybodyMayChangeEveryUnit) {
    hear(1);
    units.expectChanges();
    units.unitDidTell(impostor());
    EXPECT_EQ(units.size(), 1U);
}

TEST_F(AllUnitsTest, ChangesThatConcernOtherUnitsAreCounted) {
    hear(1);
    hear(3);
    const auto before = units.changesOfOthers();
    hear(1);
    EXPECT_EQ(units.changesOfOthers(), before);
    HeardUnit second = heardUnit(2);
    second.record.setValue(UnitParameter::internalIPAddress, "192.0.2.1");
    units.unitDidTell(second);
    const auto shared = units.changesOfOthers();
    EXPECT_GT(shared, before);
    hear(2);
    EXPECT_GT(units.changesOfOthers(), shared);
}

// --- Limits ---

TEST_F(FewUnitsTest, OneUnitTooManyTakesThePlaceOfTheOneNotHeardForLongest) {
    hear(1);
    hear(2);
    hear(3);
    EXPECT_FALSE(units.isIncomplete());
    hear(1);
    hear(4);
    EXPECT_EQ(serials(), (Serials{sampleSerial(1), sampleSerial(4), sampleSerial(3)}));
    EXPECT_TRUE(units.isIncomplete());
    hear(2);
    EXPECT_EQ(serials(), (Serials{sampleSerial(1), sampleSerial(4), sampleSerial(2)}));
    EXPECT_EQ(units.heardSince(0), (std::vector<std::uint32_t>{2, 1, 0}));
    EXPECT_EQ(states(), (States{answered, answered, answered}));
}

TEST_F(AllUnitsTest, ClearingForgetsEverythingAndIsTold) {
    hearTwoAtOneAddress();
    discover(2, {3});
    int changes = 0;
    units.setChangeAction([&] { ++changes; });
    units.clear();
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(units.size(), 0U);
    EXPECT_TRUE(units.heardSince(0).empty());
    hear(1);
    EXPECT_EQ(changes, 2);
    EXPECT_EQ(states(), (States{answered}));
}

TEST_F(AllUnitsTest, AThousandHostsUnderOneSerialNumberKeepEachAnswerShort) {
    for (std::uint32_t number = 0; number < 20'000; ++number) {
        HeardUnit unit = heardUnit(1);
        unit.record.setValue(UnitParameter::internalMACAddress, sampleHardwareAddress(number));
        units.unitDidTell(unit);
    }
    const auto begin = std::chrono::steady_clock::now();
    for (std::uint32_t number = 0; number < 20'000; ++number) {
        EXPECT_EQ(units.stateOf(number), sharesSerial);
    }
    EXPECT_LT(std::chrono::steady_clock::now() - begin, 5s); // a walk over all would take minutes
}

} // namespace kx
