#include "words/DiscoveryLine.h"

#include "words/FindingText.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace kx {

namespace {

constexpr auto serial = "4B 58 00 00 00 03";

// The discovery of a chosen interface, after its two seconds, with answers of so many units.
DiscoveryFacts factsOf(std::size_t answered, std::size_t listed) {
    DiscoveryFacts facts;
    facts.port = 3520;
    facts.asked = Everybody{.address = 0xC00002FFU, .link = 2};
    facts.isInterfaceChosen = true;
    facts.units.answered = answered;
    facts.listed = listed;
    facts.isComparable = true;
    return facts;
}

DiscoveryFacts underWay(std::size_t answered) {
    DiscoveryFacts facts = factsOf(answered, 0);
    facts.isUnderWay = true;
    return facts;
}

} // namespace

TEST(DiscoveryLineText, WhileItRunsSaysWhomItAsksAndHowManyHaveAnswered) {
    EXPECT_EQ(discoveryLine(underWay(0)),
              "Asking 192.0.2.255, port 3520: no unit has answered yet");
    EXPECT_EQ(discoveryLine(underWay(1)), "Asking 192.0.2.255, port 3520: 1 unit answered");
    DiscoveryFacts many = underWay(12);
    many.asked->address = limitedBroadcastAddress;
    many.isInterfaceChosen = false;
    many.port = 3522;
    EXPECT_EQ(discoveryLine(many), "Asking 255.255.255.255, port 3520: 12 units answered")
        << "units are asked on their port, wherever this host listens";
}

TEST(DiscoveryLineText, WhenEveryUnitAnswersSaysHowMany) {
    EXPECT_EQ(discoveryLine(factsOf(200, 200)), "200 units answered.");
    EXPECT_EQ(discoveryLine(factsOf(1, 1)), "1 unit answered.");
}

TEST(DiscoveryLineText, WhenNobodyAnswersSaysTheLikeliestCause) {
    DiscoveryFacts facts = factsOf(0, 0);
    EXPECT_EQ(discoveryLine(facts), "No unit answered.");
    facts.cause = "A firewall of this computer drops the answers.";
    EXPECT_EQ(discoveryLine(facts),
              "No unit answered. A firewall of this computer drops the answers.");
}

TEST(DiscoveryLineText, WhenAllThatAreListedAreSilentSaysThatTheyAnsweredEarlier) {
    EXPECT_EQ(discoveryLine(factsOf(0, 2)), "No unit answered. The 2 listed answered earlier.");
    DiscoveryFacts one = factsOf(0, 1);
    one.units.silent = 1;
    one.silentUnit = serial;
    one.cause = "The cable is out.";
    EXPECT_EQ(discoveryLine(one),
              "No unit answered. The one listed answered earlier. The cable is out.");
}

TEST(DiscoveryLineText, WhenTheListHasMoreUnitsSaysHowManyOfThemAnswered) {
    DiscoveryFacts facts = factsOf(2, 4);
    facts.isComparable = false;
    facts.units.silent = 2;
    facts.units.added.count = 2;
    EXPECT_EQ(discoveryLine(facts), "2 of the 4 listed answered.")
        << "a discovery in another place says nothing of what is new or silent";
}

TEST(DiscoveryLineText, WhenUnitsAnswerLateSaysHowToListThem) {
    DiscoveryFacts facts = factsOf(3, 1);
    facts.late = 2;
    EXPECT_EQ(discoveryLine(facts), "2 units answered late. Discover again to list them.");
    facts.late = 1;
    EXPECT_EQ(discoveryLine(facts), "1 unit answered late. Discover again to list it.");
}

TEST(DiscoveryLineText, WhenThePortIsTakenSaysSo) {
    DiscoveryFacts facts = underWay(0);
    facts.asked.reset();
    facts.listenerError = posixError(EADDRINUSE);
    EXPECT_EQ(discoveryLine(facts), "Port 3520 is taken by another program. Choose another port.");
    facts.listenerError = posixError(EMFILE);
    EXPECT_EQ(discoveryLine(facts),
              "The UDP port cannot be opened: " + posixErrorText(EMFILE) + ".");
}

