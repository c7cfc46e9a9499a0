#include "words/EventLogEntries.h"

#include "addresses/IPv4Address.h"
#include "support/LocalizedText.h"
#include "support/QuotedLines.h"
#include "support/TextEncoding.h"
#include "words/SendFailureText.h"

namespace kx {

namespace {

std::optional<std::string> quoted(const std::optional<std::string>& text) {
    return text.has_value() ? std::optional(quotedLines(*text)) : std::nullopt;
}

std::string continuation(const std::string& text) {
    return localizedText("\n  %@", {text});
}

} // namespace

std::string entryOfDiscovery() {
    return localizedText("[Begin Discover]");
}

std::string noticeOfRemovedEntries() {
    return localizedText("[The event log keeps 256 MiB. Older entries were removed.]");
}

std::string entryOfStart() {
    return localizedText("\nUDP listener did start. ");
}

std::string addressInEntry(std::uint32_t address, std::uint16_t port) {
    return localizedText("%@:%d", {stringForIP(address), port});
}

std::string reasonInEntry(const Error& error) {
    return continuation(error.localizedDescription());
}

std::string reasonInEntry(const SendFailure& failure) {
    return continuation(reasonOfSendFailure(failure));
}

std::string entryOfRefusedBroadcast(std::string_view reason) {
    return localizedText("\nError setting SO_BROADCAST %s", {reason});
}

std::string entryOfStop() {
    return localizedText("\nUDP did stop with error.");
}

std::string entryOfRequest(std::uint32_t target) {
    return localizedText("\nRequest unit parameters with address: %@", {stringForIP(target)});
}

std::string entryOfCommand(std::string_view command, std::string_view address) {
    return localizedText("\nSend to: %@ command: %@", {quotedLines(address), quotedLines(command)});
}

std::string entryOfSend() {
    return localizedText("\nUDP server did send data.");
}

std::string entryOfSendFailure() {
    return localizedText("\nUDP failed to send data.");
}

std::string entryOfDatagram(std::size_t length) {
    return localizedText("\nUDP listener did receive data. Length: %d",
                         {static_cast<long long>(length)});
}

std::string entryOfIgnoredDatagram(PacketKind kind) {
    return kind == PacketKind::tooShort ? localizedText("\nIgnoring short packet")
                                        : localizedText("\nIgnoring unknown packet, prefix != ^^");
}

std::string entryOfReceiveError() {
    return localizedText("\nUDP did receive error.");
}

std::string entryOfReply(const Reply& reply, const std::optional<std::string>& text) {
    return reply.unitID.has_value() && reply.serialNumber.has_value()
               ? localizedText("\nReceived command: ^^%@ unit:%@ serial:%@ cidString:%@",
                               {quoted(reply.tag), quoted(reply.unitID), reply.serialNumber, text})
               : localizedText("\nReceived command: ^^%@", {quoted(reply.tag)});
}

std::string entryOfOtherReply(const Reply& reply) {
    return entryOfReply(reply, quoted(textFromUTF8(reply.payload)));
}

std::string entryOfARPEntry(const std::optional<std::string>& hardwareAddress,
                            const std::optional<std::string>& address) {
    return localizedText("\nStuff ARP cache with MAC %@ for IP %@",
                         {quoted(hardwareAddress), quoted(address)});
}

std::string entryOfARPFailure(std::int32_t result) {
    return localizedText("\nStuff ARP cache result: %d", {result});
}

std::string entryOfUndecodableUnitID() {
    return localizedText("\nUnit ID could not be converted to 6-byte UTF-8 string");
}

} // namespace kx
