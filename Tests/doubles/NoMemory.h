// While an object of this class lives, the default memory resource (std::pmr) has no more memory.

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
