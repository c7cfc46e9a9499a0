// Bytes that end exactly at the end of a memory page. The next page cannot be read, so a read
// beyond the bytes ends the test program, in every build.

#pragma once

#include "support/ByteRange.h"

#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <stdexcept>

namespace kx {

class GuardedBytes {
public:
    explicit GuardedBytes(ByteView bytes)
        : _page(static_cast<std::size_t>(::sysconf(_SC_PAGESIZE)))
        , _length((bytes.size() / _page + 2) * _page) {
        void* memory =
            ::mmap(nullptr, _length, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        if (memory == MAP_FAILED) {
            throw std::runtime_error("no memory");
        }
        _memory = static_cast<std::uint8_t*>(memory);
        std::uint8_t* guard = _memory + (_length - _page);
        if (::mprotect(guard, _page, PROT_NONE) != 0) {
            throw std::runtime_error("no guard");
        }
        std::copy(bytes.begin(), bytes.end(), guard - bytes.size());
        _view = ByteView(guard - bytes.size(), bytes.size());
    }
    ~GuardedBytes() { ::munmap(_memory, _length); }
    GuardedBytes(const GuardedBytes&) = delete;
    GuardedBytes& operator=(const GuardedBytes&) = delete;

    ByteView view() const { return _view; }

private:
    std::size_t _page;
    std::size_t _length;
    std::uint8_t* _memory = nullptr;
    ByteView _view;
};

} // namespace kx
