#include "platform/linux/KernelLinks.h"

#include "platform/linux/RtnetlinkSnapshot.h"
#include "support/Error.h"
#include "support/SystemLog.h"
#include "support/TextFormat.h"

#include <linux/netlink.h>
#include <linux/rtnetlink.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <utility>

namespace kx {

namespace {

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
    : _descriptor(openChangeSocket()) {
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
    if (_isStale) {
        auto read = readNetworkLinks();
        if (!read.has_value()) {
            return nullptr;
        }
        _links = std::move(*read);
        ++_generation;
        _isStale = _descriptor < 0; // nobody will say when these have changed
    }
    return &_links;
}

// What a message says does not matter, so it may be cut off. That messages were lost is a message,
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
        if (_changeAction) {
            _changeAction();
        }
    }
}

} // namespace kx
