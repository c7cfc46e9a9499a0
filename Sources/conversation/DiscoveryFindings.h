// What the latest discovery found out besides its units, weightiest first.
//
// A value type; any thread, one at a time. It keeps at most a hundred findings about identities and
// goes on counting nothing beyond: anybody can cause more of them.

#pragma once

#include "DatagramSystemCalls.h"
#include "conversation/Finding.h"
#include "conversation/IdentityWitness.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace kx {

class DiscoveryFindings {
public:
    static constexpr std::size_t mostContradictions = 100;

    // A discovery begins: forgets everything. `forgottenUnits` is UnitRegistry::forgottenUnits().
    void begin(std::optional<InterfaceFinding> interface, std::uint64_t forgottenUnits = 0);

    // The number of datagrams that the system has dropped since the beginning.
    void setDropped(std::uint32_t datagrams) { _dropped = datagrams; }

    bool hasDropped() const { return _dropped != 0; }

    // The present UnitRegistry::forgottenUnits(). Returns whether the first unit since the
    // beginning was forgotten.
    bool setForgottenUnits(std::uint64_t forgottenUnits);

    // A unit told its parameters. Returns whether anything new was found. One more unit of an
    // address that several have already is nothing new.
    bool unitDidTell(const UnitRecord& record, const DatagramOrigin& origin);

    // A reply of any kind came in the name of this serial number. Returns whether anything new was
    // found.
    bool replyDidCome(std::string_view serial, const DatagramOrigin& origin);

    // A command went to the unit of this serial number, or to everybody.
    void expectChange(std::string_view serial) { _witness.expectChange(serial); }
    void expectChanges() { _witness.expectChanges(); }

    // All findings, weightiest kind first, those of one kind in the order in which they came.
    std::vector<Finding> all() const;

    // Absent when nothing was found.
    std::optional<Finding> weightiest() const;

private:
    std::optional<InterfaceFinding> _interface;
    std::uint32_t _dropped = 0;
    std::uint64_t _forgottenBefore = 0;
    bool _areUnitsForgotten = false;
    IdentityWitness _witness;
    std::vector<Finding> _contradictions;
};

} // namespace kx
