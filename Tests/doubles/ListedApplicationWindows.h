// A list of windows that the test gives as a list of their delegates.

#pragma once

#include "support/InstanceNames.h"

namespace kx {

class ListedApplicationWindows final : public ApplicationWindows {
public:
    void addWindow(const WindowDelegate* delegate) { _delegates.push_back(delegate); }

    std::vector<const WindowDelegate*> delegates() const override { return _delegates; }

private:
    std::vector<const WindowDelegate*> _delegates;
};

} // namespace kx
