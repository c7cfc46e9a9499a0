// While it lives, the process can open no further descriptor.

#pragma once

#include <sys/resource.h>

#include <stdexcept>

namespace kx {

class ClosedDescriptors {
public:
    ClosedDescriptors() {
        if (::getrlimit(RLIMIT_NOFILE, &_before) != 0) {
            throw std::runtime_error("the limit cannot be read");
        }
        rlimit none = _before;
        none.rlim_cur = 0;
        ::setrlimit(RLIMIT_NOFILE, &none);
    }
    ~ClosedDescriptors() { ::setrlimit(RLIMIT_NOFILE, &_before); }
    ClosedDescriptors(const ClosedDescriptors&) = delete;
    ClosedDescriptors& operator=(const ClosedDescriptors&) = delete;

private:
    rlimit _before{};
};

} // namespace kx
