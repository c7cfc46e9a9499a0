// A watch over the units of a network: it asks everybody again and again, and tells who appears,
// changes, falls silent and comes back.
//
// A unit is silent after three requests without an answer. Until then it is also asked, from the
// second one on, at the address that it told last, because a request to everybody gets lost more
// easily. Anybody can tell somebody else's address, or that of everybody, and be silent. So this is
// done for a silent unit no longer, once for all units of one address, and for 200 addresses at a
// time: nobody is flooded.
//
// Threading and ownership: see Operation.h. The exchange must outlive the watch.

#pragma once

#include "conversation/HeardUnits.h"
#include "conversation/Operation.h"
#include "conversation/UnitExchange.h"

#include <chrono>
#include <cstddef>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace kx {

enum class UnitEvent { appeared, changed, silent, back };

struct WatchPlan {
    std::vector<UnitTarget> everybody = {};
    std::chrono::milliseconds every{2000};
    std::optional<std::chrono::milliseconds> duration = {}; // without one it goes on
    std::optional<std::size_t> until = {};                  // ends when so many units are there

    // Called for each event. It may interrupt the watch.
    std::function<void(UnitEvent, const HeardUnit&)> tell = {};
};

class UnitWatch final : public Operation, private UnitExchange::Listener {
public:
    static constexpr int requestsUntilSilent = 3;
    static constexpr std::size_t mostAskedAlone = 200;

    UnitWatch(UnitExchange& exchange, WatchPlan plan);

    // The number of units that are there now.
    std::size_t count() const;

    // Why the first request did not go to a place; absent when it went everywhere. A first request
    // that goes nowhere ends the watch.
    const std::optional<SendFailure>& failure() const { return _failure; }

    // A request went to one place at least.
    bool hasAsked() const { return _hasAsked; }

    void interrupt() override { end(); }

private:
    struct Watched {
        HeardUnit unit;
        int unanswered = 0;
        bool isSilent = false;
    };

    void start() override;
    void unitDidTell(const HeardUnit& unit) override;
    void request();
    void askAt(const UnitTarget& everybody);
    void askThoseThatMissedIt();
    void noteSilence();
    void endWhenEnough();

    WatchPlan _plan;
    std::map<UnitIdentity, Watched> _units;
    bool _hasBegun = false;
    bool _hasAsked = false;
    std::optional<SendFailure> _failure;
    RunLoop::Handle _nextRequest;
    RunLoop::Handle _deadline;
};

} // namespace kx
