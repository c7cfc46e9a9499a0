#include "conversation/HolderLookup.h"

#include "addresses/SocketAddressRecord.h"
#include "conversation/HostInterface.h"
#include "conversation/InterfaceAddress.h"

#include <fcntl.h>

#include <algorithm>
#include <utility>

namespace kx {

using namespace std::chrono_literals;

namespace {

constexpr std::uint16_t discardPort = 9;
constexpr auto timeBetweenLookupLooks = 50ms;

} // namespace

HolderLookup::HolderLookup(const Services& services, std::function<void()> found)
    : _services(services)
    , _found(std::move(found)) {}

void HolderLookup::lookUp(const std::optional<AddressQuestion>& question) {
    if (question == _question) {
        return;
    }
    _question = question;
    _result.reset();
    _next.reset();
    if (question.has_value() && question->link != 0 && _services.neighbours != nullptr &&
        _services.interfaces != nullptr) {
        _next = _services.runLoop.callOnceAfter(timeBeforeAsking,
                                                [this, asked = *question] { ask(asked); });
    }
}

// The host's addresses are read here, and not while a person types.
void HolderLookup::ask(AddressQuestion question) {
    if (isNeighbour(question)) {
        sendTo(question);
        _sinceAsked = 0ms;
        lookSoon(question);
    }
}

bool HolderLookup::isNeighbour(const AddressQuestion& question) const {
    const std::string name = _services.systemCalls.nameForLink(question.link);
    const auto networks = addressesOfInterface(*_services.interfaces, name);
    return !isOwn(question.address) && std::ranges::any_of(networks, [&](const auto& each) {
        const NetworkOfInterface network{.address = each.address, .mask = each.mask};
        return each.address != 0 && each.mask != 0 && network.contains(question.address) &&
               !network.isOfNetwork(question.address);
    });
}

bool HolderLookup::isOwn(std::uint32_t address) const {
    const auto own = addressesOfHost(*_services.interfaces);
    return std::ranges::find(own, address, &InterfaceAddress::address) != own.end();
}

// A datagram that cannot leave gives no answer, so the result is unknown in the end.
void HolderLookup::sendTo(const AddressQuestion& question) {
    DatagramSystemCalls& calls = _services.systemCalls;
    const int descriptor = calls.socket();
    if (descriptor < 0) {
        return;
    }
    const int flags = calls.statusFlags(descriptor);
    if (flags >= 0 && calls.setStatusFlags(descriptor, flags | O_NONBLOCK) >= 0) {
        calls.sendToByLink(descriptor, {}, dataForAddress(question.address, discardPort),
                           question.link);
    }
    calls.close(descriptor);
}

void HolderLookup::lookSoon(const AddressQuestion& question) {
    if (_sinceAsked < lastLook) {
        _next = _services.runLoop.callOnceAfter(timeBetweenLookupLooks,
                                                [this, question] { look(question); });
    }
}

void HolderLookup::look(AddressQuestion question) {
    _sinceAsked += timeBetweenLookupLooks;
    const auto entry = _services.neighbours->entry(question.address, question.link);
    AddressHolders result{
        .address = question.address, .state = holderStateOf(entry, _sinceAsked), .holders = {}};
    if (entry.has_value() && result.state == HolderState::held) {
        result.holders.push_back({.hardwareAddress = entry->hardwareAddress,
                                  .serialNumber = _services.unitOf(entry->hardwareAddress)});
    }
    if (result.state == HolderState::unknown) {
        lookSoon(question);
    }
    if (result.state != HolderState::unknown || _sinceAsked == patience) {
        tell(std::move(result));
    }
}

void HolderLookup::tell(AddressHolders result) {
    _result = std::move(result);
    _found();
}

} // namespace kx
