#include "platform/linux/BusProbe.h"

#include "support/Pipe.h"

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>

#include <QByteArray>
#include <algorithm>
#include <cerrno>
#include <optional>
#include <string_view>

namespace kx {

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;
using namespace std::string_view_literals;

constexpr auto pathPrefix = "unix:path=";

// The path of the one socket that the address names.
std::optional<QByteArray> pathOfAddress(const QString& address) {
    if (!address.startsWith(pathPrefix) || address.contains(';')) {
        return std::nullopt;
    }
    const QString value = address.section('=', 1).section(',', 0, 0);
    return QByteArray::fromPercentEncoding(value.toLocal8Bit());
}

// Without waiting: a queue that is full refuses.
bool connectTo(int socket, const QByteArray& path) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (static_cast<std::size_t>(path.size()) >= sizeof address.sun_path) {
        return false;
    }
    std::copy(path.begin(), path.end(), std::begin(address.sun_path));
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

bool busAnswers(const QString& address, milliseconds patience) {
    const auto path = pathOfAddress(address);
    if (!path.has_value()) {
        return true;
    }
    // Every conversation begins with a zero byte.
    constexpr auto question = "\0AUTH\r\n"sv;
    const FileDescriptor probe(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    return connectTo(probe.number(), *path) &&
           ::send(probe.number(), question.data(), question.size(), MSG_NOSIGNAL) > 0 &&
           canRead(probe.number(), patience);
}

} // namespace kx
