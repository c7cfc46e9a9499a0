// A bare UDP client for tests in the lab. It knows nothing of the application and nothing of the
// simulated units' code.
//
//   kxlab_probe ADDRESS PORT COMMAND COUNT
//
// Sends COMMAND from UDP port 3521, waits for COUNT replies and then a little longer for more.
// Prints each reply as a line: source address, source port, length, bytes in hexadecimal. Ends with
// 0 when exactly COUNT replies came, otherwise with 1.

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::uint16_t ownPort = 3521;
// Thousands of units prepare their replies before the first one goes out, on a busy machine for
// long.
constexpr std::chrono::milliseconds waitForFirst{30'000};
constexpr std::chrono::milliseconds waitForOthers{5000};
constexpr std::chrono::milliseconds waitForMore{300};
constexpr int receiveBuffer = 16 * 1024 * 1024;

[[noreturn]] void fail(const char* what) {
    std::perror(what);
    std::exit(EXIT_FAILURE);
}

int openSocket() {
    const int descriptor = ::socket(AF_INET, SOCK_DGRAM, 0);
    const int on = 1;
    if (descriptor < 0 || ::setsockopt(descriptor, SOL_SOCKET, SO_BROADCAST, &on, sizeof on) != 0) {
        fail("socket");
    }
    if (::setsockopt(descriptor, SOL_SOCKET, SO_RCVBUFFORCE, &receiveBuffer,
                     sizeof receiveBuffer) != 0) {
        ::setsockopt(descriptor, SOL_SOCKET, SO_RCVBUF, &receiveBuffer, sizeof receiveBuffer);
    }
    sockaddr_in own{};
    own.sin_family = AF_INET;
    own.sin_port = htons(ownPort);
    if (::bind(descriptor, reinterpret_cast<const sockaddr*>(&own), sizeof own) != 0) {
        fail("bind");
    }
    return descriptor;
}

void sendCommand(int descriptor, const char* address, const char* port,
                 const std::string& command) {
    sockaddr_in destination{};
    destination.sin_family = AF_INET;
    destination.sin_port = htons(static_cast<std::uint16_t>(std::strtoul(port, nullptr, 10)));
    if (::inet_pton(AF_INET, address, &destination.sin_addr) != 1) {
        fail("address");
    }
    if (::sendto(descriptor, command.data(), command.size(), 0,
                 reinterpret_cast<const sockaddr*>(&destination), sizeof destination) < 0) {
        fail("sendto");
    }
}

bool printNextReply(int descriptor, Clock::time_point until) {
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(until - Clock::now());
    pollfd watched{descriptor, POLLIN, 0};
    if (left.count() <= 0 || ::poll(&watched, 1, static_cast<int>(left.count())) <= 0) {
        return false;
    }

    std::array<std::uint8_t, 2048> reply{};
    sockaddr_in source{};
    socklen_t sourceLength = sizeof source;
    const ssize_t length = ::recvfrom(descriptor, reply.data(), reply.size(), 0,
                                      reinterpret_cast<sockaddr*>(&source), &sourceLength);
    if (length < 0) {
        fail("recvfrom");
    }
    std::array<char, INET_ADDRSTRLEN> text{};
    ::inet_ntop(AF_INET, &source.sin_addr, text.data(), text.size());
    std::printf("%s %d %zd ", text.data(), ntohs(source.sin_port), length);
    for (std::size_t index = 0; index < static_cast<std::size_t>(length); ++index) {
        std::printf("%02X", reply[index]);
    }
    std::putchar('\n');
    return true;
}

} // namespace

int main(int argc, char* argv[]) {
    if (argc != 5) {
        std::fputs("usage: kxlab_probe ADDRESS PORT COMMAND COUNT\n", stderr);
        return EXIT_FAILURE;
    }
    const int descriptor = openSocket();
    sendCommand(descriptor, argv[1], argv[2], argv[3]);

    const long wanted = std::strtol(argv[4], nullptr, 10);
    long count = wanted > 0 && printNextReply(descriptor, Clock::now() + waitForFirst) ? 1 : 0;
    const Clock::time_point patience = Clock::now() + waitForOthers;
    while (count < wanted && count > 0 && printNextReply(descriptor, patience)) {
        ++count;
    }
    const Clock::time_point lookForMore = Clock::now() + waitForMore;
    while (printNextReply(descriptor, lookForMore)) {
        ++count;
    }
    ::close(descriptor);
    std::fprintf(stderr, "%ld replies, wanted %ld\n", count, wanted);
    return count == wanted ? EXIT_SUCCESS : EXIT_FAILURE;
}
