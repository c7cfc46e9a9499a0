// The buffers in which the system keeps the datagrams of a socket until they are read.
//
// When a request goes to every unit, all units answer in the same instant. The system drops a
// datagram that finds no room in the buffer, and tells neither side. Units would then be missing
// without a word.
//
// Threading: keeps no state; any thread. Ownership: the callers keep their descriptors.

#pragma once

#include <cstdint>
#include <optional>

namespace kx {

class ReceiveBufferControl {
public:
    virtual ~ReceiveBufferControl() = default;

    // Asks the system for room for `bytes` bytes, not counting the system's own bookkeeping. Takes
    // less when the system allows less. Leaves the socket alone when it has as much already, and
    // when the system refuses.
    virtual void enlarge(int descriptor, int bytes) = 0;

    // The number of datagrams for this socket that the system has dropped since the socket was
    // made. After 2^32 - 1 the number begins again at 0. Nearly all of these datagrams found no
    // room; a few may have had a wrong checksum, because the system does not tell the two apart.
    // Absent when the system does not tell the number, for example for a closed descriptor.
    virtual std::optional<std::uint32_t> droppedDatagrams(int descriptor) = 0;
};

} // namespace kx
