// Edits that somebody watches, and edits whose commands are begun again.

#include "AddressFixture.h"
#include "conversation/UnitEdits.h"

namespace kx {

namespace {

class UnitEditsWitnessTest : public AddressTest {
protected:
    using Edits = std::vector<std::pair<UnitParameter, std::string>>;
    using States = std::vector<ChangeState>;

    // Answers at once, or keeps the answer for the test.
    class Witness final : public EditWitness {
    public:
        Lines heard;
        bool isSlow = false;
        bool saysYes = true;
        Answer answer;

        void commandWillGo(const HeardUnit& edited, const UnitChange& change,
                           Answer asked) override {
            heard.push_back(std::string(edited.serialNumber()) + " will get " + change.command);
            reply(std::move(asked));
        }
        void changeDidEnd(const HeardUnit& edited, const UnitChange& change) override {
            heard.push_back(std::string(edited.serialNumber()) + " shows " +
                            change.shown.value_or("nothing"));
        }
        void bindingWillBeMade(const std::string& address, const std::string& hardwareAddress,
                               Answer asked) override {
            heard.push_back("bind " + address + ' ' + hardwareAddress);
            reply(std::move(asked));
        }
        void bindingIsGone(const std::string& address,
                           const std::string& hardwareAddress) override {
            heard.push_back("gone " + address + ' ' + hardwareAddress);
        }

    private:
        void reply(Answer asked) {
            if (isSlow) {
                answer = std::move(asked);
            } else {
                asked(saysYes);
            }
        }
    };

    void begin(const Edits& typed, int attempts = 1) {
        const HeardUnit heard = heardUnit(unit);
        std::vector<ExactEdit> wanted;
        for (const auto& [parameter, value] : typed) {
            wanted.push_back(std::get<ExactEdit>(exactEdit(parameter, value)));
        }
        edits = std::make_unique<UnitEdits>(
            exchange, &services, heard, changesOfUnit(heard, wanted), unitTarget,
            UnitEdits::Options{.witness = &witness, .holders = holders, .attempts = attempts});
        edits->begin([this] { hasEnded = true; });
    }

    // The commands that were sent; requests do not count.
    Lines commands() {
        Lines lines = sent();
        std::erase_if(lines, [](const std::string& line) { return line.ends_with("^^IdX"); });
        return lines;
    }

    void beFree(HolderState state = HolderState::free) {
        holders = AddressHolders{.address = 0xC0A80132U, .state = state, .holders = {}};
    }

    States states() const {
        States all;
        for (const UnitChange& change : edits->changes()) {
            all.push_back(change.state);
        }
        return all;
    }

