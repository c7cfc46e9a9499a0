// What the controller tells the list of all units, and the unit that is picked there.

#include "ControllerFixture.h"

namespace kx {

namespace {

class ControllerAllUnits : public ControllerTest {
protected:
    const AllUnits& all() { return controller.allUnits(); }

    Lines serials() {
        Lines texts;
        for (std::uint32_t unit = 0; unit < all().size(); ++unit) {
            texts.push_back(all().row(unit).text(UnitParameter::serialNumber).value_or(""));
        }
        return texts;
    }
};

const std::string first = "01 02 03 04 05 06";

} // namespace

TEST_F(ControllerAllUnits, EveryUnitThatAnsweredIsListedWithItsSender) {
    launch();
    discoverTwo();
    EXPECT_EQ(all().size(), 2U);
    const UnitRow& row = all().row(0);
    EXPECT_EQ(row.text(UnitParameter::serialNumber), first);
    EXPECT_EQ(stringForIP(row.sender), row.text(UnitParameter::internalIPAddress));
    EXPECT_TRUE(row.tells(UnitParameter::unitID));
}

TEST_F(ControllerAllUnits, AUnitThatMissesADiscoveryIsSilentWhenItsTimeIsOver) {
    launch();
    discoverTwo();
    controller.discoverButton();
    receive(SampleUnit().reply());
    EXPECT_EQ(all().stateOf(1), UnitState::answered);
    runLoop.advanceBy(2000ms);
    EXPECT_EQ(all().stateOf(0), UnitState::answered);
    EXPECT_EQ(all().stateOf(1), UnitState::silent);
}

TEST_F(ControllerAllUnits, ADiscoveryThatCannotBeginOrSendMakesNobodySilent) {
    launch();
    discoverTwo();
    discoverInVain();
    EXPECT_EQ(all().stateOf(0), UnitState::answered);
    systemCalls.failNext(Operation::sendTo, ENETUNREACH);
    discover({});
    EXPECT_EQ(all().stateOf(0), UnitState::answered);
    discover({});
    EXPECT_EQ(all().stateOf(0), UnitState::silent);
}

TEST_F(ControllerAllUnits, AnAcknowledgementIsAnAnswerToo) {
    launch();
    discoverTwo();
    discover({});
    EXPECT_EQ(all().stateOf(0), UnitState::silent);
    receive(SampleUnit().acknowledgement());
    EXPECT_EQ(all().stateOf(0), UnitState::answered);
    EXPECT_EQ(all().stateOf(1), UnitState::silent);
}

TEST_F(ControllerAllUnits, AHardwareAddressThatAPersonChangesIsNoSecondUnit) {
    launch();
    discoverTwo();
    selectUnit(first);
    apply(UnitParameter::internalMACAddress, "02:00:00:00:00:77");
    SampleUnit changed;
    changed.internalMAC = {2, 0, 0, 0, 0, 0x77};
    receive(changed.reply());
    EXPECT_EQ(all().size(), 2U);
    EXPECT_EQ(all().row(0).text(UnitParameter::internalMACAddress), "02:00:00:00:00:77");
}

// A unit has its hardware address from the factory back then.
TEST_F(ControllerAllUnits, AHardwareAddressThatARestoreChangesIsNoSecondUnit) {
    launch();
    discoverTwo();
    selectUnit(first);
    controller.restoreDefaultSettings();
    SampleUnit restored;
    restored.internalMAC = {2, 0, 0, 0, 0, 0x77};
    receive(restored.reply());
    EXPECT_EQ(all().size(), 2U);
    EXPECT_EQ(all().stateOf(0), UnitState::answered);
}

TEST_F(ControllerAllUnits, ARestoreOfEverybodyMayChangeTheHardwareAddressOfEveryUnit) {
    launch();
    discoverTwo();
    selectUnit(first);
    receive(sparseReplyOf(SampleUnit())); // nobody knows where the unit is
    controller.restoreDefaultSettings();
    SampleUnit restored = secondSampleUnit();
    restored.internalMAC = {2, 0, 0, 0, 0, 0x78};
    receive(restored.reply());
    EXPECT_EQ(all().size(), 2U);
    EXPECT_EQ(all().stateOf(1), UnitState::answered);
}

TEST_F(ControllerAllUnits, ALaunchBeginsWithoutUnits) {
    launch();
    discoverTwo();
    launch();
    EXPECT_EQ(serials(), Lines{});
}

TEST_F(ControllerAllUnits, APickedUnitIsShown) {
    launch();
    discoverTwo();
    const std::string second = serials()[1];
    controller.pickUnit(second);
    EXPECT_EQ(selectedUnit(), second);
    EXPECT_EQ(window.unitSelectPopUp.titleOfSelectedItem(), second);
}

TEST_F(ControllerAllUnits, AUnitThatThePopUpDoesNotListIsListedThen) {
    launch();
    discover({SampleUnit()});
    receive(secondSampleUnit().reply()); // late
    const std::string second = serials()[1];
    controller.pickUnit(second);
    EXPECT_EQ(selectedUnit(), second);
    EXPECT_EQ(window.unitSelectPopUp.titles(), (Titles{first, second}));
}

TEST_F(ControllerAllUnits, AUnitThatIsPickedDuringADiscoveryStaysSelected) {
    launch();
    discoverTwo();
    const std::string second = serials()[1];
    controller.discoverButton();
    controller.pickUnit(second);
    EXPECT_EQ(selectedUnit(), second);
    runLoop.advanceBy(2000ms);
    EXPECT_EQ(selectedUnit(), second);
    EXPECT_EQ(window.unitSelectPopUp.titles(), (Titles{first, second}));
}

TEST_F(ControllerAllUnits, PickingAnUnknownUnitChangesNothing) {
    launch();
    discoverTwo();
    controller.pickUnit("FF FF FF FF FF FF");
    EXPECT_EQ(selectedUnit(), first);
}

TEST_F(ControllerAllUnits, HelpOpensAtThePageThatIsAskedFor) {
    launch();
    controller.openHelp("all-units");
    EXPECT_EQ(helpAnchors, (std::vector<std::string>{"all-units"}));
}

} // namespace kx
