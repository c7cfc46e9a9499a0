// The real window off screen with a scripted network: the common part of the benchmarks of the
// event log.

#pragma once

#include "ShownWindow.h"
#include "addresses/SocketAddressRecord.h"
#include "core/UnitReplies.h"
#include "doubles/ManualRunLoop.h"
#include "doubles/ScriptedSystemCalls.h"

namespace kx {

struct ScriptedNetwork {
    ManualRunLoop runLoop;
    ScriptedSystemCalls systemCalls;
};

class LogWindow final : private ScriptedNetwork, public ShownWindow {
public:
    LogWindow()
        : ShownWindow(runLoop, systemCalls) {}

    // The datagram comes from the unit that it tells of.
    void receive(const Bytes& datagram) {
        systemCalls.queueDatagram(datagram, dataForAddress(addressToldIn(datagram), 3520));
        runLoop.makeReadable(systemCalls.lastDescriptor());
    }
};

} // namespace kx
