// Where the system keeps the datagrams of a socket until they are read.
//
// A request to everybody is answered by everybody in the same instant. What finds no room in the
// buffer then is dropped, and neither side hears of it: units would be missing without a word.
//
// Threading: keeps no state; any thread. Descriptors stay their owner's.

#pragma once

#include <cstdint>
#include <optional>

namespace kx {

class ReceiveBuffers {
public:
    virtual ~ReceiveBuffers() = default;

    // Asks for room for so many bytes, the system's own bookkeeping not counted, and takes what the
    // system allows when that is less. A socket that has as much already is left alone, and so is
    // one for which the system refuses.
    virtual void enlarge(int descriptor, int bytes) = 0;

    // How many datagrams that came for this socket the system has dropped since the socket was
    // made. After 2^32 - 1 it begins again at 0. Nearly all of them found no room; a few may have
    // had a wrong checksum, which the system does not tell apart. Absent when the system does not
    // say, as for a descriptor that is closed.
    virtual std::optional<std::uint32_t> droppedDatagrams(int descriptor) = 0;
};

} // namespace kx
