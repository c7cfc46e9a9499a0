// What the kernel tells over netlink, rewritten before this process reads it: for links of kinds
// that a small kernel does not have, and for lists that change while it tells them.
//
// Everything else is the kernel's own. It holds for the thread that makes the object, while that
// lives, and for what is read with recvmsg(2), as libnl does.

#pragma once

#include <linux/if_link.h>
#include <linux/rtnetlink.h>

#include <cstring>
#include <functional>
#include <string_view>

namespace kx {

class RewrittenNetlink {
public:
    // Called with each message that is read, once, in order. The header's length must stay.
    using Rewrite = std::function<void(nlmsghdr& message)>;

    explicit RewrittenNetlink(Rewrite rewrite);
    ~RewrittenNetlink();
    RewrittenNetlink(const RewrittenNetlink&) = delete;
    RewrittenNetlink& operator=(const RewrittenNetlink&) = delete;
};

// NOLINTBEGIN(hicpp-signed-bitwise): the kernel's own macros

// The attribute of a message of the type that `Head` heads, or of an attribute that nests others;
// null when there is none.
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
