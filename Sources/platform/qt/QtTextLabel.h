// A text label over a label of the window, whose changes a screen reader says. The widget must
// outlive it.

#pragma once

#include "Outlets.h"
#include "platform/qt/SpokenLabel.h"

namespace kx {

class QtTextLabel final : public TextLabel {
public:
    explicit QtTextLabel(SpokenLabel& label)
        : _label(label) {}

    void setStringValue(std::string_view text) override;

private:
    SpokenLabel& _label;
};

} // namespace kx
