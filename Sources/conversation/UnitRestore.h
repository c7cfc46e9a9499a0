// A restore of factory settings, for one unit or for all that hear it, and what the units show
// afterwards.
//
// Nobody knows the factory settings, so a unit counts as restored when it has acknowledged the
// command, or shows other values than before. It is asked everywhere on its link, because its
// addresses may be other ones now. The command is sent again while a unit has not acknowledged it.
//
// Threading and ownership: see Operation.h. The exchange must outlive the restore.

#pragma once

#include "conversation/HeardUnits.h"
#include "conversation/Operation.h"
#include "conversation/UnitExchange.h"

#include <chrono>
#include <cstddef>
#include <optional>
#include <vector>

namespace kx {

struct RestoredUnit {
    HeardUnit before;
    std::optional<HeardUnit> after = {}; // as the unit showed itself last; absent when it is silent
    bool isAccepted = false;

    bool hasChanged() const;

    // It has shown itself after the command, and that it has taken it.
    bool isRestored() const { return after.has_value() && (isAccepted || hasChanged()); }
};

class UnitRestore final : public Operation, private UnitExchange::Listener {
public:
    // `targets` are the places where the command goes, `everybody` those where units are asked.
    UnitRestore(UnitExchange& exchange, const std::vector<HeardUnit>& units,
                std::vector<UnitTarget> targets, std::vector<UnitTarget> everybody);

    const std::vector<RestoredUnit>& units() const { return _units; }

    // Why the command did not go to a place the first time; absent when it went everywhere. A
    // command that goes nowhere ends the restore.
    const std::optional<SendFailure>& failure() const { return _failure; }

    // The command went to one place at least.
    bool isSent() const { return _isSent; }

    // Has no effect: a restore that was sent is read back.
    void interrupt() override {}

private:
    void start() override;
    void unitDidTell(const HeardUnit& unit) override;
    void unitDidAnswer(const UnitAnswer& answer) override;
    void command();
    void ask();
    void tryAgain();
    void scheduleTry();
    void endWhenAllAreRestored();
    bool areAllAccepted() const;

    std::vector<RestoredUnit> _units;
    std::vector<UnitTarget> _targets;
    std::vector<UnitTarget> _everybody;
    std::optional<SendFailure> _failure;
    int _sends = 0;
    bool _isSent = false;
    std::size_t _tries = 0;
    std::chrono::milliseconds _begun{0};
    RunLoop::Handle _nextTry;
};

} // namespace kx
