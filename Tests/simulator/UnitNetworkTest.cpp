#include "Simulator/UnitNetwork.h"

#include "Simulator/FactorySettings.h"
#include "simulator/Literals.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace kx::simulator {
namespace {

constexpr HardwareAddress programHardware{0x02, 0, 0, 0, 0, 0x01};
constexpr IPv4 hostAddress = 0x0A000001;
constexpr Network wideNetwork{.base = 0x0A000000, .prefixLength = 16};

std::vector<SimulatedUnit> units(unsigned count) {
    std::vector<SimulatedUnit> all;
    for (unsigned number = 1; number <= count; ++number) {
        all.emplace_back(factorySettings(number, wideNetwork));
    }
    return all;
}

HardwareAddress hardwareOf(unsigned number) {
    return factorySettings(number, wideNetwork).hardwareAddress;
}

IPv4 addressOf(unsigned number) {
    return factorySettings(number, wideNetwork).address;
}

class UnitNetworkTest : public testing::Test {
protected:
    void play(unsigned count, const FaultPlan& plan = {}) {
        _network.emplace(units(count), plan,
                         [this](const SimulatedUnit& unit, const Datagram& datagram) {
                             _heard.emplace_back(unit.settings().serial.back(), datagram.payload);
                         });
    }

    std::vector<OutgoingFrame> send(const HardwareAddress& hardware, IPv4 address,
                                    std::string_view command, std::uint16_t port = 3520) {
        return _network->receive(datagramFrame({.source = {programHardware, hostAddress, 3521},
                                                .destination = {hardware, address, port},
                                                .payload = bytesOfText(command)}),
                                 UdpChecksum::complete);
    }

    std::vector<OutgoingFrame> broadcast(std::string_view command) {
        return send(broadcastHardware, 0xFFFFFFFF, command);
    }

    // The ARP answers to a question for `address` that was sent to `hardware`.
    std::vector<OutgoingFrame> ask(IPv4 address,
                                   const HardwareAddress& hardware = broadcastHardware) {
        Bytes frame = arpAnnouncementFrame(programHardware, address);
        std::ranges::copy(hardware, frame.begin());
        return _network->receive(frame, UdpChecksum::complete);
    }

    // The one datagram among `frames`.
    static Datagram onlyDatagram(const std::vector<OutgoingFrame>& frames) {
        std::vector<Datagram> datagrams;
        for (const OutgoingFrame& frame : frames) {
            if (auto datagram = readDatagram(frame.bytes, UdpChecksum::complete)) {
                datagrams.push_back(std::move(*datagram));
            }
        }
        EXPECT_EQ(datagrams.size(), 1U);
        return datagrams.empty() ? Datagram{} : datagrams.front();
    }

