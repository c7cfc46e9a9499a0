#include "KXConfigAppDelegate.h"
#include "support/LocalizedText.h"

// Replies that the system had no room for. They are no event of the endpoint and stand in no log:
// a quiet line says how many there were since Discover was pressed last.

namespace kx {

using namespace std::chrono_literals;

namespace {

// Room for the replies of ten thousand units in the same instant.
constexpr int wantedReceiveBuffer = 4 * 1024 * 1024;

// A burst is counted a few times at most, and a person who reads sees no number run.
constexpr auto timeBetweenCounts = 250ms;

std::string noteOfDrops(std::uint32_t datagrams) {
    if (datagrams == 0) {
        return {};
    }
    return datagrams == 1 ? localizedText("The system dropped 1 datagram before it was read, so a "
                                          "unit may be missing. Help says how to allow a larger "
                                          "buffer.")
                          : localizedText("The system dropped %d datagrams before they were read, "
                                          "so units may be missing. Help says how to allow a "
                                          "larger buffer.",
                                          {static_cast<long long>(datagrams)});
}

} // namespace

void KXConfigAppDelegate::enlargeReceiveBuffer() {
    if (_services.receiveBuffers != nullptr) {
        _services.receiveBuffers->enlarge(_udpListener->nativeSocket(), wantedReceiveBuffer);
    }
}

// Called for every read, a failed one included. A buffer that overflows is full of datagrams, so
// the last loss is followed by a read, and by a count.
void KXConfigAppDelegate::countDropsSoon() {
    if (_services.receiveBuffers != nullptr && !_dropsWillBeCounted) {
        _dropsWillBeCounted = true;
        performAfterDelay(timeBetweenCounts, &KXConfigAppDelegate::countDrops);
    }
}

void KXConfigAppDelegate::countDrops() {
    _dropsWillBeCounted = false;
    if (_udpListener != nullptr) {
        const auto dropped =
            _services.receiveBuffers->droppedDatagrams(_udpListener->nativeSocket());
        showDrops(dropped.value_or(_shownDrops));
    }
}

void KXConfigAppDelegate::showDrops(std::uint32_t datagrams) {
    if (datagrams != _shownDrops) {
        _shownDrops = datagrams;
        _outlets.dropLine->setStringValue(noteOfDrops(datagrams));
    }
}

} // namespace kx