TEST(DiscoveryLineText, WhenNoRequestLeftSaysWhyAlsoWhileUnitsWouldHaveTime) {
    DiscoveryFacts facts = underWay(0);
    facts.requestFailure = "Network is unreachable";
    EXPECT_EQ(discoveryLine(facts), "No request was sent: Network is unreachable.");
    facts.isUnderWay = false;
    facts.requestFailure = "The UDP listener is not running.";
    facts.cause = "No interface has an address.";
    EXPECT_EQ(discoveryLine(facts), "No request was sent: The UDP listener is not running. No "
                                    "interface has an address.");
}

TEST(DiscoveryLineText, SaysWhatIsDifferentFromTheDiscoveryBefore) {
    DiscoveryFacts facts = factsOf(3, 4);
    facts.units.silent = 1;
    facts.silentUnit = serial;
    EXPECT_EQ(discoveryLine(facts),
              "3 of the 4 listed answered. 4B 58 00 00 00 03 answered last time and not now.");
    facts = factsOf(4, 4);
    facts.units.changed = {1, serial};
    EXPECT_EQ(discoveryLine(facts), "4 units answered. 4B 58 00 00 00 03 has changed.");
    facts.units.changed = {};
    facts.units.added = {1, serial};
    EXPECT_EQ(discoveryLine(facts), "4 units answered. 4B 58 00 00 00 03 is new.");
    facts.units.added = {};
    facts.units.back = {1, serial};
    EXPECT_EQ(discoveryLine(facts), "4 units answered. 4B 58 00 00 00 03 answers again.");
    facts = factsOf(20, 25);
    facts.units.silent = 5;
    facts.units.changed = {2, serial};
    facts.units.added = {3, serial};
    facts.units.back = {4, serial};
    EXPECT_EQ(discoveryLine(facts), "20 of the 25 listed answered. 5 answered last time and not "
                                    "now. 2 have changed. 3 are new. 4 answer again.");
}

TEST(DiscoveryLineText, WhereAllAreNewThatGoesWithoutSaying) {
    DiscoveryFacts facts = factsOf(2, 2);
    facts.units.added = {2, serial};
    EXPECT_EQ(discoveryLine(facts), "2 units answered.");
}

TEST(DiscoveryLineText, WhoTellsOtherValuesHasChangedWhereverItWasAsked) {
    DiscoveryFacts facts = factsOf(1, 1);
    facts.isComparable = false;
    facts.units.changed = {1, serial};
    EXPECT_EQ(discoveryLine(facts), "1 unit answered. 4B 58 00 00 00 03 has changed.");
}

TEST(DiscoveryLineText, WhenNoInterfaceIsChosenSaysWhichAddressWasAsked) {
    const auto unchosen = [](std::size_t answered, std::size_t listed) {
        DiscoveryFacts facts = factsOf(answered, listed);
        facts.isInterfaceChosen = false;
        facts.asked->address = limitedBroadcastAddress;
        return facts;
    };
    EXPECT_EQ(discoveryLine(unchosen(3, 3)),
              "3 units answered. No interface is chosen: asked 255.255.255.255.");
    DiscoveryFacts nobody = unchosen(0, 0);
    nobody.cause = "The cable is out.";
    EXPECT_EQ(discoveryLine(nobody), "No unit answered. The cable is out. No interface is chosen: "
                                     "asked 255.255.255.255.");
    nobody.asked.reset();
    EXPECT_EQ(discoveryLine(nobody), "No unit answered. The cable is out.") << "nobody was asked";
}

TEST(DiscoveryLineText, AFaultBeforeAnythingWasAskedWeighsMost) {
    DiscoveryFacts facts = underWay(0);
    const InterfaceFinding gone{InterfaceFault::gone, "kx0"};
    facts.finding = gone;
    facts.requestFailure = "Network is unreachable";
    EXPECT_EQ(discoveryLine(facts), textOfFinding(gone)) << "the fault is the reason";
    facts.listenerError = posixError(EADDRINUSE);
    EXPECT_TRUE(discoveryLine(facts).starts_with("Port 3520 is taken"));
}

