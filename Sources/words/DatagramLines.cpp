#include "words/DatagramLines.h"

#include "addresses/IPv4Address.h"
#include "support/PlatformException.h"
#include "units/ParameterList.h"
#include "units/UnitCommand.h"
#include "units/UnitReply.h"
#include "words/EventLogEntries.h"
#include "words/LogText.h"

namespace kx {

namespace {

// Throws what reading the datagram throws.
std::string entryOfContents(ByteView datagram) {
    if (datagram.empty()) {
        return entryOfReceiveError();
    }
    const PacketKind kind = packetKindOfDatagram(datagram);
    if (kind != PacketKind::reply) {
        return entryOfIgnoredDatagram(kind);
    }
    const Reply reply = replyFromDatagram(datagram);
    if (reply.payloadKind == PayloadKind::parameterList) {
        decodeUnitParameters(reply.payload); // a list that is cut short has no entry
        return entryOfReply(reply, "");
    }
    return reply.payloadKind == PayloadKind::acknowledgement ? entryOfReply(reply, "")
                                                             : entryOfOtherReply(reply);
}

} // namespace

std::string lineOfEntry(std::string_view entry) {
    const LogText text(entry.substr(entry.starts_with('\n') ? 1 : 0));
    return shownRow(text.row(0).text);
}

std::string lineOfReceivedDatagram(ByteView datagram) {
    try {
        return lineOfEntry(entryOfContents(datagram));
    } catch (const PlatformException&) {
        return lineOfEntry(entryOfDatagram(datagram.size()));
    }
}

std::string lineOfSentDatagram(ByteView datagram, std::uint32_t destination) {
    const std::string command(datagram.begin(), datagram.end());
    if (command.empty()) {
        return {};
    }
    const bool isRequest = command == parameterRequestCommand || command == restoreCommand;
    return lineOfEntry(isRequest ? entryOfRequest(destination)
                                 : entryOfCommand(command, stringForIP(destination)));
}

} // namespace kx
