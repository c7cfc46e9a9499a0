#include "words/FindingText.h"

#include "doubles/MarkedLocalizedText.h"

#include <gtest/gtest.h>

namespace kx {

namespace {

std::string textOfFault(InterfaceFault fault) {
    return textOfFinding(InterfaceFinding{fault, "eth0"});
}

} // namespace

TEST(FindingText, SaysHowManyDatagramsWereDroppedAndWhatHelps) {
    EXPECT_EQ(textOfFinding(DroppedDatagrams{1}),
              "The system dropped 1 datagram before it was read, so a unit may be "
              "missing. Help says how to allow a larger buffer.");
    EXPECT_EQ(textOfFinding(DroppedDatagrams{2}),
              "The system dropped 2 datagrams before they were read, so units may "
              "be missing. Help says how to allow a larger buffer.");
    EXPECT_TRUE(textOfFinding(DroppedDatagrams{4'294'967'295U})
                    .starts_with("The system dropped 4294967295 datagrams"));
}

TEST(FindingText, SaysWhatIsWrongWithTheChosenInterface) {
    EXPECT_EQ(textOfFault(InterfaceFault::gone),
              "The interface eth0 is gone, so no broadcast was sent. Choose another one, or bring "
              "it back.");
    EXPECT_EQ(textOfFault(InterfaceFault::withoutLink),
              "The interface eth0 has no link. Is its cable plugged in, and the device at the "
              "other end switched on?");
    EXPECT_EQ(textOfFault(InterfaceFault::withoutBroadcast),
              "The interface eth0 reaches no unit by broadcast. Choose the one that leads to the "
              "units.");
    EXPECT_EQ(textOfFault(InterfaceFault::lostAddress),
              "The interface eth0 has lost the address that it had when it was chosen. When it has "
              "one again, choose it again.");
    EXPECT_EQ(textOfFault(InterfaceFault::outOfDate),
              "The address and mask of the interface eth0 are out of date: they have changed since "
              "it was chosen. Choose it again to take the new ones over.");
}

TEST(FindingText, SaysThatTheListLeavesUnitsOut) {
    EXPECT_EQ(textOfFinding(ForgottenUnits()),
              "More than 1,048,576 units have answered, so the list leaves out those that were not "
              "heard for longest.");
}

TEST(FindingText, SaysHowManyUnitsHaveOneAddressWhereThereAreMoreThanTwo) {
    SerialsOfOneAddress units{0x0A000007U,
                              {"01 02 03 04 05 06", "01 02 03 04 05 07", "01 02 03 04 05 08"}};
    EXPECT_EQ(textOfFinding(units),
              "3 units say that their address is 10.0.0.7, among them 01 02 03 04 05 06 and 01 02 "
              "03 04 05 07. A command may reach any of them.");
    units.serials.resize(SerialsOfOneAddress::mostSerials);
    EXPECT_TRUE(textOfFinding(units).starts_with(
        "100 units or more say that their address is 10.0.0.7, among them"));
}

TEST(FindingText, NamesTheHostsAndUnitsThatContradictEachOther) {
    EXPECT_EQ(textOfFinding(TwoHostsOfOneSerial{"01 02 03 04 05 06", "10.0.0.7", "10.0.0.9"}),
              "Two hosts answer as the unit 01 02 03 04 05 06: 10.0.0.7 and 10.0.0.9.");
    EXPECT_EQ(
        textOfFinding(SerialsOfOneAddress{0x0A000007U, {"01 02 03 04 05 06", "01 02 03 04 05 07"}}),
        "Two units say that their address is 10.0.0.7: 01 02 03 04 05 06 and 01 02 03 04 05 "
        "07. A command may reach either.");
    EXPECT_EQ(textOfFinding(SenderOfAnotherAddress{"01 02 03 04 05 06", 0x0A000007U, 0x0A000009U}),
              "The unit 01 02 03 04 05 06 says that its address is 10.0.0.7, but its answer came "
              "from 10.0.0.9.");
}

TEST(FindingText, NamesTheInterfacesWhereTheHostKnowsThem) {
    const UnitOnTwoInterfaces unit{"01 02 03 04 05 06", 2, 7};
    const auto nameOfLink = [](std::uint32_t link) -> std::string {
        return link == 2 ? "eth0" : "";
    };
    EXPECT_EQ(
        textOfFinding(unit, nameOfLink),
        "The unit 01 02 03 04 05 06 is heard on two interfaces: eth0 and 7. Commands leave by "
        "the one on which it was heard last.");
    EXPECT_TRUE(textOfFinding(unit).ends_with("interfaces: 2 and 7. Commands leave by the one on "
                                              "which it was heard last."));
}

TEST(FindingText, IsLookedUpAsAWhole) {
    const MarkedLocalizedText marked;
    EXPECT_TRUE(textOfFinding(DroppedDatagrams{1}).starts_with("<The system dropped 1 datagram "));
    EXPECT_TRUE(textOfFinding(DroppedDatagrams{5}).ends_with("buffer.>"));
    EXPECT_TRUE(textOfFault(InterfaceFault::gone).starts_with("<The interface eth0 is gone"));
}

} // namespace kx
