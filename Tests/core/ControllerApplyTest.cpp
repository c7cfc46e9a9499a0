// Apply: each parameter's command on the wire, for values of every kind.

#include "ControllerFixture.h"

#include <utility>

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

    void expectSent(const std::string& name,
                    const std::vector<std::pair<std::string, std::string>>& cases) {
        for (const auto& [value, command] : cases) {
            EXPECT_EQ(sentFor(name, value), "192.168.1.10:10000 " + command) << value;
        }
    }

    void expectNothingSent(const std::string& name, const std::vector<std::string>& values) {
        for (const auto& value : values) {
            EXPECT_EQ(sentFor(name, value), "(nothing)") << value;
        }
    }
};

const std::string overlong(10'000, '7');
const std::string nonASCII = "Zürich";
const std::string notUTF8 = "A\xFF\xC0\x80";
const std::string hostile = "%n%s%@; ^^IdZ $(reboot) '\"\t";

} // namespace

TEST_F(ControllerApply, InternalMACAddressIsSentWithoutItsColons) {
    expectSent("internal MAC address", {
                                           {"00:1A:2B:3C:4D:5E", "^^IdM001A2B3C4D5E"},
                                           {"00:1a:2B:3c:4D:5e", "^^IdM001a2B3c4D5e"},
                                           {"001A2B3C4D5E", "^^IdM001A2B3C4D5E"},
                                           {"::1:A::", "^^IdM1A"},
                                           {":", "^^IdM"},
                                           {"00-1A 2B", "^^IdM00-1A 2B"},
                                           {overlong, "^^IdM" + overlong},
                                           {hostile, "^^IdM" + hostile},
                                       });
    expectNothingSent("internal MAC address", {"", nonASCII, notUTF8});
}

TEST_F(ControllerApply, DestinationMACAddressIsSentWithoutItsColons) {
    expectSent("destination MAC address", {
                                              {"00:0A:0B:0C:0D:0E", "^^IdC000A0B0C0D0E"},
                                              {"no address", "^^IdCno address"},
                                              {overlong, "^^IdC" + overlong},
                                              {hostile, "^^IdC" + hostile},
                                          });
    expectNothingSent("destination MAC address", {"", nonASCII, notUTF8});
}

TEST_F(ControllerApply, DestinationIPAddressIsSentAsItIsRead) {
    expectSent("destination IP address", {
                                             {"192.168.1.20", "^^IdDC0A80114"},
                                             {" 10.0.0.7 and more", "^^IdD0A000007"},
                                             {"300.1.1.1", "^^IdD2C010101"},
                                             {"255.255.255.255", "^^IdDFFFFFFFF"},
                                             {"unit.example", "^^IdD00000000"},
                                             {"1.2.3", "^^IdD00000000"},
                                             {nonASCII, "^^IdD00000000"},
                                             {notUTF8, "^^IdD00000000"},
                                             {overlong, "^^IdD00000000"},
                                             {hostile, "^^IdD00000000"},
                                         });
    expectNothingSent("destination IP address", {""});
}

TEST_F(ControllerApply, DestinationPortIsKeptInItsRange) {
    expectSent("destination Port number", {
                                              {"3520", "^^IdT0DC0"},
                                              {"3523", "^^IdT0DC3"},
                                              {"3519", "^^IdT0DC0"},
                                              {"3524", "^^IdT0DC0"},
                                              {"80", "^^IdT0DC0"},
                                              {"-1", "^^IdT0DC0"},
                                              {"none", "^^IdT0DC0"},
                                              {" 3521x", "^^IdT0DC1"},
                                              {nonASCII, "^^IdT0DC0"},
                                              {"3522ü", "^^IdT0DC2"},
                                              {overlong, "^^IdT0DC0"},
                                              {hostile, "^^IdT0DC0"},
                                          });
    expectNothingSent("destination Port number", {""});
}

TEST_F(ControllerApply, DevicePortIsSentUnchecked) {
    expectSent("device Port number", {
                                         {"10001", "^^IdP2711"},
                                         {"80", "^^IdP0050"},
                                         {"70000", "^^IdP11170"},
                                         {"-1", "^^IdPFFFFFFFF"},
                                         {"none", "^^IdP0000"},
                                         {"12ab", "^^IdP000C"},
                                         {nonASCII, "^^IdP0000"},
                                         {overlong, "^^IdP7FFFFFFF"},
                                         {hostile, "^^IdP0000"},
                                     });
    expectNothingSent("device Port number", {""});
}

TEST_F(ControllerApply, UnitIDIsANumberOrTheBytesOfItsText) {
    expectSent("unit ID", {
                              {"7", "^^IdU000000000007"},
                              {"12", "^^IdU00000000000C"},
                              {"7AB", "^^IdU000000000007"},
                              {"AB", "^^IdU4142"},
                              {"letters", "^^IdU6C657474657273"},
                              {"-1", "^^IdU2D31"},
                              {" 5", "^^IdU2035"},
                              {"ü", "^^IdUC3BC"},
                              {"a\tb", "^^IdU610962"},
                              {overlong, "^^IdU00007FFFFFFF"},
                          });
    expectNothingSent("unit ID", {""});
    std::string digits = "^^IdU";
    for (int i = 0; i < 3000; ++i) {
        digits += "41";
    }
    EXPECT_EQ(sentFor("unit ID", std::string(3000, 'A')), "192.168.1.10:10000 " + digits);
}

TEST_F(ControllerApply, UnitIDThatIsNotUTF8IsLoggedAndNotSent) {
    discover({SampleUnit()});
    const std::size_t before = sent().size();
    const auto length = controller.eventLog().size();
    apply("unit ID", notUTF8);
    EXPECT_EQ(sent().size(), before);
    EXPECT_EQ(logSince(length), Lines{"Unit ID could not be converted to 6-byte UTF-8 string"});
}

TEST_F(ControllerApply, SerialNumberIsSentWithoutItsBlanks) {
    expectSent("serial number", {
                                    {"00 1A 2B 3C 4D 5E", "^^IdS001A2B3C4D5E"},
                                    {"  001a2b 3c4d5e ", "^^IdS001a2b3c4d5e"},
                                    {"00:1A\t2B", "^^IdS00:1A\t2B"},
                                    {"   ", "^^IdS"},
                                    {overlong, "^^IdS" + overlong},
                                    {"%n;$(x)", "^^IdS%n;$(x)"},
                                });
    expectNothingSent("serial number", {"", nonASCII, notUTF8});
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
