#include "commands/CommandRun.h"

#include "addresses/IPv4Address.h"
#include "conversation/UnitDestination.h"
#include "support/LocalizedText.h"
#include "units/UnitCommand.h"
#include "words/QuotedText.h"
#include "words/SendFailureText.h"

#include <algorithm>
#include <utility>

namespace kx {

namespace {

// The name under which a person sees an interface.
std::string titlesOf(const std::vector<HostInterface>& interfaces) {
    std::string titles;
    for (const HostInterface& interface : interfaces) {
        titles += titles.empty() ? "" : ", ";
        titles += safeForSentence(interface.title);
    }
    return titles;
}

} // namespace

CommandRun::CommandRun(const CommandLine& line, const CommandServices& services)
    : _line(line)
    , _services(services)
    , _document(std::string(line.command->name))
    , _begun(services.now()) {}

CommandRun::~CommandRun() = default;

int CommandRun::run() {
    if (auto refusal = lookAtCapture()) {
        _captureFile.reset();
        return finish(std::move(refusal));
    }
    return _line.command->run(*this);
}

void CommandRun::takeSignal() {
    if (const auto signal = _services.takeSignal()) {
        _signal = *signal;
        endEarly();
    }
}

void CommandRun::endEarly() {
    if (_operation != nullptr) {
        _operation->interrupt();
    }
}

CommandRun::Refusal CommandRun::chooseInterfaces() {
    _interfaces = _services.interfaces.list();
    const auto askable = askableInterfaces(_interfaces);
    const auto name = _line.valueOf("-i");
    if (!name.has_value() || *name == "all") {
        _chosen = askable;
        if (_chosen.empty()) {
            return failureOf(
                ErrorCode::interface,
                localizedText("No network interface can broadcast. It needs a link and "
                              "an IPv4 address."));
        }
        if (!name.has_value() && _chosen.size() > 1) {
            return failureOf(ErrorCode::interface,
                             localizedText("Several network interfaces can broadcast. Choose one "
                                           "with -i: %@.",
                                           {titlesOf(_chosen)}));
        }
        return std::nullopt;
    }
    if (auto refusal = chooseNamedInterface(*name)) {
        return refusal;
    }
    if (!_chosen.front().canAsk) {
        return failureOf(ErrorCode::interface,
                         localizedText("%@ cannot broadcast. It needs a link and an IPv4 address.",
                                       {safeForSentence(_chosen.front().title)}));
    }
    return std::nullopt;
}

CommandRun::Refusal CommandRun::chooseNamedInterface(const std::string& name) {
    _chosen = interfacesNamed(_interfaces, name);
    if (_chosen.empty()) {
        return Failure{ErrorCode::interface,
                       localizedText("There is no network interface “%@”. There are: %@.",
                                     {safeForSentence(name), titlesOf(_interfaces)}),
                       exitWrong};
    }
    if (_chosen.size() > 1) {
        return Failure{
            ErrorCode::ambiguous,
            localizedText("“%@” may mean: %@.", {safeForSentence(name), titlesOf(_chosen)}),
            exitWrong};
    }
    return std::nullopt;
}

CommandRun::Refusal CommandRun::chooseInterfacesToLookAt() {
    const auto name = _line.valueOf("-i");
    if (name.has_value() && *name != "all") {
        _interfaces = _services.interfaces.list();
        return chooseNamedInterface(*name);
    }
    auto refusal = chooseInterfaces();
    if (!_chosen.empty()) {
        return refusal; // several, and none named
    }
    for (const HostInterface& interface : _interfaces) {
        const bool isNew =
            std::ranges::find(_chosen, interface.name, &HostInterface::name) == _chosen.end();
        if (interface.canBroadcast && interface.kind != "loopback" && isNew) {
            _chosen.push_back(interface);
        }
    }
    return std::nullopt;
}

DatagramSystemCalls& CommandRun::systemCalls() {
    return _capture != nullptr ? *_capture : _services.session.systemCalls;
}

CommandRun::Refusal CommandRun::openExchange(const SystemCallLayer& wrapped) {
    openCapture();
    UnitSession::Services session{.runLoop = _services.session.runLoop,
                                  .hostResolver = _services.session.hostResolver,
                                  .systemCalls = wrapped ? wrapped(systemCalls()) : systemCalls(),
                                  .receiveBuffers = _services.session.receiveBuffers};
    _exchange = std::make_unique<UnitExchange>(
        UnitExchange::Services{.session = session, .now = _services.now});
    std::vector<std::uint32_t> own;
    for (const HostInterface& interface : _interfaces) {
        for (const NetworkOfInterface& network : interface.networks) {
            own.push_back(network.address);
        }
    }
    _exchange->setOwnAddresses(std::move(own));
    const auto failure = _exchange->open(_line.ports);
    if (!failure.has_value()) {
        return std::nullopt;
    }
    if (!failure->arePortsTaken) {
        return failureOf(ErrorCode::socket, localizedText("The UDP port cannot be opened: %@.",
                                                          {failure->error.localizedDescription()}));
    }
    return failureOf(ErrorCode::port,
                     _line.ports.size() == 1
                         ? localizedText("UDP port %d is taken by another program.",
                                         {static_cast<int>(_line.ports.front())})
                         : localizedText("All of the UDP ports 3520 to 3523 are taken by other "
                                         "programs."));
}

CommandRun::Refusal CommandRun::refusalOfFile(const OutputFile& file,
                                              const std::optional<Error>& error) {
    return error.has_value()
               ? Refusal(failureOf(ErrorCode::file, sentenceOfFile(file.path(), *error)))
               : std::nullopt;
}

std::vector<UnitTarget> CommandRun::everybody() const {
    std::vector<UnitTarget> targets;
    targets.reserve(_chosen.size());
    for (const HostInterface& interface : _chosen) {
        targets.push_back(
            {.address = interface.broadcast(), .port = defaultUnitPort, .link = interface.link});
    }
    return targets;
}

// A unit may have answered by another link than the one on which it was asked.
UnitTarget CommandRun::everybodyOf(std::uint32_t link) const {
    const auto found = std::ranges::find(_interfaces, link, &HostInterface::link);
    return {.address = found != _interfaces.end() ? found->broadcast() : limitedBroadcastAddress,
            .port = defaultUnitPort,
            .link = link};
}

void CommandRun::wait(Operation& operation, std::function<std::string()> count,
                      std::function<std::string()> left) {
    if (isInterrupted()) {
        return;
    }
    _operation = &operation;
    _count = std::move(count);
    _left = std::move(left);
    operation.begin({});
    awaitProgress();
    _services.session.runLoop.runUntil([&operation] { return operation.hasEnded(); });
    _operation = nullptr;
    _nextProgress.reset();
    _count = {};
    _left = {};
    endProgress();
    // A signal from the terminal ends a program that asks there too, perhaps before the loop has
    // seen the signal.
    takeSignal();
}

CommandRun::Refusal CommandRun::refusalOfAddress(AddressObjection objection,
                                                 std::uint32_t address) {
    const std::string text = stringForIP(address);
    switch (objection) {
    case AddressObjection::isOwn:
        return failureOf(ErrorCode::value, localizedText("%@ is this host's own address.", {text}));
    case AddressObjection::isOfNetwork:
        return failureOf(ErrorCode::value,
                         localizedText("%@ is the address of a whole network.", {text}));
    case AddressObjection::isOutside:
        return failureOf(ErrorCode::value,
                         localizedText("%@ lies in no network of the interface.", {text}));
    case AddressObjection::none:
        break;
    }
    return std::nullopt;
}

Failure CommandRun::interruption() const {
    return Failure{ErrorCode::interrupted, localizedText("Interrupted."),
                   exitInterrupted + _signal};
}

CommandRun::Refusal CommandRun::refusalOfSend(const std::optional<SendFailure>& failure) {
    return failure.has_value() ? Refusal(failureOf(ErrorCode::socket, noteOfSendFailure(*failure)))
                               : std::nullopt;
}

} // namespace kx
