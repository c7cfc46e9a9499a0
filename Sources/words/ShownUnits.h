// The units that a table shows: those that a filter lets pass, in the order of a column.
//
// The work is done in slices, so that a person's keys are never kept waiting, however many units
// there are. While there is work to do the list is an earlier one, which is whole and in order. A
// new filter or order goes through all units; units that were heard since are put into their places
// in one pass over the list.
//
// Main thread only. The units and the texts must outlive the object.

#pragma once

#include "words/UnitColumns.h"

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kx {

class ShownUnits {
public:
    struct Order {
        UnitColumn column = UnitColumn::serialNumber;
        bool isDescending = false; // absent values stand last in either direction

        friend bool operator==(const Order&, const Order&) = default;
    };

    // At first without a filter, in the order of serial numbers, and empty.
    ShownUnits(const AllUnits& units, const UnitTexts& texts);

    // Only units of which one of these columns contains the text, letters A to Z in either case.
    // Blanks around the text do not count; an empty text lets every unit pass.
    void setFilter(std::string_view text, const UnitColumns& columns);
    bool hasFilter() const { return !_filter.empty(); }

    void setOrder(Order order);

    bool hasWork() const;

    // Whether the work is a way through all units, after a new filter or order.
    bool isSearching() const { return _search.has_value() || mustSearch(); }

    // Works until the list is up to date or `mustStop` says true; it is asked every fraction of a
    // millisecond. Returns whether list() was made anew.
    bool work(const std::function<bool()>& mustStop);

    // The numbers of the units. They may be beyond AllUnits::size() after its clear(), until the
    // work is done.
    const std::vector<std::uint32_t>& list() const { return _list; }

private:
    // A unit with what gives its place. Units with equal keys stand in the order of serial numbers.
    struct Place {
        std::uint64_t key;
        std::uint64_t serial;
        std::uint32_t unit;

        friend auto operator<=>(const Place&, const Place&) = default;
    };

    // A way through all units. Those that are heard meanwhile are put in afterwards.
    struct Search {
        std::uint32_t next = 0;
        std::uint64_t hearings = 0; // at its beginning
        std::vector<Place> found = {};
    };

    bool mustSearch() const;
    Search& beginSearch();
    bool goOn(Search& search, const std::function<bool()>& mustStop);
    bool putIn(const std::vector<std::uint32_t>& heard);
    void show(std::vector<Place> places);
    bool passes(std::uint32_t unit);
    Place placeOf(std::uint32_t unit) const;
    bool dependsOnOthers() const;

    const AllUnits& _units;
    const UnitTexts& _texts;
    std::string _filter; // in lower case
    UnitColumns _searched;
    Order _order;
    std::map<std::uint32_t, std::uint64_t> _rankOfLink;
    bool _isOutdated = true; // the filter or the order has changed since the search began
    std::optional<Search> _search;
    std::vector<Place> _places; // of list()
    std::vector<std::uint32_t> _list;
    std::uint64_t _hearings = 0; // the list has every unit up to this one
    std::uint64_t _changesOfOthers = 0;
    std::uint64_t _clearings = 0;
    std::string _searchedText; // kept for its memory
};

} // namespace kx
