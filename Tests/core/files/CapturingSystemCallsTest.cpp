#include "files/CapturingSystemCalls.h"

#include "addresses/SocketAddressRecord.h"
#include "doubles/ScriptedSystemCalls.h"
#include "files/Capture.h"

#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <vector>

namespace kx {

namespace {

class CapturingSystemCallsTest : public testing::Test {
protected:
    static constexpr std::uint32_t link = 3;

    CapturingSystemCallsTest() {
        inner.addLink("kx0", link);
        descriptor = calls.socket();
        calls.bind(descriptor, dataForAddress(0, 3520));
        const Bytes address = dataForAddress(0xC00002FFU, 3520);
        calls.sendTo(descriptor, data, ByteView(address)); // the header comes before this
        written.clear();
    }

    Bytes expected(bool isOwn, std::uint32_t own, std::uint32_t other, std::uint16_t otherPort) {
        return capturedDatagram({.time = std::chrono::microseconds(5),
                                 .isOwn = isOwn,
                                 .source = isOwn ? own : other,
                                 .sourcePort = isOwn ? std::uint16_t{3520} : otherPort,
                                 .destination = isOwn ? other : own,
                                 .destinationPort = isOwn ? otherPort : std::uint16_t{3520},
                                 .remark = isOwn ? "sent by test" : ""},
                                data);
    }

    ScriptedSystemCalls inner;
    Bytes written;
    CapturingSystemCalls calls{
        inner,
        {.application = "test",
         .write =
             [this](ByteView bytes) { written.insert(written.end(), bytes.begin(), bytes.end()); },
         .now = [] { return std::chrono::microseconds(5); },
         .ownAddress = [](std::uint32_t by) { return by == link ? 0xC0000201U : 0U; }}};
    int descriptor = -1;
    Bytes data{1, 2, 3};
};

} // namespace

TEST_F(CapturingSystemCallsTest, TheHeaderComesOnceBeforeTheFirstDatagram) {
    std::vector<Bytes> pieces;
    CapturingSystemCalls fresh(
        inner, {.application = "test",
                .write = [&](ByteView bytes) { pieces.emplace_back(bytes.begin(), bytes.end()); },
                .now = [] { return std::chrono::microseconds(5); },
                .ownAddress = [](std::uint32_t) { return 0U; }});
    EXPECT_TRUE(pieces.empty());
    const Bytes address = dataForAddress(0xC00002FFU, 3520);
    fresh.sendTo(descriptor, data, ByteView(address));
    fresh.sendTo(descriptor, data, ByteView(address));
    ASSERT_EQ(pieces.size(), 3U);
    EXPECT_EQ(pieces[0], captureHeader("test"));
}

TEST_F(CapturingSystemCallsTest, WritesWhatIsSentWithTheAddressOfTheLink) {
    EXPECT_EQ(calls.sendToByLink(descriptor, data, dataForAddress(0xC00002FFU, 3521), link), 3);
    EXPECT_EQ(written, expected(true, 0xC0000201U, 0xC00002FFU, 3521));
    written.clear();
    const Bytes address = dataForAddress(0xC00002FFU, 3521);
    EXPECT_EQ(calls.sendTo(descriptor, data, ByteView(address)), 3);
    EXPECT_EQ(written, expected(true, 0, 0xC00002FFU, 3521));
}

TEST_F(CapturingSystemCallsTest, WritesWhatIsReceived) {
    inner.queueDatagram(data, dataForAddress(0xC000020BU, 10000), link);
    calls.enablePacketInfo(descriptor);
    std::array<std::uint8_t, 16> buffer{};
    DatagramOrigin origin;
    EXPECT_EQ(calls.receiveFrom(descriptor, buffer, origin), 3);
    EXPECT_EQ(written, expected(false, 0xC0000201U, 0xC000020BU, 10000));
}

TEST_F(CapturingSystemCallsTest, WritesNothingOfACallThatFailsAndKeepsItsError) {
    inner.failNext(ScriptedSystemCalls::Operation::sendTo, ENETUNREACH);
    EXPECT_EQ(calls.sendToByLink(descriptor, data, dataForAddress(1, 2), link), -1);
    EXPECT_EQ(errno, ENETUNREACH);
    std::array<std::uint8_t, 16> buffer{};
    DatagramOrigin origin;
    EXPECT_EQ(calls.receiveFrom(descriptor, buffer, origin), -1);
    EXPECT_EQ(errno, EAGAIN);
    EXPECT_TRUE(written.empty());
}

} // namespace kx
