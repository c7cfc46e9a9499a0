// A widget that is a window with a delegate. Main thread only.

#pragma once

#include "support/InstanceNames.h"

namespace kx {

class DelegatingWindow {
public:
    virtual ~DelegatingWindow() = default;

    // Null while there is none.
    virtual const WindowDelegate* windowDelegate() const = 0;
};

} // namespace kx
