#include "Simulator/Frame.h"

#include "simulator/Literals.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace kx::simulator {
namespace {

constexpr HardwareAddress hostHardware{0x02, 0, 0, 0, 0, 0x01};
constexpr HardwareAddress unitHardware{0x02, 0x4B, 0x58, 0, 0, 0x01};

// "ok" and a carriage return from 192.0.2.11:3520 to 192.0.2.1:3521, as an independent protocol
// analyser accepts it.
constexpr std::string_view okFrame = "020000000001 024B58000001 0800"
                                     "4500 001F 0000 4000 40 11 B6C1 C000020B C0000201"
                                     "0DC0 0DC1 000B E3DE 6F6B0D"
                                     "000000000000000000000000000000";

// A parameter request by a host, with the checksum that the analyser expects.
constexpr std::string_view requestFrame = "FFFFFFFFFFFF 020000000001 0800"
                                          "4500 0021 0000 4000 40 11 78CB C0000201 FFFFFFFF"
                                          "0DC1 0DC0 000D 228F 5E5E496458";

constexpr std::string_view arpRequest = "FFFFFFFFFFFF 020000000001 0806"
                                        "0001 0800 06 04 0001"
                                        "020000000001 C0000201 000000000000 C000020B";

Bytes changed(std::string_view frame, std::size_t offset, std::uint8_t value) {
    Bytes bytes = bytesOfHex(frame);
    bytes.at(offset) = value;
    return bytes;
}

TEST(InternetChecksum, OfKnownHeaders) {
    EXPECT_EQ(internetChecksum(bytesOfHex("0001 F203 F4F5 F6F7")), 0x220D);
    EXPECT_EQ(internetChecksum(bytesOfHex("4500 0073 0000 4000 4011 0000 C0A80001 C0A800C7")),
              0xB861);
    EXPECT_EQ(internetChecksum(bytesOfHex("4500 0073 0000 4000 4011 B861 C0A80001 C0A800C7")), 0);
}

TEST(InternetChecksum, OddLastByteIsTheUpperHalfOfAWord) {
    EXPECT_EQ(internetChecksum(bytesOfHex("01")), 0xFEFF);
    EXPECT_EQ(internetChecksum(bytesOfHex("0001F2")), internetChecksum(bytesOfHex("0001F200")));
}

TEST(InternetChecksum, OfNothingIsAllOnes) {
    EXPECT_EQ(internetChecksum({}), 0xFFFF);
}

TEST(InternetChecksum, CarryOfACarryIsAdded) {
    EXPECT_EQ(internetChecksum(Bytes(200'000, 0xFF)), 0);
}

TEST(DatagramFrame, HasChecksumsAndTheShortestLength) {
    const Bytes frame = datagramFrame({.source = {unitHardware, 0xC000020B, 3520},
                                       .destination = {hostHardware, 0xC0000201, 3521},
                                       .payload = bytesOfText("ok\r")});
    EXPECT_EQ(frame, bytesOfHex(okFrame));
    EXPECT_EQ(frame.size(), 60U);
}

TEST(DatagramFrame, ChecksumThatComesOutAsZeroIsSentAsAllOnes) {
    // Protocol 17 and twice the length 10 are 0x25; the payload fills up to all ones.
    const Bytes frame = datagramFrame({.source = {unitHardware, 0, 0},
                                       .destination = {hostHardware, 0, 0},
                                       .payload = bytesOfHex("FFDA")});
    EXPECT_EQ(shortAt(frame, 40), 0xFFFF);
    EXPECT_TRUE(readDatagram(frame, UdpChecksum::complete));
}

TEST(DatagramFrame, IsReadBackWhole) {
    const Datagram sent{.source = {unitHardware, 0xC000020B, 3520},
                        .destination = {hostHardware, 0xC0000201, 3521},
                        .payload = Bytes(1400, 0x5E)};
    const auto read = readDatagram(datagramFrame(sent), UdpChecksum::complete);
    ASSERT_TRUE(read);
    EXPECT_EQ(read->payload, sent.payload);
}

TEST(ReadDatagram, TakesAHostsRequest) {
    const auto datagram = readDatagram(bytesOfHex(requestFrame), UdpChecksum::complete);
    ASSERT_TRUE(datagram);
    EXPECT_EQ(datagram->source.hardware, hostHardware);
    EXPECT_EQ(datagram->source.address, 0xC0000201U);
    EXPECT_EQ(datagram->source.port, 3521);
    EXPECT_EQ(datagram->destination.hardware, broadcastHardware);
    EXPECT_EQ(datagram->destination.address, 0xFFFFFFFFU);
    EXPECT_EQ(datagram->destination.port, 3520);
    EXPECT_EQ(datagram->payload, bytesOfText("^^IdX"));
}

TEST(ReadDatagram, LeavesThePaddingOut) {
    const auto datagram = readDatagram(bytesOfHex(okFrame), UdpChecksum::complete);
    ASSERT_TRUE(datagram);
    EXPECT_EQ(datagram->payload, bytesOfText("ok\r"));
}

TEST(ReadDatagram, WrongUdpChecksumCountsOnlyWhenItIsComplete) {
    const Bytes frame = changed(requestFrame, 41, 0x90);
    EXPECT_FALSE(readDatagram(frame, UdpChecksum::complete));
    EXPECT_TRUE(readDatagram(frame, UdpChecksum::pending));
}

TEST(ReadDatagram, AbsentUdpChecksumIsTaken) {
    Bytes frame = changed(requestFrame, 40, 0);
    frame[41] = 0;
    EXPECT_TRUE(readDatagram(frame, UdpChecksum::complete));
}

TEST(ReadDatagram, AnyChangedByteOfTheHeadersOrPayloadIsFound) {
    const Bytes whole = bytesOfHex(requestFrame);
    for (std::size_t offset = 14; offset < whole.size(); ++offset) {
        Bytes frame = whole;
        frame[offset] ^= 0x04;
        EXPECT_FALSE(readDatagram(frame, UdpChecksum::complete)) << offset;
    }
}

TEST(ReadDatagram, FragmentsAreLeftOut) {
    // 0x2000 less in the flags is 0x2000 more in the header checksum.
    Bytes first = changed(requestFrame, 20, 0x20);
    first[24] = 0x98;
    EXPECT_EQ(internetChecksum(ByteView(first).subspan(14, 20)), 0);
    EXPECT_FALSE(readDatagram(first, UdpChecksum::complete));
}

TEST(ReadDatagram, EveryShorterFrameIsLeftOut) {
    const Bytes whole = bytesOfHex(requestFrame);
    for (std::size_t length = 0; length < whole.size(); ++length) {
        EXPECT_FALSE(readDatagram(ByteView(whole).first(length), UdpChecksum::pending)) << length;
    }
}

TEST(ReadArpRequest, TakesAHostsQuestion) {
    const auto request = readArpRequest(bytesOfHex(arpRequest));
    ASSERT_TRUE(request);
    EXPECT_EQ(request->destination, broadcastHardware);
    EXPECT_EQ(request->senderHardware, hostHardware);
    EXPECT_EQ(request->sender, 0xC0000201U);
    EXPECT_EQ(request->target, 0xC000020BU);
}

TEST(ReadArpRequest, LeavesRepliesAndOtherNetworksOut) {
    EXPECT_FALSE(readArpRequest(changed(arpRequest, 21, 2)));    // a reply
    EXPECT_FALSE(readArpRequest(changed(arpRequest, 15, 6)));    // another link
    EXPECT_FALSE(readArpRequest(changed(arpRequest, 18, 8)));    // longer hardware addresses
    EXPECT_FALSE(readArpRequest(changed(arpRequest, 13, 0x00))); // IPv4
}

TEST(ReadArpRequest, EveryShorterFrameIsLeftOut) {
    const Bytes whole = bytesOfHex(arpRequest);
    for (std::size_t length = 0; length < whole.size(); ++length) {
        EXPECT_FALSE(readArpRequest(ByteView(whole).first(length))) << length;
    }
}

TEST(ArpReplyFrame, NamesTheHolderToTheAsker) {
    const ArpRequest request{.destination = broadcastHardware,
                             .senderHardware = hostHardware,
                             .sender = 0xC0000201,
                             .target = 0xC000020B};
    EXPECT_EQ(arpReplyFrame(request, unitHardware),
              bytesOfHex("020000000001 024B58000001 0806"
                         "0001 0800 06 04 0002"
                         "024B58000001 C000020B 020000000001 C0000201"
                         "000000000000000000000000000000000000"));
}

TEST(ArpAnnouncementFrame, AsksEverybodyForTheHoldersOwnAddress) {
    EXPECT_EQ(arpAnnouncementFrame(unitHardware, 0xC000020B),
              bytesOfHex("FFFFFFFFFFFF 024B58000001 0806"
                         "0001 0800 06 04 0001"
                         "024B58000001 C000020B 000000000000 C000020B"
                         "000000000000000000000000000000000000"));
}

TEST(Frames, RandomBytesOfEveryLengthAreReadSafely) {
    std::mt19937 random(1);
    for (std::size_t length = 0; length <= 200; ++length) {
        for (int round = 0; round < 100; ++round) {
            Bytes frame(length);
            for (std::uint8_t& byte : frame) {
                byte = static_cast<std::uint8_t>(random());
            }
            // Begins like most real frames, so that the bytes behind the beginning are read too.
            const Bytes beginning = bytesOfHex(round % 2 == 0 ? requestFrame : arpRequest);
            for (std::size_t index = 12; index < std::min<std::size_t>(length, 16); ++index) {
                frame[index] = beginning[index];
            }
            readArpRequest(frame);
            const auto datagram = readDatagram(frame, UdpChecksum::pending);
            EXPECT_TRUE(!datagram || datagram->payload.size() < length);
        }
    }
}

} // namespace
} // namespace kx::simulator
