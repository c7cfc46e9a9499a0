// The units that have answered, by serial number: the latest record of each, and the numbers in
// ascending order.
//
// A unit that stops answering stays in the registry. Any host on the network can invent units, so
// the registry has a limit: one more unit takes the place of the one that was not heard for
// longest. Main thread only.

#pragma once

#include "support/NumberIndex.h"
#include "support/TitleList.h"
#include "units/OrderedSerialNumbers.h"
#include "units/UnitRecord.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kx {

// The units that have answered in a round of asking, compared with what is known from before. Each
// unit counts once, with its first answer.
struct RoundTally {
    struct Units {
        std::size_t count = 0;
        std::string latest; // serial number of the latest of them
    };

    std::size_t answered = 0;
    Units added;   // of these: nobody knew them
    Units changed; // known ones, with another value than they told last
    Units back;    // known ones that did not answer in the round before

    // Those that answered in the round before, and not yet in this one.
    std::size_t silent = 0;

    // Serial numbers that known units have taken. They are no further units.
    std::size_t renamed = 0;
};

class UnitRegistry {
private:
    struct Unit;

public:
    // More than any network has, and small enough for a desktop's memory.
    static constexpr std::size_t defaultLimit = 1'048'576;

    // `limit` is the most units that it keeps. Contract: "limit >= 2".
    explicit UnitRegistry(std::size_t limit = defaultLimit);
    UnitRegistry(const UnitRegistry&) = delete;
    UnitRegistry& operator=(const UnitRegistry&) = delete;

    // Forgets every unit. The kept serial number stays kept.
    void clear();

    // Adds a unit, or replaces the whole record of a known unit; either is now the one that was
    // heard last. For a record without a serial number, returns false and stores nothing. Serial
    // numbers of other forms than replies give (ValueForm::serialNumber) are stored too, but many
    // of them take long to find.
    bool store(const UnitRecord& record);

    // The unit of this serial number never makes room for another one. Absent: no unit is kept so.
    void keep(std::optional<std::string> serial) { _kept = std::move(serial); }

    // How many units made room for others since the start; clear() does not change it.
    std::uint64_t forgottenUnits() const { return _forgotten; }

    // A round of asking begins. It lasts until the next one, so late answers count too.
    void beginRound();

    // The round since the latest beginRound(), or since the beginning.
    const RoundTally& round() const { return _tally; }

    // Whether the unit has answered in this round.
    bool hasAnswered(std::string_view serial) const;

    // The serial number of a unit that answered in the round before and not in this one, the one
    // that was silent for longest; absent without any. Passes over the units that have been silent
    // for longer.
    std::optional<std::string> silentUnit() const;

    // Null for a serial number that no unit has told. Valid until the next store() or clear().
    const UnitRecord* find(std::string_view serial) const;

    // Takes the internal IP address out of a unit's record, if there is one, because the unit is
    // moving to another address. The unit's next record replaces this one.
    void withdrawAddress(std::string_view serial);

    // A person gives the unit `before` the serial number `after`. When a record with that and with
    // the same hardware address comes, it is the same unit, so it is neither new nor late, and its
    // number before is not missed. The latest call counts.
    void expectSerialNumber(std::string_view before, std::string_view after);

    // A known unit was heard by the interface with this index. Does nothing for another unit, and
    // for link 0, which tells nothing.
    void setLink(std::string_view serial, std::uint32_t link);

    // The internal IP address in a unit's record, or the address that was withdrawn since the unit
    // told its record; absent when the unit told none.
    std::optional<std::string_view> lastToldAddress(std::string_view serial) const;

    // The record of every unit, in no order. Each tells a serial number. Valid until the next
    // store() or clear().
    std::span<const Unit> records() const { return _units; }

    // Every serial number once, in ascending order.
    TitleList serialNumbers() { return _serialNumbers.list(); }

    // The serial number of a unit for whose record `tells` is true; of several the lowest. Absent
    // without one. Looks at every unit.
    template<class Tells>
    std::optional<std::string> lowestWhere(const Tells& tells) const {
        std::optional<std::string_view> lowest;
        for (const Unit& unit : _units) {
            if (tells(static_cast<const UnitRecord&>(unit)) &&
                (!lowest.has_value() || unit.serial() < *lowest)) {
                lowest = unit.serial();
            }
        }
        return lowest.has_value() ? std::optional<std::string>(*lowest) : std::nullopt;
    }

private:
    static constexpr std::uint32_t nobody = NumberIndex::nothing;

    // The units form a ring in the order in which they were heard, so that finding the next one to
    // forget takes no search. A link of the ring is a place in `_units`.
    struct Unit : UnitRecord {
        std::string_view serial() const { return value(UnitParameter::serialNumber).value_or(""); }

        std::uint32_t older = nobody;
        std::uint32_t newer = nobody;
        std::uint32_t round = 0; // the latest one in which it answered
    };

    std::uint32_t placeOf(std::string_view serial) const;
    std::uint32_t addUnit(std::string_view serial);
    void removeUnit(std::uint32_t place);
    void countAnswer(Unit& unit, bool isNew, const UnitRecord& record);
    bool rename(Unit& unit, bool isNew, const UnitRecord& record);
    bool tellsTheSame(const Unit& unit, const UnitRecord& record) const;
    void hear(std::uint32_t place);
    void leaveRing(const Unit& unit);
    void forgetOldest();

    std::size_t _limit;
    std::vector<Unit> _units;
    NumberIndex _places;            // of units, by their serial numbers
    std::uint32_t _newest = nobody; // its `newer` is the oldest
    std::optional<std::string> _kept;
    std::uint64_t _forgotten = 0;
    std::uint32_t _round = 2; // 0 is then neither this round nor the one before
    RoundTally _tally;
    OrderedSerialNumbers _serialNumbers;
    std::map<std::string, std::string, std::less<>> _withdrawnAddresses; // by serial number
    std::string _serialBefore; // of the unit that gets a new serial number; empty without one
    std::string _serialAfter;
};

} // namespace kx
