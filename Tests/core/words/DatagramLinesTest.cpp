#include "words/DatagramLines.h"

#include "core/UnitReplies.h"

#include <gtest/gtest.h>

namespace kx {

namespace {

std::string lineOfReceived(const Bytes& datagram) {
    return lineOfReceivedDatagram(datagram);
}

std::string lineOfSent(std::string_view command) {
    return lineOfSentDatagram(textBytes(command), 0xC000020BU);
}

} // namespace

TEST(DatagramLines, AReplyHasTheLineOfItsEntryWithoutItsParameters) {
    EXPECT_EQ(lineOfReceived(SampleUnit().reply()),
              "Received command: ^^<U> unit:42 serial:01 02 03 04 05 06 cidString:");
    EXPECT_EQ(lineOfReceived(SampleUnit().acknowledgement()),
              "Received command: ^^<U> unit:42 serial:01 02 03 04 05 06 cidString:");
}

TEST(DatagramLines, AnotherReplyHasItsOwnText) {
    EXPECT_EQ(lineOfReceived(joined({SampleUnit().header(), textBytes("version 3")})),
              "Received command: ^^<U> unit:42 serial:01 02 03 04 05 06 cidString:$version 3");
    EXPECT_EQ(lineOfReceived(textBytes("^^IdX")), "Received command: ^^IdX");
}

TEST(DatagramLines, ADatagramThatIsNoReplyIsIgnored) {
    EXPECT_EQ(lineOfReceived(textBytes("hi")), "Ignoring short packet");
    EXPECT_EQ(lineOfReceived(textBytes("good morning")), "Ignoring unknown packet, prefix != ^^");
}

TEST(DatagramLines, ADatagramWithoutBytesIsAnError) {
    EXPECT_EQ(lineOfReceived({}), "UDP did receive error.");
}

TEST(DatagramLines, OfADatagramThatBreaksItsFormatTheLogKnowsOnlyTheLength) {
    EXPECT_EQ(lineOfReceived(textBytes("^^<U>12")), "UDP listener did receive data. Length: 7");
    EXPECT_EQ(lineOfReceived(joined({SampleUnit().header(), textBytes("<M>12")})),
              "UDP listener did receive data. Length: 26");
}

TEST(DatagramLines, ForeignTextIsShownAsInTheLogAndStaysInItsLine) {
    const Bytes reply = joined({SampleUnit().header(), textBytes("a\nb\x1B[2Jc")});
    EXPECT_EQ(lineOfReceived(reply), "Received command: ^^<U> unit:42 serial:01 02 03 04 05 06 "
                                     "cidString:$a\uFFFDb\uFFFD[2Jc");
}

TEST(DatagramLines, ALongLineIsCutToItsFirstRow) {
    const Bytes reply = joined({SampleUnit().header(), Bytes(5000, 'x')});
    const std::string line = lineOfReceived(reply);
    EXPECT_EQ(line.size(), 1024U);
    EXPECT_TRUE(line.starts_with("Received command: ^^<U> unit:42"));
}

TEST(DatagramLines, RequestsAndCommandsHaveTheLinesOfTheirEntries) {
    EXPECT_EQ(lineOfSent("^^IdX"), "Request unit parameters with address: 192.0.2.11");
    EXPECT_EQ(lineOfSent("^^IdZ"), "Request unit parameters with address: 192.0.2.11");
    EXPECT_EQ(lineOfSent("^^IdT0DC3"), "Send to: 192.0.2.11 command: ^^IdT0DC3");
    EXPECT_EQ(lineOfSent("^^IdV\r"), "Send to: 192.0.2.11 command: ^^IdV ");
}

TEST(DatagramLines, TheLogHasNoLineForADatagramWithoutBytesThatIsSent) {
    EXPECT_EQ(lineOfSent(""), "");
}

TEST(DatagramLines, TheLineOfAnEntryIsItsFirstOne) {
    EXPECT_EQ(lineOfEntry("\nfirst\n  second"), "first");
    EXPECT_EQ(lineOfEntry("[Begin Discover]"), "[Begin Discover]");
}

} // namespace kx
