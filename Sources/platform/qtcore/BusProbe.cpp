#include "platform/qtcore/BusProbe.h"

#include "support/Pipe.h"

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>

#include <algorithm>
#include <cerrno>
#include <optional>
#include <string_view>

namespace kx {

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;
using namespace std::string_view_literals;

constexpr auto pathPrefix = "unix:path="sv;

// The path of the one socket that the address names. A comma ends it; further settings follow.
std::optional<std::string_view> pathOfAddress(std::string_view address) {
    const bool isOnePath =
        address.starts_with(pathPrefix) && address.find_first_of(";%") == std::string_view::npos;
    return isOnePath ? std::optional(
                           address.substr(pathPrefix.size(), address.find(',') - pathPrefix.size()))
                     : std::nullopt;
}

// Does not wait: a full queue refuses the connection.
bool connectTo(int socket, std::string_view path) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (path.size() >= sizeof address.sun_path) {
        return false;
    }
    path.copy(std::data(address.sun_path), path.size());
    return ::connect(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
}

bool canRead(int socket, milliseconds patience) {
    const auto deadline = Clock::now() + patience;
    pollfd polled{socket, POLLIN, 0};
    int ready = 0;
    do {
        const auto left = std::chrono::ceil<milliseconds>(deadline - Clock::now());
        ready = ::poll(&polled, 1, std::max(static_cast<int>(left.count()), 0));
    } while (ready < 0 && errno == EINTR);
    return ready > 0;
}

} // namespace

bool busAnswers(std::string_view address, milliseconds patience) {
    const auto path = pathOfAddress(address);
    if (!path.has_value()) {
        return true;
    }
    // Every conversation with a bus begins with a zero byte.
    constexpr auto question = "\0AUTH\r\n"sv;
    const FileDescriptor probe(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    return connectTo(probe.number(), *path) &&
           ::send(probe.number(), question.data(), question.size(), MSG_NOSIGNAL) > 0 &&
           canRead(probe.number(), patience);
}

} // namespace kx
