// Finds out who holds each of many addresses, as HolderSearch does for a few.
//
// The system keeps a list of the addresses that it is looking for, and that list is short: so many
// addresses are asked for at once that it does not overflow. An address of which nothing is known
// in the end is asked for again: the system takes up to 13 seconds to give up an old entry.
//
// Threading and ownership: see Operation.h. The exchange and the services must outlive the search.

#pragma once

#include "conversation/AddressHolders.h"
#include "conversation/Operation.h"

#include <cstddef>
#include <memory>
#include <vector>

namespace kx {

class NewAddressSearch final : public Operation {
public:
    // Half of the entries that Linux keeps for longer than five seconds.
    static constexpr std::size_t addressesAtOnce = 256;
    static constexpr int mostRounds = 4;

    NewAddressSearch(UnitExchange& exchange, const HolderSearch::Services& services,
                     std::vector<AddressQuestion> questions);

    // In the order of the questions.
    const std::vector<AddressHolders>& results() const { return _results; }

    // Ends with what is known by now.
    void interrupt() override;

private:
    void start() override;
    void beginRound();
    void beginNext();
    void didSearch();

    UnitExchange& _exchange;
    HolderSearch::Services _services;
    std::vector<AddressQuestion> _questions;
    std::vector<AddressHolders> _results;
    std::vector<std::size_t> _open; // places of the questions of this round
    std::size_t _next = 0;          // the first place in `_open` that was not asked for
    std::vector<std::size_t> _asked;
    std::unique_ptr<HolderSearch> _search;
    int _rounds = 0;
    bool _isInterrupted = false;
};

} // namespace kx
