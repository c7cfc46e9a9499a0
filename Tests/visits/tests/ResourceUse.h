// The resources of the host that this process holds. Any thread.

#pragma once

#include <QString>
#include <cstddef>

namespace kx {

struct ResourceUse {
    std::size_t heapBytes = 0; // given out by the allocator, or by the sanitizer's
    std::size_t descriptors = 0;
    std::size_t threads = 0;
    std::size_t children = 0; // processes, including ended ones that nobody has reaped

    static ResourceUse now();

    QString text() const;
};

} // namespace kx
