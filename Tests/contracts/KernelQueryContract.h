// The contract of System Configuration/KernelQuery.h: tests that every kernel query must pass.
//
// A test program runs them against its kernel by
//
//     INSTANTIATE_TYPED_TEST_SUITE_P(Linux, KernelQueryContract, LinuxKernelTrait);
//
// with a trait that is made anew for each test and has
//
//     KernelQuery& kernelQuery();
//     // An interface that is up, with its hardware address and its first IPv4 address and mask.
//     std::string upName();
//     Bytes hardwareAddress();
//     std::uint32_t address();
//     std::uint32_t mask();
//     // An interface that is down.
//     std::string downName();

#pragma once

#include "System Configuration/KernelQuery.h"
#include "System Configuration/RoutingMessages.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

namespace kx {

template<typename Trait>
class KernelQueryContract : public testing::Test {
protected:
    struct Interface {
        std::string name;
        bool isUp = false;
        Bytes hardwareAddress;
        std::vector<AddressMessage> addresses; // those between this interface and the next
    };

    std::size_t neededSize() {
        std::size_t length = 0;
        EXPECT_EQ(trait.kernelQuery().sysctl(interfaceListName, nullptr, length), 0);
        return length;
    }

    Bytes interfaceList() {
        Bytes list(neededSize() + 512);
        std::size_t length = list.size();
        EXPECT_EQ(trait.kernelQuery().sysctl(interfaceListName, list.data(), length), 0);
        EXPECT_LE(length, list.size());
        list.resize(std::min(length, list.size()));
        return list;
    }

    std::vector<Interface> interfaces() {
        const Bytes list = interfaceList();
        std::vector<Interface> result;
        std::size_t length = 0;
        for (const ByteView message : routingMessages(list)) {
            length += message.size();
            if (const auto interface = interfaceMessage(message)) {
                result.push_back(
                    {interface->name.value_or(""),
                     interface->isUp,
                     Bytes(interface->hardwareAddress.begin(), interface->hardwareAddress.end()),
                     {}});
            } else if (const auto address = addressMessage(message); address && !result.empty()) {
                result.back().addresses.push_back(*address);
            }
        }
        EXPECT_EQ(length, list.size()) << "the list consists of whole messages";
        return result;
    }

    std::optional<Interface> interfaceNamed(const std::string& name) {
        const auto all = interfaces();
        const auto isNamed = [&name](const Interface& interface) { return interface.name == name; };
        EXPECT_LE(std::count_if(all.begin(), all.end(), isNamed), 1);
        const auto found = std::find_if(all.begin(), all.end(), isNamed);
        return found != all.end() ? std::optional(*found) : std::nullopt;
    }

    Trait trait;
};

TYPED_TEST_SUITE_P(KernelQueryContract);

TYPED_TEST_P(KernelQueryContract, ABufferOfTheNeededSizeIsEnough) {
    Bytes list(this->neededSize());
    ASSERT_FALSE(list.empty());
    std::size_t length = list.size();
    EXPECT_EQ(this->trait.kernelQuery().sysctl(interfaceListName, list.data(), length), 0);
    EXPECT_LE(length, list.size());
    EXPECT_GT(length, 0U);
}

TYPED_TEST_P(KernelQueryContract, ABufferThatIsTooSmallFailsAndIsNotOverrun) {
    const std::size_t size = this->neededSize();
    for (const std::size_t tooSmall : {std::size_t{0}, size / 2, size - 1}) {
        Bytes list(size, 0xEE);
        std::size_t length = tooSmall;
        EXPECT_LT(this->trait.kernelQuery().sysctl(interfaceListName, list.data(), length), 0);
        EXPECT_TRUE(std::all_of(list.begin() + static_cast<long>(tooSmall), list.end(),
                                [](std::uint8_t byte) { return byte == 0xEE; }));
    }
}

TYPED_TEST_P(KernelQueryContract, AnUnknownNameFails) {
    const std::vector<int> name = {4, 17, 0, 2, 99, 0};
    Bytes buffer(4096);
    std::size_t length = buffer.size();
    EXPECT_LT(this->trait.kernelQuery().sysctl(name, buffer.data(), length), 0);
    EXPECT_LT(this->trait.kernelQuery().sysctl({}, buffer.data(), length), 0);
}

TYPED_TEST_P(KernelQueryContract, AnInterfaceThatIsUpIsListedWithItsAddresses) {
    const auto interface = this->interfaceNamed(this->trait.upName());
    ASSERT_TRUE(interface.has_value());
    EXPECT_TRUE(interface->isUp);
    EXPECT_EQ(interface->hardwareAddress, this->trait.hardwareAddress());
    ASSERT_FALSE(interface->addresses.empty());
    EXPECT_EQ(interface->addresses[0].address, this->trait.address());
    EXPECT_EQ(interface->addresses[0].mask, this->trait.mask());
}

TYPED_TEST_P(KernelQueryContract, AnInterfaceThatIsDownIsListedAsDown) {
    const auto interface = this->interfaceNamed(this->trait.downName());
    ASSERT_TRUE(interface.has_value());
    EXPECT_FALSE(interface->isUp);
}

TYPED_TEST_P(KernelQueryContract, TheLoopbackIsListedUnderItsName) {
    EXPECT_TRUE(this->interfaceNamed(this->trait.kernelQuery().loopbackName()).has_value());
}

REGISTER_TYPED_TEST_SUITE_P(KernelQueryContract, ABufferOfTheNeededSizeIsEnough,
                            ABufferThatIsTooSmallFailsAndIsNotOverrun, AnUnknownNameFails,
                            AnInterfaceThatIsUpIsListedWithItsAddresses,
                            AnInterfaceThatIsDownIsListedAsDown, TheLoopbackIsListedUnderItsName);

} // namespace kx
