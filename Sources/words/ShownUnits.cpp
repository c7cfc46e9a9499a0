#include "words/ShownUnits.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <utility>

namespace kx {

namespace {

// The units that are looked at before the clock is.
constexpr std::uint32_t unitsAtOnce = 256;

// More units than these are searched in slices instead of being put in at once.
constexpr std::size_t mostPutInAtOnce = 8'192;

std::string_view withoutBlanksAround(std::string_view text) {
    const auto first = text.find_first_not_of(" \t");
    const auto last = text.find_last_not_of(" \t");
    return first == text.npos ? std::string_view() : text.substr(first, last - first + 1);
}

} // namespace

ShownUnits::ShownUnits(const AllUnits& units, const UnitTexts& texts)
    : _units(units)
    , _texts(texts) {}

void ShownUnits::setFilter(std::string_view text, const UnitColumns& columns) {
    std::string filter = loweredASCII(withoutBlanksAround(text));
    const bool isSame = filter == _filter && (filter.empty() || columns == _searched);
    _filter = std::move(filter);
    _searched = columns;
    if (!isSame) {
        _isOutdated = true;
        _search.reset();
    }
}

void ShownUnits::setOrder(Order order) {
    if (order != _order) {
        _order = order;
        _isOutdated = true;
        _search.reset();
    }
}

// Whether units that were not heard may change their places or be hidden, because the state of a
// unit depends on others.
bool ShownUnits::dependsOnOthers() const {
    return _order.column == UnitColumn::state || _order.column == UnitColumn::interface ||
           (hasFilter() && _searched.test(indexOf(UnitColumn::state)));
}

bool ShownUnits::mustSearch() const {
    return _isOutdated || _clearings != _units.clearings() ||
           (dependsOnOthers() && _changesOfOthers != _units.changesOfOthers());
}

bool ShownUnits::hasWork() const {
    return _search.has_value() || mustSearch() || _hearings != _units.hearings();
}

bool ShownUnits::work(const std::function<bool()>& mustStop) {
    if (_search.has_value() && _clearings != _units.clearings()) {
        _search.reset();
    }
    if (!_search.has_value() && !mustSearch()) {
        const auto heard = _units.heardSince(_hearings);
        if (heard.size() <= mostPutInAtOnce) {
            return putIn(heard);
        }
    }
    return goOn(_search.has_value() ? *_search : beginSearch(), mustStop);
}

ShownUnits::Search& ShownUnits::beginSearch() {
    _rankOfLink = ranksOfLinks(_units);
    _isOutdated = false;
    _changesOfOthers = _units.changesOfOthers();
    _clearings = _units.clearings();
    Search& search = _search.emplace(Search{.hearings = _units.hearings()});
    search.found.reserve(_units.size());
    return search;
}

bool ShownUnits::goOn(Search& search, const std::function<bool()>& mustStop) {
    while (search.next < _units.size()) {
        const auto end = std::min<std::size_t>(_units.size(), search.next + unitsAtOnce);
        for (; search.next < end; ++search.next) {
            if (passes(search.next)) {
                search.found.push_back(placeOf(search.next));
            }
        }
        if (search.next < _units.size() && mustStop()) {
            return false;
        }
    }
    std::ranges::sort(search.found);
    _hearings = search.hearings;
    show(std::exchange(search.found, {}));
    _search.reset();
    return true;
}

// Takes the units out of the list, and those that pass back in at their new places.
bool ShownUnits::putIn(const std::vector<std::uint32_t>& heard) {
    _hearings = _units.hearings();
    if (heard.empty()) {
        return false;
    }
    std::vector<bool> isHeard(_units.size());
    std::vector<Place> added;
    for (const std::uint32_t unit : heard) {
        isHeard[unit] = true;
        if (passes(unit)) {
            added.push_back(placeOf(unit));
        }
    }
    std::ranges::sort(added);
    std::erase_if(_places, [&isHeard](const Place& place) { return isHeard[place.unit]; });
    std::vector<Place> merged;
    merged.reserve(_places.size() + added.size());
    std::ranges::merge(_places, added, std::back_inserter(merged));
    show(std::move(merged));
    return true;
}

void ShownUnits::show(std::vector<Place> places) {
    _places = std::move(places);
    _list.resize(_places.size());
    std::ranges::transform(_places, _list.begin(), &Place::unit);
}

bool ShownUnits::passes(std::uint32_t unit) {
    if (_filter.empty()) {
        return true;
    }
    _searchedText.clear();
    _texts.appendSearched(unit, _searched, _searchedText);
    return _searchedText.find(_filter) != std::string::npos;
}

ShownUnits::Place ShownUnits::placeOf(std::uint32_t unit) const {
    constexpr std::uint64_t last = std::numeric_limits<std::uint64_t>::max();
    const std::uint64_t key = sortingKey(_units, unit, _order.column, _rankOfLink);
    return {.key = _order.isDescending && key != last ? last - 1 - key : key,
            .serial = _units.row(unit).number(UnitParameter::serialNumber),
            .unit = unit};
}

} // namespace kx
