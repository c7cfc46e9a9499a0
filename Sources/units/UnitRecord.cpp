#include "units/UnitRecord.h"

#include <algorithm>

namespace kx {

bool operator==(const UnitRecord& left, const UnitRecord& right) {
    return std::all_of(allUnitParameters.begin(), allUnitParameters.end(),
                       [&](UnitParameter each) { return left.value(each) == right.value(each); });
}

} // namespace kx
