#include "conversation/SenderAddress.h"

#include "addresses/SocketAddressRecord.h"

#include <gtest/gtest.h>

namespace kx {

TEST(SenderAddress, IsThatOfAnIPv4Record) {
    EXPECT_EQ(addressOfSender({.sender = dataForAddress(0xC000020BU, 3520)}), 0xC000020BU);
}

TEST(SenderAddress, IsZeroForAnyOtherRecord) {
    EXPECT_EQ(addressOfSender({.sender = {}}), 0U);
    EXPECT_EQ(addressOfSender({.sender = dataForAddress6({1, 2, 3, 4}, 3520)}), 0U);
}

} // namespace kx
