#include "RewrittenNetlink.h"

#include <linux/netlink.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <utility>

namespace kx {

namespace {

thread_local RewrittenNetlink::Rewrite currentRewrite;

bool isNetlink(int descriptor) {
    int domain = 0;
    socklen_t length = sizeof domain;
    return ::getsockopt(descriptor, SOL_SOCKET, SO_DOMAIN, &domain, &length) == 0 &&
           domain == AF_NETLINK;
}

// NOLINTBEGIN(hicpp-signed-bitwise): the kernel's own macros
void rewriteMessages(void* bytes, std::size_t count) {
    auto left = static_cast<unsigned>(count);
    for (auto* message = static_cast<nlmsghdr*>(bytes); NLMSG_OK(message, left);
         message = NLMSG_NEXT(message, left)) {
        currentRewrite(*message);
    }
}
// NOLINTEND(hicpp-signed-bitwise)

} // namespace

RewrittenNetlink::RewrittenNetlink(Rewrite rewrite) {
    currentRewrite = std::move(rewrite);
}

RewrittenNetlink::~RewrittenNetlink() {
    currentRewrite = nullptr;
}

} // namespace kx

// Takes the place of the system's own function for this program and the libraries that it uses. A
// peek is followed by the read itself, so it is left unchanged.
extern "C" ssize_t recvmsg(int descriptor, msghdr* message, int flags) {
    const ssize_t count = ::syscall(SYS_recvmsg, descriptor, message, flags);
    const bool isRead = count > 0 && (flags & MSG_PEEK) == 0;
    if (isRead && kx::currentRewrite && kx::isNetlink(descriptor)) {
        kx::rewriteMessages(message->msg_iov[0].iov_base, static_cast<std::size_t>(count));
    }
    return count;
}
