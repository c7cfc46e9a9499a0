// A plain model of the plan for many units (see PlainText.h): rows are carried out one at a time,
// in any order, as long as one of them takes only what nobody has at that moment.
//
// A value is one that only one unit may have, by the letter of the command that gives it: 'I' an IP
// address, 'M' a hardware address, 'S' a serial number.

#pragma once

#include "PlainText.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace kx::model {

// What a unit tells, or what a row wants. A unit may tell no hardware address.
using PlainValues = std::map<char, std::string>;

struct PlainWish {
    std::string serial;
    PlainValues values;
};

// The host's own network.
struct PlainNetworkOfHost {
    std::uint32_t address;
    std::uint32_t mask;

    bool hasHost(std::uint32_t other) const {
        return (other & mask) == (address & mask) && !isOfMany(other);
    }

    // Nobody's own: that of the network, that of all its hosts, and that of all hosts of a link.
    bool isOfMany(std::uint32_t other) const {
        return other == 0 || other == 0xFFFFFFFF || other == (address & mask) ||
               other == (address | ~mask);
    }
};

class PlainPlan {
public:
    enum class State { planned, unchanged, refused, silent };

    PlainPlan(std::vector<PlainWish> rows, std::vector<PlainValues> units,
              const PlainNetworkOfHost& network)
        : _rows(std::move(rows))
        , _units(std::move(units))
        , _network(network) {
        for (std::size_t row = 0; row < _rows.size(); ++row) {
            _states.push_back(stateAtFirst(row));
        }
        doAll();
    }

    State state(std::size_t row) const {
        const bool isDone = _done.contains(row);
        return _states[row] == State::planned && !isDone ? State::refused : _states[row];
    }

    // Whether the rows can be carried out in this order.
    bool isPossible(const std::vector<std::size_t>& order) const {
        std::vector<PlainValues> units = _units;
        return std::all_of(order.begin(), order.end(), [&](std::size_t row) {
            const bool isPossible = isFree(row, units);
            take(row, units);
            return isPossible;
        });
    }

private:
    std::vector<std::size_t> unitsOf(std::size_t row) const {
        std::vector<std::size_t> found;
        for (std::size_t unit = 0; unit < _units.size(); ++unit) {
            if (_units[unit].at('S') == _rows[row].serial) {
                found.push_back(unit);
            }
        }
        return found;
    }

    // What the row wants and its unit does not tell.
    PlainValues changes(std::size_t row) const {
        const auto units = unitsOf(row);
        PlainValues changes = _rows[row].values;
        std::erase_if(changes, [&](const auto& wanted) {
            return units.size() == 1 && hasValue(_units[units[0]], wanted.first, wanted.second);
        });
        return changes;
    }

    static bool hasValue(const PlainValues& unit, char letter, const std::string& value) {
        return unit.contains(letter) && unit.at(letter) == value;
    }

    // Before anybody asks whether the values are free.
    State stateAtFirst(std::size_t row) const {
        const PlainValues wanted = changes(row);
        const auto units = unitsOf(row);
        if (wanted.contains('I') && !isAddressForUnit(addressOf(wanted.at('I')))) {
            return State::refused;
        }
        if (units.empty()) {
            return State::silent;
        }
        if (units.size() > 1 || isNamedTwice(row)) {
            return State::refused;
        }
        if (wanted.empty()) {
            return State::unchanged;
        }
        const bool isLost = wanted.contains('I') && !_units[units[0]].contains('M');
        return isLost || !isReached(units[0]) || isWantedTwice(row) || isConfused(row)
                   ? State::refused
                   : State::planned;
    }

    bool isAddressForUnit(std::uint32_t address) const {
        return _network.hasHost(address) && address != _network.address;
    }

    bool isNamedTwice(std::size_t row) const {
        return std::count_if(_rows.begin(), _rows.end(), [&](const PlainWish& other) {
                   return other.serial == _rows[row].serial;
               }) > 1;
    }

    // Whether what is sent to the unit's address reaches it alone.
    bool isReached(std::size_t unit) const {
        if (!_units[unit].contains('I')) {
            return true; // the sender's address counts
        }
        const std::string& address = _units[unit].at('I');
        return !_network.isOfMany(addressOf(address)) &&
               std::count_if(_units.begin(), _units.end(), [&](const PlainValues& other) {
                   return hasValue(other, 'I', address);
               }) == 1;
    }

    // By two rows whose units are known.
    bool isWantedTwice(std::size_t row) const {
        for (const auto& [letter, value] : changes(row)) {
            for (std::size_t other = 0; other < _rows.size(); ++other) {
                if (other != row && unitsOf(other).size() == 1 &&
                    hasValue(changes(other), letter, value)) {
                    return true;
                }
            }
        }
        return false;
    }

    // A serial number goes over from one unit to another, and one of the two cannot be told by its
    // hardware address.
    bool isConfused(std::size_t row) const {
        const PlainValues wanted = changes(row);
        return std::any_of(_units.begin(), _units.end(), [&](const PlainValues& holder) {
            return wanted.contains('S') && hasValue(holder, 'S', wanted.at('S')) &&
                   (!holder.contains('M') || !_units[unitsOf(row)[0]].contains('M'));
        });
    }

    bool isFree(std::size_t row, const std::vector<PlainValues>& units) const {
        for (const auto& [letter, value] : changes(row)) {
            for (std::size_t unit = 0; unit < units.size(); ++unit) {
                if (unit != unitsOf(row)[0] && hasValue(units[unit], letter, value)) {
                    return false;
                }
            }
        }
        return true;
    }

    void take(std::size_t row, std::vector<PlainValues>& units) const {
        for (const auto& [letter, value] : changes(row)) {
            units[unitsOf(row)[0]][letter] = value;
        }
    }

    void doAll() {
        std::vector<PlainValues> units = _units;
        for (bool goesOn = true; goesOn;) {
            goesOn = false;
            for (std::size_t row = 0; row < _rows.size(); ++row) {
                if (_states[row] == State::planned && !_done.contains(row) && isFree(row, units)) {
                    take(row, units);
                    _done.insert(row);
                    goesOn = true;
                }
            }
        }
    }

    std::vector<PlainWish> _rows;
    std::vector<PlainValues> _units;
    PlainNetworkOfHost _network;
    std::vector<State> _states; // as far as the values do not matter
    std::set<std::size_t> _done;
};

} // namespace kx::model
