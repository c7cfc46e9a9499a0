#include "conversation/DiscoveryComparison.h"

#include <algorithm>

namespace kx {

namespace {

using Units = std::vector<const HeardUnit*>;

bool tellTheSame(const HeardUnit& before, const HeardUnit& now, UnitParameter parameter) {
    if (parameter == UnitParameter::unitID && before.unitIDBytes.has_value() &&
        now.unitIDBytes.has_value()) {
        return before.unitIDBytes == now.unitIDBytes;
    }
    return before.record.value(parameter) == now.record.value(parameter);
}

void compareUnit(const HeardUnit& before, const HeardUnit& now, DiscoveryComparison& result) {
    const std::size_t known = result.differences.size();
    for (const UnitParameter parameter : allUnitParameters) {
        if (!tellTheSame(before, now, parameter)) {
            result.differences.push_back({&before, &now, parameter});
        }
    }
    ++(result.differences.size() == known ? result.same : result.changed);
}

// Compares the units of one serial number. There is more than one where two hosts claim it.
void compareClaimants(Units before, Units now, DiscoveryComparison& result) {
    std::erase_if(before, [&](const HeardUnit* unit) {
        const auto same =
            std::ranges::find(now, unit->hardwareAddress(),
                              [](const HeardUnit* each) { return each->hardwareAddress(); });
        if (same == now.end()) {
            return false;
        }
        compareUnit(*unit, **same, result);
        now.erase(same);
        return true;
    });
    const std::size_t pairs = std::min(before.size(), now.size());
    for (std::size_t i = 0; i < pairs; ++i) {
        compareUnit(*before[i], *now[i], result);
    }
    result.missing.insert(result.missing.end(), before.begin() + static_cast<std::ptrdiff_t>(pairs),
                          before.end());
    result.added.insert(result.added.end(), now.begin() + static_cast<std::ptrdiff_t>(pairs),
                        now.end());
}

// Takes the units of this serial number off the front.
Units claimantsOf(std::string_view serial, Units::const_iterator& place,
                  Units::const_iterator end) {
    const auto begin = place;
    while (place != end && (*place)->serialNumber() == serial) {
        ++place;
    }
    return {begin, place};
}

} // namespace

DiscoveryComparison compareDiscoveries(const HeardUnits& before, const HeardUnits& now) {
    const Units earlier = before.all();
    const Units later = now.all();
    DiscoveryComparison result;
    auto left = earlier.begin();
    auto right = later.begin();
    while (left != earlier.end() || right != later.end()) {
        const bool isLeft =
            right == later.end() ||
            (left != earlier.end() && (*left)->serialNumber() < (*right)->serialNumber());
        const std::string_view serial = isLeft ? (*left)->serialNumber() : (*right)->serialNumber();
        Units ofEarlier = claimantsOf(serial, left, earlier.end());
        Units ofLater = claimantsOf(serial, right, later.end());
        compareClaimants(std::move(ofEarlier), std::move(ofLater), result);
    }
    return result;
}

} // namespace kx
