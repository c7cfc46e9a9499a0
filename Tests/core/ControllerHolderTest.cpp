// While a new address stands in the edit row, the quiet line says who holds it.

#include "ControllerFixture.h"

namespace kx {

namespace {

const std::string forecastOfMove =
    "Apply enters 192.168.1.11 at 00:1A:2B:3C:4D:5E in the ARP cache, which needs administrator "
    "rights. Apply sends ^^IdIC0A8010B to 192.168.1.11.";
const std::string heldBySecond =
    " 192.168.1.11 is held by 00:1A:2B:3C:4D:5F, unit 01 02 03 04 05 07.";

const std::string toldBySecond = " The unit 01 02 03 04 05 07 has it.";

class ControllerHolder : public ControllerTest {
protected:
    static constexpr std::uint32_t link = 2;

    ControllerHolder() {
        interfaces.addService("Ethernet", "eth0", "192.168.1.20", "255.255.255.0");
        launch();
        for (const auto& unit : {SampleUnit(), secondSampleUnit()}) {
            receiveByLink(unit.reply());
        }
        runLoop.advanceBy(2000ms);
        selectRow(UnitParameter::internalIPAddress);
        sentBefore = sent().size();
    }

    void receiveByLink(const Bytes& reply) {
        systemCalls.queueDatagram(reply, dataForAddress(addressToldIn(reply), 3520), link);
        runLoop.makeReadable(systemCalls.lastDescriptor());
    }

    void setEntry(NeighbourState state, const std::string& hardware = {},
                  const std::string& address = "192.168.1.11") {
        neighbours.entries[ipForString(address)] = {.state = state, .hardwareAddress = hardware};
    }

    Lines newlySent() const {
        const Lines all = sent();
        return {all.begin() + static_cast<std::ptrdiff_t>(sentBefore), all.end()};
    }

