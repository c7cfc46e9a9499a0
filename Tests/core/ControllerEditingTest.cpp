// The edit table's values, option commands and the factory restore.

#include "ControllerFixture.h"

namespace kx {

namespace {

class ControllerEditing : public ControllerTest {
protected:
    ControllerEditing() { launch(); }

    std::string prepared(const std::string& title) {
        window.optionCommandPopUp.addItemsWithTitles({title});
        window.optionCommandPopUp.selectItemWithTitle(title);
        controller.optionCommandPopUp();
        return window.optionCommandField.stringValue();
    }
};

} // namespace

TEST_F(ControllerEditing, EditTableAlwaysHasOneRow) {
    EXPECT_EQ(controller.numberOfRowsInTableView(), 1);
    window.editParameterTableView.reloadData();
    EXPECT_EQ(editRows(), Lines{" = "});
}

TEST_F(ControllerEditing, TypedTextIsKeptAndShown) {
    const int reloads = window.editParameterTableView.reloadCount();
    window.editParameterTableView.typeIntoCell(0, "parameterValue", "10.0.0.7");
    EXPECT_EQ(editRows(), Lines{" = 10.0.0.7"});
    EXPECT_EQ(window.editParameterTableView.reloadCount(), reloads + 1);
}

TEST_F(ControllerEditing, EitherColumnCanBeTyped) {
    window.editParameterTableView.typeIntoCell(0, "parameterName", "unit ID");
    window.editParameterTableView.typeIntoCell(0, "parameterValue", "");
    EXPECT_EQ(editRows(), Lines{"unit ID = "});
}

TEST_F(ControllerEditing, RowNumberDoesNotMatter) {
    window.editParameterTableView.typeIntoCell(5, "parameterValue", "7");
    EXPECT_EQ(controller.tableViewObjectValueForTableColumnRow({"parameterValue"}, 9),
              PropertyListValue("7"));
}

TEST_F(ControllerEditing, UnknownColumnReadsAsTheEmptyText) {
    EXPECT_EQ(controller.tableViewObjectValueForTableColumnRow({"unit ID"}, 0),
              PropertyListValue(""));
    EXPECT_EQ(controller.tableViewObjectValueForTableColumnRow({""}, 0), PropertyListValue(""));
}

TEST_F(ControllerEditing, UnknownColumnTakesNothing) {
    window.editParameterTableView.typeIntoCell(0, "parameterValue", "7");
    const int reloads = window.editParameterTableView.reloadCount();
    window.editParameterTableView.typeIntoCell(0, "unit ID", "8");
    EXPECT_EQ(window.editParameterTableView.reloadCount(), reloads);
    window.editParameterTableView.reloadData();
    EXPECT_EQ(editRows(), Lines{" = 7"});
    EXPECT_EQ(controller.tableViewObjectValueForTableColumnRow({"unit ID"}, 0),
              PropertyListValue(""));
}

TEST_F(ControllerEditing, LaunchBeginsWithAnEmptyEditRow) {
    window.editParameterTableView.typeIntoCell(0, "parameterValue", "10.0.0.7");
    launch();
    window.editParameterTableView.reloadData();
    EXPECT_EQ(editRows(), Lines{" = "});
}

TEST_F(ControllerEditing, OptionTitleIsCutBeforeItsDescription) {
    EXPECT_EQ(prepared("V  Version"), "V");
    EXPECT_EQ(prepared("used whole"), "used whole");
}

TEST_F(ControllerEditing, ClockOptionTakesTheLocalTime) {
    EXPECT_EQ(prepared("-Z  Set clock"), "-Z11152347");
}

TEST_F(ControllerEditing, ClockOptionTakesTheTimeAtWhichItIsChosen) {
    EXPECT_EQ(prepared("-Z  Set clock"), "-Z11152347");
    wallClock = FixedWallClock(2024, 3, 5, 14, 7, 0);
    EXPECT_EQ(prepared("-Z  Set clock"), "-Z03051407");
}

TEST_F(ControllerEditing, BlanksAtTheEndsOfAnOptionBelongToIt) {
    discover({SampleUnit()});
    EXPECT_EQ(prepared(" V "), " V ");
    EXPECT_EQ(prepared("\tV\n"), "\tV\n");
    window.optionCommandField.setStringValue("  -q 5 \t");
    controller.sendOptionButton();
    EXPECT_EQ(lastSent(), "192.168.1.10:10000 ^^Id  -q 5 \t\\r");
}

TEST_F(ControllerEditing, PreparingAnOptionSendsNothing) {
    const auto before = controller.eventLog();
    prepared("-Z  Set clock");
    EXPECT_EQ(controller.eventLog(), before);
    EXPECT_EQ(sent().size(), 1U);
}

TEST_F(ControllerEditing, OptionPopUpWithoutItemsEmptiesTheField) {
    window.optionCommandPopUp.removeAllItems();
    controller.optionCommandPopUp();
    EXPECT_EQ(window.optionCommandField.stringValue(), "");
}

TEST_F(ControllerEditing, OptionIsSentAsTheFieldHoldsItWithACarriageReturn) {
    discover({SampleUnit()});
    const auto length = controller.eventLog().size();
    prepared("V  Version");
    controller.sendOptionButton();
    EXPECT_EQ(lastSent(), "192.168.1.10:10000 ^^IdV\\r");
    EXPECT_EQ(systemCalls.sentDatagrams().back().data.size(), 6U);
    EXPECT_EQ(logSince(length),
              (Lines{"Send to: 192.168.1.10 command: ^^IdV\r", "UDP server did send data."}));

    window.optionCommandField.setStringValue("-q 5");
    controller.sendOptionButton();
    EXPECT_EQ(lastSent(), "192.168.1.10:10000 ^^Id-q 5\\r");
}

TEST_F(ControllerEditing, OptionWithoutASelectedUnitIsNotSent) {
    const auto before = controller.eventLog();
    controller.sendOptionButton();
    EXPECT_EQ(controller.eventLog(), before);
    EXPECT_EQ(sent().size(), 1U);
}

TEST_F(ControllerEditing, OptionThatIsNotASCIIIsNeitherLoggedNorSent) {
    discover({SampleUnit()});
    window.optionCommandField.setStringValue("Grün");
    const auto before = controller.eventLog();
    controller.sendOptionButton();
    EXPECT_EQ(controller.eventLog(), before);
}

TEST_F(ControllerEditing, RestoreAsksTheUnitAndReloadsAfterOneSecond) {
    discover({SampleUnit()});
    const auto length = controller.eventLog().size();
    controller.restoreDefaultSettings();
    EXPECT_EQ(lastSent(), "192.168.1.10:10000 ^^IdZ");
    runLoop.advanceBy(999ms);
    EXPECT_EQ(lastSent(), "192.168.1.10:10000 ^^IdZ");
    runLoop.advanceBy(1ms);
    EXPECT_EQ(lastSent(), "192.168.1.10:10000 ^^IdX");
    EXPECT_EQ(
        logSince(length),
        (Lines{"Request unit parameters with address: 192.168.1.10", "UDP server did send data.",
               "Request unit parameters with address: 192.168.1.10", "UDP server did send data."}));
    runLoop.advanceBy(1000ms); // the time for an answer ends
    EXPECT_EQ(runLoop.pendingCallCount(), 0U);
}

TEST_F(ControllerEditing, EveryRestoreIsFollowedByARequestOfItsOwn) {
    discover({SampleUnit()});
    const auto before = static_cast<std::ptrdiff_t>(sent().size());
    const auto sentSince = [&] {
        const Lines all = sent();
        return Lines(all.begin() + before, all.end());
    };
    const std::string unit = "192.168.1.10:10000 ";
    controller.restoreDefaultSettings();
    runLoop.advanceBy(500ms);
    controller.restoreDefaultSettings();
    runLoop.advanceBy(500ms);
    EXPECT_EQ(sentSince(), (Lines{unit + "^^IdZ", unit + "^^IdZ", unit + "^^IdX"}));
    runLoop.advanceBy(500ms);
    EXPECT_EQ(sentSince(), (Lines{unit + "^^IdZ", unit + "^^IdZ", unit + "^^IdX", unit + "^^IdX"}));
}

TEST_F(ControllerEditing, RestoreWithoutASelectedUnitGoesToEveryUnit) {
    runLoop.advanceBy(2000ms);
    const auto length = controller.eventLog().size();
    controller.restoreDefaultSettings();
    EXPECT_EQ(lastSent(), "255.255.255.255:3520 ^^IdZ");
    runLoop.advanceBy(1000ms);
    const Lines toEveryUnit{"255.255.255.255:3520 ^^IdX", "255.255.255.255:3520 ^^IdZ",
                            "255.255.255.255:3520 ^^IdX"}; // the first is from the launch
    EXPECT_EQ(sent(), toEveryUnit);
    EXPECT_EQ(logSince(length), (Lines{"Request unit parameters with address: 255.255.255.255",
                                       "UDP server did send data.",
                                       "Request unit parameters with address: 255.255.255.255",
                                       "UDP server did send data."}));
}

TEST_F(ControllerEditing, ReloadAfterARestoreAsksWhoeverIsSelectedThen) {
    runLoop.advanceBy(2000ms);
    controller.restoreDefaultSettings();
    runLoop.advanceBy(500ms);
    receive(SampleUnit().reply());
    window.unitSelectPopUp.addItemsWithTitles({"01 02 03 04 05 06"});
    controller.unitSelectPopUp();
    runLoop.advanceBy(500ms);
    EXPECT_EQ(lastSent(), "192.168.1.10:10000 ^^IdX");
}

TEST_F(ControllerEditing, RestoreThroughAStoppedListenerIsAFailedSendTwice) {
    systemCalls.failNext(Operation::bind, EADDRINUSE);
    controller.discoverButton();
    const auto length = controller.eventLog().size();
    controller.restoreDefaultSettings();
    runLoop.advanceBy(1000ms);
    const Lines once{"Request unit parameters with address: 255.255.255.255",
                     "UDP failed to send data.", "  The UDP listener is not running."};
    Lines twice = once;
    twice.insert(twice.end(), once.begin(), once.end());
    EXPECT_EQ(logSince(length), twice);
}

} // namespace kx
