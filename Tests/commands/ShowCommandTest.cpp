#include "CommandFixture.h"

namespace kx {

using ShowCommandTest = CommandTest;

TEST_F(ShowCommandTest, EveryUnitThatDoesNotAnswerIsTold) {
    play({});
    EXPECT_EQ(run({"show", serial, "0102030405AA", "0102030405BB", "--json"}), 1);
    EXPECT_EQ(errorCode(), "not-found");
    EXPECT_EQ(document()["error"]["message"],
              "The unit 01 02 03 04 05 AA does not answer. The unit "
              "01 02 03 04 05 BB does not answer.");
    EXPECT_EQ(document()["units"].size(), 1U);
}

TEST_F(ShowCommandTest, AUnitThatTellsAnAddressOfManyIsShown) {
    play({.sender = 0xC0A8010AU}).unit.internalIP = {192, 168, 1, 255};
    EXPECT_EQ(run({"show", serial, "--json"}), 0);
    EXPECT_EQ(document()["units"][0]["internal_ip"], "192.168.1.255");
}

TEST_F(ShowCommandTest, AUnitThatIsNamedTwiceIsShownOnce) {
    play({});
    play({.unit = secondSampleUnit()});
    EXPECT_EQ(run({"show", secondSerial, serial, "01:02:03:04:05:06", "--json"}), 0);
    ASSERT_EQ(document()["units"].size(), 2U);
    EXPECT_EQ(document()["units"][0]["serial"], "01 02 03 04 05 07") << "in the order of the names";
    EXPECT_EQ(document()["units"][1]["serial"], "01 02 03 04 05 06");
}

} // namespace kx
