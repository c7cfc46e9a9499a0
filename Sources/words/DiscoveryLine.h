// The line below Discover: the weightiest thing that is known of the latest discovery.
//
// Pure but for looking up the sentences (support/LocalizedText.h), so it belongs to the main
// thread. Texts are UTF-8.

#pragma once

#include "conversation/DiscoveryFacts.h"

#include <cstdint>
#include <functional>
#include <string>

namespace kx {

// One line, by weight:
//
//   1. nothing listens, the chosen interface is at fault, or no request left
//   2. while units have time to answer: whom it asks, and how many have answered
//   3. nobody has answered, and why
//   4. dropped datagrams, units that were forgotten, answers that contradict each other
//   5. nobody has answered, and nobody knows why
//   6. units that answered too late for the list
//   7. how many have answered, and what is different from the discovery before
//
// `nameOfLink` is that of textOfFinding().
std::string discoveryLine(const DiscoveryFacts& facts,
                          const std::function<std::string(std::uint32_t link)>& nameOfLink = {});

// Whether it is bad news: nobody was asked or has answered, or answers are doubtful. Units that are
// missing, late or others than before may have good reasons.
bool meansTrouble(const DiscoveryFacts& facts);

} // namespace kx
