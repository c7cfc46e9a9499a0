// How units leave the factory: settings that follow from the unit's number and its network alone,
// so that tests can foretell them.

#pragma once

#include "Simulator/SimulatedUnit.h"

namespace kx::simulator {

// A unit's number has five decimal digits at most.
inline constexpr unsigned kHighestUnitNumber = 99'999;

struct Network {
    IPv4 base = 0;
    unsigned prefixLength = 24;
};

// The settings of unit `number`, 1 to kHighestUnitNumber:
//
//   hardware address   02:4B:58 and the number in three bytes
//   serial number      4B 58 00 and the number in three bytes
//   IP address         the network's base + 10 + number
//   destination        the network's first address, 02:00:00:00:00:01, port 3520
//   device port        3520 for every third unit, otherwise 10000
//   unit ID            odd numbers up to 255: the number itself; otherwise a text, "U" and the
//                      number in five digits
UnitSettings factorySettings(unsigned number, const Network& network);

// True when the addresses of the units up to `highestNumber` are host addresses of `network`, its
// directed broadcast address left out.
bool networkHoldsUnits(const Network& network, unsigned highestNumber);

} // namespace kx::simulator
