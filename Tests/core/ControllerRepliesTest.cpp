// Replies in: what of a datagram is logged and kept, and what is sent after it.

#include "ControllerFixture.h"
#include "RegistryRecords.h"
#include "doubles/BrokenText.h"

#include <stdexcept>

namespace kx {

namespace {

class ControllerReplies : public ControllerTest {
protected:
    ControllerReplies() { launch(); }

    // The log lines of a datagram, without the line that counts its bytes.
    Lines logOf(const Bytes& datagram) {
        const auto length = controller.eventLog().size();
        receive(datagram);
        Lines lines = logSince(length);
        EXPECT_EQ(lines.at(0),
                  "UDP listener did receive data. Length: " + std::to_string(datagram.size()));
        lines.erase(lines.begin());
        return lines;
    }
};

const Bytes unitSeven{0, 0, 0, 0, 0, 7};
const Bytes serialOfSeven{0x0A, 0x0B, 0x0C, 0x0D, 0x0E, 0x0F};

} // namespace

TEST_F(ControllerReplies, FourBytesAreAShortPacket) {
    EXPECT_EQ(logOf(textBytes("^^<U")), Lines{"Ignoring short packet"});
    EXPECT_EQ(logOf(textBytes("x")), Lines{"Ignoring short packet"});
}

TEST_F(ControllerReplies, FiveBytesWithoutTheMarkerAreUnknown) {
    EXPECT_EQ(logOf(textBytes("x^<U>")), Lines{"Ignoring unknown packet, prefix != ^^"});
}

TEST_F(ControllerReplies, SecondByteIsNotLookedAt) {
    EXPECT_EQ(logOf(textBytes("^x<X>")), Lines{"Received command: ^^<X>"});
}

TEST_F(ControllerReplies, OwnBroadcastIsLoggedLikeAnyDatagram) {
    EXPECT_EQ(logOf(textBytes("^^IdX")), Lines{"Received command: ^^IdX"});
}

TEST_F(ControllerReplies, TagAloneOfAUnitIsARangeFailure) {
    EXPECT_EQ(logOf(textBytes("^^<U>")), Lines{});
    EXPECT_EQ(systemLog.lines(), Lines{"Exception during echo:didReceiveData:fromAddress: "
                                       "range {5, 6} exceeds data length 5"});
    EXPECT_TRUE(controller.devices().records().empty());
}

TEST_F(ControllerReplies, SerialNumberCutShortIsARangeFailure) {
    EXPECT_EQ(logOf(textBytes("^^<U>ABCDEF<S>12345")), Lines{});
    EXPECT_EQ(systemLog.lines(), Lines{"Exception during echo:didReceiveData:fromAddress: "
                                       "range {14, 6} exceeds data length 19"});
}

TEST_F(ControllerReplies, ItemCutShortStoresNothingAndKeepsTheEarlierRecord) {
    discover({SampleUnit()});
    const auto before = recordsBySerialNumber(controller.devices());
    Bytes datagram = SampleUnit().reply();
    datagram.pop_back(); // the serial number has five bytes left
    datagram[36] = 99;   // the address is another one
    EXPECT_EQ(logOf(datagram), Lines{});
    EXPECT_EQ(systemLog.lines(), Lines{"Exception during echo:didReceiveData:fromAddress: "
                                       "range {3, 6} exceeds data length 8"});
    EXPECT_EQ(recordsBySerialNumber(controller.devices()), before);
    EXPECT_EQ(value("01 02 03 04 05 06", UnitParameter::internalIPAddress), "192.168.1.10");
}

TEST_F(ControllerReplies, OtherTagsAreLoggedAlone) {
    EXPECT_EQ(logOf(textBytes("^^<X>")), Lines{"Received command: ^^<X>"});
}

TEST_F(ControllerReplies, TagThatIsNotUTF8ShowsAsNull) {
    EXPECT_EQ(logOf({'^', '^', 0xFF, 'U', '>'}), Lines{"Received command: ^^(null)"});
}

TEST_F(ControllerReplies, HeaderAloneIsLoggedWithUnitAndSerial) {
    Bytes datagram = replyHeader(unitSeven, serialOfSeven);
    datagram.pop_back();
    EXPECT_EQ(logOf(datagram),
              Lines{"Received command: ^^<U> unit:7 serial:0A 0B 0C 0D 0E 0F cidString:"});
}

TEST_F(ControllerReplies, AcknowledgementReloadsBeforeItIsLogged) {
    EXPECT_EQ(
        logOf(joined({replyHeader(unitSeven, serialOfSeven), textBytes("ok\r")})),
        (Lines{"Request unit parameters with address: 255.255.255.255", "UDP server did send data.",
               "Received command: ^^<U> unit:7 serial:0A 0B 0C 0D 0E 0F cidString:"}));
    EXPECT_EQ(sent().size(), 2U);
    EXPECT_EQ(lastSent(), "255.255.255.255:3520 ^^IdX");
}

TEST_F(ControllerReplies, AcknowledgementAsksTheSelectedUnitWhoeverSentIt) {
    discover({SampleUnit()});
    receive(joined({replyHeader(unitSeven, serialOfSeven), textBytes("ok\r")}));
    EXPECT_EQ(lastSent(), "192.168.1.10:10000 ^^IdX");
}

TEST_F(ControllerReplies, AcknowledgementCountsUnderEveryTag) {
    Bytes datagram = joined({replyHeader(unitSeven, serialOfSeven), textBytes("ok!")});
    datagram[3] = 'X';
    EXPECT_EQ(logOf(datagram), (Lines{"Request unit parameters with address: 255.255.255.255",
                                      "UDP server did send data.", "Received command: ^^<X>"}));
}

TEST_F(ControllerReplies, OtherPayloadIsShownFromItsMarkerOn) {
    EXPECT_EQ(logOf(joined({replyHeader(unitSeven, serialOfSeven), textBytes("hello")})),
              Lines{"Received command: ^^<U> unit:7 serial:0A 0B 0C 0D 0E 0F cidString:$hello"});
}

TEST_F(ControllerReplies, AcknowledgementOfTwoBytesIsNone) {
    EXPECT_EQ(logOf(joined({replyHeader(unitSeven, serialOfSeven), textBytes("ok")})),
              Lines{"Received command: ^^<U> unit:7 serial:0A 0B 0C 0D 0E 0F cidString:$ok"});
    EXPECT_EQ(sent().size(), 1U);
}

TEST_F(ControllerReplies, PayloadThatIsNotUTF8ShowsAsNull) {
    EXPECT_EQ(logOf(joined({replyHeader(unitSeven, serialOfSeven), {'a', 'b', 0xFF}})),
              Lines{"Received command: ^^<U> unit:7 serial:0A 0B 0C 0D 0E 0F cidString:(null)"});
}

TEST_F(ControllerReplies, UnitIDThatIsNotUTF8GivesTheShortLine) {
    EXPECT_EQ(
        logOf(joined({replyHeader({0xFF, 1, 2, 3, 4, 5}, serialOfSeven), textBytes("hello")})),
        Lines{"Received command: ^^<U>"});
}

TEST_F(ControllerReplies, MissingSerialTagGivesTheShortLine) {
    Bytes datagram = replyHeader(unitSeven, serialOfSeven);
    datagram[12] = 's';
    EXPECT_EQ(logOf(datagram), Lines{"Received command: ^^<U>"});
}

TEST_F(ControllerReplies, ZeroBytesOfAUnitIDReachTheLog) {
    EXPECT_EQ(logOf(replyHeader({'A', 'B', 'C', 0, 0, 0}, serialOfSeven)).at(0),
              "Received command: ^^<U> unit:ABC" + std::string(3, '\0') +
                  " serial:0A 0B 0C 0D 0E 0F cidString:$");
}

TEST_F(ControllerReplies, ParameterReplyIsLoggedValueByValueAndStored) {
    EXPECT_EQ(logOf(SampleUnit().reply()),
              (Lines{"Received command: ^^<U> unit:42 serial:01 02 03 04 05 06 cidString:",
                     "\tinternal MAC address: 00:1A:2B:3C:4D:5E",
                     "\tinternal IP address: 192.168.1.10", "\tdestination IP address: 192.168.1.1",
                     "\tdestination Port number: 3520", "\tdevice Port number: 10000",
                     "\tunit ID: 42", "\tdestination MAC address: 00:0A:0B:0C:0D:0E",
                     "\tserial number: 01 02 03 04 05 06"}));
    ASSERT_EQ(controller.devices().records().size(), 1U);
    EXPECT_EQ(recordsBySerialNumber(controller.devices()).at("01 02 03 04 05 06"),
              decodeUnitParameters(SampleUnit().parameterList()).record);
    EXPECT_EQ(value("01 02 03 04 05 06", UnitParameter::unitID), "42");
}

TEST_F(ControllerReplies, RegistryTakesSerialAndUnitFromTheListNotTheHeader) {
    logOf(joined({replyHeader(unitSeven, serialOfSeven), SampleUnit().parameterList()}));
    EXPECT_EQ(value("01 02 03 04 05 06", UnitParameter::unitID), "42");
    EXPECT_EQ(controller.devices().records().size(), 1U);
}

TEST_F(ControllerReplies, ParameterListUnderAnotherTagIsStoredThoughNotShown) {
    Bytes datagram = SampleUnit().reply();
    datagram[3] = 'X';
    EXPECT_EQ(logOf(datagram), Lines{"Received command: ^^<X>"});
    EXPECT_EQ(controller.devices().records().size(), 1U);
}

TEST_F(ControllerReplies, ListWithoutASerialNumberIsShownAndNotStored) {
    EXPECT_EQ(logOf(joined({SampleUnit().header(), item("<M>", {1, 2, 3, 4, 5, 6})})),
              (Lines{"Received command: ^^<U> unit:42 serial:01 02 03 04 05 06 cidString:",
                     "\tinternal MAC address: 01:02:03:04:05:06"}));
    EXPECT_TRUE(controller.devices().records().empty());
}

TEST_F(ControllerReplies, ListThatDoesNotBeginWithTheMACAddressIsText) {
    const Bytes list = item("<S>", textBytes("ABCDEF"));
    EXPECT_EQ(logOf(joined({SampleUnit().header(), list})).at(0),
              "Received command: ^^<U> unit:42 serial:01 02 03 04 05 06 cidString:$<S>ABCDEF");
    EXPECT_TRUE(controller.devices().records().empty());
}

TEST_F(ControllerReplies, CarriageReturnBehindTheListChangesNothing) {
    receive(joined({SampleUnit().reply(), textBytes("\r")}));
    EXPECT_EQ(value("01 02 03 04 05 06", UnitParameter::serialNumber), "01 02 03 04 05 06");
}

TEST_F(ControllerReplies, LaterReplyReplacesTheRecordWhole) {
    discover({SampleUnit()});
    receive(joined({SampleUnit().header(), item("<M>", {1, 2, 3, 4, 5, 6}),
                    item("<S>", SampleUnit().serial)}));
    EXPECT_EQ(value("01 02 03 04 05 06", UnitParameter::unitID), "(absent)");
    EXPECT_EQ(parameterRows(), (Lines{"internal MAC address = 01:02:03:04:05:06",
                                      "serial number = 01 02 03 04 05 06"}));
}

TEST_F(ControllerReplies, MissingUnitIDInTheListShowsAsNull) {
    SampleUnit unit;
    unit.unitID = {0xC0, 0, 0, 0, 0, 0};
    const Lines lines =
        logOf(joined({replyHeader(unitSeven, serialOfSeven), unit.parameterList()}));
    EXPECT_EQ(lines.at(6), "\tunit ID: (null)");
    EXPECT_EQ(value("01 02 03 04 05 06", UnitParameter::unitID), "(absent)");
}

TEST_F(ControllerReplies, DatagramOfAnotherEndpointIsIgnoredSilently) {
    const auto stranger = UDPEcho::make(runLoop, hostResolver, systemCalls);
    const auto before = controller.eventLog();
    controller.echoDidReceiveDataFromAddress(*stranger, SampleUnit().reply(), {});
    EXPECT_EQ(controller.eventLog(), before);
    EXPECT_TRUE(controller.devices().records().empty());
}

TEST_F(ControllerReplies, SenderOfADatagramDoesNotMatter) {
    controller.echoDidReceiveDataFromAddress(listener(), SampleUnit().reply(), {});
    EXPECT_EQ(value("01 02 03 04 05 06", UnitParameter::internalIPAddress), "192.168.1.10");
}

TEST_F(ControllerReplies, ExceptionsOfAnotherKindWhileADatagramIsHandledArePassedOn) {
    const BrokenText broken("\nRequest unit parameters with address: %@",
                            std::logic_error("a mistake in the program"));
    EXPECT_THROW(receive(SampleUnit().acknowledgement()), std::logic_error);
    EXPECT_EQ(systemLog.lines(), Lines{});
}

TEST_F(ControllerReplies, ALineFeedInAPayloadForgesNoLineAndIsKept) {
    launch();
    window.eventLogDrawer.setState(DrawerState::open);
    const SampleUnit unit;
    receive(joined({unit.header(), textBytes("hello\nUDP server did send data.\x1B[2J")}));
    const std::string kept = controller.eventLog();
    EXPECT_TRUE(kept.ends_with("cidString:$hello\nUDP server did send data.\x1B[2J"));
    EXPECT_TRUE(controller.shownLog().ends_with(
        "cidString:$hello\uFFFDUDP server did send data.\uFFFD[2J"));
}

TEST_F(ControllerReplies, ALineFeedInAUnitIDOrATagForgesNoLineEither) {
    launch();
    SampleUnit unit;
    unit.unitID = textBytes("A\n\tX:1");
    receive(unit.reply());
    EXPECT_NE(controller.eventLog().find("unit ID: A\n\tX:1"), std::string::npos);
    EXPECT_NE(controller.shownLog().find("unit ID: A\uFFFD\tX:1"), std::string::npos);
    EXPECT_NE(controller.shownLog().find("unit:A\uFFFD\tX:1 serial:"), std::string::npos);
    receive(textBytes("^^<\n>"));
    EXPECT_TRUE(controller.shownLog().ends_with("\nReceived command: ^^<\uFFFD>"));
    EXPECT_EQ(value("01 02 03 04 05 06", UnitParameter::unitID), "A\n\tX:1") << "kept as it is";
}

// --- Many acknowledgements ---

TEST_F(ControllerReplies, TwentyAcknowledgementsOfASecondAreFollowedAndOneRequestByTheRest) {
    discover({SampleUnit()});
    const std::size_t before = sent().size();
    for (int i = 0; i < 500; ++i) {
        receive(SampleUnit().acknowledgement());
    }
    EXPECT_EQ(sent().size(), before + 20);
    runLoop.advanceBy(999ms);
    EXPECT_EQ(sent().size(), before + 20);
    const std::size_t length = controller.eventLog().size();
    runLoop.advanceBy(1ms);
    EXPECT_EQ(sent().size(), before + 21);
    EXPECT_EQ(lastSent(), "192.168.1.10:10000 ^^IdX");
    EXPECT_EQ(logSince(length), (Lines{"Request unit parameters with address: 192.168.1.10",
                                       "UDP server did send data."}));
    runLoop.advanceBy(10s);
    EXPECT_EQ(sent().size(), before + 21);
}

TEST_F(ControllerReplies, EveryAcknowledgementIsLogged) {
    discover({SampleUnit()});
    for (int i = 0; i < 30; ++i) {
        const std::size_t length = controller.eventLog().size();
        receive(SampleUnit().acknowledgement());
        const Lines entry = logSince(length);
        EXPECT_EQ(entry.size(), i < 20 ? 4U : 2U);
        EXPECT_EQ(entry.back(),
                  "Received command: ^^<U> unit:42 serial:01 02 03 04 05 06 cidString:");
    }
}

TEST_F(ControllerReplies, AnEditWhoseAcceptanceComesTooOftenIsReportedWithTheLateRequest) {
    discover({SampleUnit()});
    for (int i = 0; i < 20; ++i) {
        receive(secondSampleUnit().acknowledgement());
    }
    apply(UnitParameter::destinationPortNumber, "3521");
    receive(SampleUnit().acknowledgement());
    EXPECT_EQ(quietLine(), "Sent ^^IdT0DC1. The unit has not answered yet.");
    runLoop.advanceBy(1s);
    EXPECT_EQ(quietLine(), "The unit accepted a command and was asked for its parameters.");
}

TEST_F(ControllerReplies, NoRequestIsOwedAfterTheEnd) {
    discover({SampleUnit()});
    for (int i = 0; i < 30; ++i) {
        receive(SampleUnit().acknowledgement());
    }
    controller.applicationWillTerminate();
    const std::size_t before = sent().size();
    runLoop.advanceBy(10s);
    EXPECT_EQ(sent().size(), before);
    EXPECT_EQ(runLoop.pendingCallCount(), 0U);
}

} // namespace kx
