// The entries of the event log: one for each thing that is sent, received or done, in words.
//
// Each begins with its own line break. Some are followed by a second text, which is appended by
// itself: the first part stays in the log when the second one cannot be made. Line feeds of foreign
// and of typed texts are quoted (support/QuotedLines.h), so that each entry has the lines that it
// is told to have. Pure, except that they look up the sentences (support/LocalizedText.h), so they
// belong to the main thread. Texts are UTF-8.

#pragma once

#include "conversation/UnitSession.h"
#include "support/Error.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kx {

// The first entry of the log. It has no line break.
std::string entryOfDiscovery();

// The first line of a log whose oldest entries were removed. It has no line break.
std::string noticeOfRemovedEntries();

// The start of the listener, and after it its own IPv4 address and port, both in host byte order.
std::string entryOfStart();
std::string addressInEntry(std::uint32_t address, std::uint16_t port);

// The reason of a stop, a failed send or a failed read, on a line of its own after the entry.
std::string reasonInEntry(const Error& error);
std::string reasonInEntry(const SendFailure& failure);

std::string entryOfRefusedBroadcast(std::string_view reason);
std::string entryOfStop();

// For a parameter request and for a restore, to an address in host byte order.
std::string entryOfRequest(std::uint32_t target);

std::string entryOfCommand(std::string_view command, std::string_view address);
std::string entryOfSend();
std::string entryOfSendFailure();

std::string entryOfDatagram(std::size_t length); // in bytes
std::string entryOfIgnoredDatagram(PacketKind kind);
std::string entryOfReceiveError();

// The entry has `text` only when the unit names itself and its serial number. A foreign text must
// come quoted; the lines of a parameter list are. Here and below an absent text prints as "(null)".
std::string entryOfReply(const Reply& reply, const std::optional<std::string>& text);

// The entry of a reply that is neither a parameter list nor an acknowledgement, with its own text.
std::string entryOfOtherReply(const Reply& reply);

// An ARP cache entry that was handed to the tool; and one that was not, with the result of
// Authorization::runToolWithArgs().
std::string entryOfARPEntry(const std::optional<std::string>& hardwareAddress,
                            const std::optional<std::string>& address);
std::string entryOfARPFailure(std::int32_t result);

std::string entryOfUndecodableUnitID();

} // namespace kx
