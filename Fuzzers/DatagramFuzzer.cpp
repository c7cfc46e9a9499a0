// Datagrams from the network, through the endpoint and the controller, one after the other. Two
// lengths at the beginning split the input into up to three datagrams for the same controller.

#include "FuzzInput.h"
#include "KXConfigAppDelegate.h"
#include "addresses/SocketAddressRecord.h"
#include "doubles/FixedWallClock.h"
#include "doubles/ManualRunLoop.h"
#include "doubles/RecordedOutlets.h"
#include "doubles/RecordedSystemLog.h"
#include "doubles/ScriptedHostResolver.h"
#include "doubles/ScriptedSystemCalls.h"
#include "words/DatagramLines.h"

#include <algorithm>
#include <string>
#include <vector>

using namespace kx;

namespace {

std::vector<Bytes> datagramsOfInput(ByteView input) {
    std::vector<Bytes> datagrams;
    while (datagrams.size() < 2 && input.size() > 1) {
        const std::size_t length = std::min<std::size_t>(input[0], input.size() - 1);
        datagrams.emplace_back(input.begin() + 1,
                               input.begin() + 1 + static_cast<std::ptrdiff_t>(length));
        input = input.subspan(1 + length);
    }
    datagrams.emplace_back(input.begin(), input.end());
    return datagrams;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const RecordedSystemLog systemLog;
    ManualRunLoop runLoop;
    ScriptedHostResolver resolver;
    ScriptedSystemCalls systemCalls;
    const FixedWallClock wallClock(2026, 3, 5, 14, 7, 0);
    RecordedApplication application;
    RecordedMainWindow window;
    KXConfigAppDelegate controller(
        window.outlets(), {runLoop, resolver, systemCalls, wallClock, application, nullptr, {}});
    controller.applicationDidFinishLaunching();

    const Bytes sender = dataForAddress(0xC0000202, 3520);
    const auto datagrams = datagramsOfInput({data, size});
    for (const Bytes& datagram : datagrams) {
        const std::size_t logged = controller.eventLog().size();
        systemCalls.queueDatagram(datagram, sender);
        runLoop.makeReadable(systemCalls.lastDescriptor());
        requireInvariant(controller.eventLog().size() > logged,
                         "every datagram leaves a line in the log");
        requireInvariant(controller.shownLog().find(lineOfReceivedDatagram(datagram)) !=
                             std::string::npos,
                         "the comment of a datagram is a line of the log");
    }
    runLoop.advanceBy(std::chrono::seconds(3));

    requireInvariant(controller.devices().records().size() <= datagrams.size(),
                     "a datagram registers one unit at most");
    requireInvariant(controller.selectedUnit().has_value() ==
                         !controller.devices().records().empty(),
                     "a completed discovery selects a unit when there is one");
    controller.applicationWillTerminate();
    requireInvariant(systemCalls.openDescriptors().empty(), "no descriptor is left open");
    return 0;
}
