// A discovery by hand, to compare kxctl with: one broadcast, a blocking receive for each answer,
// and its decoder, until so many serial numbers have answered.
//
//   kxbarediscovery BROADCAST-ADDRESS COUNT
//
// Ends with 0 when all answered, otherwise with 1 after two seconds of silence.

#include "units/ParameterList.h"
#include "units/UnitCommand.h"
#include "units/UnitReply.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <unistd.h>

#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <set>
#include <span>
#include <string>

namespace {

constexpr std::uint16_t port = 3520;
constexpr int receiveBuffer = 4 * 1024 * 1024;
constexpr timeval longestSilence{.tv_sec = 2, .tv_usec = 0};

[[noreturn]] void fail(const char* what) {
    std::perror(what);
    std::exit(EXIT_FAILURE);
}

sockaddr_in endpoint(in_addr address) {
    sockaddr_in result{};
    result.sin_family = AF_INET;
    result.sin_port = htons(port);
    result.sin_addr = address;
    return result;
}

int openSocket() {
    const int descriptor = ::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    const int on = 1;
    ::setsockopt(descriptor, SOL_SOCKET, SO_BROADCAST, &on, sizeof on);
    ::setsockopt(descriptor, SOL_SOCKET, SO_RCVTIMEO, &longestSilence, sizeof longestSilence);
    if (::setsockopt(descriptor, SOL_SOCKET, SO_RCVBUFFORCE, &receiveBuffer,
                     sizeof receiveBuffer) != 0) {
        ::setsockopt(descriptor, SOL_SOCKET, SO_RCVBUF, &receiveBuffer, sizeof receiveBuffer);
    }
    const sockaddr_in own = endpoint({htonl(INADDR_ANY)});
    if (::bind(descriptor, reinterpret_cast<const sockaddr*>(&own), sizeof own) != 0) {
        fail("bind");
    }
    return descriptor;
}

} // namespace

int main(int argc, char** argv) {
    in_addr broadcast{};
    if (argc != 3 || ::inet_pton(AF_INET, argv[1], &broadcast) != 1) {
        std::fputs("usage: kxbarediscovery BROADCAST-ADDRESS COUNT\n", stderr);
        return EXIT_FAILURE;
    }
    const auto wanted = std::strtoul(argv[2], nullptr, 10);
    const int descriptor = openSocket();
    const sockaddr_in everybody = endpoint(broadcast);
    if (::sendto(descriptor, kx::parameterRequestCommand.data(), kx::parameterRequestCommand.size(),
                 0, reinterpret_cast<const sockaddr*>(&everybody), sizeof everybody) < 0) {
        fail("sendto");
    }
    std::array<std::uint8_t, 65'536> buffer{};
    std::set<std::string> serialNumbers;
    while (serialNumbers.size() < wanted) {
        const ssize_t length = ::recv(descriptor, buffer.data(), buffer.size(), 0);
        if (length < 0) {
            fail("recv");
        }
        const auto datagram = std::span(buffer).first(static_cast<std::size_t>(length));
        if (kx::packetKindOfDatagram(datagram) != kx::PacketKind::reply) {
            continue;
        }
        const kx::Reply reply = kx::replyFromDatagram(datagram);
        if (reply.payloadKind == kx::PayloadKind::parameterList && reply.serialNumber.has_value()) {
            const auto decoded = kx::decodeUnitParameters(reply.payload);
            serialNumbers.insert(*reply.serialNumber);
            if (decoded.items.empty()) {
                std::fputs("kxbarediscovery: an empty list\n", stderr);
            }
        }
    }
    std::printf("%zu\n", serialNumbers.size());
    ::close(descriptor);
    return EXIT_SUCCESS;
}
