#include "platform/linux/LinuxRunLock.h"

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <string_view>
#include <utility>

namespace kx {

namespace {

constexpr std::string_view lockName = "org.kxconfig.KXConfig.run";

class LockSocket final : public HeldRunLock {
public:
    LockSocket()
        : _descriptor(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0)) {}
    ~LockSocket() override {
        if (_descriptor >= 0) {
            ::close(_descriptor);
        }
    }
    LockSocket(const LockSocket&) = delete;
    LockSocket& operator=(const LockSocket&) = delete;

    int descriptor() const { return _descriptor; }

private:
    int _descriptor;
};

// A name of the abstract namespace begins with a zero byte and has no end but its length.
struct LockAddress {
    sockaddr_un address{};
    socklen_t length = offsetof(sockaddr_un, sun_path) + 1 + lockName.size();

    LockAddress() {
        address.sun_family = AF_UNIX;
        std::ranges::copy(lockName, &address.sun_path[1]);
    }
    const sockaddr* bytes() const { return reinterpret_cast<const sockaddr*>(&address); }
};

// The kernel tells who listens at the address; nobody has to accept the connection. A process of
// another namespace of processes has no number here.
std::int32_t holderOf(const LockAddress& address) {
    const LockSocket asking;
    ucred holder{};
    socklen_t length = sizeof holder;
    const bool isTold =
        ::connect(asking.descriptor(), address.bytes(), address.length) == 0 &&
        ::getsockopt(asking.descriptor(), SOL_SOCKET, SO_PEERCRED, &holder, &length) == 0;
    return isTold ? holder.pid : 0;
}

} // namespace

std::variant<std::unique_ptr<HeldRunLock>, RunLockRefusal> LinuxRunLock::take() {
    const LockAddress address;
    auto socket = std::make_unique<LockSocket>();
    if (socket->descriptor() >= 0 &&
        ::bind(socket->descriptor(), address.bytes(), address.length) == 0 &&
        ::listen(socket->descriptor(), SOMAXCONN) == 0) {
        return std::unique_ptr<HeldRunLock>(std::move(socket));
    }
    const int reason = errno;
    if (reason == EADDRINUSE) {
        return RunLockRefusal{.holder = holderOf(address)};
    }
    return RunLockRefusal{.error = posixError(reason)};
}

} // namespace kx
