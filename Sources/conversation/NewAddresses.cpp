#include "conversation/NewAddresses.h"

#include "addresses/IPv4Address.h"

#include <algorithm>
#include <utility>

namespace kx {

namespace {

std::string_view hardwareAddressOf(const PlannedRow& row) {
    return row.unit.has_value() ? row.unit->hardwareAddress() : std::string_view();
}

bool mayHold(const UnitPlan& plan, const PlannedRow& row, std::string_view hardwareAddress) {
    return hardwareAddress == hardwareAddressOf(row) ||
           std::ranges::any_of(row.after, [&](const RowDependency& dependency) {
               return hardwareAddress == hardwareAddressOf(plan.rows[dependency.row]);
           });
}

} // namespace

std::uint32_t newAddressOf(const PlannedRow& row) {
    for (const UnitChange& change : row.changes) {
        if (change.state == ChangeState::planned &&
            change.edit.edit.parameter == UnitParameter::internalIPAddress) {
            return ipForString(change.edit.edit.typed);
        }
    }
    return 0;
}

std::vector<NewAddress> newAddressesOf(const UnitPlan& plan) {
    std::vector<NewAddress> addresses;
    for (const std::size_t place : plan.order) {
        const PlannedRow& row = plan.rows[place];
        const std::uint32_t address = newAddressOf(row);
        if (row.state == RowState::planned && address != 0 && row.unit.has_value()) {
            addresses.push_back(
                {.row = place, .question = {.address = address, .link = row.unit->link}});
        }
    }
    return addresses;
}

std::vector<AddressQuestion> questionsAbout(const std::vector<NewAddress>& addresses) {
    std::vector<AddressQuestion> questions;
    questions.reserve(addresses.size());
    for (const NewAddress& address : addresses) {
        questions.push_back(address.question);
    }
    return questions;
}

void noteHolders(UnitPlan& plan, std::size_t place, const AddressHolders& holders) {
    PlannedRow& row = plan.rows[place];
    if (row.state != RowState::planned) {
        return;
    }
    RowReason reason{.parameter = UnitParameter::internalIPAddress,
                     .value = stringForIP(holders.address)};
    for (const auto& holder : holders.holders) {
        if (!mayHold(plan, row, holder.hardwareAddress)) {
            reason.others.push_back(holder.hardwareAddress);
        }
    }
    if (!reason.others.empty()) {
        reason.objection = RowObjection::heldByHost;
    } else if (holders.state == HolderState::unknown) {
        reason.objection = RowObjection::unknownHolder;
    } else {
        return;
    }
    endRow(row, RowState::refused, std::move(reason));
    refuseWaiting(plan, place);
}

} // namespace kx