    std::optional<UnitNetwork> _network;
    std::vector<std::pair<std::uint8_t, Bytes>> _heard;
};

TEST_F(UnitNetworkTest, EveryUnitAnswersABroadcast) {
    play(3);
    const auto frames = broadcast("^^IdX");
    ASSERT_EQ(frames.size(), 3U);
    for (unsigned number = 1; number <= 3; ++number) {
        const auto reply = readDatagram(frames[number - 1].bytes, UdpChecksum::complete);
        ASSERT_TRUE(reply);
        EXPECT_EQ(reply->source.hardware, hardwareOf(number));
        EXPECT_EQ(reply->source.address, addressOf(number));
        EXPECT_EQ(reply->payload.size(), 81U);
    }
}

TEST_F(UnitNetworkTest, RepliesGoToTheSenderFromThePortThatItUsed) {
    play(1);
    const Datagram reply = onlyDatagram(send(hardwareOf(1), addressOf(1), "^^IdX", 10000));
    EXPECT_EQ(reply.source.port, 10000);
    EXPECT_EQ(reply.destination.hardware, programHardware);
    EXPECT_EQ(reply.destination.address, hostAddress);
    EXPECT_EQ(reply.destination.port, 3521);
}

TEST_F(UnitNetworkTest, OnlyTheAddressedUnitAnswers) {
    play(3);
    EXPECT_EQ(onlyDatagram(send(hardwareOf(2), addressOf(2), "^^IdX")).source.hardware,
              hardwareOf(2));
    EXPECT_TRUE(send(programHardware, addressOf(2), "^^IdX").empty());
}

TEST_F(UnitNetworkTest, EveryBroadcastIsTakenWhateverSubnetItIsFor) {
    play(2);
    EXPECT_EQ(send(broadcastHardware, 0xC0A801FF, "^^IdX").size(), 2U);
}

TEST_F(UnitNetworkTest, UnitsMayIgnoreABroadcastForAnotherSubnet) {
    play(2);
    _network->ignoreOtherSubnets(wideNetwork.prefixLength);
    EXPECT_TRUE(send(broadcastHardware, 0xC0A801FF, "^^IdX").empty());
    EXPECT_TRUE(send(broadcastHardware, 0x0A0000FF, "^^IdX").empty()) << "it is for 10.0.0.0/24";
    EXPECT_TRUE(_heard.empty());
    EXPECT_EQ(send(broadcastHardware, 0x0A00FFFF, "^^IdX").size(), 2U);
    EXPECT_EQ(broadcast("^^IdX").size(), 2U);
    EXPECT_EQ(send(hardwareOf(1), 0xC0A80105, "^^IdX").size(), 1U) << "it is no broadcast";
}

TEST_F(UnitNetworkTest, OtherPortsAreNotHeard) {
    play(3);
    EXPECT_TRUE(send(hardwareOf(1), addressOf(1), "^^IdX", 3521).empty());
    EXPECT_TRUE(send(hardwareOf(3), addressOf(3), "^^IdX", 10000).empty());
    EXPECT_TRUE(_heard.empty());
}

TEST_F(UnitNetworkTest, ArpIsAnsweredForHeldAddressesOnly) {
    play(3);
    const auto frames = ask(addressOf(2));
    ASSERT_EQ(frames.size(), 1U);
    // The sender of the answer: the holder's hardware address and the address in the question.
    EXPECT_EQ(Bytes(frames[0].bytes.begin() + 22, frames[0].bytes.begin() + 32),
              bytesOfHex("024B58000002 0A00000C"));
    EXPECT_TRUE(ask(addressOf(4)).empty());
    EXPECT_TRUE(ask(0).empty());
}

TEST_F(UnitNetworkTest, ArpQuestionForAnotherUnitsEarIsNotAnswered) {
    play(3);
    EXPECT_EQ(ask(addressOf(2), hardwareOf(2)).size(), 1U);
    EXPECT_TRUE(ask(addressOf(2), hardwareOf(1)).empty());
}

TEST_F(UnitNetworkTest, UnitIsReachedAtAnAddressThatItDoesNotHoldAndMovesThere) {
    play(2);
    constexpr IPv4 newAddress = 0xC0A80114;
    const auto frames = send(hardwareOf(1), newAddress, "^^IdIC0A80114");
    const Datagram reply = onlyDatagram(frames);
    EXPECT_EQ(reply.source.address, newAddress);
    EXPECT_EQ(ByteView(reply.payload).last(3)[0], 'o');
    EXPECT_EQ(frames.front().bytes, arpAnnouncementFrame(hardwareOf(1), newAddress));

    EXPECT_TRUE(ask(addressOf(1)).empty());
    EXPECT_EQ(ask(newAddress).size(), 1U);
}

TEST_F(UnitNetworkTest, UnitIsFoundUnderItsNewHardwareAddress) {
    play(2);
    constexpr HardwareAddress newAddress{0x02, 0, 0, 0, 0, 0xAA};
    EXPECT_EQ(onlyDatagram(send(hardwareOf(1), addressOf(1), "^^IdM0200000000AA")).source.hardware,
              newAddress);
    EXPECT_TRUE(send(hardwareOf(1), addressOf(1), "^^IdX").empty());
    EXPECT_EQ(onlyDatagram(send(newAddress, addressOf(1), "^^IdX")).payload.size(), 81U);
}

TEST_F(UnitNetworkTest, RestoredUnitIsBackAtItsFirstAddresses) {
    play(1);
    send(hardwareOf(1), addressOf(1), "^^IdIC0A80114");
    send(hardwareOf(1), addressOf(1), "^^IdM0200000000AA");
    EXPECT_EQ(broadcast("^^IdZ").size(), 2U);
    EXPECT_EQ(ask(addressOf(1)).size(), 1U);
    EXPECT_EQ(onlyDatagram(send(hardwareOf(1), addressOf(1), "^^IdX")).source.address,
              addressOf(1));
}

TEST_F(UnitNetworkTest, UnitsThatShareAnAddressAllAnswer) {
    play(3);
    broadcast("^^IdIC0A80114");
    EXPECT_EQ(ask(0xC0A80114).size(), 3U);
    send(hardwareOf(2), 0xC0A80114, "^^IdZ");
    EXPECT_EQ(ask(0xC0A80114).size(), 2U);
}

TEST_F(UnitNetworkTest, UnitsThatShareAHardwareAddressAllHear) {
    play(3);
    broadcast("^^IdM0200000000AA");
    EXPECT_EQ(send({0x02, 0, 0, 0, 0, 0xAA}, addressOf(1), "^^IdX").size(), 3U);
}

TEST_F(UnitNetworkTest, MalformedCommandsAreHeardAndNotAnswered) {
    play(2);
    EXPECT_TRUE(broadcast("hello").empty());
    EXPECT_EQ(_heard, (std::vector<std::pair<std::uint8_t, Bytes>>{{1, bytesOfText("hello")},
                                                                   {2, bytesOfText("hello")}}));
}

TEST_F(UnitNetworkTest, FaultsStrikeRepliesAndNotArp) {
    play(3, {.late = std::chrono::milliseconds(40), .duplicatePercent = 100});
    const auto frames = broadcast("^^IdX");
    ASSERT_EQ(frames.size(), 6U);
    EXPECT_EQ(frames[0].delay, std::chrono::milliseconds(40));
    EXPECT_EQ(ask(addressOf(1)).size(), 1U);
    EXPECT_EQ(ask(addressOf(1))[0].delay, std::chrono::milliseconds(0));
}

TEST_F(UnitNetworkTest, UnsolicitedRepliesGoToTheLastSenderFromUnitAfterUnit) {
    play(2);
    EXPECT_TRUE(_network->unsolicitedReplies(5).empty());
    send(hardwareOf(1), addressOf(1), "^^IdX");
    const auto frames = _network->unsolicitedReplies(3);
    ASSERT_EQ(frames.size(), 3U);
    const unsigned senders[] = {1, 2, 1};
    for (std::size_t index = 0; index < 3; ++index) {
        const auto reply = readDatagram(frames[index].bytes, UdpChecksum::complete);
        ASSERT_TRUE(reply);
        EXPECT_EQ(reply->source.hardware, hardwareOf(senders[index]));
        EXPECT_EQ(reply->destination.port, 3521);
        EXPECT_EQ(reply->payload.size(), 81U);
    }
}

TEST_F(UnitNetworkTest, TenThousandUnitsAnswerOneBroadcastAndAreEachFound) {
    play(10'000);
    EXPECT_EQ(broadcast("^^IdX").size(), 10'000U);
    EXPECT_EQ(onlyDatagram(send(hardwareOf(10'000), addressOf(10'000), "^^IdX")).source.address,
              addressOf(10'000));
    for (unsigned number = 1; number <= 10'000; ++number) {
        ASSERT_EQ(ask(addressOf(number)).size(), 1U);
    }
    // One address for all units is the worst case for an index.
    EXPECT_EQ(broadcast("^^IdIC0A80114").size(), 20'000U);
    EXPECT_EQ(ask(0xC0A80114).size(), 10'000U);
}

TEST_F(UnitNetworkTest, ForeignFramesOfEveryLengthDoNoHarm) {
    play(3);
    std::mt19937 random(1);
    const Bytes request = datagramFrame({.source = {programHardware, hostAddress, 3521},
                                         .destination = {broadcastHardware, 0xFFFFFFFF, 3520},
                                         .payload = bytesOfText("^^IdX")});
    for (std::size_t length = 0; length <= 200; ++length) {
        Bytes frame = request;
        frame.resize(length);
        _network->receive(frame, UdpChecksum::pending);
        for (int round = 0; round < 20; ++round) {
            for (std::size_t index = 14; index < length; ++index) {
                frame[index] = static_cast<std::uint8_t>(random());
            }
            EXPECT_TRUE(_network->receive(frame, UdpChecksum::complete).empty());
        }
    }
    EXPECT_EQ(broadcast("^^IdX").size(), 3U);
}

TEST_F(UnitNetworkTest, HonestUnitsLoseNoReply) {
    play(1, {.losePercent = 100});
    EXPECT_TRUE(send(hardwareOf(1), addressOf(1), "^^IdX").empty());
    _network->endFaults();
    EXPECT_EQ(send(hardwareOf(1), addressOf(1), "^^IdX").size(), 1U);
}

} // namespace
} // namespace kx::simulator
