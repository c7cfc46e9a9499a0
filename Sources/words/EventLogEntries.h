// The entries of the event log: one for each thing that is sent, received or done, in words.
//
// Each begins with its own line break. Line feeds of foreign and of typed texts are quoted in them
// (support/QuotedLines.h), so that each entry has the lines that it is told to have. Pure, except
// that they look up the sentences (support/LocalizedText.h), so they belong to the main thread.
// Texts are UTF-8.

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

// The first entry of the log. It has no line break.
std::string entryOfDiscovery();

// Names the address and the port of an IPv4 record, and neither for any other record.
std::string entryOfStart(const Bytes& localAddress);

std::string entryOfRefusedBroadcast(std::string_view reason);
std::string entryOfStop(const Error& error);

// For a parameter request and for a restore, to an address in host byte order.
std::string entryOfRequest(std::uint32_t target);

std::string entryOfCommand(std::string_view command, std::string_view address);
std::string entryOfSend();
std::string entryOfSendFailure(const SendFailure& failure);

std::string entryOfDatagram(std::size_t length);
std::string entryOfIgnoredDatagram(PacketKind kind);
std::string entryOfReceiveError(const Error& error);

// The entry has `text` only when the unit names itself and its serial number. An absent text prints
// as "(null)". A foreign text must come quoted; the display text of a parameter list is.
std::string entryOfReply(const Reply& reply, const std::optional<std::string>& text);

// One entry for an ARP cache entry that was handed to the tool, and one for an entry that was not.
std::string entryOfARPEntry(const std::optional<std::string>& hardwareAddress,
                            const std::optional<std::string>& address);
std::string entryOfARPFailure(std::int32_t result);

std::string entryOfUndecodableUnitID();

} // namespace kx
