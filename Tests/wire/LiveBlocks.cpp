#include "LiveBlocks.h"

#include <cstdlib>
#include <new>

namespace {

std::size_t blocks = 0;

} // namespace

std::size_t kx::liveBlocks() {
    return blocks;
}

void* operator new(std::size_t size) {
    void* const block = std::malloc(size == 0 ? 1 : size);
    if (block == nullptr) {
        throw std::bad_alloc();
    }
    ++blocks;
    return block;
}

void operator delete(void* block) noexcept {
    blocks -= block != nullptr ? 1 : 0;
    std::free(block);
}

void operator delete(void* block, std::size_t /*size*/) noexcept {
    operator delete(block);
}
