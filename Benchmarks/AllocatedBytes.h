// The bytes that the allocator has given out.

#pragma once

#include <malloc.h>

namespace kx {

inline double allocatedBytes() {
    const struct mallinfo2 allocated = mallinfo2();
    return static_cast<double>(allocated.uordblks) + static_cast<double>(allocated.hblkhd);
}

} // namespace kx
