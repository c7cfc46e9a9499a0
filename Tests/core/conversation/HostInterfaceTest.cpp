#include "conversation/HostInterface.h"

#include <gtest/gtest.h>

namespace kx {

namespace {

HostInterface interface(std::string name, std::string userName, bool hasProfile, bool canAsk) {
    HostInterface made;
    made.title = userName + " (" + name + ")";
    made.name = std::move(name);
    made.userName = std::move(userName);
    made.hasProfile = hasProfile;
    made.canAsk = canAsk;
    return made;
}

const std::vector<HostInterface> allInterfaces{
    interface("kx0", "Office", true, true), interface("kx2", "Ethernet", false, true),
    interface("lo", "Loopback", false, false), interface("kx4", "kx0", true, false)};

std::vector<std::string> namesOf(const std::vector<HostInterface>& interfaces) {
    std::vector<std::string> names;
    for (const HostInterface& each : interfaces) {
        names.push_back(each.name);
    }
    return names;
}

using Names = std::vector<std::string>;

} // namespace

TEST(HostInterface, IsNamedByItsNameItsTitleOrItsProfile) {
    EXPECT_EQ(namesOf(interfacesNamed(allInterfaces, "kx2")), Names{"kx2"});
    EXPECT_EQ(namesOf(interfacesNamed(allInterfaces, "Office (kx0)")), Names{"kx0"});
    EXPECT_EQ(namesOf(interfacesNamed(allInterfaces, "Office")), Names{"kx0"});
    EXPECT_EQ(namesOf(interfacesNamed(allInterfaces, "kx9")), Names{});
    EXPECT_EQ(namesOf(interfacesNamed(allInterfaces, "")), Names{});
}

TEST(HostInterface, TheKindInFrontOfATitleIsNoName) {
    EXPECT_EQ(namesOf(interfacesNamed(allInterfaces, "Ethernet")), Names{});
}

TEST(HostInterface, AProfileWithTheNameOfAnotherInterfaceIsAmbiguous) {
    EXPECT_EQ(namesOf(interfacesNamed(allInterfaces, "kx0")), (Names{"kx0", "kx4"}));
}

TEST(HostInterface, OneWithTwoProfilesIsOneInterface) {
    const std::vector<HostInterface> twice{interface("kx0", "Office", true, true),
                                           interface("kx0", "Lab", true, true)};
    EXPECT_EQ(namesOf(interfacesNamed(twice, "kx0")), Names{"kx0"});
    EXPECT_EQ(namesOf(askableInterfaces(twice)), Names{"kx0"});
    EXPECT_EQ(interfacesNamed(twice, "Lab").at(0).title, "Lab (kx0)");
}

TEST(HostInterface, OnlySomeCanAsk) {
    EXPECT_EQ(namesOf(askableInterfaces(allInterfaces)), (Names{"kx0", "kx2"}));
}

TEST(HostInterface, KnowsItsNetworks) {
    HostInterface made;
    EXPECT_EQ(made.broadcast(), 0xFFFFFFFFU);
    EXPECT_EQ(made.networkOf(0xC0000201U), nullptr);
    made.networks = {{.address = 0xC0000201U, .mask = 0xFFFFFF00U},
                     {.address = 0x0A000001U, .mask = 0xFF000000U}};
    EXPECT_EQ(made.broadcast(), 0xC00002FFU);
    EXPECT_EQ(made.networkOf(0x0A010203U), &made.networks[1]);
    EXPECT_EQ(made.networkOf(0x0B000000U), nullptr);
}

namespace {

// kx0 has 192.0.2.1/24 and 10.0.0.1/8, kx2 has 198.51.100.2/31.
std::vector<HostInterface> twoInterfaces() {
    HostInterface first;
    first.name = "kx0";
    first.networks = {{.address = 0xC0000201U, .mask = 0xFFFFFF00U},
                      {.address = 0x0A000001U, .mask = 0xFF000000U}};
    HostInterface second;
    second.name = "kx2";
    second.networks = {{.address = 0xC6336402U, .mask = 0xFFFFFFFEU}};
    return {first, second};
}

} // namespace

TEST(HostInterface, EveryNetworkHasTwoAddressesOfMany) {
    EXPECT_EQ(addressesOfMany(twoInterfaces()),
              (std::vector<std::uint32_t>{0, 0xC0000200U, 0xC00002FFU, 0x0A000000U, 0x0AFFFFFFU}));
    EXPECT_EQ(addressesOfMany({}), std::vector<std::uint32_t>{0});
}

TEST(HostInterface, AnAddressOfThisHostIsFoundOnEveryInterface) {
    const auto both = twoInterfaces();
    const std::vector asked{both.front()};
    for (const std::uint32_t own : {0xC0000201U, 0x0A000001U, 0xC6336402U}) {
        EXPECT_EQ(objectionToAddress(own, both, asked), AddressObjection::isOwn) << own;
    }
}

TEST(HostInterface, AnAddressOfAWholeNetworkIsFoundInEveryNetwork) {
    const auto both = twoInterfaces();
    for (const std::uint32_t ofNetwork : {0xC0000200U, 0xC00002FFU, 0x0A000000U, 0x0AFFFFFFU}) {
        EXPECT_EQ(objectionToAddress(ofNetwork, both, {both.back()}), AddressObjection::isOfNetwork)
            << ofNetwork;
    }
}

TEST(HostInterface, BothAddressesOfANetworkOfTwoAreHosts) {
    const auto both = twoInterfaces();
    EXPECT_EQ(objectionToAddress(0xC6336403U, both, both), AddressObjection::none);
}

TEST(HostInterface, AnAddressMustLieInANetworkThatIsAsked) {
    const auto both = twoInterfaces();
    EXPECT_EQ(objectionToAddress(0x0A010203U, both, {both.front()}), AddressObjection::none);
    EXPECT_EQ(objectionToAddress(0x0A010203U, both, {both.back()}), AddressObjection::isOutside);
    EXPECT_EQ(objectionToAddress(0x0B000000U, both, both), AddressObjection::isOutside);
}

} // namespace kx
