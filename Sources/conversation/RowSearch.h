// Finds the units of the rows of a table: everybody is asked, and a unit that has not answered then
// is asked at the last address that is known of it. One silent row holds up all the others, so
// everybody is asked once more before a unit is called silent: a busy host sends few of the
// requests of one discovery.
//
// Where rows change what units are known by, the units of no row have their whole time to answer,
// because they may hold what a row takes. Otherwise the search ends soon after the last unit of a
// row has answered.
//
// Threading and ownership: see Operation.h. The exchange must outlive the search.

#pragma once

#include "conversation/Discovery.h"
#include "conversation/HostInterface.h"
#include "conversation/LastAddressRequests.h"
#include "conversation/Operation.h"
#include "conversation/UnitExchange.h"
#include "conversation/UnitPlan.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace kx {

class RowSearch final : public Operation, private UnitExchange::Listener {
public:
    // `asked` are the interfaces on which units are asked; at least one.
    RowSearch(UnitExchange& exchange, std::vector<WantedRow> rows,
              std::vector<HostInterface> asked);

    const std::vector<WantedRow>& rows() const { return _rows; }
    const std::vector<HostInterface>& asked() const { return _asked; }

    // Every unit that has answered, also those of no row.
    const HeardUnits& heard() const { return _heard; }

    // Why a request to everybody was not sent the last time; absent when all were sent.
    const std::optional<SendFailure>& failure() const { return _failure; }

    // At least one request to everybody was sent.
    bool hasAsked() const { return _hasAsked; }

    // Ends with what has answered by now. Who has not answered yet is not silent.
    void interrupt() override;
    bool isInterrupted() const { return _isInterrupted; }

private:
    void start() override;
    void unitDidTell(const HeardUnit& unit) override;
    void askEverybody(std::unique_ptr<Discovery>& discovery, bool mayEndEarly,
                      std::function<void()> ended);
    void didDiscover();
    void askSilentOnesAgain();
    std::uint32_t linkFor(std::uint32_t address) const;

    std::vector<WantedRow> _rows;
    std::vector<HostInterface> _asked;
    std::set<std::string, std::less<>> _awaited; // serial numbers of rows
    HeardUnits _heard;
    std::optional<SendFailure> _failure;
    bool _hasAsked = false;
    bool _isInterrupted = false;
    std::unique_ptr<Discovery> _discovery;
    std::unique_ptr<LastAddressRequests> _requests;
    std::unique_ptr<Discovery> _secondDiscovery;
};

} // namespace kx