    SampleUnit unit;
    Witness witness;
    std::optional<AddressHolders> holders;
    AddressMove::Services services{
        .holders = {.neighbours = neighbours}, .bindings = bindings, .witness = &witness};
    std::unique_ptr<UnitEdits> edits;
    bool hasEnded = false;
};

} // namespace

// --- The witness ---

TEST_F(UnitEditsWitnessTest, ACommandWaitsForTheWitness) {
    witness.isSlow = true;
    begin({{UnitParameter::serialNumber, "010203040509"}});
    EXPECT_EQ(witness.heard, Lines{"01 02 03 04 05 06 will get ^^IdS010203040509"});
    runLoop.advanceBy(5s);
    EXPECT_TRUE(commands().empty());
    witness.answer(true);
    EXPECT_EQ(commands(), Lines{"192.168.1.10:10000 ^^IdS010203040509"});
    unit.serial.back() = 9;
    receive(unit.reply());
    EXPECT_EQ(witness.heard.back(), "01 02 03 04 05 09 shows 01 02 03 04 05 09");
    EXPECT_TRUE(hasEnded);
}

TEST_F(UnitEditsWitnessTest, AWitnessThatSaysNoEndsTheEdits) {
    witness.saysYes = false;
    begin({{UnitParameter::unitID, "AB"}, {UnitParameter::devicePortNumber, "4000"}});
    EXPECT_TRUE(hasEnded);
    EXPECT_TRUE(commands().empty());
    EXPECT_EQ(states(), States(2, ChangeState::refused));
}

TEST_F(UnitEditsWitnessTest, AnAnswerAfterAnInterruptionSendsNothing) {
    witness.isSlow = true;
    begin({{UnitParameter::unitID, "AB"}});
    edits->interrupt();
    EXPECT_FALSE(hasEnded);
    witness.answer(true);
    EXPECT_TRUE(hasEnded);
    EXPECT_TRUE(commands().empty());
}

TEST_F(UnitEditsWitnessTest, AnAnswerAfterTheEnd) {
    witness.isSlow = true;
    begin({{UnitParameter::unitID, "AB"}});
    edits.reset();
    witness.answer(true);
    EXPECT_TRUE(commands().empty());
}

TEST_F(UnitEditsWitnessTest, TheEntryOfAMoveIsToldBeforeItIsMadeAndWhenItIsGone) {
    beFree();
    begin({{UnitParameter::internalIPAddress, "192.168.1.50"}});
    EXPECT_EQ(witness.heard, (Lines{"01 02 03 04 05 06 will get ^^IdIC0A80132",
                                    "bind 192.168.1.50 00:1A:2B:3C:4D:5E"}));
    EXPECT_EQ(commands(), Lines{"192.168.1.50:10000 ^^IdIC0A80132"});
    neighbours.entries[0xC0A80132U] = {.state = NeighbourState::reachable,
                                       .hardwareAddress = unitHardware};
    unit.internalIP.back() = 50;
    receive(unit.reply());
    EXPECT_EQ(witness.heard.at(2), "gone 192.168.1.50 00:1A:2B:3C:4D:5E");
    EXPECT_EQ(witness.heard.at(3), "01 02 03 04 05 06 shows 192.168.1.50");
}

TEST_F(UnitEditsWitnessTest, AnEntryThatMayNotBeMadeEndsTheMove) {
    beFree();
    witness.isSlow = true;
    begin({{UnitParameter::internalIPAddress, "192.168.1.50"}});
    witness.answer(true);
    EXPECT_EQ(witness.heard.size(), 2U);
    EXPECT_TRUE(bindings.calls.empty());
    witness.answer(false);
    EXPECT_TRUE(hasEnded);
    EXPECT_TRUE(bindings.calls.empty());
    EXPECT_TRUE(commands().empty());
    EXPECT_EQ(edits->move()->state(), MoveState::notBegun);
}

TEST_F(UnitEditsWitnessTest, AnEntryThatCouldNotBeMadeIsGone) {
    beFree();
    bindings.answerToBind = {.state = ARPEntryState::rightsNotGiven};
    begin({{UnitParameter::internalIPAddress, "192.168.1.50"}});
    EXPECT_EQ(witness.heard.at(2), "gone 192.168.1.50 00:1A:2B:3C:4D:5E");
    EXPECT_EQ(witness.heard.at(3), "01 02 03 04 05 06 shows nothing");
    EXPECT_EQ(states(), States{ChangeState::refused});
}

TEST_F(UnitEditsWitnessTest, AnEntryThatCouldNotBeTakenOutIsNotGone) {
    beFree();
    bindings.answerToRelease = {.state = ARPEntryState::rightsNotGiven};
    begin({{UnitParameter::internalIPAddress, "192.168.1.50"}});
    runLoop.advanceBy(3s);
    EXPECT_TRUE(hasEnded);
    for (const std::string& line : witness.heard) {
        EXPECT_FALSE(line.starts_with("gone")) << line;
    }
}

// --- Holders that are known ---

TEST_F(UnitEditsWitnessTest, AnAddressThatIsKnownToBeFreeIsNotLookedFor) {
    beFree();
    begin({{UnitParameter::unitID, "AB"}, {UnitParameter::internalIPAddress, "192.168.1.50"}});
    EXPECT_EQ(commands(), Lines{"192.168.1.10:10000 ^^IdU4142"});
}

TEST_F(UnitEditsWitnessTest, NothingIsSentAndAnnouncedWhenAnAddressIsKnownNotToBeFree) {
    beFree(HolderState::unknown);
    begin({{UnitParameter::unitID, "AB"}, {UnitParameter::internalIPAddress, "192.168.1.50"}});
    EXPECT_TRUE(hasEnded);
    EXPECT_TRUE(commands().empty());
    EXPECT_EQ(edits->move()->state(), MoveState::unknownHolder);
    EXPECT_EQ(witness.heard, Lines{"01 02 03 04 05 06 shows nothing"});
}

// --- Commands that are begun again ---

TEST_F(UnitEditsWitnessTest, ACommandIsBegunAgainWhileTheUnitIsSilent) {
    begin({{UnitParameter::unitID, "AB"}}, 3);
    runLoop.advanceBy(8999ms);
    EXPECT_FALSE(hasEnded);
    EXPECT_EQ(commands().size(), 9U); // each goes out three times
    runLoop.advanceBy(1ms);
    EXPECT_EQ(states(), States{ChangeState::silent});
    EXPECT_EQ(witness.heard,
              (Lines{"01 02 03 04 05 06 will get ^^IdU4142", "01 02 03 04 05 06 shows nothing"}));
}

TEST_F(UnitEditsWitnessTest, ACommandIsBegunAgainWhenTheUnitShowsItsOldValue) {
    begin({{UnitParameter::unitID, "AB"}}, 2);
    runLoop.advanceBy(2s);
    receive(unit.reply());
    runLoop.advanceBy(1s);
    EXPECT_FALSE(hasEnded);
    unit.unitID = {'A', 'B', 0, 0, 0, 0};
    receive(unit.reply());
    EXPECT_EQ(states(), States{ChangeState::done});
}

TEST_F(UnitEditsWitnessTest, AnAcknowledgedCommandIsNotBegunAgainWhenTheUnitShowsItsOldValue) {
    begin({{UnitParameter::unitID, "AB"}}, 2);
    receive(unit.acknowledgement());
    runLoop.advanceBy(2s);
    receive(unit.reply());
    runLoop.advanceBy(1s);
    EXPECT_EQ(states(), States{ChangeState::different});
}

TEST_F(UnitEditsWitnessTest, ACommandIsNotBegunAgainWhenTheUnitShowsAThirdValue) {
    begin({{UnitParameter::unitID, "AB"}}, 2);
    runLoop.advanceBy(2s);
    unit.unitID = {'X', 0, 0, 0, 0, 0};
    receive(unit.reply());
    runLoop.advanceBy(1s);
    EXPECT_EQ(states(), States{ChangeState::different});
}

TEST_F(UnitEditsWitnessTest, AnInterruptedCommandIsNotBegunAgain) {
    begin({{UnitParameter::unitID, "AB"}}, 5);
    edits->interrupt();
    runLoop.advanceBy(3s);
    EXPECT_EQ(states(), States{ChangeState::silent});
}

TEST_F(UnitEditsWitnessTest, AMoveIsBegunAgainWithItsEntry) {
    beFree();
    begin({{UnitParameter::internalIPAddress, "192.168.1.50"}}, 2);
    runLoop.advanceBy(3s);
    EXPECT_FALSE(hasEnded);
    EXPECT_EQ(bindings.calls.size(), 3U); // made, taken out, made again
    runLoop.advanceBy(3s);
    EXPECT_TRUE(hasEnded);
    EXPECT_EQ(bindings.calls.size(), 4U);
    EXPECT_EQ(states(), States{ChangeState::silent});
}

TEST_F(UnitEditsWitnessTest, AMoveAfterWhichNobodyAnswersForTheAddressIsBegunAgain) {
    beFree();
    begin({{UnitParameter::internalIPAddress, "192.168.1.50"}}, 2);
    unit.internalIP.back() = 50;
    receive(unit.reply());
    runLoop.advanceBy(3300ms);
    EXPECT_FALSE(hasEnded);
    receive(unit.reply());
    neighbours.entries[0xC0A80132U] = {.state = NeighbourState::reachable,
                                       .hardwareAddress = unitHardware};
    runLoop.advanceBy(20ms);
    EXPECT_EQ(states(), States{ChangeState::done});
    EXPECT_EQ(edits->move()->state(), MoveState::moved);
}

} // namespace kx
