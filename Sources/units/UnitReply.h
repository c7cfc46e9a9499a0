// A reply of a unit: a datagram taken apart into its header and its payload.
//
// A reply is a header of 21 bytes and a payload:
//
//   offset 0   reply marker, "^"; the byte after it is never looked at
//          2   reply tag, 3 bytes, for example "<U>"
//          5   unit ID, 6 bytes, when the reply tag is "<U>"
//         11   serial tag, 3 bytes
//         14   serial number, 6 bytes, when the serial tag is "<S>"
//         20   payload marker; the payload counts only behind "$"
//         21   payload: a parameter list ("<M>..."), an acknowledgement ("ok..."), or any text
//
// Everything here is pure: bytes in, values out, no state, any thread.

#pragma once

#include "support/ByteRange.h"

#include <optional>
#include <string>

namespace kx {

enum class PacketKind {
    tooShort, // fewer than 5 bytes
    unknown,  // does not begin with the reply marker
    reply,
};

enum class PayloadKind {
    none,            // no payload marker
    parameterList,   // "<M>" follows the marker
    acknowledgement, // "ok" and one more ASCII character follow the marker
    other,
};

struct Reply {
    std::optional<std::string> tag; // absent when it is not UTF-8

    // Texts in the forms of IdentityText.h. Each is absent without its tag; the unit ID is also
    // absent when it is not UTF-8.
    std::optional<std::string> unitID;
    std::optional<std::string> serialNumber;

    PayloadKind payloadKind = PayloadKind::none;

    // parameterList: from "<M>" to the end; acknowledgement and other: from "$" to the end.
    ByteView payload;
};

PacketKind packetKindOfDatagram(ByteView datagram);

// Takes apart a datagram of the kind `reply`; the payload is a view of it. Throws RangeFailure when
// a unit ID or a serial number that its tag announces is cut short.
Reply replyFromDatagram(ByteView datagram);

} // namespace kx
