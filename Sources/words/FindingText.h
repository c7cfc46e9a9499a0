// What a discovery found out, in words: the line below Discover.
//
// Pure but for looking up the sentences (support/LocalizedText.h), so it belongs to the main
// thread. Texts are UTF-8.

#pragma once

#include "conversation/Finding.h"

#include <cstdint>
#include <functional>
#include <string>

namespace kx {

// `nameOfLink` gives the name of the interface with an index, or nothing where the host knows none;
// the number stands in the sentence then. It may be empty.
std::string textOfFinding(const Finding& finding,
                          const std::function<std::string(std::uint32_t link)>& nameOfLink = {});

} // namespace kx
