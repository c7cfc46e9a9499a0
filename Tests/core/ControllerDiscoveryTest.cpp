// Discovery, the choice of a unit, reload, and the choice of a row.

#include "ControllerFixture.h"

namespace kx {

namespace {

SampleUnit unitWithSerial(std::uint8_t last) {
    SampleUnit unit;
    unit.serial = {0, 1, 2, 3, 4, last};
    unit.internalIP = {192, 168, 1, last};
    unit.unitID = {0, 0, 0, 0, 0, last};
    return unit;
}

// A reply with only these items, behind a MAC address.
Bytes sparseReply(const Bytes& items, const Bytes& serial) {
    return joined(
        {SampleUnit().header(), item("<M>", {1, 2, 3, 4, 5, 6}), items, item("<S>", serial)});
}

class ControllerDiscovery : public ControllerTest {
protected:
    ControllerDiscovery() { launch(); }

    const std::string serialFive = "00 01 02 03 04 05";
    const std::string serialSix = "00 01 02 03 04 06";
};

} // namespace

TEST_F(ControllerDiscovery, LogsTheWholeCycle) {
    controller.discoverButton();
    receive(sparseReply({}, {9, 8, 7, 6, 5, 4}));
    runLoop.advanceBy(2000ms);
    EXPECT_EQ(
        log(),
        (Lines{"[Begin Discover]", "UDP listener did start. 0.0.0.0:3520",
               "Request unit parameters with address: 255.255.255.255", "UDP server did send data.",
               "UDP listener did receive data. Length: 39",
               "Received command: ^^<U> unit:42 serial:01 02 03 04 05 06 cidString:",
               "\tinternal MAC address: 01:02:03:04:05:06", "\tserial number: 09 08 07 06 05 04"}));
}

TEST_F(ControllerDiscovery, EmptiesTheLogBeforeTheFirstEntry) {
    controller.appendString("\nfrom before");
    window.eventLogDrawer.setState(DrawerState::open);
    window.logTextView.setString(LogText("shown before"));
    controller.discoverButton();
    EXPECT_EQ(log().at(0), "[Begin Discover]");
    EXPECT_EQ(window.logTextView.text(), controller.eventLog());
}

TEST_F(ControllerDiscovery, EmptiesTheViewOfTheLogAlsoWhileTheDrawerIsClosed) {
    window.eventLogDrawer.setState(DrawerState::closed);
    window.logTextView.setString(LogText("shown before"));
    controller.discoverButton();
    EXPECT_EQ(window.logTextView.text(), "");
}

TEST_F(ControllerDiscovery, ListsTheUnitsAfterTwoSecondsAndShowsTheFirst) {
    controller.discoverButton();
    receive(unitWithSerial(6).reply());
    receive(unitWithSerial(5).reply());
    runLoop.advanceBy(1999ms);
    EXPECT_EQ(window.unitSelectPopUp.titles(), Titles{});
    runLoop.advanceBy(1ms);
    EXPECT_EQ(window.unitSelectPopUp.titles(), (Titles{serialFive, serialSix}));
    EXPECT_EQ(window.unitSelectPopUp.titleOfSelectedItem(), serialFive);
    EXPECT_EQ(selectedUnit(), serialFive);
    EXPECT_EQ(window.unitIDField.stringValue(), "5");
    EXPECT_EQ(
        parameterRows(),
        (Lines{"destination IP address = 192.168.1.1",
               "destination MAC address = 00:0A:0B:0C:0D:0E", "destination Port number = 3520",
               "device Port number = 10000", "internal IP address = 192.168.1.5",
               "internal MAC address = 00:1A:2B:3C:4D:5E", "serial number = 00 01 02 03 04 05",
               "unit ID = 5"}));
}

TEST_F(ControllerDiscovery, CompletesOnceForEachDiscover) {
    runLoop.advanceBy(2000ms); // completes the discovery of the launch
    const int reloads = window.unitParameterTableView.reloadCount();
    controller.discoverButton();
    runLoop.advanceBy(10s);
    EXPECT_EQ(window.unitParameterTableView.reloadCount(), reloads + 1);
    EXPECT_EQ(runLoop.pendingCallCount(), 0U);
}

TEST_F(ControllerDiscovery, WithoutAnyUnitShowsNothing) {
    window.unitIDField.setStringValue("from before");
    runLoop.advanceBy(2000ms);
    EXPECT_EQ(window.unitSelectPopUp.titles(), Titles{});
    EXPECT_EQ(controller.selectedUnit(), std::nullopt);
    EXPECT_EQ(window.unitIDField.stringValue(), "");
    EXPECT_EQ(parameterRows(), Lines{});
}

TEST_F(ControllerDiscovery, StillListsAUnitThatDoesNotAnswerAnyMore) {
    discover({unitWithSerial(5), unitWithSerial(6)});
    discover({unitWithSerial(6)});
    EXPECT_EQ(window.unitSelectPopUp.titles(), (Titles{serialFive, serialSix}));
}

TEST_F(ControllerDiscovery, ListsAndReselectsUnitsAlsoWhenTheListenerCannotStart) {
    discover({unitWithSerial(5), unitWithSerial(6)});
    selectUnit(serialSix);
    discoverInVain();
    EXPECT_EQ(window.unitSelectPopUp.titles(), (Titles{serialFive, serialSix}));
    EXPECT_EQ(selectedUnit(), serialSix);
}

TEST_F(ControllerDiscovery, SelectedUnitThatDoesNotAnswerStaysSelected) {
    discover({unitWithSerial(5), unitWithSerial(6)});
    selectUnit(serialSix);
    discover({unitWithSerial(5)});
    EXPECT_EQ(selectedUnit(), serialSix);
    EXPECT_EQ(window.unitSelectPopUp.titleOfSelectedItem(), serialSix);
    EXPECT_EQ(window.unitIDField.stringValue(), "6");
}

TEST_F(ControllerDiscovery, AnswerOfTheSelectedUnitDropsTheSelectionUntilTheFirstIsSelected) {
    discover({unitWithSerial(5), unitWithSerial(6)});
    selectUnit(serialSix);

    controller.discoverButton();
    EXPECT_EQ(selectedUnit(), serialSix);
    receive(unitWithSerial(6).reply());
    EXPECT_EQ(controller.selectedUnit(), std::nullopt);
    EXPECT_EQ(window.unitIDField.stringValue(), "");
    EXPECT_EQ(parameterRows(), Lines{});
    receive(unitWithSerial(5).reply());
    runLoop.advanceBy(2000ms);
    EXPECT_EQ(selectedUnit(), serialFive);
    EXPECT_EQ(window.unitSelectPopUp.titleOfSelectedItem(), serialFive);
    EXPECT_EQ(window.unitIDField.stringValue(), "5");
}

TEST_F(ControllerDiscovery, KeepsFieldAndTableUntilItIsComplete) {
    discover({unitWithSerial(5)});
    const Lines rows = parameterRows();
    controller.discoverButton();
    EXPECT_EQ(window.unitIDField.stringValue(), "5");
    EXPECT_EQ(parameterRows(), rows);
    EXPECT_EQ(controller.devices().records().size(), 1U);
    EXPECT_EQ(selectedUnit(), serialFive);
    EXPECT_EQ(window.unitSelectPopUp.titles(), Titles{});
}

TEST_F(ControllerDiscovery, LateAnswerIsListedOnlyByTheNextDiscover) {
    discover({unitWithSerial(5)});
    runLoop.advanceBy(1000ms);
    receive(unitWithSerial(6).reply());
    EXPECT_EQ(window.unitSelectPopUp.titles(), Titles{serialFive});
    EXPECT_EQ(controller.devices().records().size(), 2U);
    discover({});
    EXPECT_EQ(window.unitSelectPopUp.titles(), (Titles{serialFive, serialSix}));
}

TEST_F(ControllerDiscovery, LateAnswerOfTheSelectedUnitIsShownAtOnce) {
    discover({unitWithSerial(5)});
    runLoop.advanceBy(1000ms);
    SampleUnit changed = unitWithSerial(5);
    changed.unitID = textBytes("attic ");
    receive(changed.reply());
    EXPECT_EQ(window.unitIDField.stringValue(), "attic ");
    EXPECT_EQ(parameterRows().back(), "unit ID = attic ");
}

TEST_F(ControllerDiscovery, AnswerOfAnotherUnitDoesNotRedraw) {
    discover({unitWithSerial(5)});
    const int reloads = window.unitParameterTableView.reloadCount();
    receive(unitWithSerial(6).reply());
    EXPECT_EQ(window.unitParameterTableView.reloadCount(), reloads);
}

TEST_F(ControllerDiscovery, RepeatedDiscoverKeepsOneItemForEachUnit) {
    runLoop.advanceBy(2000ms);
    controller.discoverButton();
    receive(unitWithSerial(5).reply());
    runLoop.advanceBy(1000ms);
    controller.discoverButton();
    receive(unitWithSerial(6).reply());
    runLoop.advanceBy(1000ms); // completes the first discovery
    EXPECT_EQ(window.unitSelectPopUp.titles(), (Titles{serialFive, serialSix}));
    runLoop.advanceBy(1000ms); // completes the second one
    EXPECT_EQ(window.unitSelectPopUp.titles(), (Titles{serialFive, serialSix}));
    EXPECT_EQ(runLoop.pendingCallCount(), 0U);
}

TEST_F(ControllerDiscovery, SecondCompletionKeepsAChoiceMadeMeanwhile) {
    controller.discoverButton();
    receive(unitWithSerial(5).reply());
    receive(unitWithSerial(6).reply());
    runLoop.advanceBy(1000ms);
    controller.discoverButton();
    runLoop.advanceBy(1000ms); // the completions of the launch and of the first Discover
    selectUnit(serialSix);
    runLoop.advanceBy(1000ms);
    EXPECT_EQ(selectedUnit(), serialSix);
}

TEST_F(ControllerDiscovery, EveryRestartMakesANewListener) {
    for (int repeat = 0; repeat < 3; ++repeat) {
        controller.discoverButton();
    }
    EXPECT_EQ(systemCalls.count(Operation::socket), 4U);
    EXPECT_EQ(systemCalls.openDescriptors().size(), 1U);
    EXPECT_EQ(runLoop.watchCount(), 1U);
}

TEST_F(ControllerDiscovery, ChosenUnitIsShown) {
    discover({unitWithSerial(5), unitWithSerial(6)});
    selectUnit(serialSix);
    EXPECT_EQ(selectedUnit(), serialSix);
    EXPECT_EQ(window.unitIDField.stringValue(), "6");
    EXPECT_EQ(parameterRows().at(4), "internal IP address = 192.168.1.6");
    EXPECT_EQ(parameterRows().size(), 8U);
}

TEST_F(ControllerDiscovery, UnitWithoutAUnitIDShowsAnEmptyField) {
    window.unitIDField.setStringValue("from before");
    controller.discoverButton();
    receive(sparseReply({}, {0, 1, 2, 3, 4, 5}));
    runLoop.advanceBy(2000ms);
    EXPECT_EQ(selectedUnit(), serialFive);
    EXPECT_EQ(window.unitIDField.stringValue(), "");
}

TEST_F(ControllerDiscovery, ReloadAsksTheSelectedUnitAndLogsNoCommand) {
    discover({unitWithSerial(5)});
    const auto length = controller.eventLog().size();
    controller.reloadUnitParameterButton();
    EXPECT_EQ(lastSent(), "192.168.1.5:10000 ^^IdX");
    EXPECT_EQ(logSince(length), (Lines{"Request unit parameters with address: 192.168.1.5",
                                       "UDP server did send data."}));
}

TEST_F(ControllerDiscovery, ReloadRedrawsTheTableWithTheAnswer) {
    discover({unitWithSerial(5)});
    controller.reloadUnitParameterButton();
    SampleUnit changed = unitWithSerial(5);
    changed.devicePort = {0x0D, 0xC1};
    receive(changed.reply());
    EXPECT_EQ(parameterRows().at(3), "device Port number = 3521");
    controller.reloadUnitParameterButton();
    EXPECT_EQ(lastSent(), "192.168.1.5:3521 ^^IdX");
}

TEST_F(ControllerDiscovery, ReloadOfAUnitWithoutADevicePortUses3520) {
    controller.discoverButton();
    receive(sparseReply(item("<I>", {192, 168, 1, 5}), {0, 1, 2, 3, 4, 5}));
    runLoop.advanceBy(2000ms);
    controller.reloadUnitParameterButton();
    EXPECT_EQ(lastSent(), "192.168.1.5:3520 ^^IdX");
}

TEST_F(ControllerDiscovery, ReloadOfAUnitWithoutAnAddressBroadcastsOnItsPort) {
    controller.discoverButton();
    receive(sparseReply(item("<P>", {0x0D, 0xC1}), {0, 1, 2, 3, 4, 5}));
    runLoop.advanceBy(2000ms);
    controller.reloadUnitParameterButton();
    EXPECT_EQ(lastSent(), "255.255.255.255:3521 ^^IdX");
}

TEST_F(ControllerDiscovery, ReloadOfAUnitAtAddressZeroTriesIt) {
    controller.discoverButton();
    receive(sparseReply(item("<I>", {0, 0, 0, 0}), {0, 1, 2, 3, 4, 5}));
    runLoop.advanceBy(2000ms);
    controller.reloadUnitParameterButton();
    EXPECT_EQ(lastSent(), "0.0.0.0:3520 ^^IdX");
}

TEST_F(ControllerDiscovery, ChosenRowIsCopiedIntoTheEditRow) {
    discover({unitWithSerial(5)});
    selectRow(UnitParameter::internalIPAddress);
    EXPECT_EQ(editRows(), Lines{"internal IP address = 192.168.1.5"});
}

TEST_F(ControllerDiscovery, NoSelectedRowLeavesTheEditRowUnchanged) {
    discover({unitWithSerial(5)});
    selectRow(UnitParameter::unitID);
    window.unitParameterTableView.selectRow(-1);
    controller.tableViewSelectionDidChange();
    window.editParameterTableView.reloadData();
    EXPECT_EQ(editRows(), Lines{"unit ID = 5"});
}

TEST_F(ControllerDiscovery, EditRowKeepsItsContentWhenAnotherUnitIsShown) {
    discover({unitWithSerial(5), unitWithSerial(6)});
    selectRow(UnitParameter::unitID);
    selectUnit(serialSix);
    window.editParameterTableView.reloadData();
    EXPECT_EQ(editRows(), Lines{"unit ID = 5"});
}

TEST_F(ControllerDiscovery, EditingTheCopyDoesNotChangeTheTable) {
    discover({unitWithSerial(5)});
    selectRow(UnitParameter::unitID);
    window.editParameterTableView.typeIntoCell(0, "parameterValue", "9");
    window.unitParameterTableView.reloadData();
    EXPECT_EQ(parameterRows().back(), "unit ID = 5");
    EXPECT_EQ(value(serialFive, UnitParameter::unitID), "5");
}

TEST_F(ControllerDiscovery, RowThatIsGoneEmptiesTheEditRow) {
    discover({unitWithSerial(5)});
    selectRow(UnitParameter::unitID);
    window.unitParameterTable.removeAllObjects();
    controller.tableViewSelectionDidChange();
    EXPECT_EQ(editRows(), Lines{" = "});
}

TEST_F(ControllerDiscovery, InventedUnitsLeaveTheSelectedOneAndTheRealOnesInTheList) {
    controller.applicationWillTerminate(); // it has the port
    KXConfigAppDelegate small(window.outlets(), {.runLoop = runLoop,
                                                 .hostResolver = hostResolver,
                                                 .systemCalls = systemCalls,
                                                 .wallClock = wallClock,
                                                 .application = application,
                                                 .networkInterfaces = nullptr,
                                                 .mostUnits = 50});
    small.applicationDidFinishLaunching();
    const auto discoverRealUnits = [&] {
        small.discoverButton();
        receive(SampleUnit().reply());
        receive(secondSampleUnit().reply());
        runLoop.advanceBy(2000ms);
    };
    discoverRealUnits();
    const std::string selected = "01 02 03 04 05 06";
    const std::string other = "01 02 03 04 05 07";
    ASSERT_EQ(small.selectedUnit(), selected);
    EXPECT_TRUE(isNothingFound()) << discoveryLine();
    SampleUnit invented;
    for (std::uint8_t number = 0; number < 60; ++number) {
        invented.serial = {0xFF, 0, 0, 0, 0, number};
        receive(invented.reply());
    }
    constexpr std::string_view sentence =
        "More than 1,048,576 units have answered, so the list leaves out those that were not heard "
        "for longest.";
    EXPECT_EQ(discoveryLine(), sentence);
    EXPECT_EQ(small.devices().records().size(), 50U);
    EXPECT_NE(small.devices().find(selected), nullptr);
    EXPECT_EQ(small.devices().find(other), nullptr) << "it was not heard for longest";

    small.discoverButton();
    EXPECT_TRUE(isNothingFound()) << "the line is about the latest Discover";
    discoverRealUnits();
    EXPECT_EQ(discoveryLine(), sentence);
    EXPECT_EQ(small.selectedUnit(), selected);
    window.unitSelectPopUp.selectItemWithTitle(other);
    small.unitSelectPopUp();
    EXPECT_EQ(small.selectedUnit(), other);
    discoverRealUnits();
    EXPECT_TRUE(isNothingFound()) << "nobody made room: " << discoveryLine();
}

TEST_F(ControllerDiscovery, ZeroBytesThatFillUpAUnitIDAreNotShownAndNotSentAgain) {
    SampleUnit unit;
    unit.unitID = {'R', '7', 0, 0, 0, 0};
    discover({unit});
    EXPECT_EQ(window.unitIDField.stringValue(), "R7");
    EXPECT_EQ(parameterRows().back(), "unit ID = R7");
    selectRow(UnitParameter::unitID);
    EXPECT_EQ(editRows(), Lines{"unit ID = R7"});
    controller.applyEditParameterButton();
    EXPECT_EQ(lastSent(), "192.168.1.10:10000 ^^IdU5237");
}

} // namespace kx
