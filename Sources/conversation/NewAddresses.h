// The new addresses of a plan for many units, and who holds them.
//
// Pure; any thread. Addresses are in host byte order.

#pragma once

#include "conversation/AddressHolders.h"
#include "conversation/UnitPlan.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace kx {

// The new address that a change of the row asks for; 0 without one.
std::uint32_t newAddressOf(const PlannedRow& row);

struct NewAddress {
    std::size_t row = 0; // its place in UnitPlan::rows
    AddressQuestion question;
};

// Those of the planned rows, in the order of the plan.
std::vector<NewAddress> newAddressesOf(const UnitPlan& plan);

// What has to be found out about them, in the same order.
std::vector<AddressQuestion> questionsAbout(const std::vector<NewAddress>& addresses);

// Refuses a planned row whose new address somebody holds, or of whose holder nothing is known, and
// the rows that wait for it. The unit itself may hold the address, and so may a unit that gives it
// up for this one.
void noteHolders(UnitPlan& plan, std::size_t row, const AddressHolders& holders);

} // namespace kx
