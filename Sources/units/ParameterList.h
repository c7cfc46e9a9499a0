// The list of parameters that a unit sends, and its decoding into a record.
//
// A list is a run of items without count, length bytes or terminator; it ends where its bytes end.
// An item is a tag of three bytes and a value whose length the tag fixes, numbers in network byte
// order. Tags and values are those of the table in UnitParameter.h. There is one more: "<O>", six
// bytes that are told as "01:02:03:04:05:06" and not kept.
//
// Everything here is pure and may be called from any thread.

#pragma once

#include "support/ByteRange.h"
#include "units/IdentityText.h"
#include "units/UnitRecord.h"
#include "units/ValueText.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace kx {

// The tag of the item that is told and not kept, which has no name.
inline constexpr std::string_view tagOfUninterpretedItem = "<O>";

// One item as it was told.
struct ToldParameter {
    std::optional<UnitParameter> parameter; // absent for the item that is not kept
    ValueText text{};                       // none for a unit ID that is not UTF-8
};

using UnitIDBytes = std::array<std::uint8_t, identityLength>;

struct DecodedUnitParameters {
    UnitRecord record;
    std::vector<ToldParameter> items;       // in the order of the list
    std::optional<UnitIDBytes> unitIDBytes; // also of a unit ID that is not UTF-8
};

// Decodes a list. Decoding ends quietly at a tag that is not in the table or that is cut short, and
// keeps the items before it. A later item of a tag replaces an earlier one in the record; both are
// among the items. A unit ID that is not UTF-8 leaves the record without one. Throws RangeFailure
// for an item whose value is cut short.
DecodedUnitParameters decodeUnitParameters(ByteView list);

} // namespace kx
