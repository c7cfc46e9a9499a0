// Memory has run out for whoever uses the default memory resource (std::pmr), while this lives.

#pragma once

#include <memory_resource>

namespace kx {

class NoMemory {
public:
    NoMemory() = default;
    ~NoMemory() { std::pmr::set_default_resource(_previous); }
    NoMemory(const NoMemory&) = delete;
    NoMemory& operator=(const NoMemory&) = delete;

private:
    std::pmr::memory_resource* _previous =
        std::pmr::set_default_resource(std::pmr::null_memory_resource());
};

} // namespace kx
