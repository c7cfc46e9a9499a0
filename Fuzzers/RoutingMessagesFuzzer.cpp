// The walk over the kernel's interface list.

#include "FuzzInput.h"
#include "System Configuration/RoutingMessages.h"
#include "support/TextEncoding.h"

#include <algorithm>

using namespace kx;

namespace {

bool liesIn(ByteView part, ByteView whole) {
    return part.empty() || (part.data() >= whole.data() &&
                            part.data() + part.size() <= whole.data() + whole.size());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    ByteView rest(data, size);
    while (const auto message = nextRoutingMessage(rest)) {
        promise(message->size() >= 4 && message->data() + message->size() == rest.data(),
                "messages follow each other without a gap");
        if (const auto interface = interfaceMessage(*message)) {
            promise(liesIn(interface->hardwareAddress, *message),
                    "a hardware address lies in its message");
            promise(!interface->name ||
                        (!interface->name->empty() && isValidUTF8(bytesOfText(*interface->name))),
                    "a name is a text that is not empty");
            promise(!addressMessage(*message), "a message has one type");
        }
        addressMessage(*message);

        RoutingAddresses slots;
        get_rtaddrs(message->front(), *message, slots);
        for (std::size_t i = 0; i < slots.size(); ++i) {
            promise(slots[i].has_value() == ((message->front() >> i & 1U) != 0),
                    "a slot is filled exactly when its bit is set");
            promise(!slots[i] || liesIn(*slots[i], *message), "a slot lies in its message");
        }
    }
    return 0;
}