    std::size_t sentBefore = 0;
};

} // namespace

TEST_F(ControllerHolder, TheLineNamesTheHolderAndItsUnit) {
    controller.editTextDidChange("192.168.1.11");
    EXPECT_EQ(quietLine(), forecastOfMove + toldBySecond);
    setEntry(NeighbourState::reachable, "00:1A:2B:3C:4D:5F");
    runLoop.advanceBy(500ms);
    EXPECT_EQ(newlySent(), Lines{"192.168.1.11:9 "});
    runLoop.advanceBy(50ms);
    EXPECT_EQ(quietLine(), forecastOfMove + heldBySecond);
}

TEST_F(ControllerHolder, AHolderThatIsNoKnownUnitHasNoSerialNumber) {
    controller.editTextDidChange("192.168.1.11");
    setEntry(NeighbourState::reachable, "02:00:00:00:00:99");
    runLoop.advanceBy(550ms);
    EXPECT_EQ(quietLine(), forecastOfMove + " 192.168.1.11 is held by 02:00:00:00:00:99.");
}

TEST_F(ControllerHolder, AFreeAddressIsSaidToBeFree) {
    store("192.168.1.77");
    const std::string before = quietLine();
    setEntry(NeighbourState::asking, {}, "192.168.1.77");
    runLoop.advanceBy(3500ms);
    EXPECT_EQ(quietLine(), before);
    EXPECT_FALSE(window.quietLine.meansTrouble());
    setEntry(NeighbourState::failed, {}, "192.168.1.77");
    runLoop.advanceBy(50ms);
    EXPECT_EQ(quietLine(), before + " 192.168.1.77 is free: nobody answers for it.");
    EXPECT_FALSE(window.quietLine.meansTrouble());
}

TEST_F(ControllerHolder, AnAddressThatASilentUnitHasToldIsNotCalledFree) {
    store("192.168.1.11");
    setEntry(NeighbourState::failed);
    runLoop.advanceBy(4s);
    EXPECT_EQ(quietLine(), forecastOfMove + toldBySecond);
}

TEST_F(ControllerHolder, AfterReturnWhatAppliesStandsInThePlaceOfTheARPEntry) {
    store("192.168.1.11");
    setEntry(NeighbourState::reachable, "00:1A:2B:3C:4D:5F");
    runLoop.advanceBy(550ms);
    controller.editTextWasKept();
    EXPECT_EQ(quietLine(), "Apply sends ^^IdIC0A8010B to 192.168.1.11. Return ends the typing; "
                           "Ctrl+Return applies." +
                               heldBySecond);
}

TEST_F(ControllerHolder, AHolderMeansTrouble) {
    controller.editTextDidChange("192.168.1.77");
    setEntry(NeighbourState::reachable, "02:00:00:00:00:99", "192.168.1.77");
    runLoop.advanceBy(550ms);
    EXPECT_TRUE(window.quietLine.meansTrouble());
}

TEST_F(ControllerHolder, AfterFourSecondsItIsSaidThatNobodyKnows) {
    store("192.168.1.77");
    const std::string before = quietLine();
    runLoop.advanceBy(4500ms);
    EXPECT_EQ(quietLine(), before + " Whether somebody holds 192.168.1.77 could not be found out.");
}

TEST_F(ControllerHolder, NobodyIsAskedWhileAPersonTypes) {
    for (const char* const text : {"1", "192.168.1", "192.168.1.1", "192.168.1.11"}) {
        controller.editTextDidChange(text);
        runLoop.advanceBy(499ms);
    }
    EXPECT_EQ(newlySent(), Lines{});
    runLoop.advanceBy(1ms);
    EXPECT_EQ(newlySent(), Lines{"192.168.1.11:9 "});
}

TEST_F(ControllerHolder, OnlyAWholeAddressIsAskedFor) {
    for (const char* const text : {"192.168.1", "192.168.1.", "192.168.1.011", "192.168.1.11 ",
                                   "host", "", "192.168.1.300"}) {
        controller.editTextDidChange(text);
        runLoop.advanceBy(5s);
        EXPECT_EQ(newlySent(), Lines{}) << text;
    }
}

TEST_F(ControllerHolder, NobodyIsAskedForTheAddressThatTheUnitTells) {
    runLoop.advanceBy(5s);
    EXPECT_EQ(newlySent(), Lines{});
    store("192.168.1.10");
    runLoop.advanceBy(5s);
    EXPECT_EQ(newlySent(), Lines{});
}

TEST_F(ControllerHolder, NothingLeavesForAnAddressBeyondTheLink) {
    for (const char* const address :
         {"192.168.2.11", "10.0.0.7", "192.168.1.20", "192.168.1.0", "192.168.1.255"}) {
        controller.editTextDidChange(address);
        runLoop.advanceBy(20s);
        EXPECT_EQ(newlySent(), Lines{}) << address;
    }
}

TEST_F(ControllerHolder, NobodyIsAskedForAnotherParameter) {
    fillEditRow("destination IP address", "192.168.1.11");
    runLoop.advanceBy(5s);
    EXPECT_EQ(newlySent(), Lines{});
}

TEST_F(ControllerHolder, TheQuestionEndsWhenTheRowChanges) {
    controller.editTextDidChange("192.168.1.11");
    runLoop.advanceBy(400ms);
    selectRow(UnitParameter::devicePortNumber);
    runLoop.advanceBy(5s);
    EXPECT_EQ(newlySent(), Lines{});

    selectRow(UnitParameter::internalIPAddress);
    controller.editTextDidChange("192.168.1.11");
    runLoop.advanceBy(500ms);
    selectRow(UnitParameter::devicePortNumber);
    const std::string line = quietLine();
    setEntry(NeighbourState::reachable, "00:1A:2B:3C:4D:5F");
    runLoop.advanceBy(5s);
    EXPECT_EQ(quietLine(), line);
}

TEST_F(ControllerHolder, AnotherAddressIsAnotherQuestion) {
    controller.editTextDidChange("192.168.1.11");
    setEntry(NeighbourState::reachable, "00:1A:2B:3C:4D:5F");
    runLoop.advanceBy(550ms);
    controller.editTextDidChange("192.168.1.111");
    EXPECT_EQ(quietLine().find("is held by"), std::string::npos) << quietLine();
    controller.editTextDidChange("192.168.1.11");
    EXPECT_EQ(quietLine(), forecastOfMove + toldBySecond);
    runLoop.advanceBy(550ms);
    EXPECT_EQ(quietLine(), forecastOfMove + heldBySecond);
}

TEST_F(ControllerHolder, AnotherUnitThatAnswersChangesNothing) {
    controller.editTextDidChange("192.168.1.11");
    setEntry(NeighbourState::reachable, "00:1A:2B:3C:4D:5F");
    runLoop.advanceBy(400ms);
    receiveByLink(secondSampleUnit().reply());
    runLoop.advanceBy(150ms);
    EXPECT_EQ(quietLine(), forecastOfMove + heldBySecond);
    const int shown = window.quietLine.setCount();
    receiveByLink(secondSampleUnit().reply());
    EXPECT_EQ(window.quietLine.setCount(), shown);
}

TEST_F(ControllerHolder, TheAnswerOfOneUnitIsNotShownForAnother) {
    controller.editTextDidChange("192.168.1.77");
    runLoop.advanceBy(4500ms);
    EXPECT_NE(quietLine().find("could not be found out"), std::string::npos);
    selectUnit("01 02 03 04 05 07");
    controller.editTextDidChange("192.168.1.11");
    EXPECT_EQ(quietLine().find("is held by"), std::string::npos) << "it is this unit's own address";
    runLoop.advanceBy(5s);
    EXPECT_EQ(newlySent(), Lines{"192.168.1.77:9 "});
}

TEST_F(ControllerHolder, ApplyStaysAsItIsAndEndsTheQuestion) {
    store("192.168.1.11");
    setEntry(NeighbourState::reachable, "00:1A:2B:3C:4D:5F");
    runLoop.advanceBy(400ms);
    controller.applyEditParameterButton();
    EXPECT_EQ(newlySent(), Lines{"192.168.1.11:10000 ^^IdIC0A8010B"});
    EXPECT_EQ(authority.runs().size(), 1U);
    runLoop.advanceBy(5s);
    EXPECT_EQ(newlySent().size(), 1U);
    EXPECT_EQ(quietLine(), "Sent ^^IdIC0A8010B. The unit has not answered.");
}

TEST_F(ControllerHolder, AMessageStaysUntilTheNextForecast) {
    controller.editTextDidChange("192.168.1.11");
    setEntry(NeighbourState::reachable, "00:1A:2B:3C:4D:5F");
    helpOpens = false;
    controller.myHelp();
    const std::string message = quietLine();
    runLoop.advanceBy(550ms);
    EXPECT_EQ(quietLine(), message);
    controller.editTextDidChange("192.168.1.1");
    controller.editTextDidChange("192.168.1.11");
    runLoop.advanceBy(550ms);
    EXPECT_EQ(quietLine(), forecastOfMove + heldBySecond);
}

TEST_F(ControllerHolder, NothingOfItEntersTheEventLog) {
    const std::string before = controller.eventLog();
    controller.editTextDidChange("192.168.1.11");
    setEntry(NeighbourState::reachable, "00:1A:2B:3C:4D:5F");
    runLoop.advanceBy(5s);
    EXPECT_EQ(controller.eventLog(), before);
}

TEST_F(ControllerHolder, TheEndOfTheApplicationEndsTheQuestion) {
    controller.editTextDidChange("192.168.1.11");
    controller.applicationWillTerminate();
    runLoop.advanceBy(5s);
    EXPECT_EQ(newlySent(), Lines{});
}

} // namespace kx
