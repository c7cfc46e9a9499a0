// Apply: each parameter's command on the wire, for values of every kind.

#include "ControllerFixture.h"

#include <array>

namespace kx {

namespace {

class ControllerApply : public ControllerTest {
protected:
    ControllerApply() { launch(); }

    using ControllerTest::apply;

    void apply(const std::string& name, const std::string& value) {
        fillEditRow(name, value);
        controller.applyEditParameterButton();
    }

    // The command that Apply sends to a unit that was just discovered; "(nothing)" when it sends
    // none.
    std::string sentFor(const std::string& name, const std::string& value) {
        discover({SampleUnit()});
        const std::size_t before = sent().size();
        const std::string logBefore = controller.eventLog();
        apply(name, value);
        if (sent().size() == before) {
            EXPECT_EQ(controller.eventLog(), logBefore);
            return "(nothing)";
        }
        EXPECT_EQ(sent().size(), before + 1);
        return lastSent();
    }
};

const std::string overlong(10'000, '7');
const std::string nonASCII = "Zürich";
const std::string notUTF8 = "A\xFF\xC0\x80";
const std::string hostile = "%n%s%@; ^^IdZ $(reboot) '\"\t";

} // namespace

// How a value becomes an argument is tested with editCommand().
TEST_F(ControllerApply, EachNameSendsItsOwnCommandToTheUnit) {
    const std::vector<std::array<std::string, 3>> cases{
        {"internal MAC address", "00:1a:2B:3c:4D:5e", "^^IdM001a2B3c4D5e"},
        {"destination MAC address", "00:0A:0B:0C:0D:0E", "^^IdC000A0B0C0D0E"},
        {"destination IP address", "192.168.1.20", "^^IdDC0A80114"},
        {"destination Port number", "3523", "^^IdT0DC3"},
        {"device Port number", "10001", "^^IdP2711"},
        {"unit ID", "12", "^^IdU00000000000C"},
        {"serial number", "00 1A 2B 3C 4D 5E", "^^IdS001A2B3C4D5E"},
    };
    ASSERT_EQ(cases.size() + 1, parameterTable.size()) << "all but the internal IP address";
    for (const auto& [name, value, command] : cases) {
        EXPECT_EQ(sentFor(name, value), "192.168.1.10:10000 " + command) << name;
    }
}

TEST_F(ControllerApply, WhateverIsTypedIsSentWholeAndAsItIs) {
    for (const std::string& typed : {overlong, hostile}) {
        EXPECT_EQ(sentFor("internal MAC address", typed), "192.168.1.10:10000 ^^IdM" + typed);
    }
}

TEST_F(ControllerApply, AnEmptyValueSendsNothing) {
    for (const auto& row : parameterTable) {
        EXPECT_EQ(sentFor(std::string(row.name), ""), "(nothing)") << row.name;
    }
}

TEST_F(ControllerApply, ACommandThatWouldNotBeASCIIIsNotSent) {
    for (const char* name : {"internal MAC address", "destination MAC address", "serial number"}) {
        EXPECT_EQ(sentFor(name, nonASCII), "(nothing)") << name;
        EXPECT_EQ(sentFor(name, notUTF8), "(nothing)") << name;
    }
}

TEST_F(ControllerApply, AValueThatIsNotASCIIIsSentWhereTheCommandIs) {
    EXPECT_EQ(sentFor("destination IP address", nonASCII), "192.168.1.10:10000 ^^IdD00000000");
    EXPECT_EQ(sentFor("device Port number", notUTF8), "192.168.1.10:10000 ^^IdP0000");
    EXPECT_EQ(sentFor("unit ID", "ü"), "192.168.1.10:10000 ^^IdUC3BC");
}

TEST_F(ControllerApply, UnitIDThatIsNotUTF8IsLoggedAndNotSent) {
    discover({SampleUnit()});
    const std::size_t before = sent().size();
    const auto length = controller.eventLog().size();
    apply("unit ID", notUTF8);
    EXPECT_EQ(sent().size(), before);
    EXPECT_EQ(logSince(length), Lines{"Unit ID could not be converted to 6-byte UTF-8 string"});
}

TEST_F(ControllerApply, ADatagramIsTheCommandAndNothingElse) {
    discover({SampleUnit()});
    apply("destination Port number", "3523");
    EXPECT_EQ(systemCalls.sentDatagrams().back().data, textBytes("^^IdT0DC3"));
}

TEST_F(ControllerApply, AnEditIsLoggedAsASentCommand) {
    discover({SampleUnit()});
    const auto length = controller.eventLog().size();
    apply("destination Port number", "3523");
    EXPECT_EQ(logSince(length),
              (Lines{"Send to: 192.168.1.10 command: ^^IdT0DC3", "UDP server did send data."}));
}

TEST_F(ControllerApply, AnUnknownNameDoesNothing) {
    discover({SampleUnit()});
    const auto before = controller.eventLog();
    for (const char* name : {"", "Unit ID", "unit ID ", "<O>", "parameterValue"}) {
        const std::size_t sentBefore = sent().size();
        apply(name, "7");
        EXPECT_EQ(sent().size(), sentBefore) << name;
        EXPECT_EQ(controller.eventLog(), before) << name;
    }
}

TEST_F(ControllerApply, WithoutASelectedUnitNothingIsSentOrLogged) {
    runLoop.advanceBy(2000ms);
    const auto before = controller.eventLog();
    const std::size_t sentBefore = sent().size();
    for (const UnitParameter parameter : allUnitParameters) {
        if (parameter != UnitParameter::internalIPAddress) {
            apply(std::string(nameOfUnitParameter(parameter)), "7");
        }
    }
    EXPECT_EQ(sent().size(), sentBefore);
    EXPECT_EQ(controller.eventLog(), before);
}

TEST_F(ControllerApply, AUnitWithoutAnAddressGetsNothing) {
    SampleUnit unit;
    receive(joined({unit.header(), item("<M>", unit.internalMAC), item("<S>", unit.serial)}));
    runLoop.advanceBy(2000ms);
    ASSERT_EQ(selectedUnit(), "01 02 03 04 05 06");
    const auto before = controller.eventLog();
    const std::size_t sentBefore = sent().size();
    apply("unit ID", "7");
    EXPECT_EQ(sent().size(), sentBefore);
    EXPECT_EQ(controller.eventLog(), before);
}

TEST_F(ControllerApply, EveryOperationSendsTheEditRowsValueWhateverItsNameIs) {
    discover({SampleUnit()});
    fillEditRow("unit ID", "3521");
    controller.edit_internalMAC();
    controller.edit_destIP();
    controller.edit_destPort();
    controller.edit_devicePort();
    controller.edit_unitID();
    controller.edit_destMAC();
    controller.edit_serial();
    const Lines all = sent();
    const std::string unit = "192.168.1.10:10000 ";
    EXPECT_EQ(
        Lines(all.end() - 7, all.end()),
        (Lines{unit + "^^IdM3521", unit + "^^IdD00000000", unit + "^^IdT0DC1", unit + "^^IdP0DC1",
               unit + "^^IdU000000000DC1", unit + "^^IdC3521", unit + "^^IdS3521"}));
}

TEST_F(ControllerApply, ApplyKeepsTheEditRow) {
    discover({SampleUnit()});
    apply("unit ID", "7");
    EXPECT_EQ(editRows(), Lines{"unit ID = 7"});
}

TEST_F(ControllerApply, AnOpenEditIsStoredBeforeItIsSent) {
    discover({SampleUnit()});
    fillEditRow("unit ID", "7");
    window.window.beginEdit(
        [&] { window.editParameterTableView.typeIntoCell(0, "parameterValue", "8"); }, false);
    controller.applyEditParameterButton();
    EXPECT_EQ(lastSent(), "192.168.1.10:10000 ^^IdU000000000008");
    EXPECT_FALSE(window.window.isEditing());
    EXPECT_EQ(window.window.endEditingCount(), 0);
}

TEST_F(ControllerApply, AnEditThatRefusesToEndIsEndedByForce) {
    discover({SampleUnit()});
    fillEditRow("unit ID", "7");
    window.window.beginEdit(
        [&] { window.editParameterTableView.typeIntoCell(0, "parameterValue", "9"); }, true);
    controller.applyEditParameterButton();
    EXPECT_EQ(lastSent(), "192.168.1.10:10000 ^^IdU000000000009");
    EXPECT_EQ(window.window.endEditingCount(), 1);
}

TEST_F(ControllerApply, TheEditThatEndsIsInTheWindowThatWasSet) {
    RecordedWindow other;
    window.window.beginEdit([] {}, false);
    other.beginEdit([] {}, false);
    controller.setWindow(&other);
    EXPECT_EQ(controller.window(), &other);
    controller.applyEditParameterButton();
    EXPECT_FALSE(other.isEditing());
    EXPECT_TRUE(window.window.isEditing());
}

TEST_F(ControllerApply, AnEditGoesToTheUnitThatIsSelectedNow) {
    SampleUnit second = secondSampleUnit();
    second.devicePort = {0x0D, 0xC1};
    discover({SampleUnit(), second});
    selectRow(UnitParameter::unitID);
    selectUnit("01 02 03 04 05 07");
    controller.applyEditParameterButton();
    EXPECT_EQ(lastSent(), "192.168.1.11:3521 ^^IdU00000000002A");
}

TEST_F(ControllerApply, TheUnitsOkMakesTheFreshValueShow) {
    discover({SampleUnit()});
    apply("destination Port number", "3523");
    SampleUnit changed;
    changed.destinationPort = {0x0D, 0xC3};
    receive(changed.acknowledgement());
    EXPECT_EQ(lastSent(), "192.168.1.10:10000 ^^IdX");
    receive(changed.reply());
    EXPECT_EQ(parameterRows().at(2), "destination Port number = 3523");
}

TEST_F(ControllerApply, ApplyBeforeLaunchAndAfterTheEndDoesNothing) {
    controller.applicationWillTerminate();
    controller.applyEditParameterButton();
    EXPECT_EQ(sent().size(), 1U);

    RecordedMainWindow other;
    KXConfigAppDelegate notLaunched(
        other.outlets(), {runLoop, hostResolver, systemCalls, wallClock, application, nullptr});
    notLaunched.applyEditParameterButton();
    EXPECT_EQ(sent().size(), 1U);
}

} // namespace kx
