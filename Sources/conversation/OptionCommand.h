// An option command to a unit, and what the unit answers within a second. It is sent once: nobody
// knows what a second one would do.
//
// Threading and ownership: see Operation.h. The exchange must outlive the command.

#pragma once

#include "conversation/Operation.h"
#include "conversation/UnitExchange.h"

#include <optional>
#include <string>
#include <vector>

namespace kx {

class OptionCommand final : public Operation, private UnitExchange::Listener {
public:
    OptionCommand(UnitExchange& exchange, const HeardUnit& unit, const std::string& text);

    // In the order in which they came. Each begins with the payload marker.
    const std::vector<UnitAnswer>& answers() const { return _answers; }

    // Why the command was not sent; absent when it was.
    const std::optional<SendFailure>& failure() const { return _failure; }

    // Has no effect: the answers to a command that was sent are waited for.
    void interrupt() override {}

private:
    void start() override;
    void unitDidAnswer(const UnitAnswer& answer) override;

    std::string _serialNumber;
    UnitTarget _target;
    std::string _command;
    bool _isSent = false;
    std::vector<UnitAnswer> _answers;
    std::optional<SendFailure> _failure;
    RunLoop::Handle _deadline;
};

} // namespace kx
