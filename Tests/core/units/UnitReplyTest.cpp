#include "units/UnitReply.h"

#include "core/UnitReplies.h"

#include <gtest/gtest.h>

namespace kx {

namespace {

std::string textOf(ByteView bytes) {
    return {bytes.begin(), bytes.end()};
}

} // namespace

TEST(DataSubrangeText, IsAbsentBeyondTheEnd) {
    const Bytes data = textBytes("abcde");
    EXPECT_EQ(stringForDataSubrange(data, 3, 2), "de");
    EXPECT_EQ(stringForDataSubrange(data, 4, 2), std::nullopt);
}

TEST(PacketKind, FourBytesAreTooShortWhateverTheyHold) {
    EXPECT_EQ(packetKindOfDatagram(Bytes{}), PacketKind::tooShort);
    EXPECT_EQ(packetKindOfDatagram(textBytes("^^<U")), PacketKind::tooShort);
    EXPECT_EQ(packetKindOfDatagram(textBytes("abcd")), PacketKind::tooShort);
}

TEST(PacketKind, OnlyTheFirstByteMakesAReply) {
    EXPECT_EQ(packetKindOfDatagram(textBytes("^^<X>")), PacketKind::reply);
    EXPECT_EQ(packetKindOfDatagram(textBytes("^?<X>")), PacketKind::reply);
    EXPECT_EQ(packetKindOfDatagram(textBytes("?^<X>")), PacketKind::unknown);
}

TEST(ReplyHeader, GivesTagUnitIDAndSerialNumber) {
    const Bytes datagram = SampleUnit().reply();
    const Reply reply = replyFromDatagram(datagram);
    EXPECT_EQ(reply.tag, "<U>");
    EXPECT_EQ(reply.unitID, "42");
    EXPECT_EQ(reply.serialNumber, "01 02 03 04 05 06");
    EXPECT_EQ(reply.payloadKind, PayloadKind::parameterList);
    EXPECT_EQ(textOf(reply.payload), textOf(SampleUnit().parameterList()));
}

TEST(ReplyHeader, OfFiveBytesHasOnlyATag) {
    const Bytes datagram = textBytes("^^<X>");
    const Reply reply = replyFromDatagram(datagram);
    EXPECT_EQ(reply.tag, "<X>");
    EXPECT_EQ(reply.unitID, std::nullopt);
    EXPECT_EQ(reply.serialNumber, std::nullopt);
    EXPECT_EQ(reply.payloadKind, PayloadKind::none);
}

TEST(ReplyHeader, UnitIDCutShortIsARangeFailure) {
    const Bytes whole = textBytes("^^<U>ABCDEF");
    for (std::size_t length = 5; length < whole.size(); ++length) {
        EXPECT_THROW(replyFromDatagram(ByteView(whole).first(length)), RangeFailure) << length;
    }
    EXPECT_EQ(replyFromDatagram(whole).unitID, "ABCDEF");
}

TEST(ReplyHeader, SerialNumberCutShortIsARangeFailureUnderEveryTag) {
    for (const char* tag : {"<U>", "<X>"}) {
        const Bytes whole = joined(
            {textBytes("^^"), item(tag, textBytes("ABCDEF")), item("<S>", {1, 2, 3, 4, 5, 6})});
        for (std::size_t length = 14; length < whole.size(); ++length) {
            EXPECT_THROW(replyFromDatagram(ByteView(whole).first(length)), RangeFailure) << length;
        }
        EXPECT_EQ(replyFromDatagram(whole).serialNumber, "01 02 03 04 05 06");
    }
}

TEST(ReplyHeader, SerialTagCutShortIsNoSerialNumber) {
    for (std::size_t length = 11; length < 14; ++length) {
        const Bytes whole = textBytes("^^<U>ABCDEF<S>");
        const Reply reply = replyFromDatagram(ByteView(whole).first(length));
        EXPECT_EQ(reply.unitID, "ABCDEF");
        EXPECT_EQ(reply.serialNumber, std::nullopt);
    }
}

TEST(ReplyHeader, UnitIDIsReadOnlyUnderItsTag) {
    for (const char* tag : {"<u>", "<X>", " U>"}) {
        const Bytes datagram = joined({textBytes("^^"), item(tag, textBytes("ABCDEF"))});
        EXPECT_EQ(replyFromDatagram(datagram).unitID, std::nullopt) << tag;
    }
}

TEST(ReplyHeader, TagThatIsNotUTF8IsAbsent) {
    const Bytes datagram = joined({textBytes("^^"), {0xFF, 'U', '>'}});
    EXPECT_EQ(replyFromDatagram(datagram).tag, std::nullopt);
}

TEST(ReplyPayload, CountsOnlyBehindItsMarker) {
    Bytes datagram = SampleUnit().reply();
    datagram[20] = '#';
    EXPECT_EQ(replyFromDatagram(datagram).payloadKind, PayloadKind::none);
}

TEST(ReplyPayload, AcknowledgementHasAFreeThirdByte) {
    for (const char* payload : {"ok\r", "ok!", "okay"}) {
        const Bytes datagram = joined({SampleUnit().header(), textBytes(payload)});
        EXPECT_EQ(replyFromDatagram(datagram).payloadKind, PayloadKind::acknowledgement);
    }
}

TEST(ReplyPayload, AcknowledgementIsLowerCaseAndThreeBytesOfText) {
    for (const Bytes& payload :
         {textBytes("ok"), textBytes("OK\r"), textBytes(" ok"), Bytes{'o', 'k', 0xFF}}) {
        const Bytes datagram = joined({SampleUnit().header(), payload});
        EXPECT_EQ(replyFromDatagram(datagram).payloadKind, PayloadKind::other);
    }
}

TEST(ReplyPayload, AnythingElseIsTakenFromItsMarkerOn) {
    const Bytes datagram = joined({SampleUnit().header(), textBytes("hello")});
    const Reply reply = replyFromDatagram(datagram);
    EXPECT_EQ(reply.payloadKind, PayloadKind::other);
    EXPECT_EQ(textOf(reply.payload), "$hello");
}

TEST(ReplyPayload, MayBeTheMarkerAlone) {
    const Bytes datagram = SampleUnit().header();
    const Reply reply = replyFromDatagram(datagram);
    EXPECT_EQ(reply.payloadKind, PayloadKind::other);
    EXPECT_EQ(textOf(reply.payload), "$");
}

} // namespace kx
