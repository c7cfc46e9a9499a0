// The application's windows: every top-level widget, in the order in which Qt lists them. Those
// that are a DelegatingWindow may have a delegate. Needs a QApplication; main thread only.

#pragma once

#include "support/InstanceNames.h"

namespace kx {

class QtApplicationWindows final : public ApplicationWindows {
public:
    std::vector<const WindowDelegate*> delegates() const override;
};

} // namespace kx
