// The entries of the event log, to the letter: people and scripts search for them.

#include "words/EventLogEntries.h"

#include "doubles/MarkedLocalizedText.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace kx {

namespace {

Reply replyWith(std::optional<std::string> unitID, std::optional<std::string> serialNumber) {
    Reply reply;
    reply.tag = "<U>";
    reply.unitID = std::move(unitID);
    reply.serialNumber = std::move(serialNumber);
    return reply;
}

const Error networkError = posixError(ENETUNREACH);

} // namespace

TEST(EventLogEntries, ADiscoveryBeginsTheLogWithoutALineBreak) {
    EXPECT_EQ(entryOfDiscovery(), "[Begin Discover]");
}

TEST(EventLogEntries, AStartNamesAddressAndPort) {
    EXPECT_EQ(entryOfStart(), "\nUDP listener did start. ");
    EXPECT_EQ(addressInEntry(0, 3521), "0.0.0.0:3521");
    EXPECT_EQ(addressInEntry(0xC0000207U, 65535), "192.0.2.7:65535");
}

TEST(EventLogEntries, FailuresHaveTheirReasonOnALineOfItsOwn) {
    EXPECT_EQ(entryOfStop(), "\nUDP did stop with error.");
    EXPECT_EQ(entryOfReceiveError(), "\nUDP did receive error.");
    EXPECT_EQ(entryOfSendFailure(), "\nUDP failed to send data.");
    EXPECT_EQ(reasonInEntry(networkError), "\n  Network is unreachable");
    EXPECT_EQ(reasonInEntry(SendFailure{.error = networkError}), "\n  Network is unreachable");
    EXPECT_EQ(reasonInEntry(SendFailure()), "\n  The UDP listener is not running.");
}

TEST(EventLogEntries, ARefusedBroadcastHasItsReasonOnTheSameLine) {
    EXPECT_EQ(entryOfRefusedBroadcast("Operation not permitted"),
              "\nError setting SO_BROADCAST Operation not permitted");
}

TEST(EventLogEntries, ARequestNamesItsTarget) {
    EXPECT_EQ(entryOfRequest(0xC0A801FFU), "\nRequest unit parameters with address: 192.168.1.255");
}

TEST(EventLogEntries, ACommandStandsAsItIsBehindTheAddressAsItWasGiven) {
    EXPECT_EQ(entryOfCommand("^^IdV\r", " 10.0.0.7 or so"),
              "\nSend to:  10.0.0.7 or so command: ^^IdV\r");
    EXPECT_EQ(entryOfCommand("^^Id%@ %d", "%s"), "\nSend to: %s command: ^^Id%@ %d");
    EXPECT_EQ(entryOfSend(), "\nUDP server did send data.");
}

TEST(EventLogEntries, ADatagramIsCountedInBytes) {
    EXPECT_EQ(entryOfDatagram(81), "\nUDP listener did receive data. Length: 81");
    EXPECT_EQ(entryOfDatagram(65'507), "\nUDP listener did receive data. Length: 65507");
}

TEST(EventLogEntries, AnIgnoredDatagramSaysWhy) {
    EXPECT_EQ(entryOfIgnoredDatagram(PacketKind::tooShort), "\nIgnoring short packet");
    EXPECT_EQ(entryOfIgnoredDatagram(PacketKind::unknown),
              "\nIgnoring unknown packet, prefix != ^^");
}

TEST(EventLogEntries, AReplyThatNamesItselfHasItsText) {
    EXPECT_EQ(entryOfReply(replyWith("7", "0A 0B 0C 0D 0E 0F"), "$hello"),
              "\nReceived command: ^^<U> unit:7 serial:0A 0B 0C 0D 0E 0F cidString:$hello");
    EXPECT_EQ(entryOfReply(replyWith("7", "0A 0B 0C 0D 0E 0F"), std::nullopt),
              "\nReceived command: ^^<U> unit:7 serial:0A 0B 0C 0D 0E 0F cidString:(null)");
}

TEST(EventLogEntries, AReplyThatDoesNotNameItselfHasItsTagAlone) {
    EXPECT_EQ(entryOfReply(replyWith("7", std::nullopt), "$hello"), "\nReceived command: ^^<U>");
    EXPECT_EQ(entryOfReply(replyWith(std::nullopt, "0A 0B 0C 0D 0E 0F"), "$hello"),
              "\nReceived command: ^^<U>");
    EXPECT_EQ(entryOfReply({}, "$hello"), "\nReceived command: ^^(null)");
}

TEST(EventLogEntries, AnARPEntryNamesBothAddresses) {
    EXPECT_EQ(entryOfARPEntry("00:1A:2B:3C:4D:5E", "10.0.0.7"),
              "\nStuff ARP cache with MAC 00:1A:2B:3C:4D:5E for IP 10.0.0.7");
    EXPECT_EQ(entryOfARPEntry(std::nullopt, std::nullopt),
              "\nStuff ARP cache with MAC (null) for IP (null)");
    EXPECT_EQ(entryOfARPFailure(-60031), "\nStuff ARP cache result: -60031");
}

TEST(EventLogEntries, AUnitIDThatIsNoTextIsSaid) {
    EXPECT_EQ(entryOfUndecodableUnitID(),
              "\nUnit ID could not be converted to 6-byte UTF-8 string");
}

TEST(EventLogEntries, EveryPartIsLookedUp) {
    const MarkedLocalizedText marked;
    const std::vector<std::pair<std::string, std::string>> entries{
        {entryOfDiscovery(), "<[Begin Discover]>"},
        {entryOfStart(), "<\nUDP listener did start. >"},
        {addressInEntry(0, 3521), "<0.0.0.0:3521>"},
        {entryOfRefusedBroadcast("no"), "<\nError setting SO_BROADCAST no>"},
        {entryOfStop(), "<\nUDP did stop with error.>"},
        {entryOfReceiveError(), "<\nUDP did receive error.>"},
        {entryOfSendFailure(), "<\nUDP failed to send data.>"},
        {reasonInEntry(networkError), "<\n  Network is unreachable>"},
        {reasonInEntry(SendFailure()), "<\n  <The UDP listener is not running.>>"},
        {entryOfRequest(1), "<\nRequest unit parameters with address: 0.0.0.1>"},
        {entryOfCommand("c", "a"), "<\nSend to: a command: c>"},
        {entryOfSend(), "<\nUDP server did send data.>"},
        {entryOfDatagram(5), "<\nUDP listener did receive data. Length: 5>"},
        {entryOfIgnoredDatagram(PacketKind::tooShort), "<\nIgnoring short packet>"},
        {entryOfIgnoredDatagram(PacketKind::unknown), "<\nIgnoring unknown packet, prefix != ^^>"},
        {entryOfReply(replyWith("7", "0A"), "t"),
         "<\nReceived command: ^^<U> unit:7 serial:0A cidString:t>"},
        {entryOfReply(replyWith({}, {}), "t"), "<\nReceived command: ^^<U>>"},
        {entryOfARPEntry("m", "i"), "<\nStuff ARP cache with MAC m for IP i>"},
        {entryOfARPFailure(-1), "<\nStuff ARP cache result: -1>"},
        {entryOfUndecodableUnitID(), "<\nUnit ID could not be converted to 6-byte UTF-8 string>"},
    };
    for (const auto& [entry, expected] : entries) {
        EXPECT_EQ(entry, expected);
    }
}

} // namespace kx
