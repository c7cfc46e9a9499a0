// A request to each of some units at the address that it told last. Nobody is called missing before
// that: a request to everybody gets lost more easily, and so do the answers that come all at once.
//
// Each unit is asked until it answers, at most eight times, every 0.2 s. The operation ends when
// all have answered, or when the last request has been given its time. Requests leave in small
// groups, so that many answers do not come at the same instant. Anybody can tell somebody else's
// address, or that of everybody, as that of many units. So of the units that tell one address, only
// the first 16 are asked.
//
// Threading and ownership: see Operation.h. The exchange must outlive the operation.

#pragma once

#include "conversation/HeardUnits.h"
#include "conversation/Operation.h"
#include "conversation/UnitExchange.h"

#include <chrono>
#include <cstddef>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace kx {

class LastAddressRequests final : public Operation, private UnitExchange::Listener {
public:
    static constexpr int mostTries = 8;
    static constexpr std::chrono::milliseconds timeBetweenTries{200};
    static constexpr std::chrono::milliseconds timeAfterTheLast{800};
    static constexpr std::size_t unitsAtOnce = 100;
    static constexpr int mostAtOneAddress = 16;
    static constexpr std::chrono::milliseconds timeBetweenGroups{10};

    // A unit without an address is asked where its answer came from.
    LastAddressRequests(UnitExchange& exchange, const std::vector<HeardUnit>& units);

    // Every unit that has told its parameters meanwhile, also one that was not asked.
    const HeardUnits& heard() const { return _heard; }

    // Whether a request left for the unit, which must be one of those given at the beginning.
    // Nothing leaves for a unit whose address is not known, or is that of too many.
    bool wasAsked(const HeardUnit& unit) const;

    void interrupt() override { finish(); }

private:
    struct Asked {
        HeardUnit unit;
        bool isOneTooMany = false; // at its address
        bool wasAsked = false;
        bool hasAnswered = false;
    };

    void start() override;
    void unitDidTell(const HeardUnit& unit) override;
    void beginTry();
    void askNextGroup();
    void ask(Asked& asked);
    void callAfter(std::chrono::milliseconds time, void (LastAddressRequests::*operation)());
    void finish();

    std::vector<Asked> _units;
    std::map<UnitIdentity, std::size_t> _places; // of the units in the list
    HeardUnits _heard;
    std::size_t _next = 0; // the first unit that this try has not come to
    std::size_t _unanswered = 0;
    int _tries = 0;
    std::chrono::milliseconds _tryBegan{0};
    RunLoop::Handle _delay;
};

} // namespace kx
