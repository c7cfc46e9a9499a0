// Save Event Log and Save Session: what is asked, what is written, and what is said afterwards.

#include "ControllerFixture.h"
#include "doubles/CaptureReader.h"

#include <algorithm>

namespace kx {

namespace {

class ControllerSaving : public ControllerTest {
protected:
    ControllerSaving() { launch(); }

    CaptureReader savedSession() {
        controller.saveSession();
        window.savePanel.choose("/there/session.pcapng");
        return CaptureReader(files["/there/session.pcapng"]);
    }

    std::string savedLog() {
        controller.saveEventLog();
        window.savePanel.choose("/there/log.txt");
        return files["/there/log.txt"];
    }
};

} // namespace

TEST_F(ControllerSaving, TheEventLogIsSavedAsItIsShown) {
    receive(joined({SampleUnit().header(), textBytes("a\nb\x1B[2Jc\r")}));
    EXPECT_EQ(savedLog(), controller.shownLog() + "\n");
    EXPECT_NE(savedLog().find("cidString:$a\uFFFDb\uFFFD[2Jc \n"), std::string::npos);
    EXPECT_EQ(quietLine(), "The event log was saved.");
}

TEST_F(ControllerSaving, ZeroBytesThatFillUpAUnitIDAreNotSaved) {
    SampleUnit unit;
    unit.unitID = {'A', 'B', 'C', 0, 0, 0};
    receive(unit.reply());
    EXPECT_NE(savedLog().find("unit:ABC serial:"), std::string::npos);
}

TEST_F(ControllerSaving, TheLogIsThatOfTheMomentAtWhichTheFileIsChosen) {
    controller.saveEventLog();
    receive(SampleUnit().reply());
    window.savePanel.choose("/there/log.txt");
    EXPECT_NE(files["/there/log.txt"].find("serial:01 02 03 04 05 06"), std::string::npos);
}

TEST_F(ControllerSaving, TheNamesThatAreSuggestedTellTheTime) {
    controller.saveEventLog();
    window.savePanel.cancel();
    controller.saveSession();
    ASSERT_EQ(window.savePanel.questions().size(), 2U);
    const auto& log = window.savePanel.questions()[0];
    EXPECT_EQ(log.title, "Save Event Log");
    EXPECT_EQ(log.suggestedName, "kxconfig-log-20231115-234700.txt");
    EXPECT_EQ(log.kind, "Text");
    EXPECT_EQ(log.suffix, "txt");
    const auto& session = window.savePanel.questions()[1];
    EXPECT_EQ(session.title, "Save Session");
    EXPECT_EQ(session.suggestedName, "kxconfig-session-20231115-234700.pcapng");
    EXPECT_EQ(session.kind, "Captures");
    EXPECT_EQ(session.suffix, "pcapng");
}

TEST_F(ControllerSaving, WhoCancelsSavesNothingAndIsToldNothing) {
    controller.saveSession();
    window.savePanel.cancel();
    controller.saveEventLog();
    window.savePanel.cancel();
    EXPECT_TRUE(files.empty());
    EXPECT_EQ(quietLine(), "");
}

TEST_F(ControllerSaving, ASessionHasEveryDatagramByteForByte) {
    const Bytes damaged = joined({SampleUnit().header(), textBytes("<M>12")});
    receive(SampleUnit().reply());
    receive(damaged);
    receive(textBytes("^^IdX"));
    const CaptureReader session = savedSession();
    EXPECT_TRUE(session.isWellFormed);
    EXPECT_EQ(session.application, "KXConfig 9.9");
    ASSERT_EQ(session.packets.size(), 4U);
    EXPECT_EQ(session.packets[0].direction, 2U);
    EXPECT_EQ(session.packets[0].source, "0.0.0.0:3520");
    EXPECT_EQ(session.packets[0].destination, "255.255.255.255:3520");
    EXPECT_EQ(session.packets[0].data, "^^IdX");
    const auto text = [](const Bytes& bytes) { return std::string(bytes.begin(), bytes.end()); };
    EXPECT_EQ(session.packets[1].direction, 1U);
    EXPECT_EQ(session.packets[1].source, "192.168.1.10:3520");
    EXPECT_EQ(session.packets[1].data, text(SampleUnit().reply()));
    EXPECT_EQ(session.packets[1].time, 7U);
    EXPECT_EQ(session.packets[2].data, text(damaged));
    EXPECT_EQ(quietLine(), "The session was saved: 4 datagrams.");
}

TEST_F(ControllerSaving, EveryCommentIsALineOfTheEventLog) {
    discoverTwo();
    selectUnit("01 02 03 04 05 06");
    apply(UnitParameter::destinationPortNumber, "3521");
    apply(UnitParameter::internalIPAddress, "192.168.001.77"); // the log has it as it was typed
    receive(SampleUnit().acknowledgement());
    receive(joined({SampleUnit().header(), textBytes("a\nversion\r")}));
    receive(joined({SampleUnit().header(), textBytes("<M>12")}));
    receive(textBytes("^^<U>12"));
    receive(textBytes("hi"));
    receive(textBytes("good morning"));
    controller.restoreDefaultSettings();
    const Lines shown = linesOf(controller.shownLog());
    // The request of the launch is in the session and, after Discover, no longer in the log.
    const CaptureReader session = savedSession();
    ASSERT_GT(session.packets.size(), 10U);
    for (const auto& packet : session.packets) {
        EXPECT_EQ(std::ranges::count(shown, packet.comment) > 0, true) << packet.comment;
    }
    const auto hasComment = [&session](const std::string& comment) {
        return std::ranges::find(session.packets, comment, &CaptureReader::Packet::comment) !=
               session.packets.end();
    };
    EXPECT_TRUE(hasComment("Send to: 192.168.001.77 command: ^^IdIC0A8014D"));
    EXPECT_TRUE(hasComment("Ignoring short packet"));
}

TEST_F(ControllerSaving, ADatagramThatTheLogLeavesOutKeepsTheCommentThatSaysSo) {
    sessionRecord.keep({.source = 1, .destination = 2, .comment = "a check"}, SampleUnit().reply());
    EXPECT_EQ(savedSession().packets.back().comment, "a check");
}

TEST_F(ControllerSaving, TheLogIsEmptiedByDiscoverAndTheSessionIsNot) {
    receive(SampleUnit().reply());
    controller.discoverButton();
    EXPECT_EQ(savedSession().packets.size(), 3U);
    EXPECT_EQ(savedLog().find("serial:"), std::string::npos);
}

TEST_F(ControllerSaving, ACommandThatCouldNotBeSentIsNotInTheSession) {
    discover({SampleUnit()});
    systemCalls.failNext(Operation::sendTo, EHOSTUNREACH);
    const auto before = sessionRecord.kept();
    apply(UnitParameter::devicePortNumber, "10001");
    EXPECT_EQ(sessionRecord.kept(), before);
    recordedCalls.sendToByLink(recordedCalls.socket(), {}, dataForAddress(1, 9), 2);
    EXPECT_EQ(savedSession().packets.back().comment, "") << "its line belongs to nobody else";
}

TEST_F(ControllerSaving, TheCountOfDroppedDatagramsIsInTheSession) {
    captureCounts = {.received = 40, .dropped = 3};
    const CaptureReader session = savedSession();
    EXPECT_EQ(session.statistics, 1);
    EXPECT_EQ(session.dropped, 3U);
    EXPECT_EQ(session.received, 43U);
    EXPECT_EQ(session.statisticsTime, 8U);
    EXPECT_EQ(quietLine(), "The session was saved: 1 datagram.");
}

TEST_F(ControllerSaving, ASessionSaysHowManyDatagramsItNoLongerHas) {
    for (int i = 0; i < 200; ++i) {
        receive(Bytes(65'000, '^'));
    }
    ASSERT_GT(sessionRecord.forgotten(), 0U);
    const CaptureReader session = savedSession();
    EXPECT_EQ(session.packets.size(), sessionRecord.kept());
    EXPECT_TRUE(session.sectionComment.ends_with(
        "which are not in it: " + std::to_string(sessionRecord.forgotten()) + "."))
        << session.sectionComment;
}

TEST_F(ControllerSaving, AFullDiskIsToldAndNothingIsLost) {
    receive(SampleUnit().reply());
    diskFailure = posixError(ENOSPC);
    savedSession();
    EXPECT_EQ(quietLine(), "“/there/session.pcapng” cannot be written: " + posixErrorText(ENOSPC) +
                               ". Nothing is lost: save it in another place.");
    savedLog();
    EXPECT_EQ(quietLine(), "“/there/log.txt” cannot be written: " + posixErrorText(ENOSPC) +
                               ". Nothing is lost: save it in another place.");
    diskFailure.reset();
    EXPECT_EQ(savedSession().packets.size(), 2U);
    EXPECT_EQ(savedLog(), controller.shownLog() + "\n");
}

TEST_F(ControllerSaving, NothingOfItEntersTheEventLog) {
    const std::string before = controller.eventLog();
    savedSession();
    savedLog();
    diskFailure = posixError(ENOSPC);
    savedLog();
    EXPECT_EQ(controller.eventLog(), before);
}

TEST_F(ControllerSaving, APathWithCharactersThatActIsShownWithMarks) {
    diskFailure = posixError(EACCES);
    controller.saveEventLog();
    window.savePanel.choose("/there/\x1B[2J");
    EXPECT_TRUE(quietLine().starts_with("“/there/\uFFFD[2J” cannot be written: ")) << quietLine();
}

} // namespace kx
