#include "platform/linux/KernelLinks.h"

#include "support/Error.h"
#include "support/SystemLog.h"
#include "support/TextFormat.h"

#include <linux/netlink.h>
#include <linux/rtnetlink.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <utility>

namespace kx {

namespace {

constexpr std::chrono::seconds pauseTime{1};

// A socket that hears the kernel's changes, or -1, with errno set.
int openChangeSocket() {
    const int descriptor =
        ::socket(AF_NETLINK, SOCK_RAW | SOCK_CLOEXEC | SOCK_NONBLOCK, NETLINK_ROUTE);
    if (descriptor < 0) {
        return -1;
    }
    sockaddr_nl address{};
    address.nl_family = AF_NETLINK;
    address.nl_groups = RTMGRP_LINK | RTMGRP_IPV4_IFADDR | RTMGRP_IPV6_IFADDR | RTMGRP_IPV4_ROUTE;
    if (::bind(descriptor, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) {
        const int error = errno;
        ::close(descriptor);
        errno = error;
        return -1;
    }
    return descriptor;
}

} // namespace

KernelLinks::KernelLinks(RunLoop& runLoop)
    : KernelLinks(runLoop, readNetworkLinks) {}

KernelLinks::KernelLinks(RunLoop& runLoop, Reader read)
    : _runLoop(runLoop)
    , _read(std::move(read))
    , _descriptor(openChangeSocket()) {
    if (_descriptor < 0) {
        logToSystem(filledText("changes of the network links cannot be heard: %s",
                               {posixErrorText(errno)}));
        return;
    }
    _watch = runLoop.watchForReading(_descriptor, [this] { hearChanges(); });
    if (_watch == nullptr) {
        logToSystem("changes of the network links are heard only when the links are read");
    }
}

KernelLinks::~KernelLinks() {
    _watch.reset();
    if (_descriptor >= 0) {
        ::close(_descriptor);
    }
}

const std::vector<NetworkLink>* KernelLinks::links() {
    hearChanges();
    if (!_isStale) {
        return &_links;
    }
    if (_pause == nullptr) {
        auto read = _read();
        if (read.has_value()) {
            _links = std::move(read->links);
            ++_generation;
            _isStale = _descriptor < 0; // without a socket nothing tells later changes
        } else if (errno != ETIMEDOUT) {
            return nullptr; // a refusal takes no time, so the next call may ask again
        }
        if (!read.has_value() || !read->hasAllRoutes) {
            _isStale = true;
            pause();
        }
    }
    errno = ETIMEDOUT;
    return _generation > 0 ? &_links : nullptr;
}

void KernelLinks::pause() {
    _pause = _runLoop.callOnceAfter(pauseTime, [this] {
        _pause.reset();
        tellChange();
    });
}

// The contents of a message do not matter, so it may be cut off. Lost messages count as a message
// too.
void KernelLinks::hearChanges() {
    bool hasChanged = false;
    std::array<std::byte, 1> ignored{};
    while (_descriptor >= 0 && (::recv(_descriptor, ignored.data(), ignored.size(), 0) >= 0 ||
                                errno == ENOBUFS || errno == EINTR)) {
        hasChanged = true;
    }
    if (hasChanged) {
        _isStale = true;
        tellChange();
    }
}

void KernelLinks::tellChange() {
    if (_changeAction) {
        _changeAction();
    }
}

} // namespace kx
