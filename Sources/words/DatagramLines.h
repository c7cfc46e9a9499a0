// The line that the event log has for a datagram, made from the datagram alone.
//
// A capture has these lines as comments, so that it can be read beside the log. They are shown
// texts (LogText::shownText()) of at most LogText::longestRow bytes: the first row of a longer
// line.
//
// Pure, except that it looks up the sentences (support/LocalizedText.h), so it belongs to the main
// thread. Texts are UTF-8, addresses in host byte order.

#pragma once

#include "support/ByteRange.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace kx {

// The first line of an entry of the log, which begins with its own line feed.
std::string lineOfEntry(std::string_view entry);

// What was received, for example "Received command: ^^<U> unit:1 serial:4B 58 00 00 00 01
// cidString:". For a datagram that breaks its own format, that it came and its length: the log says
// no more of it. One without bytes counts as an error.
std::string lineOfReceivedDatagram(ByteView datagram);

// A request or a command. The empty text for a datagram that the log does not mention, because it
// is empty.
std::string lineOfSentDatagram(ByteView datagram, std::uint32_t destination);

} // namespace kx
