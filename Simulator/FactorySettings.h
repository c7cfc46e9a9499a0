// The factory settings of units. They follow only from the unit's number and its network, so that
// tests can predict them.

#pragma once

#include "Simulator/SimulatedUnit.h"

namespace kx::simulator {

// A unit's number has at most five decimal digits.
inline constexpr unsigned highestUnitNumber = 99'999;

struct Network {
    IPv4 base = 0;
    unsigned prefixLength = 24;
};

// The settings of unit `number`, 1 to highestUnitNumber:
//
//   hardware address   02:4B:58 and the number in three bytes
//   serial number      4B 58 00 and the number in three bytes
//   IP address         the network's base + 10 + number
//   destination        the network's first address, 02:00:00:00:00:01, port 3520
//   device port        3520 for every third unit, otherwise 10000
//   unit ID            odd numbers up to 255: the number itself; otherwise a text, "U" and the
//                      number in five digits
UnitSettings factorySettings(unsigned number, const Network& network);

// True when the addresses of the units up to `highestNumber` are host addresses of `network`, and
// none is its directed broadcast address.
bool networkHoldsUnits(const Network& network, unsigned highestNumber);

} // namespace kx::simulator
