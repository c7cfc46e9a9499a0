#include "LoopbackCalls.h"

#include "ProcessorTime.h"

#include <QApplication>
#include <chrono>

namespace kx {

namespace {

CaptureTime timeNow() {
    return std::chrono::duration_cast<CaptureTime>(
        std::chrono::system_clock::now().time_since_epoch());
}

} // namespace

WindowCalls::WindowCalls(DatagramSystemCalls& inner)
    : bare(inner)
    , recorded(bare, {.take = [this](const CapturedDatagram& datagram,
                                     ByteView data) { record.keep(datagram, data); },
                      .now = timeNow,
                      .ownAddress = [](std::uint32_t) { return 0U; }}) {}

double secondsToReceive(const LoopbackCalls& calls, int count) {
    const auto begin = processorTime();
    const int wanted = calls.received + count;
    while (calls.received < wanted) {
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return (processorTime() - begin).count();
}

} // namespace kx
