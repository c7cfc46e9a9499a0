#include "conversation/OptionCommand.h"

#include "ExchangeFixture.h"

#include <cerrno>

namespace kx {

namespace {

class OptionCommandTest : public ExchangeTest {
protected:
    void begin() {
        const HeardUnit unit = heardUnit(SampleUnit());
        option = std::make_unique<OptionCommand>(exchange, unit, "V");
        option->begin({});
    }

    static Bytes answerOf(const SampleUnit& unit, std::string_view text) {
        return joined({unit.header(), textBytes(text)});
    }

    std::unique_ptr<OptionCommand> option;
};

} // namespace

TEST_F(OptionCommandTest, IsSentOnceAndItsAnswersAreCollectedForASecond) {
    begin();
    receive(answerOf(SampleUnit(), "v1\r"));
    receive(SampleUnit().acknowledgement());
    runLoop.advanceBy(999ms);
    EXPECT_FALSE(option->hasEnded());
    runLoop.advanceBy(1ms);
    EXPECT_TRUE(option->hasEnded());
    receive(answerOf(SampleUnit(), "late"));
    ASSERT_EQ(option->answers().size(), 2U);
    EXPECT_EQ(option->answers()[0].bytes, textBytes("$v1\r"));
    EXPECT_EQ(option->answers()[1].bytes, textBytes("$ok\r"));
    EXPECT_EQ(sent(), Lines{"192.168.1.10:10000 ^^IdV\\r"});
}

TEST_F(OptionCommandTest, AnswersOfOthersAreNotTaken) {
    begin();
    receive(answerOf(secondSampleUnit(), "v2"));
    receive(answerOf(secondSampleUnit(), "v2"), unitAddress + 1);
    EXPECT_TRUE(option->answers().empty());
}

TEST_F(OptionCommandTest, AnAnswerWithoutASerialNumberIsKnownByItsSender) {
    begin();
    Bytes nameless = answerOf(SampleUnit(), "v1");
    nameless[11] = '-'; // no serial tag
    receive(nameless, unitAddress + 1);
    receive(nameless, unitAddress);
    EXPECT_EQ(option->answers().size(), 1U);
}

TEST_F(OptionCommandTest, AListOfParametersIsNoAnswer) {
    begin();
    receive(SampleUnit().reply());
    EXPECT_TRUE(option->answers().empty());
}

TEST_F(OptionCommandTest, ACommandThatIsNotSentEndsAtOnce) {
    const HeardUnit unit = heardUnit(SampleUnit());
    systemCalls.failNext(Operation::sendTo, EPERM);
    OptionCommand refused(exchange, unit, "V");
    refused.begin({});
    EXPECT_TRUE(refused.hasEnded());
    EXPECT_EQ(refused.failure()->error, posixError(EPERM));
}

TEST_F(OptionCommandTest, AnInterruptionWaitsForTheAnswers) {
    begin();
    option->interrupt();
    EXPECT_FALSE(option->hasEnded());
}

} // namespace kx
