// A command to one unit whose effect is read back: the unit is asked for its parameters until it
// shows what was wanted, or until the time is over.
//
// What was wanted is final as soon as it is shown. Anything else counts only at the end, because an
// old answer may be under way. The unit is asked when it acknowledges the command, and at the times
// of readBackTries() whatever it says. While it has not acknowledged the command, the first of
// these tries also send the command again, so that it goes out three times in all.
//
// Threading and ownership: see Operation.h. The exchange must outlive the command.

#pragma once

#include "conversation/HeardUnits.h"
#include "conversation/Operation.h"
#include "conversation/UnitExchange.h"

#include <array>
#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace kx {

// The times of the tries, counted from the command. Each is a fifth of a second further from the
// one before it than that was from its own. The last one is the deadline.
constexpr std::array<std::chrono::milliseconds, 5> readBackTries() {
    using std::chrono::milliseconds;
    return {milliseconds(200), milliseconds(600), milliseconds(1200), milliseconds(2000),
            milliseconds(3000)};
}

// Answers that came sooner after a command may have been under way when it was sent.
inline constexpr std::chrono::milliseconds timeOfOldAnswers{200};

struct CommandPlan {
    std::string command;
    UnitTarget target;                       // the command goes there
    std::vector<UnitTarget> asked;           // the parameters are asked for there
    std::vector<UnitTarget> askedLater = {}; // and there too, from the second try on

    // Serial numbers under which the unit acknowledges.
    std::vector<std::string> serialNumbers;

    // Whether an answer is the unit's, and whether it shows what was wanted.
    std::function<bool(const HeardUnit&)> isFromUnit;
    std::function<bool(const HeardUnit&)> isWanted;
};

enum class CommandOutcome {
    shown,   // the unit shows what was wanted
    other,   // it shows something else
    silent,  // it has not answered, or only at once
    notSent, // the network refused the command
};

class VerifiedCommand final : public Operation, private UnitExchange::Listener {
public:
    VerifiedCommand(UnitExchange& exchange, CommandPlan plan);

    CommandOutcome outcome() const { return _outcome; }

    // The latest answer that counts; absent when there was none.
    const std::optional<HeardUnit>& shown() const { return _shown; }

    // The unit has acknowledged the command.
    bool isAccepted() const { return _isAccepted; }

    // Why the command was not sent, for the outcome notSent.
    const std::optional<SendFailure>& failure() const { return _failure; }

    // Has no effect: the outcome of a command that was sent is always waited for.
    void interrupt() override {}

private:
    void start() override;
    void unitDidTell(const HeardUnit& unit) override;
    void unitDidAnswer(const UnitAnswer& answer) override;
    void scheduleTry();
    void tryAgain();
    void ask();
    void finish(CommandOutcome outcome);

    CommandPlan _plan;
    CommandOutcome _outcome = CommandOutcome::silent;
    std::optional<HeardUnit> _shown;
    std::optional<SendFailure> _failure;
    bool _isAccepted = false;
    int _sends = 0;
    std::size_t _tries = 0;
    std::chrono::milliseconds _begun{0};
    RunLoop::Handle _nextTry;
};

} // namespace kx