TEST(DiscoveryLineText, WhileItRunsTheCountWeighsMoreThanWhatIsDoubtful) {
    DiscoveryFacts facts = underWay(2);
    facts.finding = DroppedDatagrams{5};
    EXPECT_TRUE(discoveryLine(facts).starts_with("Asking"));
    facts.isUnderWay = false;
    EXPECT_EQ(discoveryLine(facts), textOfFinding(DroppedDatagrams{5}));
}

TEST(DiscoveryLineText, ACauseWeighsMoreThanDropsAndDropsMoreThanSilenceWithoutOne) {
    DiscoveryFacts facts = factsOf(0, 2);
    facts.finding = DroppedDatagrams{5};
    EXPECT_EQ(discoveryLine(facts), textOfFinding(DroppedDatagrams{5}));
    facts.cause = "The cable is out.";
    EXPECT_EQ(discoveryLine(facts),
              "No unit answered. The 2 listed answered earlier. The cable is out.");
}

TEST(DiscoveryLineText, AContradictionWeighsMoreThanLateUnitsAndTheyMoreThanDifferences) {
    DiscoveryFacts facts = factsOf(3, 2);
    facts.late = 1;
    facts.units.added = {1, serial};
    EXPECT_EQ(discoveryLine(facts), "1 unit answered late. Discover again to list it.");
    const SerialsOfOneAddress twice{0xC000020BU, {serial, "4B 58 00 00 00 04"}};
    facts.finding = twice;
    EXPECT_EQ(discoveryLine(facts), textOfFinding(twice));
}

TEST(DiscoveryLineText, MeansTroubleWhenNobodyWasAskedOrHasAnsweredAndWhenAnswersAreDoubtful) {
    EXPECT_FALSE(meansTrouble(underWay(0)));
    EXPECT_FALSE(meansTrouble(factsOf(2, 2)));
    EXPECT_TRUE(meansTrouble(factsOf(0, 2)));
    DiscoveryFacts facts = underWay(0);
    facts.finding = DroppedDatagrams{5};
    EXPECT_FALSE(meansTrouble(facts)) << "the line counts";
    facts.isUnderWay = false;
    facts.units.answered = 2;
    EXPECT_TRUE(meansTrouble(facts));
    facts = underWay(0);
    facts.finding = InterfaceFinding{InterfaceFault::gone, "kx0"};
    EXPECT_TRUE(meansTrouble(facts));
    facts = underWay(0);
    facts.requestFailure = "Network is unreachable";
    EXPECT_TRUE(meansTrouble(facts));
    facts = underWay(0);
    facts.listenerError = posixError(EADDRINUSE);
    EXPECT_TRUE(meansTrouble(facts));
}

TEST(DiscoveryLineText, UnitsThatAreMissingLateOrChangedMeanNoTrouble) {
    DiscoveryFacts facts = factsOf(2, 4);
    facts.units.silent = 2;
    EXPECT_FALSE(meansTrouble(facts));
    facts = factsOf(2, 2);
    facts.late = 1;
    EXPECT_FALSE(meansTrouble(facts));
    facts = factsOf(2, 2);
    facts.units.changed = {1, serial};
    EXPECT_FALSE(meansTrouble(facts));
}

TEST(DiscoveryLineText, NamesInterfacesAsTheHostDoes) {
    DiscoveryFacts facts = factsOf(1, 1);
    facts.finding = UnitOnTwoInterfaces{serial, 2, 3};
    const auto nameOfLink = [](std::uint32_t link) { return link == 2 ? "eth0" : "wlan0"; };
    EXPECT_EQ(discoveryLine(facts, nameOfLink), textOfFinding(*facts.finding, nameOfLink));
}

} // namespace kx
