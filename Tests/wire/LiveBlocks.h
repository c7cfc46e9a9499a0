// The number of memory blocks that the program holds by operator new. Only for a program whose
// tests run on one thread.

#pragma once

#include <cstddef>

namespace kx {

std::size_t liveBlocks();

} // namespace kx
