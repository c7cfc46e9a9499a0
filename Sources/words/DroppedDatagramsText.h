// The line below Discover, which tells how many datagrams the system had no room for, in words.
//
// Pure, except that it looks up the sentences (support/LocalizedText.h), so it belongs to the main
// thread.

#pragma once

#include <cstdint>
#include <string>

namespace kx {

// Empty when the number is 0.
std::string textOfDroppedDatagrams(std::uint32_t datagrams);

} // namespace kx
