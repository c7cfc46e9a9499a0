#include "conversation/NeighbourRoom.h"

namespace kx {

NeighbourRoom::NeighbourRoom(RunLoop& runLoop, NeighbourTable& table)
    : _runLoop(runLoop)
    , _table(table) {}

bool NeighbourRoom::takePlace(std::function<void()> tryAgain) {
    if (_sinceLook >= unitsBetweenLooks) {
        if (!hasRoom() && _looks < mostLooks) {
            ++_looks;
            _nextLook = _runLoop.callOnceAfter(timeBetweenLooks, std::move(tryAgain));
            return false;
        }
        _sinceLook = 0;
        _looks = 0;
    }
    ++_sinceLook;
    _nextLook.reset();
    return true;
}

void NeighbourRoom::release(std::uint32_t address, std::uint32_t link) {
    _released.emplace_back(address, link);
}

bool NeighbourRoom::hasRoom() {
    if (_table.entriesInUse() < mostEntries) {
        return true;
    }
    for (const auto& [address, link] : std::exchange(_released, {})) {
        _table.forget(address, link);
    }
    return _table.entriesInUse() < mostEntries;
}

} // namespace kx
