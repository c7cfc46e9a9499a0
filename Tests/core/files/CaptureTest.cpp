#include "files/Capture.h"

#include "doubles/CaptureReader.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

namespace kx {

namespace {

// Numbers are in the byte order of the host.
template<class Number>
Number numberAt(const Bytes& bytes, std::size_t offset) {
    Number number = 0;
    std::memcpy(&number, bytes.data() + offset, sizeof number);
    return number;
}

constexpr auto wordAt = numberAt<std::uint32_t>;

const CapturedDatagram sampleDatagram{.time = std::chrono::microseconds(0x0001'0000'0002),
                                      .isOwn = true,
                                      .source = 0xC0000201U,
                                      .destination = 0xC00002FFU,
                                      .sourcePort = 3520,
                                      .destinationPort = 3521,
                                      .comment = "note"};
const Bytes fiveBytes{'^', '^', 'I', 'd', 'X'};

constexpr std::size_t packetOffset = 28; // in its block

std::string textOf(const Bytes& bytes) {
    return {bytes.begin(), bytes.end()};
}

} // namespace

TEST(Capture, BlocksTellTheirLengthAtBothEnds) {
    const Bytes header = captureHeader("test");
    const std::uint32_t first = wordAt(header, 4);
    EXPECT_EQ(wordAt(header, 0), 0x0A0D0D0AU);
    EXPECT_EQ(wordAt(header, first - 4), first);
    EXPECT_EQ(wordAt(header, first), 1U);
    EXPECT_EQ(numberAt<std::uint16_t>(header, first + 8), 228U);
    EXPECT_EQ(first + wordAt(header, first + 4), header.size());

    const Bytes block = capturedDatagram(sampleDatagram, fiveBytes);
    EXPECT_EQ(block.size() % 4, 0U);
    EXPECT_EQ(wordAt(block, 4), block.size());
    EXPECT_EQ(wordAt(block, block.size() - 4), block.size());
}

TEST(Capture, APacketHasTheHeadersOfItsDatagram) {
    const Bytes block = capturedDatagram(sampleDatagram, fiveBytes);
    EXPECT_EQ(wordAt(block, 12), 1U); // the high word of the time, then the low one
    EXPECT_EQ(wordAt(block, 16), 2U);
    EXPECT_EQ(wordAt(block, 20), 33U);
    const Bytes packet(block.begin() + packetOffset, block.begin() + packetOffset + 33);
    EXPECT_EQ(packet, (Bytes{0x45, 0,    0, 33, 0, 0,   0,   0,   64,  17,   0xF5,
                             0xCB, 192,  0, 2,  1, 192, 0,   2,   255, 0x0D, 0xC0,
                             0x0D, 0xC1, 0, 13, 0, 0,   '^', '^', 'I', 'd',  'X'}));
}

TEST(Capture, ADatagramTellsItsDirectionAndItsComment) {
    const Bytes own = capturedDatagram(sampleDatagram, fiveBytes);
    const std::string text(own.begin(), own.end());
    EXPECT_NE(text.find("note"), std::string::npos);
    const std::size_t options = packetOffset + 36; // the packet is filled up to whole words
    EXPECT_EQ(wordAt(own, options + 4), 2U);
    CapturedDatagram foreign = sampleDatagram;
    foreign.isOwn = false;
    foreign.comment = {};
    EXPECT_EQ(wordAt(capturedDatagram(foreign, fiveBytes), options + 4), 1U);
}

TEST(Capture, DataThatFitIntoNoPacketAreCut) {
    const Bytes block = capturedDatagram(sampleDatagram, Bytes(70'000, 7));
    EXPECT_EQ(wordAt(block, 20), 65'535U);
}

TEST(Capture, ItsBeginningSaysThatHeadersAreMadeUpAndWhoWroteIt) {
    const CaptureReader read(textOf(captureHeader("KXConfig 9.9")));
    EXPECT_TRUE(read.isWellFormed);
    EXPECT_EQ(read.application, "KXConfig 9.9");
    EXPECT_EQ(read.linkType, 228U);
    EXPECT_NE(read.sectionComment.find("headers of IPv4 and UDP are made up"), std::string::npos)
        << read.sectionComment;
    EXPECT_EQ(read.sectionComment.find("not in it"), std::string::npos) << read.sectionComment;
}

TEST(Capture, ItsBeginningSaysHowManyDatagramsAreNotInIt) {
    const CaptureReader read(textOf(captureHeader("test", 12)));
    EXPECT_TRUE(read.sectionComment.ends_with("which are not in it: 12.")) << read.sectionComment;
}

TEST(Capture, TheCountsOfItsEndAreThoseOfAllThatReachedTheSocket) {
    const CaptureReader read(
        textOf(captureStatistics(CaptureTime(0x0001'0000'0002), {.received = 5, .dropped = 3})));
    EXPECT_TRUE(read.isWellFormed);
    EXPECT_EQ(read.statistics, 1);
    EXPECT_EQ(read.statisticsTime, 0x0001'0000'0002U);
    EXPECT_EQ(read.received, 8U);
    EXPECT_EQ(read.dropped, 3U);
}

TEST(Capture, ACommentThatNoOptionHoldsIsCut) {
    CapturedDatagram datagram = sampleDatagram;
    const std::string comment(70'000, 'x');
    datagram.comment = comment;
    const CaptureReader read(textOf(capturedDatagram(datagram, fiveBytes)));
    EXPECT_TRUE(read.isWellFormed);
    EXPECT_EQ(read.packets.at(0).comment.size(), 65'535U);
    EXPECT_EQ(read.packets.at(0).data, "^^IdX");
}

} // namespace kx
