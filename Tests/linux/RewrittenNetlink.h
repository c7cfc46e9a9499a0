// Rewrites the kernel's netlink messages before this process reads them. Tests use it for links of
// kinds that a small kernel does not have, and for lists that change while the kernel tells them.
//
// Everything else is the kernel's own. The rewriting applies to the thread that makes the object,
// while the object lives, and to reads with recvmsg(2), as libnl makes them.

#pragma once

#include <linux/if_link.h>
#include <linux/rtnetlink.h>

#include <cstring>
#include <functional>
#include <string_view>

namespace kx {

class RewrittenNetlink {
public:
    // Called once with each message that is read, in order. The header's length must not change.
    using Rewrite = std::function<void(nlmsghdr& message)>;

    explicit RewrittenNetlink(Rewrite rewrite);
    ~RewrittenNetlink();
    RewrittenNetlink(const RewrittenNetlink&) = delete;
    RewrittenNetlink& operator=(const RewrittenNetlink&) = delete;
};

// NOLINTBEGIN(hicpp-signed-bitwise): the kernel's own macros

// The attribute of this type in a message after its header `Head`, or in an attribute that contains
// others; null when there is none.
inline rtattr* attributeAmong(rtattr* first, std::size_t length, int type) {
    auto left = static_cast<int>(length);
    for (rtattr* attribute = first; RTA_OK(attribute, left);
         attribute = RTA_NEXT(attribute, left)) {
        if ((attribute->rta_type & NLA_TYPE_MASK) == type) {
            return attribute;
        }
    }
    return nullptr;
}
template<class Head>
rtattr* attributeOf(nlmsghdr& message, int type) {
    auto* const first = reinterpret_cast<rtattr*>(static_cast<char*>(NLMSG_DATA(&message)) +
                                                  NLMSG_ALIGN(sizeof(Head)));
    return attributeAmong(first, NLMSG_PAYLOAD(&message, sizeof(Head)), type);
}
inline rtattr* attributeIn(rtattr& nest, int type) {
    return attributeAmong(static_cast<rtattr*>(RTA_DATA(&nest)), RTA_PAYLOAD(&nest), type);
}

// Whether the message describes the link of this name.
inline bool isAboutLink(nlmsghdr& message, std::string_view name) {
    const rtattr* const attribute =
        message.nlmsg_type == RTM_NEWLINK ? attributeOf<ifinfomsg>(message, IFLA_IFNAME) : nullptr;
    return attribute != nullptr && static_cast<const char*>(RTA_DATA(attribute)) == name;
}

// NOLINTEND(hicpp-signed-bitwise)

} // namespace kx
