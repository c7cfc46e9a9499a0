// The kernel's list of interfaces and their addresses, queried in the manner of sysctl(3).
//
// The answer is a sequence of routing messages in the BSD layout, on every system;
// RoutingMessages.h describes it and takes it apart. An adapter whose kernel has no such call
// builds the same bytes.
//
// Threading: the main thread only. Calls may take a moment, because the kernel may; an adapter
// limits its waits.

#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace kx {

// The name of the list of interfaces with their IPv4 addresses:
// CTL_NET, PF_ROUTE, 0, AF_INET, NET_RT_IFLIST, 0.
inline constexpr int interfaceListName[] = {4, 17, 0, 2, 3, 0};

class KernelQuery {
public:
    virtual ~KernelQuery() = default;

    // Reads the value that `name` stands for. With a null `buffer`, stores the size that is needed
    // now in `length`. Otherwise `length` says how many bytes `buffer` holds, and receives the
    // number of bytes written. The size may grow between two calls.
    //
    // Returns 0, or a negative number on failure: an unknown name, or a buffer that is too small.
    // `length` and the buffer have no meaning then.
    virtual int sysctl(std::span<const int> name, std::uint8_t* buffer, std::size_t& length) = 0;

    // The kernel's name for its loopback interface.
    virtual std::string loopbackName() const { return "lo0"; }
};

} // namespace kx
