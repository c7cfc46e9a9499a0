// The move of a unit to another internal IP address.
//
// First somebody else must not hold the address. Then the address is bound to the unit's hardware
// address, so that the command reaches the unit at an address that it does not hold yet. The unit
// is asked for its parameters there. Afterwards the binding is taken out again, whatever the unit
// showed, and the unit itself must answer for its new address (RFC 826).
//
// Threading and ownership: see Operation.h. The exchange and the services must outlive the move.

#pragma once

#include "conversation/AddressBindings.h"
#include "conversation/AddressHolders.h"
#include "conversation/Operation.h"
#include "conversation/UnitExchange.h"
#include "conversation/VerifiedCommand.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace kx {

enum class MoveState {
    notBegun,
    held,          // somebody else holds the address
    unknownHolder, // whether somebody does could not be found out
    notBound,      // the ARP entry could not be made
    commanded,     // the outcome of the command says the rest
    foreignAnswer, // the unit shows the address, but another hardware address answers for it, or
                   // none
    moved,
};

// Hears of the fixed entry of the ARP cache that a move needs. Threading and ownership: as for the
// move; `answer` may be called after the move has gone.
class BindingWitness {
public:
    using Answer = std::function<void(bool mayGoOn)>;

    virtual ~BindingWitness() = default;

    // The entry is made once `answer` says so.
    virtual void bindingWillBeMade(const std::string& address, const std::string& hardwareAddress,
                                   Answer answer) = 0;

    // The entry was taken out again, or never made.
    virtual void bindingIsGone(const std::string& address, const std::string& hardwareAddress) = 0;
};

class AddressMove final : public Operation {
public:
    struct Services {
        HolderSearch::Services holders;
        AddressBindings& bindings;
        BindingWitness* witness = nullptr; // may be null
    };

    // `command` is the plan for the command. Its target and the places that are asked are replaced
    // by the new address, at the target's port and link. `known` tells who holds the new address;
    // without it the move finds that out.
    AddressMove(UnitExchange& exchange, const Services& services, std::uint32_t newAddress,
                std::string hardwareAddress, CommandPlan command,
                std::optional<AddressHolders> known = {});
    ~AddressMove() override;

    MoveState state() const { return _state; }

    // The unit's own.
    const std::string& hardwareAddress() const { return _hardwareAddress; }

    // The new address, and in the state held who holds it.
    const AddressHolders& holders() const { return _holders; }

    // In the state notBound, why.
    const ARPEntry& binding() const { return _binding; }

    // Null before the command was sent.
    const VerifiedCommand* command() const { return _command.get(); }

    // The entry could not be taken out of the ARP cache again.
    bool isStillBound() const { return _isStillBound; }

    // In the state foreignAnswer, the hardware address that answers; empty when none does.
    const std::string& foreignHardwareAddress() const { return _foreignHardwareAddress; }

    // Before the command this ends the move, and a question for rights is taken back. Afterwards
    // the move is finished.
    void interrupt() override;

private:
    void start() override;
    void bindIfFree();
    void bind();
    void didBind(const ARPEntry& entry);
    void release();
    void didRelease(const ARPEntry& entry);
    void awaitOwnAnswer();
    void endWith(MoveState state);

    UnitExchange& _exchange;
    Services _services;
    std::uint32_t _newAddress;
    std::string _hardwareAddress;
    CommandPlan _plan;
    std::optional<AddressHolders> _known;
    MoveState _state = MoveState::notBegun;
    AddressHolders _holders;
    ARPEntry _binding;
    std::string _foreignHardwareAddress;
    std::unique_ptr<HolderSearch> _search;
    std::unique_ptr<VerifiedCommand> _command;
    bool _isInterrupted = false;
    bool _isBinding = false;
    bool _isStillBound = false;
    std::chrono::milliseconds _answerDeadline{0};
    RunLoop::Handle _nextStep;
    std::shared_ptr<int> _isAlive = std::make_shared<int>(); // a tool may end after this object
};

} // namespace kx
