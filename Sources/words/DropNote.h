// Datagrams that the system had no room for, in words: the line below Discover.
//
// Pure but for looking up the sentences (support/LocalizedText.h), so it belongs to the main
// thread.

#pragma once

#include <cstdint>
#include <string>

namespace kx {

// Empty for none.
std::string noteOfDrops(std::uint32_t datagrams);

} // namespace kx
