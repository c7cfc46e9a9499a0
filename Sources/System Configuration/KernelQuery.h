// The kernel's list of interfaces and their addresses, asked for as sysctl(3) is.
//
// The answer is a sequence of routing messages in the BSD layout, on every system;
// RoutingMessages.h describes it and takes it apart. An adapter whose kernel has no such call
// builds the same bytes.
//
// Threading: the main thread only. Calls may take a moment, as the kernel does; an adapter bounds
// what it waits for.

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
    // now in `length`. Otherwise `length` says how many bytes `buffer` holds, and receives how many
    // were written. The size may grow between two calls.
    //
    // Returns 0, or a negative number on failure: an unknown name, or a buffer that is too small.
    // What `length` and the buffer hold is then of no meaning.
    virtual int sysctl(std::span<const int> name, std::uint8_t* buffer, std::size_t& length) = 0;

    // What this kernel calls its loopback interface.
    virtual std::string loopbackName() const { return "lo0"; }
};

} // namespace kx
