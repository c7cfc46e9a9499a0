// The outcome of a request or a command that is no edit: of Reload, Restore Defaults, and an option
// command. It says who has answered, and whether there was time to answer.
//
// Answers are counted from the unit that was meant, from every unit when all were meant, and from
// another unit at the same address, because that one took what was sent.
//
// A value type; any thread, one at a time. Texts are UTF-8. Addresses are in host byte order.

#pragma once

#include "conversation/RequestTarget.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_set>

namespace kx {

enum class RequestKind { reload, restore, optionCommand };

class RequestOutcome {
public:
    // Anybody can answer in any name, so not more units than these are counted.
    static constexpr std::size_t mostUnits = 100'000;

    // `command` is the text that was sent. `unit` is the serial number of the selected unit; absent
    // when none is selected.
    RequestOutcome(RequestKind kind, std::string command, RequestTarget target,
                   std::optional<std::string> unit);

    RequestKind kind() const { return _kind; }
    const std::string& command() const { return _command; }
    const RequestTarget& target() const { return _target; }
    bool isForOneUnit() const { return _target.reach == RequestReach::oneUnit; }
    const std::optional<std::string>& unit() const { return _unit; }

    // Each returns whether the outcome is another one now. `sender` is the address from which the
    // datagram came. An option command expects an acknowledgement or an answer, Restore Defaults an
    // acknowledgement, and Reload parameters; everything else changes nothing.
    bool unitDidAccept(std::string_view serialNumber, std::uint32_t sender);
    bool unitDidTell(std::string_view serialNumber, std::uint32_t sender);
    bool unitDidAnswer(std::string_view serialNumber, std::uint32_t sender, std::string text);

    // There was enough time for an answer. Returns whether none has come.
    bool patienceDidEnd();
    bool isPatienceOver() const { return _isPatienceOver; }

    // How many units have answered; mostUnits may stand for more.
    std::size_t answers() const { return _answered.size(); }
    bool hasUnitAnswered() const { return _hasUnitAnswered; }

    // Another unit at the unit's address that answered last; absent when none has.
    const std::optional<std::string>& otherUnit() const { return _otherUnit; }

    // The latest answer to an option command; absent while there are none but acknowledgements.
    const std::optional<std::string>& answer() const { return _answer; }

private:
    bool count(std::string_view serialNumber, std::uint32_t sender);

    RequestKind _kind;
    std::string _command;
    RequestTarget _target;
    std::optional<std::string> _unit;
    std::unordered_set<std::string> _answered; // serial numbers
    bool _hasUnitAnswered = false;
    std::optional<std::string> _otherUnit;
    std::optional<std::string> _answer;
    bool _isPatienceOver = false;
};

} // namespace kx
