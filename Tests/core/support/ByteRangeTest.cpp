#include "support/ByteRange.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace kx {
namespace {

constexpr std::size_t enormous = std::numeric_limits<std::size_t>::max();

const Bytes abcde = {'a', 'b', 'c', 'd', 'e'};

TEST(Subrange, LooksIntoTheBuffer) {
    const ByteView view = subrange(abcde, 1, 3);
    EXPECT_EQ(view.data(), abcde.data() + 1);
    EXPECT_EQ(view.size(), 3U);
}

TEST(Subrange, MayBeTheWholeBufferOrAnEmptyRangeAtItsEnd) {
    EXPECT_EQ(subrange(abcde, 0, 5).size(), 5U);
    EXPECT_TRUE(subrange(abcde, 5, 0).empty());
    EXPECT_TRUE(subrange({}, 0, 0).empty());
}

TEST(Subrange, BeyondTheEndIsARangeFailure) {
    EXPECT_THROW(subrange(abcde, 0, 6), RangeFailure);
    EXPECT_THROW(subrange(abcde, 3, 3), RangeFailure);
    EXPECT_THROW(subrange(abcde, 6, 0), RangeFailure);
    EXPECT_THROW(subrange({}, 0, 1), RangeFailure);
}

TEST(Subrange, ThatWouldOverflowIsARangeFailure) {
    EXPECT_THROW(subrange(abcde, enormous, 2), RangeFailure);
    EXPECT_THROW(subrange(abcde, 2, enormous), RangeFailure);
    EXPECT_THROW(subrange(abcde, enormous, enormous), RangeFailure);
}

TEST(Subrange, FailureSaysTheRangeAndTheLength) {
    try {
        subrange(abcde, 3, 6);
        FAIL() << "no exception";
    } catch (const PlatformException& exception) {
        EXPECT_EQ(exception.reason(), "range {3, 6} exceeds data length 5");
    }
}

TEST(SubrangeText, IsTheTextOfTheRange) {
    EXPECT_EQ(stringForDataSubrange(abcde, 1, 3), "bcd");
    EXPECT_EQ(stringForDataSubrange(abcde, 5, 0), "");
}

TEST(SubrangeText, KeepsZeroBytes) {
    using namespace std::string_literals;
    EXPECT_EQ(stringForDataSubrange(Bytes{'a', 0, 'b'}, 0, 3), "a\0b"s);
}

TEST(SubrangeText, IsAbsentBeyondTheEnd) {
    EXPECT_EQ(stringForDataSubrange(abcde, 3, 3), std::nullopt);
    EXPECT_EQ(stringForDataSubrange(abcde, 6, 0), std::nullopt);
    EXPECT_EQ(stringForDataSubrange(abcde, 2, enormous), std::nullopt);
}

TEST(SubrangeText, IsAbsentForBytesThatAreNoText) {
    const Bytes bytes = {'a', 0xC3, 0xA9, 'b'};
    EXPECT_EQ(stringForDataSubrange(bytes, 0, 4), "a\xC3\xA9"
                                                  "b");
    EXPECT_EQ(stringForDataSubrange(bytes, 0, 2), std::nullopt) << "cut inside a character";
    EXPECT_EQ(stringForDataSubrange(bytes, 2, 2), std::nullopt);
}

} // namespace
} // namespace kx
