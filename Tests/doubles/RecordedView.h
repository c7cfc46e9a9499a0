// A view in memory.

#pragma once

#include "support/View.h"

namespace kx {

class RecordedView final : public View {
public:
    void setHidden(bool hidden) override { _isHidden = hidden; }
    bool isHidden() const override { return _isHidden; }

private:
    bool _isHidden = false;
};

} // namespace kx
