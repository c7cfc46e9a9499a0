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

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace kx {

// The tag of the item that is told and not kept, which has no name.
inline constexpr std::string_view tagOfUninterpretedItem = "<O>";

// One item as it was told. A value without heap storage.
class ToldParameter {
public:
    // `parameter` is absent for the item that is not kept. `text` has at most
    // UnitRecord::longestText bytes.
    ToldParameter(std::optional<UnitParameter> parameter, std::optional<std::string_view> text);

    const std::optional<UnitParameter>& parameter() const { return _parameter; }

    // Absent for a unit ID that is not UTF-8. A view of this value.
    std::optional<std::string_view> text() const {
        return _hasText ? std::optional(std::string_view(_text.data(), _length)) : std::nullopt;
    }

private:
    std::optional<UnitParameter> _parameter;
    bool _hasText;
    std::uint8_t _length = 0;
    std::array<char, UnitRecord::longestText> _text;
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
