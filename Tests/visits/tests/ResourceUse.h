// What this process holds of the host. Any thread.

#pragma once

#include <QString>
#include <cstddef>

namespace kx {

struct ResourceUse {
    std::size_t heapBytes = 0; // handed out by the allocator, the sanitizer's where there is one
    std::size_t descriptors = 0;
    std::size_t threads = 0;
    std::size_t children = 0; // processes, those included that nobody has waited for yet

    static ResourceUse now();

    QString text() const;
};

} // namespace kx
