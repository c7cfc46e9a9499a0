#include "CommandFixture.h"

namespace kx {

namespace {

class SetCommandTest : public CommandTest {
protected:
    // A unit that takes a new unit ID and a new IP address.
    static void obeyAll(SampleUnit& unit, std::string_view command) {
        if (command.starts_with("^^IdU")) {
            unit.unitID = {'A', 'B', 0, 0, 0, 0};
        } else if (command.starts_with("^^IdI")) {
            unit.internalIP.back() = 50;
        }
    }

    void setEntry(NeighbourState state, const std::string& hardware = {}) {
        neighbours.entries[0xC0A80132U] = {.state = state, .hardwareAddress = hardware};
    }

    // The new address is free, and the unit is reached there from its binding on.
    void playAUnitThatMoves() {
        PlayedUnit& unit = play({.obey = obeyAll});
        bindings.onBind = [&unit] { unit.unit.internalIP.back() = 50; };
        setEntry(NeighbourState::failed);
    }

    std::string message() const { return document()["error"]["message"].get<std::string>(); }

    static constexpr auto otherHardware = "00:1A:2B:3C:4D:77";
};

} // namespace

TEST_F(SetCommandTest, ChangesAValueAndReadsItBack) {
    play({.obey = obeyAll});
    EXPECT_EQ(run({"set", serial, "unit-id=AB", "--json"}), 0);
    EXPECT_EQ(document()["changes"][0]["state"], "done");
    EXPECT_TRUE(document()["warnings"].empty());
    EXPECT_EQ(commandsSent(), Words{"192.168.1.10:10000 ^^IdU4142"});
}

TEST_F(SetCommandTest, AUnitThatTellsAnAddressOfManyGetsNoCommand) {
    addInterface("kx2", secondLink, 0x0A000001U); // 10.0.0.1/24
    PlayedUnit& unit = play({.sender = 0xC0A8010AU});
    for (const Bytes& address :
         {Bytes{192, 168, 1, 255}, Bytes{192, 168, 1, 0}, Bytes{10, 0, 0, 255},
          Bytes{255, 255, 255, 255}, Bytes{224, 0, 0, 1}, Bytes{0, 0, 0, 0}}) {
        unit.unit.internalIP = address;
        for (const Words& words : {Words{"set", serial, "unit-id=AB"}, Words{"option", serial, "V"},
                                   Words{"restore", serial, "--yes"}}) {
            Words all = words;
            all.insert(all.end(), {"-i", "kx0", "--json"});
            EXPECT_EQ(run(all), 1) << words.front();
            EXPECT_EQ(errorCode(), "ambiguous");
        }
    }
    EXPECT_EQ(commandsSent(), Words{});
}

TEST_F(SetCommandTest, NoCommandIsSentWhereTwoHostsAnswerAsOneUnit) {
    play({});
    play({.late = 5ms}).unit.internalIP.back() = 77; // the hardware address is the same
    for (const Words& words :
         {Words{"set", serial, "unit-id=AB"}, Words{"set", "id:42", "unit-id=AB"},
          Words{"option", serial, "V"}, Words{"restore", serial, "--yes"}}) {
        Words all = words;
        all.emplace_back("--json");
        EXPECT_EQ(run(all), 1) << words.front();
        EXPECT_EQ(errorCode(), "ambiguous");
    }
    EXPECT_EQ(commandsSent(), Words{});
}

TEST_F(SetCommandTest, ASerialNumberThatAnotherUnitHasIsRefused) {
    play({.obey = obeyAll});
    play({.unit = secondSampleUnit(), .late = 1500ms}); // nobody waits so long for the first one
    EXPECT_EQ(run({"set", serial, "unit-id=AB", "serial=010203040507", "--json"}), 1);
    EXPECT_EQ(errorCode(), "ambiguous");
    EXPECT_EQ(message(),
              "Another unit has the serial number 01 02 03 04 05 07: 00:1A:2B:3C:4D:5F.");
    EXPECT_EQ(run({"set", serial, "serial=010203040507", "--dry-run", "--json"}), 1);
    EXPECT_EQ(commandsSent(), Words{});
    EXPECT_EQ(run({"set", serial, "unit-id=AB", "serial=010203040506", "--json"}), 0);
    EXPECT_EQ(document()["changes"][1]["state"], "unchanged");
}

TEST_F(SetCommandTest, ASignalWhileOthersAreAskedForTheSerialNumberSendsNoCommand) {
    play({.obey = obeyAll});
    interruptAfter(500ms);
    EXPECT_EQ(run({"set", serial, "serial=010203040508", "--json"}), 130);
    EXPECT_EQ(commandsSent(), Words{});
}

TEST_F(SetCommandTest, AUnitThatTellsNoAddressIsReachedWhereItsAnswerCameFrom) {
    at(5ms, [this] {
        systemCalls.queueDatagram(sparseReplyOf(SampleUnit()), dataForAddress(0xC0A80163U, 3520),
                                  link);
        runLoop.makeReadable(systemCalls.lastDescriptor());
    });
    EXPECT_EQ(run({"set", serial, "unit-id=AB", "--json"}), 4);
    EXPECT_EQ(commandsSent().front(), "192.168.1.99:3520 ^^IdU4142");
}

TEST_F(SetCommandTest, AnAnswerFromAnotherAddressThanTheToldOneIsAWarning) {
    play({.sender = 0xC0A80163U, .obey = obeyAll});
    EXPECT_EQ(run({"set", serial, "unit-id=AB", "--json"}), 0);
    ASSERT_EQ(document()["warnings"].size(), 1U);
    EXPECT_EQ(document()["warnings"][0]["code"], "sender");
    EXPECT_NE(console.notes.find("192.168.1.99"), std::string::npos);
}

TEST_F(SetCommandTest, ASignalDuringTheSearchSendsNoCommand) {
    PlayedUnit& unit = play({.obey = obeyAll});
    for (const std::chrono::milliseconds late : {3ms, 500ms}) {
        unit.late = late;
        interruptAfter(late - 1ms);
        EXPECT_EQ(run({"set", serial, "unit-id=AB", "--json"}), 130);
        EXPECT_EQ(errorCode(), "interrupted");
        interruptAfter(late + 1ms); // while others may still claim to be the same
        EXPECT_EQ(run({"set", serial, "unit-id=AB"}), 130);
        interruptAfter(late + 1ms);
        EXPECT_EQ(run({"option", serial, "V"}), 130);
        interruptAfter(late + 1ms);
        EXPECT_EQ(run({"restore", serial, "--yes"}), 130);
    }
    EXPECT_EQ(commandsSent(), Words{});
}

TEST_F(SetCommandTest, ANewAddressMustLieInANetworkOfTheUnitsOwnInterface) {
    addInterface("kx2", secondLink, 0x0A000001U); // 10.0.0.1/24
    play({.obey = obeyAll});
    EXPECT_EQ(run({"set", serial, "internal-ip=10.0.0.50", "-i", "all", "--json"}), 2);
    EXPECT_EQ(errorCode(), "value");
    EXPECT_EQ(commandsSent(), Words{});
    EXPECT_TRUE(bindings.calls.empty());
}

TEST_F(SetCommandTest, AnAddressOfThisHostIsRefusedOnWhicheverInterfaceItIs) {
    addInterface("kx2", secondLink, 0xC0A80132U); // 192.168.1.50, in the same network
    EXPECT_EQ(run({"set", serial, "internal-ip=192.168.1.50", "-i", "kx0", "--json"}), 2);
    EXPECT_NE(message().find("own address"), std::string::npos);
    EXPECT_TRUE(systemCalls.sentDatagrams().empty());
}

TEST_F(SetCommandTest, NothingIsSentWhenSomebodyHoldsTheNewAddress) {
    play({.obey = obeyAll});
    setEntry(NeighbourState::reachable, otherHardware);
    EXPECT_EQ(run({"set", serial, "unit-id=AB", "internal-ip=192.168.1.50", "--json"}), 1);
    EXPECT_EQ(errorCode(), "held");
    EXPECT_NE(message().find(otherHardware), std::string::npos);
    EXPECT_EQ(document()["changes"][0]["state"], "refused");
    EXPECT_EQ(commandsSent(), Words{});
}

TEST_F(SetCommandTest, AnotherHardwareAddressThatAnswersForTheNewAddressIsToldWithTheUnitsOwn) {
    playAUnitThatMoves();
    bindings.onRelease = [this] { setEntry(NeighbourState::reachable, otherHardware); };
    EXPECT_EQ(run({"set", serial, "internal-ip=192.168.1.50", "serial=010203040509", "--json"}), 4);
    EXPECT_EQ(errorCode(), "half");
    EXPECT_NE(message().find(otherHardware), std::string::npos) << message();
    EXPECT_NE(message().find("00:1A:2B:3C:4D:5E"), std::string::npos) << message();
    EXPECT_EQ(document()["changes"][0]["state"], "done");
    EXPECT_EQ(document()["changes"][1]["state"], "refused");
}

TEST_F(SetCommandTest, AUnitThatDoesNotAnswerForItsNewAddressIsLeftHalf) {
    playAUnitThatMoves();
    EXPECT_EQ(run({"set", serial, "internal-ip=192.168.1.50", "--json"}), 4);
    EXPECT_EQ(errorCode(), "half");
    EXPECT_NE(message().find("does not answer ARP requests"), std::string::npos) << message();
}

TEST_F(SetCommandTest, AnEntryThatCannotBeTakenOutAgainHidesWhoAnswers) {
    playAUnitThatMoves();
    bindings.answerToRelease = {.state = ARPEntryState::rightsNotGiven};
    bindings.onRelease = [this] { setEntry(NeighbourState::permanent, "00:1A:2B:3C:4D:5E"); };
    EXPECT_EQ(run({"set", serial, "internal-ip=192.168.1.50", "--json"}), 4);
    EXPECT_EQ(errorCode(), "half");
    EXPECT_EQ(message(), "Whether the unit itself answers ARP requests for 192.168.1.50 could not "
                         "be found out.");
    EXPECT_EQ(document()["warnings"][0]["code"], "arp-entry");
    EXPECT_NE(console.notes.find("taken out of the ARP cache"), std::string::npos);
}

TEST_F(SetCommandTest, HalfSaysWhyTheRestWasRefused) {
    play({.obey = obeyAll});
    setEntry(NeighbourState::failed);
    bindings.answerToBind = {.state = ARPEntryState::rightsNotGiven};
    EXPECT_EQ(run({"set", serial, "unit-id=AB", "internal-ip=192.168.1.50", "--json"}), 4);
    EXPECT_EQ(errorCode(), "half");
    const std::string reason =
        "No ARP entry was made for 192.168.1.50: administrator rights were not given.";
    EXPECT_NE(message().find(reason), std::string::npos) << message();
    EXPECT_NE(console.notes.find(reason), std::string::npos) << console.notes;
}

TEST_F(SetCommandTest, AnInterruptionThatAlsoEndedTheQuestionForRightsIsNoRefusal) {
    play({.obey = obeyAll});
    setEntry(NeighbourState::failed);
    bindings.answerToBind = {.state = ARPEntryState::rightsNotGiven};
    bindings.onBind = [this] { signal = SIGINT; };
    EXPECT_EQ(run({"set", serial, "internal-ip=192.168.1.50", "--json"}), 130);
    EXPECT_EQ(errorCode(), "interrupted");
    EXPECT_EQ(document()["changes"][0]["state"], "refused");
}

TEST_F(SetCommandTest, AValueThatAConversionWouldChangeIsToldWithWhatWouldBeSent) {
    const std::map<std::string, std::string> cases{
        {"destination-port=3524", "destination port 3520, because 3524 is outside 3520 to 3523."},
        {"device-port=70000", "more than the four digits of a port, because 70000 is outside 0 to "
                              "65535."},
        {"device-port=-1",
         "more than the four digits of a port, because -1 is outside 0 to 65535."},
        {"device-port=x", "device port 0, because “x” does not begin with a number."},
        {"unit-id=300", "the number 300, which does not show as a number because it is above 255."},
        {"unit-id=300x",
         "the number 300, because that is how “300x” is read. Above 255 it does not "
         "show as a number."},
        {"unit-id=SEVENBY", "the text “SEVENBY”, though a unit ID has 6 bytes and this has 7."},
        {"internal-mac=FF:FF:FF:FF:FF:FF", "No unit can have it: it reaches many hosts."},
        {"internal-mac=01005e000001", "No unit can have it: it reaches many hosts."},
        {"internal-ip=x", "internal IP address 0.0.0.0, because “x” is not an IPv4 address."}};
    for (const auto& [word, reason] : cases) {
        EXPECT_EQ(run({"set", serial, word, "--json"}), 2) << word;
        EXPECT_EQ(errorCode(), "value");
        EXPECT_TRUE(message().ends_with(reason)) << message();
    }
    EXPECT_TRUE(systemCalls.sentDatagrams().empty());
    play({});
    EXPECT_EQ(run({"set", serial, "internal-mac=FFFFFFFFFFFF", "--loose", "--dry-run"}), 0);
    EXPECT_EQ(run({"set", serial, "destination-mac=FFFFFFFFFFFF", "--dry-run"}), 0);
}

} // namespace kx
