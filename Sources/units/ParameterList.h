// The list of parameters that a unit sends, and its decoding into a record and a text.
//
// A list is a run of items without count, length bytes or terminator; it ends where its bytes end.
// An item is a tag of three bytes and a value whose length the tag fixes, numbers in network byte
// order. Tags and values are those of the table in UnitParameter.h. There is one more: "<O>", six
// bytes that are shown as "01:02:03:04:05:06" and not kept.
//
// Everything here is pure and may be called from any thread.

#pragma once

#include "support/ByteRange.h"
#include "units/IdentityText.h"
#include "units/UnitRecord.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kx {

// The tag of the item that is shown and not kept. The item is shown under this tag.
inline constexpr std::string_view tagOfUninterpretedItem = "<O>";

using UnitIDBytes = std::array<std::uint8_t, identityLength>;

struct DecodedUnitParameters {
    UnitRecord record;
    std::optional<UnitIDBytes> unitIDBytes; // also of a unit ID that is not UTF-8

    // One line for each item, "\n\tNAME: TEXT", in the order of the list. Line feeds of a unit ID
    // are quoted (support/QuotedLines.h).
    std::string displayText;
};

// Decodes a list. Decoding ends quietly at a tag that is not in the table or that is cut short, and
// keeps the items before it. A later item of a tag replaces an earlier one in the record; both have
// their line. A unit ID that is not UTF-8 leaves the record without one and is shown as "(null)".
// Throws RangeFailure for an item whose value is cut short. The display text has the names of the
// parameter table, or those of `names` where they are given.
DecodedUnitParameters decodeUnitParameters(ByteView list,
                                           const ShownParameterNames* names = nullptr);

} // namespace kx
