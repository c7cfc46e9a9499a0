// Everything about the latest discovery of the window that the line below Discover may speak of.
//
// Plain values; any thread. Addresses are in host byte order, texts in UTF-8.

#pragma once

#include "conversation/Finding.h"
#include "conversation/UnitDestination.h"
#include "support/Error.h"
#include "units/UnitRegistry.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

namespace kx {

struct DiscoveryFacts {
    // Units have time to answer: the two seconds are not over.
    bool isUnderWay = false;

    // --- The request ---

    std::uint16_t port = 0;             // of this host
    std::optional<Error> listenerError; // why nothing listens on the port

    // Where the request went: whom it reached, at which address, by which link. Absent before it.
    std::optional<Everybody> asked;
    std::optional<std::string> requestFailure; // why the request did not leave
    bool isInterfaceChosen = false;

    // --- The answers ---

    std::optional<Finding> finding; // the weightiest
    RoundTally units;
    std::size_t listed = 0; // units in the list
    std::size_t late = 0;   // units that answered after the list was made, and are not in it

    // The discovery before asked in the same place, went to its end and lost no datagram, so new
    // and silent units mean something.
    bool isComparable = false;
    std::optional<std::string> silentUnit; // the one, when one that answered before is silent

    // Why nobody has answered, as a sentence; absent when that is not known.
    std::optional<std::string> cause;
};

} // namespace kx
