#include "units/UnitRecord.h"

#include "support/Require.h"

#include <algorithm>

namespace kx {

void UnitRecord::setValue(UnitParameter parameter, std::string_view text) {
    require(text.size() <= longestText, "text.size() <= longestText", "Sources/units/UnitRecord");
    Slot& slot = _slots[indexOf(parameter)];
    slot.length = static_cast<std::uint8_t>(text.copy(slot.text.data(), longestText));
    slot.isPresent = true;
}

bool operator==(const UnitRecord& left, const UnitRecord& right) {
    return std::all_of(allUnitParameters.begin(), allUnitParameters.end(),
                       [&](UnitParameter each) { return left.value(each) == right.value(each); });
}

} // namespace kx
