#include "addresses/AppendBuffer.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <limits>
#include <string>

namespace kx {
namespace {

// Storage filled with "#", so that every byte written shows.
struct Storage {
    std::array<char, 40> room;
    AppendBuffer buffer{room.data(), 0, 31, 0};

    Storage() { room.fill('#'); }
    std::string text() const { return {room.data(), room.size()}; }
};

std::string padded(const std::string& text) {
    return text + std::string(40 - text.size(), '#');
}

TEST(AppendBuffer, AppendsDecimalTextWithoutTerminator) {
    Storage storage;
    EXPECT_EQ(appendInt(storage.buffer, 0), 0);
    EXPECT_EQ(appendInt(storage.buffer, 255), 0);
    EXPECT_EQ(appendInt(storage.buffer, -17), 0);
    EXPECT_EQ(storage.text(), padded("0255-17"));
    EXPECT_EQ(storage.buffer.offset, 7U);
    EXPECT_EQ(storage.buffer.length, 7U);
    EXPECT_EQ(storage.buffer.capacity, 31U);
}

TEST(AppendBuffer, AppendsBothEndsOfTheRange) {
    Storage storage;
    EXPECT_EQ(appendInt(storage.buffer, std::numeric_limits<std::int32_t>::max()), 0);
    EXPECT_EQ(appendInt(storage.buffer, std::numeric_limits<std::int32_t>::min()), 0);
    EXPECT_EQ(storage.text(), padded("2147483647-2147483648"));
}

TEST(AppendBuffer, FillsTheCapacityToTheLastByte) {
    Storage storage;
    storage.buffer.offset = 28;
    EXPECT_EQ(appendInt(storage.buffer, 123), 0);
    EXPECT_EQ(storage.buffer.offset, 31U);
}

TEST(AppendBuffer, ChangesNothingWhenTheDigitsDoNotFit) {
    Storage storage;
    storage.buffer.offset = 29;
    storage.buffer.length = 5;
    EXPECT_EQ(appendInt(storage.buffer, 123), -1);
    EXPECT_EQ(storage.text(), padded(""));
    EXPECT_EQ(storage.buffer.offset, 29U);
    EXPECT_EQ(storage.buffer.length, 5U);
}

TEST(AppendBuffer, CountsTheSignAsADigit) {
    Storage storage;
    storage.buffer.offset = 29;
    EXPECT_EQ(appendInt(storage.buffer, -12), -1);
    EXPECT_EQ(appendInt(storage.buffer, -1), 0);
}

TEST(AppendBuffer, RefusesAnOffsetAtTheEndOfItsRange) {
    Storage storage;
    storage.buffer.offset = std::numeric_limits<std::uint32_t>::max();
    EXPECT_EQ(appendInt(storage.buffer, 1), -1);
    EXPECT_EQ(storage.text(), padded(""));
}

TEST(AppendBuffer, KeepsTheHighWaterMarkWhenItWritesBelowIt) {
    Storage storage;
    storage.buffer.length = 20;
    EXPECT_EQ(appendInt(storage.buffer, 7), 0);
    EXPECT_EQ(storage.buffer.offset, 1U);
    EXPECT_EQ(storage.buffer.length, 20U);
}

} // namespace
} // namespace kx
