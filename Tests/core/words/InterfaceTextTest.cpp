#include "words/InterfaceText.h"

#include "conversation/UnitDestination.h"

#include <gtest/gtest.h>

namespace kx {

namespace {

const ChosenInterface ethernet{.name = "eth0",
                               .address = {.address = 0xC0000201U, .mask = 0xFFFFFF00U}};

} // namespace

TEST(InterfaceText, BeforeAChoiceItSaysThatNoneIsChosen) {
    EXPECT_EQ(descriptionOfInterface(std::nullopt, std::nullopt, limitedBroadcastAddress),
              "No interface is chosen, so Discover asks 255.255.255.255.");
}

TEST(InterfaceText, HasAddressMaskBroadcastAddressAndLink) {
    const std::string addresses =
        "Address 192.0.2.1, mask 255.255.255.0, broadcast address 192.0.2.255.";
    EXPECT_EQ(descriptionOfInterface(ethernet, InterfaceState{.isRunning = true}, 0xC00002FFU),
              addresses + " The link is up.");
    EXPECT_EQ(descriptionOfInterface(ethernet, InterfaceState{.isRunning = false}, 0xC00002FFU),
              addresses + " The link is down.");
    EXPECT_EQ(descriptionOfInterface(ethernet, std::nullopt, 0xC00002FFU), addresses);
}

TEST(InterfaceText, SaysThatAnInterfaceHasNoAddress) {
    EXPECT_EQ(descriptionOfInterface(ChosenInterface{.name = "eth0", .address = {}}, std::nullopt,
                                     limitedBroadcastAddress),
              "The interface has no IPv4 address, so Discover asks 255.255.255.255.");
}

} // namespace kx
