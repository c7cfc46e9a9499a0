// The event log and its drawer.

#include "ControllerFixture.h"
#include "doubles/MarkedLocalizedText.h"
#include "support/LocalizedText.h"

namespace kx {

namespace {

class ControllerEventLog : public ControllerTest {
protected:
    ControllerEventLog() {
        launch();
        window.eventLogDrawer.setState(DrawerState::closed);
    }
};

// Every text in capitals, so that an untranslated one stands out.
class ShoutedText final : public LocalizedText {
public:
    ShoutedText()
        : _previous(installLocalizedText(this)) {}
    ~ShoutedText() override { installLocalizedText(_previous); }
    ShoutedText(const ShoutedText&) = delete;
    ShoutedText& operator=(const ShoutedText&) = delete;

    std::string textForKey(std::string_view key) const override {
        std::string text(key);
        for (std::size_t i = 0; i < text.size(); ++i) {
            const bool isPlaceholder = i > 0 && text[i - 1] == '%';
            if (!isPlaceholder && text[i] >= 'a' && text[i] <= 'z') {
                text[i] = static_cast<char>(text[i] - 'a' + 'A');
            }
        }
        return text;
    }

private:
    const LocalizedText* _previous;
};

} // namespace

TEST_F(ControllerEventLog, ClosedDrawerKeepsTextFromTheView) {
    window.logTextView.setString(LogText(""));
    controller.appendString("\nquiet");
    EXPECT_EQ(window.logTextView.text(), "");
    EXPECT_EQ(log().back(), "quiet");
    EXPECT_EQ(window.logTextView.scrollCount(), 0);
}

TEST_F(ControllerEventLog, OpeningTheDrawerShowsTheWholeLogAtOnce) {
    controller.appendString("\nquiet");
    controller.logDrawerButton();
    EXPECT_EQ(window.eventLogDrawer.state(), DrawerState::opening);
    EXPECT_EQ(window.logTextView.text(), controller.eventLog());
    EXPECT_EQ(log().back(), "quiet");
}

TEST_F(ControllerEventLog, OpeningTheDrawerShowsALongLogWholeToo) {
    for (int line = 0; line < 20'000; ++line) {
        controller.appendString("\nline " + std::to_string(line));
    }
    window.logTextView.setString(LogText("from before"));
    controller.logDrawerButton();
    EXPECT_TRUE(window.logTextView.text() == controller.eventLog());
    EXPECT_EQ(log().back(), "line 19999");
    EXPECT_EQ(window.logTextView.scrollCount(), 0);
}

TEST_F(ControllerEventLog, TextReachesTheViewInEveryStateButClosed) {
    for (const DrawerState state :
         {DrawerState::opening, DrawerState::open, DrawerState::closing}) {
        window.eventLogDrawer.setState(state);
        window.logTextView.setString(LogText(""));
        const int inserted = window.logTextView.insertCount();
        const int scrolled = window.logTextView.scrollCount();
        controller.appendString("\nshown");
        EXPECT_EQ(window.logTextView.text(), "\nshown");
        EXPECT_TRUE(window.logTextView.isEndVisible());
        EXPECT_EQ(window.logTextView.insertCount(), inserted + 1);
        EXPECT_EQ(window.logTextView.scrollCount(), scrolled + 1);
    }
}

TEST_F(ControllerEventLog, OpenDrawerIsClosed) {
    window.eventLogDrawer.setState(DrawerState::open);
    window.logTextView.setString(LogText("as it was"));
    controller.logDrawerButton();
    EXPECT_EQ(window.eventLogDrawer.state(), DrawerState::closing);
    EXPECT_EQ(window.logTextView.text(), "as it was");
}

TEST_F(ControllerEventLog, MovingDrawerIsLeftAlone) {
    for (const DrawerState state : {DrawerState::opening, DrawerState::closing}) {
        window.eventLogDrawer.setState(state);
        window.logTextView.setString(LogText("as it was"));
        controller.logDrawerButton();
        EXPECT_EQ(window.eventLogDrawer.state(), state);
        EXPECT_EQ(window.logTextView.text(), "as it was");
    }
}

TEST_F(ControllerEventLog, EveryEntryAfterADiscoverStandsOnItsOwnLine) {
    controller.discoverButton();
    controller.appendString("\none");
    controller.appendString("\n  two");
    EXPECT_EQ(log(), (Lines{"[Begin Discover]", "UDP listener did start. 0.0.0.0:3520",
                            "Request unit parameters with address: 255.255.255.255",
                            "UDP server did send data.", "one", "  two"}));
}

TEST_F(ControllerEventLog, EveryMessageIsLookedUpByItsEnglishText) {
    const ShoutedText shouted;
    launch();
    receive(textBytes("^^<"));
    receive(textBytes("other"));
    receive(textBytes("^^<X>"));
    receive(SampleUnit().acknowledgement());
    systemCalls.failNext(Operation::sendTo, EACCES);
    controller.sendCommandToAddress("^^IdX", "10.0.0.7");
    systemCalls.failNext(Operation::receiveFrom, EACCES);
    runLoop.makeReadable(systemCalls.lastDescriptor());
    EXPECT_EQ(
        log(),
        (Lines{"[BEGIN DISCOVER]", "UDP LISTENER DID START. 0.0.0.0:3520",
               "REQUEST UNIT PARAMETERS WITH ADDRESS: 255.255.255.255", "UDP SERVER DID SEND DATA.",
               "UDP LISTENER DID RECEIVE DATA. LENGTH: 3", "IGNORING SHORT PACKET",
               "UDP LISTENER DID RECEIVE DATA. LENGTH: 5", "IGNORING UNKNOWN PACKET, PREFIX != ^^",
               "UDP LISTENER DID RECEIVE DATA. LENGTH: 5", "RECEIVED COMMAND: ^^<X>",
               "UDP LISTENER DID RECEIVE DATA. LENGTH: 24",
               "REQUEST UNIT PARAMETERS WITH ADDRESS: 255.255.255.255", "UDP SERVER DID SEND DATA.",
               "RECEIVED COMMAND: ^^<U> UNIT:42 SERIAL:01 02 03 04 05 06 CIDSTRING:",
               "SEND TO: 10.0.0.7 COMMAND: ^^IdX", "UDP FAILED TO SEND DATA.",
               "  " + posixErrorText(EACCES), "UDP DID RECEIVE ERROR.",
               "  " + posixErrorText(EACCES)}));
    EXPECT_EQ(window.interfacePopUp.titles(), Titles{"NO CONFIGURED INTERFACES"});
}

TEST_F(ControllerEventLog, TheListenersAddressIsWrittenInTheLanguageOfThePerson) {
    const MarkedLocalizedText marked;
    controller.discoverButton();
    EXPECT_NE(controller.eventLog().find("<0.0.0.0:3520>"), std::string::npos)
        << controller.eventLog();
}

TEST_F(ControllerEventLog, EveryReasonIsWrittenInTheLanguageOfThePerson) {
    const MarkedLocalizedText marked;
    const auto stranger = UDPEcho::make(runLoop, hostResolver, systemCalls);
    const std::string reason = "<\n  " + posixErrorText(EACCES) + ">";
    const auto endsWithReason = [&] { return controller.eventLog().ends_with(reason); };
    controller.echoDidReceiveError(*stranger, posixError(EACCES));
    EXPECT_TRUE(endsWithReason()) << controller.eventLog();
    controller.discoverButton();
    controller.echoDidFailToSendDataToAddressError(*stranger, {}, {}, posixError(EACCES));
    EXPECT_TRUE(endsWithReason()) << controller.eventLog();
    controller.discoverButton();
    controller.echoDidStopWithError(*stranger, posixError(EACCES));
    EXPECT_TRUE(endsWithReason()) << controller.eventLog();
}

TEST_F(ControllerEventLog, MessageOfARefusedBroadcastIsLookedUpToo) {
    const ShoutedText shouted;
    systemCalls.failNext(Operation::enableBroadcast, EPERM);
    controller.discoverButton();
    EXPECT_EQ(log(), (Lines{"[BEGIN DISCOVER]", "UDP LISTENER DID START. 0.0.0.0:3520",
                            "ERROR SETTING SO_BROADCAST " + posixErrorText(EPERM)}));
}

TEST_F(ControllerEventLog, MessagesOfAFailedStartAreLookedUpToo) {
    const ShoutedText shouted;
    systemCalls.failNext(Operation::bind, EADDRINUSE);
    controller.discoverButton();
    controller.reloadUnitParameterButton();
    EXPECT_EQ(log(), (Lines{"[BEGIN DISCOVER]", "UDP DID STOP WITH ERROR.",
                            "  " + posixErrorText(EADDRINUSE),
                            "REQUEST UNIT PARAMETERS WITH ADDRESS: 255.255.255.255",
                            "UDP FAILED TO SEND DATA.", "  THE UDP LISTENER IS NOT RUNNING."}));
}

// --- The limit ---

namespace {

constexpr std::string_view removalNotice =
    "[The event log keeps 256 MiB. Older entries were removed.]\n";

} // namespace

TEST_F(ControllerEventLog, BeyondItsLimitTheOldestEntriesGoAndTheFirstLineSaysSo) {
    launch();
    window.logTextView.setString(LogText("from before"));
    const std::string entry = "\n" + std::string(59'999, 'x');
    for (std::size_t bytes = 0; bytes < KXConfigAppDelegate::mostLogBytes + 1'000'000;
         bytes += entry.size()) {
        controller.appendString(entry);
    }
    controller.appendString("\nthe last");
    const std::string log = controller.eventLog();
    EXPECT_LE(log.size(), std::size_t{256} * 1024 * 1024);
    EXPECT_GE(log.size(), std::size_t{255} * 1024 * 1024);
    EXPECT_TRUE(log.starts_with(removalNotice));
    EXPECT_TRUE(log.ends_with("\nthe last"));
    EXPECT_EQ(window.logTextView.text(), "") << "a closed view keeps nothing of it alive";
    controller.discoverButton();
    EXPECT_TRUE(controller.eventLog().starts_with("[Begin Discover]"));
}

} // namespace kx
