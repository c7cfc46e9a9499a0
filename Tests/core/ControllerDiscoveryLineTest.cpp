// The line below Discover, from the button to two seconds later, and which titles are dimmed.

#include "ControllerFixture.h"

namespace kx {

namespace {

constexpr auto firstTitle = "01 02 03 04 05 06";
constexpr auto secondTitle = "01 02 03 04 05 07";

class ControllerDiscoveryLine : public ControllerTest {
protected:
    ControllerDiscoveryLine() {
        interfaces.addService("Ethernet", "eth0", "192.168.1.20", "255.255.255.0");
        interfaces.addService("Wi-Fi", "wlan0", "10.1.2.3", "255.255.255.0");
        launch();
        choose("Ethernet (eth0)");
        runLoop.advanceBy(2000ms);
    }

    void choose(const std::string& title) {
        window.interfacePopUp.selectItemWithTitle(title);
        controller.interfaceSelect();
    }

    std::string lineAfter(const std::vector<SampleUnit>& units) {
        discover(units);
        return discoveryLine();
    }

    Titles dimmed() const { return window.unitSelectPopUp.dimmedTitles(); }
};

} // namespace

TEST_F(ControllerDiscoveryLine, CountsWhileUnitsHaveTimeToAnswer) {
    controller.discoverButton();
    EXPECT_EQ(discoveryLine(), "Asking 192.168.1.255, port 3520: no unit has answered yet");
    receive(SampleUnit().reply());
    runLoop.advanceBy(100ms);
    EXPECT_EQ(discoveryLine(), "Asking 192.168.1.255, port 3520: 1 unit answered");
    receive(secondSampleUnit().reply());
    runLoop.advanceBy(100ms);
    EXPECT_EQ(discoveryLine(), "Asking 192.168.1.255, port 3520: 2 units answered");
    runLoop.advanceBy(1799ms);
    EXPECT_TRUE(discoveryLine().starts_with("Asking"));
    runLoop.advanceBy(1ms);
    EXPECT_EQ(discoveryLine(), "2 units answered.");
}

TEST_F(ControllerDiscoveryLine, IsNotWrittenAnewForEachOfManyAnswers) {
    controller.discoverButton();
    const int before = window.discoveryLine.setCount();
    SampleUnit unit;
    for (std::uint8_t number = 0; number < 200; ++number) {
        unit.serial.back() = number;
        unit.internalMAC.back() = number;
        unit.internalIP.back() = number;
        receive(unit.reply());
    }
    runLoop.advanceBy(100ms);
    EXPECT_EQ(window.discoveryLine.setCount() - before, 1);
    EXPECT_TRUE(discoveryLine().ends_with("200 units answered"));
}

TEST_F(ControllerDiscoveryLine, TheSecondUnitToAnswerCountsAlsoAfterADiscoveryWithOneAnswer) {
    lineAfter({SampleUnit()});
    controller.discoverButton();
    receive(SampleUnit().reply());
    runLoop.advanceBy(100ms);
    EXPECT_TRUE(discoveryLine().ends_with("1 unit answered"));
}

TEST_F(ControllerDiscoveryLine, WhileADiscoveryIsRepeatedItGoesOnCounting) {
    controller.discoverButton();
    runLoop.advanceBy(1500ms);
    controller.discoverButton();
    receive(SampleUnit().reply());
    runLoop.advanceBy(1900ms);
    EXPECT_TRUE(discoveryLine().starts_with("Asking")) << "the first of the two is over";
    EXPECT_EQ(window.unitSelectPopUp.titles(), Titles{firstTitle});
    runLoop.advanceBy(100ms);
    EXPECT_EQ(discoveryLine(), "1 unit answered.");
}

TEST_F(ControllerDiscoveryLine, SaysTheLikeliestCauseWhenNobodyAnswersAndAsksForItThenOnly) {
    controller.applicationWillTerminate();
    int asked = 0;
    KXConfigAppDelegate diagnosing(window.outlets(),
                                   {.runLoop = runLoop,
                                    .hostResolver = hostResolver,
                                    .systemCalls = systemCalls,
                                    .wallClock = wallClock,
                                    .application = application,
                                    .networkInterfaces = &interfaces,
                                    .likeliestCause = [&asked] {
                                        ++asked;
                                        return asked == 1 ? std::optional<std::string>("It rains.")
                                                          : std::nullopt;
                                    }});
    diagnosing.applicationDidFinishLaunching();
    EXPECT_EQ(asked, 0);
    runLoop.advanceBy(2000ms);
    EXPECT_EQ(discoveryLine(),
              "No unit answered. It rains. No interface is chosen: asked 255.255.255.255.");
    diagnosing.discoverButton();
    receive(SampleUnit().reply());
    runLoop.advanceBy(2000ms);
    EXPECT_EQ(asked, 1) << "somebody has answered";
    diagnosing.discoverButton();
    runLoop.advanceBy(2000ms);
    EXPECT_EQ(discoveryLine(), "No unit answered. The one listed answered earlier. No interface "
                               "is chosen: asked 255.255.255.255.");
}

TEST_F(ControllerDiscoveryLine, WhenThePortIsTakenItSaysSoAtOnceAndUntilTheNextDiscover) {
    systemCalls.failNext(Operation::bind, EADDRINUSE);
    controller.discoverButton();
    EXPECT_EQ(discoveryLine(), "Port 3520 is taken by another program. Choose another port.");
    runLoop.advanceBy(2000ms);
    EXPECT_EQ(discoveryLine(), "Port 3520 is taken by another program. Choose another port.");
    EXPECT_TRUE(window.discoveryLine.meansTrouble());
    window.udpPortPopUp.selectItemWithTitle("3521");
    controller.udpPortSelect();
    EXPECT_TRUE(discoveryLine().starts_with("Asking"));
    EXPECT_FALSE(window.discoveryLine.meansTrouble());
    runLoop.advanceBy(2000ms);
    EXPECT_TRUE(window.discoveryLine.meansTrouble()) << "nobody has answered";
}

TEST_F(ControllerDiscoveryLine, WhenTheRequestDoesNotLeaveItSaysSoAtOnce) {
    systemCalls.failNext(Operation::sendTo, ENETUNREACH);
    controller.discoverButton();
    EXPECT_EQ(discoveryLine(), "No request was sent: " + posixErrorText(ENETUNREACH) + ".");
    systemCalls.failNext(Operation::enableBroadcast, EACCES);
    controller.discoverButton();
    EXPECT_EQ(discoveryLine(), "No request was sent: " + posixErrorText(EACCES) + ".");
}

TEST_F(ControllerDiscoveryLine, WhoAnsweredEarlierStaysListedAndIsCounted) {
    EXPECT_EQ(lineAfter({SampleUnit(), secondSampleUnit()}), "2 units answered.");
    EXPECT_EQ(lineAfter({}), "No unit answered. The 2 listed answered earlier.");
    EXPECT_EQ(lineAfter({SampleUnit()}),
              "1 of the 2 listed answered. 01 02 03 04 05 06 answers again.");
}

TEST_F(ControllerDiscoveryLine, SaysWhatIsDifferentFromTheDiscoveryBefore) {
    discover({SampleUnit(), secondSampleUnit()});
    EXPECT_EQ(lineAfter({SampleUnit(), secondSampleUnit()}), "2 units answered.");
    EXPECT_EQ(lineAfter({SampleUnit()}),
              "1 of the 2 listed answered. 01 02 03 04 05 07 answered last time and not now.");
    SampleUnit third = secondSampleUnit();
    third.serial.back() = 8;
    third.internalIP.back() = 12;
    EXPECT_EQ(lineAfter({SampleUnit(), third}),
              "2 of the 3 listed answered. 01 02 03 04 05 08 is new.");
    EXPECT_EQ(lineAfter({SampleUnit()}),
              "1 of the 3 listed answered. 01 02 03 04 05 08 answered last time and not now.");
    SampleUnit changed;
    changed.devicePort = {0x0F, 0xA0};
    EXPECT_EQ(lineAfter({changed}), "1 of the 3 listed answered. 01 02 03 04 05 06 has changed.");
}

TEST_F(ControllerDiscoveryLine, WhatAPersonHasChangedSinceIsNoDifference) {
    discover({SampleUnit()});
    apply(UnitParameter::devicePortNumber, "4000");
    SampleUnit changed;
    changed.devicePort = {0x0F, 0xA0};
    receive(changed.reply());
    EXPECT_EQ(lineAfter({changed}), "1 unit answered.");
}

TEST_F(ControllerDiscoveryLine, AUnitWithANewSerialNumberIsNeitherLateNorMissedUnderItsOldOne) {
    discoverTwo();
    selectUnit(secondTitle);
    apply(UnitParameter::serialNumber, "01 02 03 04 05 08");
    SampleUnit renamed = secondSampleUnit();
    renamed.serial.back() = 8;
    receive(renamed.reply());
    runLoop.advanceBy(100ms);
    EXPECT_TRUE(discoveryLine().starts_with("2 units answered.")) << discoveryLine();
    EXPECT_EQ(lineAfter({SampleUnit(), renamed}), "2 of the 3 listed answered.");
    EXPECT_EQ(dimmed(), Titles{secondTitle});
}

TEST_F(ControllerDiscoveryLine, AnotherUnitWithTheSerialNumberThatWasTypedIsLate) {
    discoverTwo();
    selectUnit(secondTitle);
    apply(UnitParameter::serialNumber, "01 02 03 04 05 08");
    SampleUnit other = secondSampleUnit();
    other.serial.back() = 8;
    other.internalMAC.back() = 0x77;
    receive(other.reply());
    runLoop.advanceBy(100ms);
    EXPECT_EQ(discoveryLine(), "1 unit answered late. Discover again to list it.");
}

TEST_F(ControllerDiscoveryLine, AnotherInterfaceIsNotComparedWithTheOneBefore) {
    discover({SampleUnit(), secondSampleUnit()});
    choose("Wi-Fi (wlan0)");
    SampleUnit third = secondSampleUnit();
    third.serial.back() = 8;
    third.internalIP = {10, 1, 2, 9};
    EXPECT_EQ(lineAfter({third}), "1 of the 3 listed answered.");
    EXPECT_EQ(lineAfter({third}), "1 of the 3 listed answered.") << "these two are compared";
    choose("Ethernet (eth0)");
    EXPECT_EQ(lineAfter({SampleUnit(), secondSampleUnit()}), "2 of the 3 listed answered.");
}

TEST_F(ControllerDiscoveryLine, NothingIsComparedWithADiscoveryThatAskedNobodyOrLostDatagrams) {
    discover({SampleUnit()});
    discoverInVain();
    EXPECT_EQ(lineAfter({SampleUnit(), secondSampleUnit()}), "2 units answered.");
    controller.discoverButton();
    receiveBuffers.drop(systemCalls.lastDescriptor(), 1);
    receive(SampleUnit().reply());
    runLoop.advanceBy(2000ms);
    EXPECT_TRUE(discoveryLine().starts_with("The system dropped 1 datagram"));
    EXPECT_EQ(lineAfter({SampleUnit(), secondSampleUnit()}), "2 units answered.");
    controller.discoverButton();
    EXPECT_EQ(lineAfter({SampleUnit()}), "1 of the 2 listed answered.")
        << "the one before was cut short";
}

TEST_F(ControllerDiscoveryLine, UnitsThatAnswerLateAreSaid) {
    discover({SampleUnit()});
    receive(secondSampleUnit().reply());
    EXPECT_EQ(discoveryLine(), "1 unit answered.");
    runLoop.advanceBy(100ms);
    EXPECT_EQ(discoveryLine(), "1 unit answered late. Discover again to list it.");
    EXPECT_EQ(lineAfter({SampleUnit(), secondSampleUnit()}), "2 units answered.");
}

TEST_F(ControllerDiscoveryLine, AListedUnitThatAnswersLateHasAnswered) {
    discoverTwo();
    EXPECT_EQ(lineAfter({}), "No unit answered. The 2 listed answered earlier.");
    receive(SampleUnit().reply());
    runLoop.advanceBy(100ms);
    EXPECT_TRUE(discoveryLine().starts_with("1 of the 2 listed answered."));
    EXPECT_EQ(dimmed(), Titles{secondTitle});
}

TEST_F(ControllerDiscoveryLine, SendsNothingOfItsOwnAndLogsNothing) {
    discoverTwo();
    const std::size_t before = sent().size();
    discover({SampleUnit()});
    EXPECT_EQ(sent().size() - before, 1U) << "the request";
    EXPECT_EQ(controller.eventLog().find("answered"), std::string::npos) << controller.eventLog();
    receive(secondSampleUnit().reply());
    const std::size_t length = controller.eventLog().size();
    runLoop.advanceBy(5000ms);
    EXPECT_EQ(controller.eventLog().size(), length);
    EXPECT_EQ(sent().size() - before, 1U);
}

TEST_F(ControllerDiscoveryLine, TitlesOfUnitsThatDidNotAnswerAreDimmed) {
    discoverTwo();
    EXPECT_EQ(dimmed(), Titles{});
    discover({secondSampleUnit()});
    EXPECT_EQ(window.unitSelectPopUp.titles(), (Titles{firstTitle, secondTitle}));
    EXPECT_EQ(dimmed(), Titles{firstTitle});
    EXPECT_EQ(window.unitSelectPopUp.dimmedDescription(), "Did not answer the latest Discover.");
    discoverInVain();
    EXPECT_EQ(dimmed(), (Titles{firstTitle, secondTitle}));
    const int before = window.unitSelectPopUp.refreshCount();
    selectUnit(firstTitle);
    controller.reloadUnitParameterButton();
    EXPECT_EQ(window.unitSelectPopUp.refreshCount(), before);
    discover({SampleUnit()});
    EXPECT_GT(window.unitSelectPopUp.refreshCount(), before);
    EXPECT_EQ(dimmed(), Titles{secondTitle});
}

TEST_F(ControllerDiscoveryLine, AfterTheEndNothingIsDimmedByAControllerThatIsGone) {
    discoverTwo();
    discover({});
    controller.applicationWillTerminate();
    EXPECT_EQ(dimmed(), Titles{});
}

TEST_F(ControllerDiscoveryLine, TheNextLaunchIsComparedWithNothing) {
    discoverTwo();
    controller.applicationWillTerminate();
    launch();
    receive(SampleUnit().reply());
    runLoop.advanceBy(2000ms);
    EXPECT_EQ(discoveryLine(), "1 unit answered. No interface is chosen: asked 255.255.255.255.");
}

} // namespace kx
