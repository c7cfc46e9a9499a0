// The boundary to the host's own sockets. All traffic stays on the loopback interface.

#include "ReadAheadSystemCalls.h"
#include "contracts/DatagramSystemCallsContract.h"

#include <net/if.h>
#include <poll.h>
#include <sys/socket.h>

#include <array>

namespace kx {

namespace {

constexpr std::uint32_t ipv4Loopback = 0x7F000001U;

template<class SystemCalls>
class SystemTrait {
public:
    SystemTrait() { EXPECT_EQ(_calls.bind(_sender, dataForAddress(ipv4Loopback, 0)), 0); }
    ~SystemTrait() { _calls.close(_sender); }
    SystemTrait(const SystemTrait&) = delete;
    SystemTrait& operator=(const SystemTrait&) = delete;

    DatagramSystemCalls& systemCalls() { return _calls; }

    // A port that the system chose and that was closed again.
    Bytes freeAddress() {
        const int descriptor = _calls.socket();
        EXPECT_EQ(_calls.bind(descriptor, dataForAddress(ipv4Loopback, 0)), 0);
        Bytes address = _calls.localAddress(descriptor).value_or(Bytes{});
        _calls.close(descriptor);
        return address;
    }

    Bytes deliver(int descriptor, const Bytes& data) {
        _calls.allowReadingAhead(descriptor);
        const Bytes destination = _calls.localAddress(descriptor).value_or(Bytes{});
        EXPECT_EQ(_calls.sendTo(_sender, data, ByteView(destination)),
                  static_cast<ssize_t>(data.size()));
        constexpr int fiveSeconds = 5000;
        pollfd readable{descriptor, POLLIN, 0};
        EXPECT_EQ(::poll(&readable, 1, fiveSeconds), 1);
        return _calls.localAddress(_sender).value_or(Bytes{});
    }

    std::uint32_t link() { return ::if_nametoindex("lo"); }
    std::string linkName() { return "lo"; }

private:
    SystemCalls _calls;
    int _sender = _calls.socket();
};

INSTANTIATE_TYPED_TEST_SUITE_P(System, DatagramSystemCallsContract,
                               SystemTrait<DatagramSystemCalls>);
INSTANTIATE_TYPED_TEST_SUITE_P(ReadAhead, DatagramSystemCallsContract,
                               SystemTrait<ReadAheadSystemCalls>);

TEST(DatagramSystemCalls, ASenderOfAnotherFamilyLeavesNothingOfTheSenderBefore) {
    std::array<int, 2> ends{};
    ASSERT_EQ(::socketpair(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0, ends.data()), 0);
    ASSERT_EQ(::send(ends[0], "x", 1, 0), 1);
    DatagramSystemCalls calls;
    DatagramOrigin origin{
        .sender = dataForAddress(ipv4Loopback, 3520), .link = 7, .destination = 9};
    std::array<std::uint8_t, 2> buffer{};
    EXPECT_EQ(calls.receiveFrom(ends[1], buffer, origin), 1);
    EXPECT_EQ(origin.sender, Bytes{});
    EXPECT_EQ(origin.link, 0U);
    EXPECT_EQ(origin.destination, 0U);
    EXPECT_EQ(calls.localAddress(ends[0]), Bytes{});
    for (const int descriptor : ends) {
        calls.close(descriptor);
    }
}

} // namespace

} // namespace kx
