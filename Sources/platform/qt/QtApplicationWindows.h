// The application's windows: every top-level widget that has or could have a delegate, in the order
// in which Qt lists them. Needs a QApplication.

#pragma once

#include "support/InstanceNames.h"

namespace kx {

// A widget that is a window with a delegate; other top-level widgets are windows without one.
class DelegatingWindow {
public:
    virtual ~DelegatingWindow() = default;

    // Null while there is none.
    virtual const WindowDelegate* windowDelegate() const = 0;
};

class QtApplicationWindows final : public ApplicationWindows {
public:
    std::vector<const WindowDelegate*> delegates() const override;
};

} // namespace kx
