// Runs code while the kernel refuses to open netlink sockets, as it does with EMFILE when a process
// has no descriptor left. Everything else works.
//
// A filter of system calls cannot be removed, but it belongs to a thread and ends with it. So the
// code runs in a thread of its own, and the caller waits for the end of that thread.

#pragma once

#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/syscall.h>

#include <cerrno>
#include <cstddef>
#include <functional>
#include <iterator>
#include <stdexcept>
#include <thread>

namespace kx {

inline bool refuseNetlink() {
    constexpr std::uint32_t number = offsetof(seccomp_data, nr);
    constexpr std::uint32_t firstArgument = offsetof(seccomp_data, args);
    // NOLINTBEGIN(hicpp-signed-bitwise): the kernel's own macros
    sock_filter instructions[] = {
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, number),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_socket, 0, 3),
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, firstArgument),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, AF_NETLINK, 0, 1),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | EMFILE),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
    };
    // NOLINTEND(hicpp-signed-bitwise)
    const sock_fprog program{std::size(instructions), instructions};
    return ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
           ::prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) == 0;
}

inline void withoutNetlink(const std::function<void()>& code) {
    bool isRefused = false;
    std::thread thread([&] {
        isRefused = refuseNetlink();
        if (isRefused) {
            code();
        }
    });
    thread.join();
    if (!isRefused) {
        throw std::runtime_error("system calls cannot be filtered here");
    }
}

} // namespace kx
