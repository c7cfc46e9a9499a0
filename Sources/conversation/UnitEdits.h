// Edits of several parameters of one unit, one after the other, each read back before the next.
//
// What changes nothing about how the unit is reached goes first: unit ID and destinations. Then
// device port, hardware address, IP address and serial number follow. Nothing follows a step of
// those four that failed, nor a unit that fell silent, because the unit may not be where it is
// looked for. Before all of them it is found out who holds a new IP address: nothing is sent when
// somebody does.
//
// Commands go to the address that the unit had before the edits, and after a move to its new one.
// What it tells meanwhile leads them nowhere else.
//
// Threading and ownership: see Operation.h. The exchange and the services must outlive the edits.

#pragma once

#include "conversation/AddressMove.h"
#include "conversation/HeardUnits.h"
#include "conversation/Operation.h"
#include "conversation/UnitExchange.h"
#include "conversation/VerifiedCommand.h"
#include "units/ExactEdit.h"

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace kx {

enum class ChangeState {
    planned,
    done,      // an answer after the command shows it
    unchanged, // it was so already, and nothing was sent
    refused,   // nothing was sent, because of something else
    different, // the unit shows something else
    silent,    // the unit did not answer after the command
};

struct UnitChange {
    ExactEdit edit;
    std::optional<std::string> from; // the value before, as the unit shows it
    std::string to;                  // the value that is wanted, as units show it
    std::string command;
    ChangeState state = ChangeState::planned;
    std::optional<std::string> shown = {}; // the value afterwards, when the unit tells one
};

// The changes that the edits make of a unit, in the order of the edits. A value that the unit shows
// already is `unchanged`.
std::vector<UnitChange> changesOfUnit(const HeardUnit& unit, const std::vector<ExactEdit>& edits);

// Hears of everything that the edits of a unit do. Threading and ownership: as for the edits;
// `answer` may be called after they have gone.
class EditWitness : public BindingWitness {
public:
    // The command is sent once `answer` says so. `unit` is the unit as it showed itself last. A
    // command that is begun again is not announced again.
    virtual void commandWillGo(const HeardUnit& unit, const UnitChange& change, Answer answer) = 0;

    // The change has its state.
    virtual void changeDidEnd(const HeardUnit& unit, const UnitChange& change) = 0;
};

class UnitEdits final : public Operation, private UnitExchange::Listener {
public:
    struct Options {
        EditWitness* witness = nullptr; // may be null

        // Who holds the new IP address; the edits find that out when it is absent.
        std::optional<AddressHolders> holders = {};

        // A command is begun so many times in all when the unit has been silent since, or shows its
        // old value and has not acknowledged the command.
        int attempts = 1;
    };

    // `elsewhere` is asked too from the second try on, because a unit may not be where its commands
    // go: the place where all units of the unit's link are asked, or the unit's old address.
    UnitEdits(UnitExchange& exchange, const AddressMove::Services* moveServices,
              const HeardUnit& unit, std::vector<UnitChange> changes, UnitTarget elsewhere,
              Options options);
    UnitEdits(UnitExchange& exchange, const AddressMove::Services* moveServices,
              const HeardUnit& unit, std::vector<UnitChange> changes, UnitTarget elsewhere)
        : UnitEdits(exchange, moveServices, unit, std::move(changes), elsewhere, Options{}) {}
    ~UnitEdits() override;

    const std::vector<UnitChange>& changes() const { return _changes; }

    // The unit as it showed itself last.
    const HeardUnit& unit() const { return _unit; }

    // Why a command was not sent; absent when the network took all of them.
    const std::optional<SendFailure>& failure() const { return _failure; }

    // The move to another address; null when there was none.
    const AddressMove* move() const { return _move.get(); }

    // Another unit with the same serial number has answered meanwhile.
    bool isAmbiguous() const { return _isAmbiguous; }

    void interrupt() override;

private:
    void start() override;
    void unitDidTell(const HeardUnit& unit) override;
    void findHolders(UnitChange& change);
    void beginWithHolders(UnitChange& change, const AddressHolders& holders);
    void beginNext();
    void announce(UnitChange& change);
    void beginChange(UnitChange& change);
    void beginCommand(UnitChange& change);
    void beginMove(UnitChange& change);
    bool mayBeginAgain(const UnitChange& change, const VerifiedCommand& command);
    void endChange(UnitChange& change);
    void endRefused();
    void noteOutcome(UnitChange& change, const VerifiedCommand& command);
    void noteTarget(const UnitChange& change, const HeardUnit& shown);
    void didMove(UnitChange& change);
    void refuseRest();
    CommandPlan planOf(const UnitChange& change) const;
    UnitChange* nextChange();

    const AddressMove::Services* _moveServices;
    HeardUnit _unit;
    std::string _firstHardwareAddress; // the one that it had before the edits
    std::vector<UnitChange> _changes;
    UnitTarget _target; // commands go there
    UnitTarget _elsewhere;
    Options _options;
    int _attempts = 0; // of the change that is under way
    std::optional<SendFailure> _failure;
    std::unique_ptr<HolderSearch> _search;
    std::unique_ptr<VerifiedCommand> _command;
    std::unique_ptr<AddressMove> _move;
    std::unique_ptr<AddressMove> _sentMove; // an earlier attempt, while `_move` is the next one
    bool _isInterrupted = false;
    bool _isAmbiguous = false;
    std::shared_ptr<int> _isAlive = std::make_shared<int>(); // a witness may answer after this
};

} // namespace kx
