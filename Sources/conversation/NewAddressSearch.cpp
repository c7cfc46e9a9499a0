#include "conversation/NewAddressSearch.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace kx {

NewAddressSearch::NewAddressSearch(UnitExchange& exchange, const HolderSearch::Services& services,
                                   std::vector<AddressQuestion> questions)
    : _exchange(exchange)
    , _services(services)
    , _questions(std::move(questions))
    , _open(_questions.size()) {
    for (const AddressQuestion& question : _questions) {
        _results.push_back({.address = question.address, .holders = {}});
    }
    std::iota(_open.begin(), _open.end(), std::size_t{0});
}

void NewAddressSearch::start() {
    beginRound();
}

void NewAddressSearch::interrupt() {
    _isInterrupted = true;
    if (_search != nullptr) {
        _search->interrupt();
    }
}

void NewAddressSearch::beginRound() {
    std::erase_if(_open, [this](std::size_t place) {
        return _rounds > 0 && _results[place].state != HolderState::unknown;
    });
    _next = 0;
    if (_open.empty() || _rounds == mostRounds) {
        end();
        return;
    }
    ++_rounds;
    beginNext();
}

void NewAddressSearch::beginNext() {
    const std::size_t count = std::min(addressesAtOnce, _open.size() - _next);
    std::vector<AddressQuestion> questions;
    _asked.clear();
    for (std::size_t i = 0; i < count; ++i, ++_next) {
        _asked.push_back(_open[_next]);
        questions.push_back(_questions[_open[_next]]);
    }
    _search = std::make_unique<HolderSearch>(_exchange, _services, questions);
    _search->begin([this] { didSearch(); });
}

void NewAddressSearch::didSearch() {
    const auto ended = std::move(_search);
    for (std::size_t i = 0; i < _asked.size(); ++i) {
        _results[_asked[i]] = ended->results()[i];
    }
    if (_isInterrupted) {
        end();
    } else if (_next < _open.size()) {
        beginNext();
    } else {
        beginRound();
    }
}

} // namespace kx
