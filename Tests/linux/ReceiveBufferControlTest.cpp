// The receive buffers of real sockets, which overflow on the loopback of the test's own network.

#include "PrivateNetwork.h"
#include "contracts/ReceiveBufferControlContract.h"
#include "platform/linux/LinuxReceiveBufferControl.h"

#include <arpa/inet.h>
#include <linux/capability.h>
#include <netinet/in.h>
#include <sys/stat.h>
#include <sys/syscall.h>

#include <array>
#include <fstream>
#include <limits>
#include <list>
#include <map>
#include <thread>

namespace kx {

namespace {

constexpr int beyond = 1 << 20;

int newDatagramSocket() {
    return ::socket(AF_INET, SOCK_DGRAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
}

// The room in bytes as they are requested. The kernel tells twice that number.
int roomOf(int descriptor) {
    int doubled = 0;
    socklen_t length = sizeof doubled;
    EXPECT_EQ(::getsockopt(descriptor, SOL_SOCKET, SO_RCVBUF, &doubled, &length), 0);
    return doubled / 2;
}

// The room that the kernel gives to a process that asks for more than it allows.
int systemsLimit() {
    const FileDescriptor asked(newDatagramSocket());
    const int all = std::numeric_limits<int>::max();
    EXPECT_EQ(::setsockopt(asked.number(), SOL_SOCKET, SO_RCVBUF, &all, sizeof all), 0);
    return roomOf(asked.number());
}

// The count in the kernel's table of sockets. The tested code gets the count in another way.
std::uint32_t dropsInTheTable(int descriptor) {
    struct stat status {};
    EXPECT_EQ(::fstat(descriptor, &status), 0);
    std::ifstream table("/proc/thread-self/net/udp");
    for (std::string line; std::getline(table, line);) {
        std::istringstream stream(line);
        std::vector<std::string> fields;
        for (std::string field; stream >> field;) {
            fields.push_back(field);
        }
        if (fields.size() > 12 && fields[9] == std::to_string(status.st_ino)) {
            return static_cast<std::uint32_t>(std::stoul(fields[12]));
        }
    }
    ADD_FAILURE() << "the socket is not in the table";
    return 0;
}

// Reads the waiting datagrams, and returns how many there were.
std::uint32_t readAll(int descriptor) {
    std::array<char, 100> buffer{};
    std::uint32_t count = 0;
    while (::recv(descriptor, buffer.data(), buffer.size(), 0) >= 0) {
        ++count;
    }
    return count;
}

class LinuxReceiveBufferControlTrait {
public:
    ReceiveBufferControl& buffers() { return _buffers; }

    int newSocket() {
        const int descriptor = newDatagramSocket();
        _sockets.emplace_back(descriptor);
        return descriptor;
    }

    int closedDescriptor() {
        const int descriptor = newSocket();
        _sockets.pop_back();
        return descriptor;
    }

    std::uint32_t overflow(int descriptor) {
        const int smallest = 1;
        EXPECT_EQ(::setsockopt(descriptor, SOL_SOCKET, SO_RCVBUF, &smallest, sizeof smallest), 0);
        const sockaddr_in address = boundAddress(descriptor);
        constexpr std::uint32_t sent = 200;
        const std::array<char, 81> datagram{};
        for (std::uint32_t i = 0; i < sent; ++i) {
            EXPECT_EQ(::sendto(_sender, datagram.data(), datagram.size(), 0,
                               reinterpret_cast<const sockaddr*>(&address), sizeof address),
                      static_cast<ssize_t>(datagram.size()));
        }
        const std::uint32_t countedBefore = _countedInTable[descriptor];
        std::uint32_t received = 0;
        EXPECT_TRUE(eventually([&] {
            received += readAll(descriptor);
            _countedInTable[descriptor] = dropsInTheTable(descriptor);
            return received + _countedInTable[descriptor] - countedBefore == sent;
        }));
        return sent - received;
    }

private:
    // The loopback address of the socket, with a port of the system's choice when it is not bound
    // yet.
    static sockaddr_in boundAddress(int descriptor) {
        sockaddr_in address{};
        socklen_t length = sizeof address;
        EXPECT_EQ(::getsockname(descriptor, reinterpret_cast<sockaddr*>(&address), &length), 0);
        if (address.sin_port == 0) {
            address.sin_family = AF_INET;
            address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
            EXPECT_EQ(
                ::bind(descriptor, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
            EXPECT_EQ(::getsockname(descriptor, reinterpret_cast<sockaddr*>(&address), &length), 0);
        }
        return address;
    }

    PrivateNetwork _network;
    LinuxReceiveBufferControl _buffers;
    std::list<FileDescriptor> _sockets;
    std::map<int, std::uint32_t> _countedInTable;
    FileDescriptor _senderOwner{newDatagramSocket()};
    int _sender = _senderOwner.number();
};

// The calling thread gives this right up for good.
void giveUpNetworkAdministration() {
    __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
    std::array<__user_cap_data_struct, _LINUX_CAPABILITY_U32S_3> rights{};
    ASSERT_EQ(::syscall(SYS_capget, &header, rights.data()), 0);
    for (std::uint32_t* const set : {&rights[0].effective, &rights[0].permitted}) {
        *set &= ~(1U << CAP_NET_ADMIN);
    }
    ASSERT_EQ(::syscall(SYS_capset, &header, rights.data()), 0);
}

class LinuxReceiveBufferControlTest : public ::testing::Test {
protected:
    LinuxReceiveBufferControl buffers;
    FileDescriptor socket{newDatagramSocket()};
    int descriptor = socket.number();
};

INSTANTIATE_TYPED_TEST_SUITE_P(Linux, ReceiveBufferControlContract, LinuxReceiveBufferControlTrait);

} // namespace

TEST_F(LinuxReceiveBufferControlTest, WithoutRightsTheSystemsLimitHolds) {
    std::thread([this] {
        giveUpNetworkAdministration();
        buffers.enlarge(descriptor, systemsLimit() + beyond);
        EXPECT_EQ(roomOf(descriptor), systemsLimit());
        const FileDescriptor other(newDatagramSocket());
        buffers.enlarge(other.number(), systemsLimit() - 1024);
        EXPECT_EQ(roomOf(other.number()), systemsLimit() - 1024);
    }).join();
}

// Only the host's own administrator has this right. The administrator of a namespace alone does not
// have it.
TEST_F(LinuxReceiveBufferControlTest, WhoeverAdministersTheNetworkMayPassTheLimit) {
    const int wanted = systemsLimit() + beyond;
    const FileDescriptor asked(newDatagramSocket());
    const bool mayPass =
        ::setsockopt(asked.number(), SOL_SOCKET, SO_RCVBUFFORCE, &wanted, sizeof wanted) == 0;
    buffers.enlarge(descriptor, wanted);
    EXPECT_EQ(roomOf(descriptor), mayPass ? wanted : systemsLimit());
}

TEST_F(LinuxReceiveBufferControlTest, ABufferIsNeverMadeSmaller) {
    const int before = roomOf(descriptor);
    buffers.enlarge(descriptor, before / 2);
    EXPECT_EQ(roomOf(descriptor), before);
    buffers.enlarge(descriptor, before);
    EXPECT_EQ(roomOf(descriptor), before);
}

TEST_F(LinuxReceiveBufferControlTest, WhatIsNoSocketIsLeftAlone) {
    const FileDescriptor file(::open("/dev/null", O_RDONLY | O_CLOEXEC));
    buffers.enlarge(file.number(), beyond);
    EXPECT_EQ(buffers.droppedDatagrams(file.number()), std::nullopt);
}

} // namespace kx
