#include "units/UnitReply.h"

#include "support/TextEncoding.h"
#include "units/IdentityText.h"
#include "units/UnitParameter.h"

#include <cstddef>
#include <string_view>

namespace kx {

namespace {

constexpr std::string_view unitIDTag = "<U>";
constexpr std::string_view serialTag = "<S>";
constexpr std::string_view parameterListTag = "<M>";
constexpr std::string_view acknowledgementPrefix = "ok";
constexpr std::string_view payloadMarker = "$";
constexpr std::uint8_t replyMarker = '^';

constexpr std::size_t shortestReply = 5;
constexpr std::size_t replyTagOffset = 2;
constexpr std::size_t unitIDOffset = 5;
constexpr std::size_t serialTagOffset = 11;
constexpr std::size_t serialOffset = 14;
constexpr std::size_t payloadMarkerOffset = 20;
constexpr std::size_t payloadOffset = 21;
constexpr std::size_t tagLength = 3;

bool isText(const std::optional<std::string>& text, std::string_view expected) {
    return text.has_value() && *text == expected;
}

void takePayload(ByteView datagram, Reply& reply) {
    if (!isText(stringForDataSubrange(datagram, payloadMarkerOffset, payloadMarker.size()),
                payloadMarker)) {
        return;
    }
    const auto tag = stringForDataSubrange(datagram, payloadOffset, tagLength);
    if (isText(tag, parameterListTag)) {
        reply.payloadKind = PayloadKind::parameterList;
        reply.payload = datagram.subspan(payloadOffset);
    } else if (tag.has_value() && tag->starts_with(acknowledgementPrefix)) {
        reply.payloadKind = PayloadKind::acknowledgement;
        reply.payload = datagram.subspan(payloadMarkerOffset);
    } else {
        reply.payloadKind = PayloadKind::other;
        reply.payload = datagram.subspan(payloadMarkerOffset);
    }
}

} // namespace

PacketKind packetKindOfDatagram(ByteView datagram) {
    if (datagram.size() < shortestReply) {
        return PacketKind::tooShort;
    }
    return datagram.front() == replyMarker ? PacketKind::reply : PacketKind::unknown;
}

Reply replyFromDatagram(ByteView datagram) {
    Reply reply;
    reply.tag = stringForDataSubrange(datagram, replyTagOffset, tagLength);
    if (isText(reply.tag, unitIDTag)) {
        reply.unitID = unitIDforData(subrange(datagram, unitIDOffset, identityLength));
    }
    if (isText(stringForDataSubrange(datagram, serialTagOffset, tagLength), serialTag)) {
        reply.serialNumber = serialNumberText(subrange(datagram, serialOffset, identityLength));
    }
    takePayload(datagram, reply);
    return reply;
}

} // namespace kx
