// Room for more hosts in this host's neighbour table, as a run over many units needs it.
//
// A system remembers the hardware address of each host that it has sent something to. Linux
// remembers 1,024 of them unless it is told otherwise, each for 15 to 45 seconds. When the list is
// full, it drops what is sent to any other host, and tells nobody: units would be called silent to
// which nothing was sent. So a run looks at the list now and then. Where it gets full, the entries
// of units that are done are taken out, and where this host does not allow that, the next unit
// waits until the system gives old entries up.
//
// Threading: the thread of the run loop. Ownership: the run loop and the table must outlive the
// object.

#pragma once

#include "conversation/NeighbourTable.h"
#include "support/RunLoop.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <utility>
#include <vector>

namespace kx {

class NeighbourRoom {
public:
    // Other programs of the host get the rest of the 1,024.
    static constexpr std::size_t mostEntries = 768;
    static constexpr std::size_t unitsBetweenLooks = 64;
    static constexpr std::chrono::milliseconds timeBetweenLooks{500};

    // The system gives old entries up after 45 seconds at the latest. Entries that stay are not of
    // this run, and it goes on.
    static constexpr int mostLooks = 120;

    NeighbourRoom(RunLoop& runLoop, NeighbourTable& table);

    // Whether another unit may be begun. When not, `tryAgain` is called once in a while.
    bool takePlace(std::function<void()> tryAgain);

    // Nothing more is sent to this address.
    void release(std::uint32_t address, std::uint32_t link);

    // takePlace() has said no, and `tryAgain` will be called.
    bool isAwaited() const { return _nextLook != nullptr; }
    void stopWaiting() { _nextLook.reset(); }

private:
    bool hasRoom();

    RunLoop& _runLoop;
    NeighbourTable& _table;
    std::size_t _sinceLook = unitsBetweenLooks; // a run before may have filled the table
    int _looks = 0;                             // without room, one after the other
    std::vector<std::pair<std::uint32_t, std::uint32_t>> _released; // addresses and links
    RunLoop::Handle _nextLook;
};

} // namespace kx
