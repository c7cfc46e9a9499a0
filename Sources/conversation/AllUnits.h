// Every unit that has answered since the start of the program, with its sender, the time of its
// latest answer, and whether something is wrong with it. A table is made of it.
//
// A unit is a serial number together with a hardware address, so two hosts that answer as one
// serial number are two units. Each has a number, which it keeps; numbers count from 0. Any host on
// the network can invent units, so there is a limit: one more unit takes the number and the place
// of the one that was not heard for longest. Two units that share an address or a serial number are
// marked, unless one of them is silent, because it may be gone.
//
// Main thread only. A walk over units that share a value looks at a few of them, so nothing that a
// stranger sends makes an operation slow.

#pragma once

#include "conversation/HeardUnits.h"
#include "conversation/UnitRow.h"
#include "conversation/UnitsOfValue.h"
#include "support/NumberIndex.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kx {

// What is to be said about a unit, the weightiest first.
enum class UnitState : std::uint8_t {
    sharesSerialNumber, // another unit that answers has its serial number
    sharesAddress,      // another unit that answers has its internal IP address
    silent,             // it was asked by the latest discovery, and has not answered since
    answered,
};

class AllUnits {
public:
    // More than any network has. They take some 20 MB of memory.
    static constexpr std::size_t defaultLimit = 131'072;

    static constexpr std::uint32_t nobody = UnitsOfValue::nobody;

    struct Clock {
        std::function<std::chrono::milliseconds()> steady; // from any beginning; never jumps
        std::function<std::chrono::system_clock::time_point()> calendar;
    };

    // The name of the interface with an index, empty when there is none.
    using NameOfLink = std::function<std::string(std::uint32_t link)>;

    // `limit` is the most units that are kept, at least 1.
    explicit AllUnits(NameOfLink nameOfLink, std::size_t limit = defaultLimit,
                      Clock clock = clockOfHost());
    AllUnits(const AllUnits&) = delete;
    AllUnits& operator=(const AllUnits&) = delete;

    // Forgets every unit.
    void clear();

    // --- Events ---

    // A discovery begins. Several may be under way; they end in the order of their beginnings.
    void discoveryDidBegin();

    // A request for parameters left to everybody by the interface with this index, for the latest
    // discovery that began. With link 0 the routes decided.
    void everybodyWasAsked(std::uint32_t link);

    // Its time to answer is over. The units that it asked and that were not heard since its
    // beginning are silent, until they are heard. When it could ask nobody, nothing changes.
    void discoveryDidEnd();

    // Any request left, so the time to answer begins.
    void requestDidLeave();

    // A unit told its parameters. `unit.answered` does not count. Does nothing for a unit that
    // tells no serial number.
    void unitDidTell(const HeardUnit& unit);

    // A unit sent a reply of another kind in the name of this serial number.
    void unitDidAnswer(std::string_view serial, std::uint32_t sender, std::uint32_t link);

    // A command went to the unit of this serial number, or to everybody: another hardware address
    // under the same serial number is then the same unit, once.
    void expectChange(std::string_view serial);
    void expectChanges() { _changeExpectedUpTo = _hearings; }

    // --- The units ---

    // The units have the numbers 0 to size() - 1.
    std::size_t size() const { return _units.size(); }
    const UnitRow& row(std::uint32_t unit) const { return _units[unit].row; }
    UnitState stateOf(std::uint32_t unit) const;

    // Another unit that answers and has the same serial number, or the same internal IP address;
    // `nobody` when there is none.
    std::uint32_t sharerOfSerialNumber(std::uint32_t unit) const;
    std::uint32_t sharerOfAddress(std::uint32_t unit) const;

    // The name of an interface as it was when a unit was first heard on it; empty for link 0.
    const std::string& nameOfLink(std::uint32_t link) const;

    // The names of all interfaces on which units were heard, by their indexes.
    const std::map<std::uint32_t, std::string>& links() const { return _links; }

    // Units have made room for others.
    bool isIncomplete() const { return _isIncomplete; }

    // --- Changes ---

    // Counts every time that a unit is heard.
    std::uint64_t hearings() const { return _hearings; }

    // The number of this unit's latest hearing. It orders units by the time of their answers.
    std::uint64_t hearingOf(std::uint32_t unit) const { return _units[unit].hearing; }

    // The units that were heard since `hearings()` was `hearing`, the latest first, each once.
    std::vector<std::uint32_t> heardSince(std::uint64_t hearing) const;

    // Counts the changes of states and of names of interfaces that may concern other units than
    // those heard.
    std::uint64_t changesOfOthers() const { return _changesOfOthers; }

    // Counts the calls of clear().
    std::uint64_t clearings() const { return _clearings; }

    // Called after every change; may be empty. It must not change the units.
    void setChangeAction(std::function<void()> action) { _changeAction = std::move(action); }

    static Clock clockOfHost();

private:
    struct Identity {
        std::uint64_t serial = 0;
        std::uint64_t hardwareAddress = 0;

        friend bool operator==(const Identity&, const Identity&) = default;
    };
    struct Unit {
        UnitRow row;
        std::uint64_t hearing = 0;
        std::uint32_t older = nobody; // in the order of hearings
        std::uint32_t newer = nobody;
        bool mayChange = false;
    };
    struct UnderWay {
        std::uint64_t hearings = 0;        // at its beginning
        std::optional<std::uint32_t> link; // absent while nobody was asked
    };

    static Identity identityOf(const UnitRow& row);
    static std::uint64_t keyOf(const Identity& identity);
    UnitsOfValue::ValueOf valueOf(UnitParameter parameter) const;
    std::uint32_t numberFor(const Identity& identity);
    std::uint32_t unitThatMayBecome(const Identity& identity) const;
    void enter(std::uint32_t unit);
    void leave(std::uint32_t unit);
    void hear(std::uint32_t unit);
    void leaveOrder(Unit& unit);
    void nameLink(std::uint32_t link);
    bool isSilent(const Unit& unit) const;
    void changed() const;

    NameOfLink _nameOfLink;
    std::size_t _limit;
    Clock _clock;
    std::vector<Unit> _units;
    NumberIndex _numbers; // by identity
    UnitsOfValue _ofSerialNumber;
    UnitsOfValue _ofAddress;
    std::uint32_t _oldest = nobody;
    std::uint32_t _newest = nobody;
    std::map<std::uint32_t, std::string> _links;
    std::deque<UnderWay> _discoveries;
    std::map<std::uint32_t, std::uint64_t> _silentUpTo; // hearing, by the link that was asked
    std::chrono::milliseconds _latestRequest{0};
    std::uint64_t _hearings = 0;
    std::uint64_t _changeExpectedUpTo = 0;
    std::uint64_t _changesOfOthers = 0;
    std::uint64_t _clearings = 0;
    bool _isIncomplete = false;
    std::function<void()> _changeAction;
};

} // namespace kx
