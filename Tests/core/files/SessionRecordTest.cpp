#include "files/SessionRecord.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kx {

namespace {

struct KeptDatagram {
    CapturedDatagram datagram;
    std::string comment;
    Bytes data;
};

std::vector<KeptDatagram> allOf(const SessionRecord& record) {
    std::vector<KeptDatagram> all;
    record.forEach([&all](const CapturedDatagram& datagram, ByteView data) {
        all.push_back({datagram, std::string(datagram.comment), Bytes(data.begin(), data.end())});
    });
    return all;
}

// Datagrams are forgotten in runs of 256 KiB, and the latest run grows.
constexpr std::size_t mostKept = SessionRecord::keptBytes + std::size_t{2} * 256 * 1024;

CapturedDatagram datagramAt(int microseconds, bool isOwn = false) {
    return {.time = CaptureTime(microseconds),
            .isOwn = isOwn,
            .source = 0xC000020BU,
            .destination = 0xC0000201U,
            .sourcePort = 10000,
            .destinationPort = 3520,
            .comment = {}};
}

std::size_t bytesOf(const std::vector<KeptDatagram>& all) {
    std::size_t bytes = 0;
    for (const auto& each : all) {
        bytes += each.data.size();
    }
    return bytes;
}

} // namespace

TEST(SessionRecord, IsEmptyAtFirst) {
    const SessionRecord record;
    EXPECT_TRUE(allOf(record).empty());
    EXPECT_EQ(record.kept(), 0U);
    EXPECT_EQ(record.forgotten(), 0U);
}

TEST(SessionRecord, KeepsDatagramsAsTheyWereInTheirOrder) {
    SessionRecord record;
    record.keep(datagramAt(1), Bytes{1, 0, 2});
    record.keep(datagramAt(2, true), {});
    record.keep(datagramAt(3), Bytes(65'507, 7));
    const auto all = allOf(record);
    ASSERT_EQ(all.size(), 3U);
    EXPECT_EQ(all[0].data, (Bytes{1, 0, 2}));
    EXPECT_EQ(all[0].datagram.time, CaptureTime(1));
    EXPECT_FALSE(all[0].datagram.isOwn);
    EXPECT_EQ(all[0].datagram.source, 0xC000020BU);
    EXPECT_EQ(all[0].datagram.destination, 0xC0000201U);
    EXPECT_EQ(all[0].datagram.sourcePort, 10000);
    EXPECT_EQ(all[0].datagram.destinationPort, 3520);
    EXPECT_TRUE(all[1].datagram.isOwn);
    EXPECT_TRUE(all[1].data.empty());
    EXPECT_EQ(all[2].data, Bytes(65'507, 7));
    EXPECT_EQ(record.kept(), 3U);
}

TEST(SessionRecord, ACommentIsThatOfTheNextOwnDatagramAndOfNoOther) {
    SessionRecord record;
    record.commentNextSend("a request");
    record.keep(datagramAt(1), Bytes{1});
    record.keep(datagramAt(2, true), Bytes{2});
    record.keep(datagramAt(3, true), Bytes{3});
    record.commentNextSend("taken back");
    record.commentNextSend("");
    record.keep(datagramAt(4, true), Bytes{4});
    const auto all = allOf(record);
    ASSERT_EQ(all.size(), 4U);
    EXPECT_EQ(all[0].comment, "");
    EXPECT_EQ(all[1].comment, "a request");
    EXPECT_EQ(all[1].data, Bytes{2});
    EXPECT_EQ(all[2].comment, "");
    EXPECT_EQ(all[3].comment, "");
}

TEST(SessionRecord, ACommentThatADatagramBringsAlongIsItsOwn) {
    SessionRecord record;
    record.commentNextSend("a request");
    CapturedDatagram probe = datagramAt(1, true);
    probe.comment = "a probe";
    record.keep(probe, Bytes{1});
    record.keep(datagramAt(2, true), Bytes{2});
    CapturedDatagram answer = datagramAt(3);
    const std::string longComment(70'000, 'x');
    answer.comment = longComment;
    record.keep(answer, Bytes{3});
    const auto all = allOf(record);
    ASSERT_EQ(all.size(), 3U);
    EXPECT_EQ(all[0].comment, "a probe");
    EXPECT_EQ(all[1].comment, "a request");
    EXPECT_EQ(all[2].comment, longComment.substr(0, 65'535));
}

TEST(SessionRecord, KeepsTheLastFourMebibytesAndForgetsTheOldestFirst) {
    SessionRecord record;
    constexpr int sent = 200'000;
    for (int i = 0; i < sent; ++i) {
        record.keep(datagramAt(i), Bytes(81, static_cast<std::uint8_t>(i)));
    }
    const auto all = allOf(record);
    EXPECT_EQ(record.kept(), all.size());
    EXPECT_EQ(record.kept() + record.forgotten(), std::uint64_t{sent});
    constexpr std::size_t headerBytes = 32;
    const std::size_t bytes = bytesOf(all) + all.size() * headerBytes;
    EXPECT_GE(bytes, SessionRecord::keptBytes);
    EXPECT_LE(bytes, mostKept);
    auto expected = static_cast<int>(record.forgotten());
    for (const auto& each : all) {
        ASSERT_EQ(each.datagram.time, CaptureTime(expected));
        ASSERT_EQ(each.data, Bytes(81, static_cast<std::uint8_t>(expected)));
        ++expected;
    }
    EXPECT_EQ(expected, sent);
}

TEST(SessionRecord, TheLongestDatagramsAreForgottenLikeOthers) {
    SessionRecord record;
    for (int i = 0; i < 300; ++i) {
        record.keep(datagramAt(i), Bytes(65'507));
    }
    const auto all = allOf(record);
    EXPECT_GE(bytesOf(all), SessionRecord::keptBytes - 65'507);
    EXPECT_LE(bytesOf(all), mostKept);
    EXPECT_EQ(all.back().datagram.time, CaptureTime(299));
    EXPECT_EQ(record.kept() + record.forgotten(), 300U);
}

TEST(SessionRecord, BelowItsLimitItForgetsNothing) {
    SessionRecord record;
    for (int i = 0; i < 30'000; ++i) {
        record.keep(datagramAt(i), Bytes(81));
    }
    EXPECT_EQ(record.forgotten(), 0U);
    EXPECT_EQ(record.kept(), 30'000U);
}

} // namespace kx
