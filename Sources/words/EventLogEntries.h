// The entries of the event log: one for each thing that is sent, received or done, in words.
//
// Each begins with its own line break. Pure but for looking up the sentences
// (support/LocalizedText.h), so it belongs to the main thread. Texts are UTF-8.

#pragma once

#include "conversation/UnitSession.h"
#include "support/ByteRange.h"
#include "support/Error.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kx {

// The first one, without a line break.
std::string entryOfDiscovery();

// With the address and port of an IPv4 record; without them for any other.
std::string entryOfStart(const Bytes& localAddress);

std::string entryOfRefusedBroadcast(std::string_view reason);
std::string entryOfStop(const Error& error);

// A parameter request and a restore alike, to an address in host byte order.
std::string entryOfRequest(std::uint32_t target);

std::string entryOfCommand(std::string_view command, std::string_view address);
std::string entryOfSend();
std::string entryOfSendFailure(const SendFailure& failure);

std::string entryOfDatagram(std::size_t length);
std::string entryOfIgnoredDatagram(PacketKind kind);
std::string entryOfReceiveError(const Error& error);

// What a unit said; the text counts only where it names itself and its serial number. An absent
// text prints as "(null)".
std::string entryOfReply(const Reply& reply, const std::optional<std::string>& text);

// An entry in the ARP cache that was handed to the tool, and one that was not.
std::string entryOfARPEntry(const std::optional<std::string>& hardwareAddress,
                            const std::optional<std::string>& address);
std::string entryOfARPFailure(std::int32_t result);

std::string entryOfUnitIDThatIsNoText();

} // namespace kx
