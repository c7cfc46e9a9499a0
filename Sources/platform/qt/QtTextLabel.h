// A text label over a label of the window. A screen reader says its changes. The widget must
// outlive it.

#pragma once

#include "Outlets.h"
#include "platform/qt/AnnouncedLabel.h"

namespace kx {

class QtTextLabel final : public TextLabel {
public:
    explicit QtTextLabel(AnnouncedLabel& label);

    void setStringValue(std::string_view text) override;

private:
    AnnouncedLabel& _label;
};

} // namespace kx
