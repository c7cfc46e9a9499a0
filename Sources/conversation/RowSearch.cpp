#include "conversation/RowSearch.h"

#include "addresses/IPv4Address.h"
#include "conversation/RowUnits.h"
#include "units/UnitCommand.h"

#include <algorithm>
#include <utility>

namespace kx {

namespace {

// Others who claim to be the same unit have at least so long to answer after the last one.
constexpr std::chrono::milliseconds timeForOthers{10};

bool changesExclusiveParameters(const std::vector<WantedRow>& rows) {
    return std::ranges::any_of(rows, [](const WantedRow& row) {
        return std::ranges::any_of(row.edits, [](const ExactEdit& edit) {
            return std::ranges::find(exclusiveParameters, edit.edit.parameter) !=
                   exclusiveParameters.end();
        });
    });
}

std::optional<std::string> wantedValue(const WantedRow& row, UnitParameter parameter) {
    const auto found = std::ranges::find_if(
        row.edits, [parameter](const ExactEdit& edit) { return edit.edit.parameter == parameter; });
    return found != row.edits.end() ? found->edit.expectedText : std::nullopt;
}

// The unit at an address that the file tells of it: the one that a kept plan saw, or the one that a
// table wants. An exported table wants what the unit had.
HeardUnit lastKnownUnit(const WantedRow& row) {
    HeardUnit unit;
    if (row.seen.has_value()) {
        unit.record = row.seen->record;
    }
    unit.record.setValue(UnitParameter::serialNumber, row.serialNumber);
    for (const UnitParameter parameter :
         {UnitParameter::internalIPAddress, UnitParameter::internalMACAddress,
          UnitParameter::devicePortNumber}) {
        const auto wanted = wantedValue(row, parameter);
        if (!row.seen.has_value() && wanted.has_value()) {
            unit.record.setValue(parameter, *wanted);
        }
    }
    return unit;
}

} // namespace

RowSearch::RowSearch(UnitExchange& exchange, std::vector<WantedRow> rows,
                     std::vector<HostInterface> asked)
    : Listener(exchange)
    , _rows(std::move(rows))
    , _asked(std::move(asked)) {
    for (const WantedRow& row : _rows) {
        _awaited.insert(row.serialNumber);
    }
}

void RowSearch::start() {
    askEverybody(_discovery, !changesExclusiveParameters(_rows), [this] { didDiscover(); });
}

void RowSearch::askEverybody(std::unique_ptr<Discovery>& discovery, bool mayEndEarly,
                             std::function<void()> ended) {
    DiscoveryPlan plan{.settling = timeForOthers};
    for (const HostInterface& interface : _asked) {
        plan.everybody.push_back(
            {.address = interface.broadcast(), .port = defaultUnitPort, .link = interface.link});
    }
    if (mayEndEarly) {
        plan.isEnough = [this](const HeardUnits&) { return _awaited.empty(); };
    }
    discovery = std::make_unique<Discovery>(exchange(), std::move(plan));
    discovery->begin(std::move(ended));
}

void RowSearch::unitDidTell(const HeardUnit& unit) {
    _heard.add(unit);
    const auto found = _awaited.find(unit.serialNumber());
    if (found != _awaited.end()) {
        _awaited.erase(found);
    }
}

void RowSearch::didDiscover() {
    _hasAsked = _discovery->hasAsked();
    _failure = _discovery->failure();
    std::vector<HeardUnit> missing;
    for (const WantedRow& row : _rows) {
        HeardUnit unit = _awaited.contains(row.serialNumber) ? lastKnownUnit(row) : HeardUnit();
        if (unit.target().address != 0) {
            unit.link = linkFor(unit.target().address);
            missing.push_back(unit);
        }
    }
    if (!_hasAsked || _isInterrupted) {
        end();
        return;
    }
    _requests = std::make_unique<LastAddressRequests>(exchange(), missing);
    _requests->begin([this] { askSilentOnesAgain(); });
}

void RowSearch::askSilentOnesAgain() {
    if (_awaited.empty() || _isInterrupted) {
        end();
        return;
    }
    askEverybody(_secondDiscovery, true, [this] {
        _failure = _secondDiscovery->failure();
        end();
    });
}

std::uint32_t RowSearch::linkFor(std::uint32_t address) const {
    const auto found = std::ranges::find_if(_asked, [address](const HostInterface& interface) {
        return interface.networkOf(address) != nullptr;
    });
    return found != _asked.end() ? found->link : _asked.front().link;
}

void RowSearch::interrupt() {
    _isInterrupted = true;
    if (_secondDiscovery != nullptr) {
        _secondDiscovery->interrupt();
    } else if (_requests != nullptr) {
        _requests->interrupt();
    } else if (_discovery != nullptr) {
        _discovery->interrupt();
    }
}

} // namespace kx
