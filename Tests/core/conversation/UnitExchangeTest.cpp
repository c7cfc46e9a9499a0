#include "ExchangeFixture.h"

#include <cerrno>
#include <memory>

namespace kx {

namespace {

class RecordingListener final : public UnitExchange::Listener {
public:
    using Listener::Listener;
    void unitDidTell(const HeardUnit& unit) override { told.push_back(unit); }
    void unitDidAnswer(const UnitAnswer& answer) override { answers.push_back(answer); }

    std::vector<HeardUnit> told;
    std::vector<UnitAnswer> answers;
};

class UnitExchangeTest : public ExchangeTest {
protected:
    RecordingListener listener{exchange};
};

} // namespace

TEST_F(UnitExchangeTest, AListIsToldWithItsSenderItsLinkAndTheTimeSinceTheRequest) {
    exchange.send("^^IdX", everybody);
    runLoop.advanceBy(7ms);
    receive(SampleUnit().reply());
    ASSERT_EQ(listener.told.size(), 1U);
    const HeardUnit& unit = listener.told.front();
    EXPECT_EQ(unit.serialNumber(), "01 02 03 04 05 06");
    EXPECT_EQ(unit.hardwareAddress(), "00:1A:2B:3C:4D:5E");
    EXPECT_EQ(unit.unitIDBytes, (UnitIDBytes{0, 0, 0, 0, 0, 42}));
    EXPECT_EQ(unit.sender, unitAddress);
    EXPECT_EQ(unit.answered, 7ms);
    EXPECT_EQ(unit.target(), unitTarget);
    EXPECT_EQ(exchange.rejected(), 0U);
}

TEST_F(UnitExchangeTest, TheBytesOfAUnitIDAreThereWhereItIsNoText) {
    SampleUnit unit;
    unit.unitID = {0xFF, 0, 1, 2, 3, 4};
    receive(unit.reply());
    EXPECT_EQ(listener.told.at(0).unitIDBytes, (UnitIDBytes{0xFF, 0, 1, 2, 3, 4}));
    EXPECT_EQ(unitIDText(listener.told.at(0).record), std::nullopt);
}

TEST_F(UnitExchangeTest, AUnitWithoutAnAddressIsReachedWhereItsAnswerCameFrom) {
    receive(joined({SampleUnit().header(), item("<M>", SampleUnit().internalMAC),
                    item("<S>", SampleUnit().serial)}));
    EXPECT_EQ(listener.told.at(0).target(),
              (UnitTarget{.address = unitAddress, .port = 3520, .link = link}));
}

TEST_F(UnitExchangeTest, AnswersAreToldWithTheirBytesFromTheMarkerOn) {
    receive(SampleUnit().acknowledgement());
    receive(joined({SampleUnit().header(), textBytes("v1")}));
    ASSERT_EQ(listener.answers.size(), 2U);
    EXPECT_TRUE(listener.answers[0].isAcknowledgement);
    EXPECT_EQ(listener.answers[0].bytes, textBytes("$ok\r"));
    EXPECT_EQ(listener.answers[0].serialNumber, "01 02 03 04 05 06");
    EXPECT_FALSE(listener.answers[1].isAcknowledgement);
    EXPECT_EQ(listener.answers[1].bytes, textBytes("$v1"));
}

TEST_F(UnitExchangeTest, WhatIsNoListAndNoAcknowledgementIsRejected) {
    receive(textBytes("^^"));                                      // too short
    receive(textBytes("hello"));                                   // no reply
    receive(textBytes("^^<U>12"));                                 // cut short
    receive(joined({SampleUnit().header(), textBytes("v1")}));     // something else
    receive(joined({SampleUnit().header(), textBytes("<M>123")})); // a list that is cut short
    EXPECT_EQ(exchange.rejected(), 5U);
    receive(SampleUnit().reply());
    receive(SampleUnit().acknowledgement());
    EXPECT_EQ(exchange.rejected(), 5U);
}

TEST_F(UnitExchangeTest, AListWithoutASerialNumberNamesNoUnit) {
    receive(joined({SampleUnit().header(), item("<M>", SampleUnit().internalMAC)}));
    EXPECT_TRUE(listener.told.empty());
    EXPECT_EQ(exchange.rejected(), 1U);
}

TEST_F(UnitExchangeTest, TheOwnBroadcastIsNotRejectedAndThatOfAnotherHostIs) {
    for (const char* command : {"^^IdX", "^^IdZ"}) {
        receive(textBytes(command), ownAddress, 3520);
    }
    EXPECT_EQ(exchange.rejected(), 0U);
    receive(textBytes("^^IdX"), ownAddress, 3521); // of another program here
    receive(textBytes("^^IdX"), unitAddress, 3520);
    EXPECT_EQ(exchange.rejected(), 2U);
}

TEST_F(UnitExchangeTest, ADatagramLeavesByTheLinkThatItsTargetNames) {
    EXPECT_FALSE(exchange.send("^^IdV\r", unitTarget).has_value());
    EXPECT_EQ(systemCalls.sentDatagrams().back().link, link);
    EXPECT_TRUE(exchange.send("^^IdX", {.address = 1, .port = 1, .link = 99}).has_value());
}

TEST_F(UnitExchangeTest, TheFirstFreePortIsOpened) {
    systemCalls.failNext(Operation::bind, EADDRINUSE);
    constexpr std::array<std::uint16_t, 3> ports{3521, 3522, 3523};
    EXPECT_EQ(exchange.open(ports), std::nullopt);
    EXPECT_EQ(exchange.port(), 3522);
}

TEST_F(UnitExchangeTest, PortsThatAreAllTakenAreToldApartFromOtherFailures) {
    constexpr std::array<std::uint16_t, 2> ports{3522, 3523};
    systemCalls.failNext(Operation::bind, EADDRINUSE);
    systemCalls.failNext(Operation::bind, EADDRINUSE);
    EXPECT_TRUE(exchange.open(ports).value_or(OpenFailure()).arePortsTaken);
    systemCalls.failNext(Operation::socket, EMFILE);
    const auto failure = exchange.open(ports);
    ASSERT_TRUE(failure.has_value());
    EXPECT_FALSE(failure->arePortsTaken);
    EXPECT_EQ(failure->error.code, EMFILE);
}

TEST_F(UnitExchangeTest, AListenerMayGoWhileAnotherIsTold) {
    class Remover final : public UnitExchange::Listener {
    public:
        Remover(UnitExchange& exchange, std::unique_ptr<RecordingListener>& other)
            : Listener(exchange)
            , _other(other) {}
        void unitDidTell(const HeardUnit& /*unit*/) override { _other.reset(); }

    private:
        std::unique_ptr<RecordingListener>& _other;
    };
    std::unique_ptr<RecordingListener> other;
    const Remover remover(exchange, other);
    other = std::make_unique<RecordingListener>(exchange);
    receive(SampleUnit().reply());
    EXPECT_EQ(other, nullptr);
    EXPECT_EQ(listener.told.size(), 1U);
}

TEST_F(UnitExchangeTest, TheNumberOfDropsIsThatOfThisMoment) {
    receiveBuffers.drop(systemCalls.lastDescriptor(), 5);
    EXPECT_EQ(exchange.dropped(), 5U);
}

} // namespace kx
