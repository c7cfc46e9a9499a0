// The list of parameters that a unit sends: its bytes taken apart into a record and a text.
//
// A list is a run of items without count, length bytes or terminator; it ends where its bytes end.
// An item is a tag of three bytes and a value whose length the tag fixes, numbers in network byte
// order. Tags and values are those of the table in UnitParameter.h, and one more: "<O>", six bytes
// that are shown as "01:02:03:04:05:06" and not kept.
//
// Everything here is pure and may be called from any thread.

#pragma once

#include "support/ByteRange.h"
#include "units/UnitRecord.h"

#include <string>
#include <string_view>

namespace kx {

// The item that is shown and not kept, and the name under which it shows.
inline constexpr std::string_view uninterpretedTag = "<O>";

struct DecodedUnitParameters {
    UnitRecord record;
    std::string displayText; // one line for each item, "\n\tNAME: TEXT", in the order of the list
};

// Decodes a list. It ends quietly, with what came before, at a tag that is not in the table or is
// cut short. A later item of a tag replaces an earlier one in the record; both have their line. A
// unit ID that is not UTF-8 leaves the record without one and shows as "(null)". Throws
// RangeFailure for an item whose value is cut short. The display text has the names of the records,
// or those of `names` where they are given.
DecodedUnitParameters decodeUnitParameters(ByteView list,
                                           const ShownParameterNames* names = nullptr);

} // namespace kx
