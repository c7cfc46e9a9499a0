#include "platform/linux/LinuxReceiveBufferControl.h"

#include <linux/sock_diag.h>
#include <sys/socket.h>

#include <array>

namespace kx {

namespace {

// The kernel doubles the size that it is asked for, to have room for its bookkeeping, and tells the
// doubled size.
bool hasRoom(int descriptor, int bytes) {
    int doubled = 0;
    socklen_t length = sizeof doubled;
    return ::getsockopt(descriptor, SOL_SOCKET, SO_RCVBUF, &doubled, &length) == 0 &&
           doubled / 2 >= bytes;
}

} // namespace

void LinuxReceiveBufferControl::enlarge(int descriptor, int bytes) {
    if (hasRoom(descriptor, bytes)) {
        return;
    }
    for (const int option : {SO_RCVBUFFORCE, SO_RCVBUF}) {
        if (::setsockopt(descriptor, SOL_SOCKET, option, &bytes, sizeof bytes) == 0) {
            return;
        }
    }
}

std::optional<std::uint32_t> LinuxReceiveBufferControl::droppedDatagrams(int descriptor) {
    std::array<std::uint32_t, SK_MEMINFO_VARS> counts{};
    socklen_t length = sizeof counts;
    const bool isTold =
        ::getsockopt(descriptor, SOL_SOCKET, SO_MEMINFO, counts.data(), &length) == 0 &&
        length > SK_MEMINFO_DROPS * sizeof counts[0];
    return isTold ? std::optional(counts[SK_MEMINFO_DROPS]) : std::nullopt;
}

} // namespace kx
