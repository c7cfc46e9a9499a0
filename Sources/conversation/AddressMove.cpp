#include "conversation/AddressMove.h"

#include "addresses/IPv4Address.h"
#include "units/UnitCommand.h"

#include <algorithm>
#include <utility>

namespace kx {

using namespace std::chrono_literals;

namespace {

constexpr auto timeBetweenAnswerLooks = 20ms;

// The system asks three times, once a second.
constexpr auto patienceForOwnAnswer = 3200ms;

} // namespace

AddressMove::AddressMove(UnitExchange& exchange, const Services& services, std::uint32_t newAddress,
                         std::string hardwareAddress, CommandPlan command,
                         std::optional<AddressHolders> known)
    : _exchange(exchange)
    , _services(services)
    , _newAddress(newAddress)
    , _hardwareAddress(std::move(hardwareAddress))
    , _plan(std::move(command))
    , _known(std::move(known)) {
    _plan.asked = {{.address = newAddress, .port = _plan.target.port, .link = _plan.target.link}};
    _plan.target = _plan.asked.front();
}

AddressMove::~AddressMove() = default;

void AddressMove::interrupt() {
    _isInterrupted = true;
    if (_search != nullptr && !_search->hasEnded()) {
        endWith(MoveState::notBegun);
    } else if (_isBinding) {
        _services.bindings.giveUp();
    }
}

void AddressMove::start() {
    if (_known.has_value()) {
        _holders = *_known;
        bindIfFree();
        return;
    }
    _search = std::make_unique<HolderSearch>(
        _exchange, _services.holders,
        std::vector<AddressQuestion>{{.address = _newAddress, .link = _plan.target.link}});
    _search->begin([this] {
        if (!hasEnded()) {
            _holders = _search->results().front();
            bindIfFree();
        }
    });
}

void AddressMove::bindIfFree() {
    if (isHeldByAnother(_holders, _hardwareAddress)) {
        endWith(MoveState::held);
    } else if (_holders.state == HolderState::unknown) {
        endWith(MoveState::unknownHolder);
    } else if (_services.witness == nullptr) {
        bind();
    } else {
        _services.witness->bindingWillBeMade(
            stringForIP(_newAddress), _hardwareAddress,
            [this, isAlive = std::weak_ptr(_isAlive)](bool mayGoOn) {
                if (isAlive.expired()) {
                    return;
                }
                if (mayGoOn && !_isInterrupted) {
                    bind();
                } else {
                    endWith(MoveState::notBegun);
                }
            });
    }
}

void AddressMove::bind() {
    _isBinding = true;
    _services.bindings.bind(stringForIP(_newAddress), _hardwareAddress,
                            [this, isAlive = std::weak_ptr(_isAlive)](const ARPEntry& entry) {
                                if (!isAlive.expired()) {
                                    didBind(entry);
                                }
                            });
}

void AddressMove::didBind(const ARPEntry& entry) {
    _isBinding = false;
    _binding = entry;
    if (entry.state != ARPEntryState::started) {
        if (_services.witness != nullptr) {
            _services.witness->bindingIsGone(stringForIP(_newAddress), _hardwareAddress);
        }
        endWith(MoveState::notBound);
        return;
    }
    if (_isInterrupted) {
        release();
        return;
    }
    _state = MoveState::commanded;
    _command = std::make_unique<VerifiedCommand>(_exchange, _plan);
    _command->begin([this] { release(); });
}

void AddressMove::release() {
    _services.bindings.release(stringForIP(_newAddress), _hardwareAddress,
                               [this, isAlive = std::weak_ptr(_isAlive)](const ARPEntry& entry) {
                                   if (!isAlive.expired()) {
                                       didRelease(entry);
                                   }
                               });
}

void AddressMove::didRelease(const ARPEntry& entry) {
    _isStillBound = entry.state != ARPEntryState::started;
    if (!_isStillBound && _services.witness != nullptr) {
        _services.witness->bindingIsGone(stringForIP(_newAddress), _hardwareAddress);
    }
    if (_command == nullptr || _command->outcome() != CommandOutcome::shown) {
        end();
        return;
    }
    _answerDeadline = _exchange.now() + patienceForOwnAnswer;
    _exchange.send(parameterRequestCommand, _plan.target); // makes the system ask
    awaitOwnAnswer();
}

void AddressMove::awaitOwnAnswer() {
    const auto entry = _services.holders.neighbours.entry(_newAddress, _plan.target.link);
    if (entry.has_value() && entry->state == NeighbourState::reachable) {
        _foreignHardwareAddress = entry->hardwareAddress;
        endWith(entry->hardwareAddress == _hardwareAddress ? MoveState::moved
                                                           : MoveState::foreignAnswer);
    } else if (_exchange.now() >= _answerDeadline) {
        endWith(MoveState::foreignAnswer);
    } else {
        _nextStep =
            _exchange.runLoop().callOnceAfter(timeBetweenAnswerLooks, [this] { awaitOwnAnswer(); });
    }
}

void AddressMove::endWith(MoveState state) {
    _state = state;
    end();
}

} // namespace kx
